#include "loans/ListePersonnes.h"

#include "core/Traduction.h"
#include "loans/Lignes.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTimer>

namespace {

constexpr int Colonnes = 3;

QStringList textesDe(const Prets::Emprunteur &personne)
{
    return {personne.nom, personne.prenom, personne.telephone};
}

}

ListePersonnes::ListePersonnes(QWidget *parent)
    : QTreeView(parent)
    , m_modele(0, Colonnes)
{
    Lignes::Preparer(this, m_modele);
    sortByColumn(0, Qt::AscendingOrder);
    setEditTriggers(EditKeyPressed | DoubleClicked);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::Stretch);
    header()->setSectionResizeMode(Colonnes - 1, QHeaderView::ResizeToContents);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&m_modele, &QStandardItemModel::dataChanged, this,
        [this](const QModelIndex &cellule, const QModelIndex &, const QList<int> &roles) {
            signaler(cellule, roles);
        });
}

void ListePersonnes::remplir(const std::vector<Prets::Emprunteur> &gens)
{
    const QScopedValueRollback muette(m_muette, true);
    for (int ligne = m_modele.rowCount() - 1; ligne >= 0; --ligne) {
        const int id = Lignes::NumeroDe(m_modele.index(ligne, 0));
        const bool la = std::any_of(gens.begin(), gens.end(), [id](const auto &p) { return p.id == id; });
        if (id > 0 ? !la : state() != EditingState)
            m_modele.removeRow(ligne);
    }
    for (const Prets::Emprunteur &personne : gens) {
        const int ligne = ligneDe(personne.id);
        if (ligne < 0)
            ajouterLigne(personne);
        for (int colonne = 0; ligne >= 0 && colonne < Colonnes; ++colonne)
            m_modele.item(ligne, colonne)->setText(textesDe(personne)[colonne]);
    }
    Lignes::Trier(this, m_modele);
    scrollTo(currentIndex());
}

void ListePersonnes::ajouterLigne(const Prets::Emprunteur &personne)
{
    QList<QStandardItem *> cellules;
    for (const QString &texte : textesDe(personne)) {
        cellules << new Lignes::Cellule(texte, personne.id);
        cellules.last()->setEditable(true);
    }
    m_modele.appendRow(cellules);
}

int ListePersonnes::ligneDe(int id) const
{
    for (int ligne = 0; ligne < m_modele.rowCount(); ++ligne) {
        if (Lignes::NumeroDe(m_modele.index(ligne, 0)) == id)
            return ligne;
    }
    return -1;
}

std::optional<Prets::Emprunteur> ListePersonnes::personne() const
{
    const QModelIndex ici = currentIndex();
    if (Lignes::NumeroDe(ici) == 0)
        return {};
    const auto texte = [&](int colonne) { return ici.siblingAtColumn(colonne).data().toString(); };
    return Prets::Emprunteur{Lignes::NumeroDe(ici), texte(0), texte(1), texte(2)};
}

void ListePersonnes::ajouter()
{
    oterSansNom();
    ajouterLigne({});
    const QModelIndex neuve = m_modele.index(m_modele.rowCount() - 1, 0);
    setCurrentIndex(neuve);
    scrollTo(neuve);
    setFocus();
    edit(neuve);
}

void ListePersonnes::attribuer(int id)
{
    if (const int ligne = ligneDe(0); ligne >= 0)
        m_modele.item(ligne)->setData(Lignes::Cle(id), Qt::UserRole);
}

/// The base is not written to in the midst of what the view does.
void ListePersonnes::signaler(const QModelIndex &cellule, const QList<int> &roles)
{
    if (m_muette || !roles.contains(Qt::EditRole))
        return;
    const int id = Lignes::NumeroDe(cellule);
    const int colonne = cellule.column();
    const QString texte = cellule.data().toString();
    QTimer::singleShot(0, this, [this, id, colonne, texte] {
        if (id > 0)
            Q_EMIT saisie(id, static_cast<Preter::Donnee>(colonne), texte);
        else if (colonne == 0 && !texte.trimmed().isEmpty())
            Q_EMIT nouvelle(texte);
    });
}

void ListePersonnes::oterSansNom()
{
    const int ligne = ligneDe(0);
    if (ligne >= 0 && m_modele.item(ligne)->text().trimmed().isEmpty())
        m_modele.removeRow(ligne);
}

/// Within a line, from one cell to the next; up and down as in any list.
QModelIndex ListePersonnes::moveCursor(CursorAction action, Qt::KeyboardModifiers touches)
{
    if (action != MoveNext && action != MovePrevious)
        return QTreeView::moveCursor(action, touches);
    const QModelIndex ici = currentIndex();
    return ici.siblingAtColumn(ici.column() + (action == MoveNext ? 1 : -1));
}

void ListePersonnes::closeEditor(QWidget *editeur, QAbstractItemDelegate::EndEditHint suite)
{
    QTreeView::closeEditor(editeur, suite);
    // A line that got no name goes once the view is done with its editor.
    QTimer::singleShot(0, this, [this] {
        if (state() != EditingState)
            oterSansNom();
    });
}

void ListePersonnes::Traduire()
{
    m_modele.setHorizontalHeaderLabels({texte(Txt::Nom), texte(Txt::Prenom), texte(Txt::Telephone)});
    setAccessibleName(texte(Txt::ListeDesPersonnes));
}
