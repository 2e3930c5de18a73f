#include "loans/Lignes.h"

#include "core/Traduction.h"

#include <QCollator>
#include <QHeaderView>
#include <QTreeView>

namespace {

QCollatorSortKey cleDeTri(const QString &texte)
{
    return QCollator(Traduction::courant().locale()).sortKey(texte);
}

}

Lignes::Cellule::Cellule(const QString &texte, int id, std::optional<int> nombre)
    : QStandardItem(texte)
    , m_nombre(nombre)
    , m_cle(cleDeTri(texte))
{
    setEditable(false);
    QStandardItem::setData(Cle(id), Qt::UserRole);
}

void Lignes::Cellule::setData(const QVariant &valeur, int role)
{
    if (role == Qt::EditRole || role == Qt::DisplayRole)
        m_cle = cleDeTri(valeur.toString());
    QStandardItem::setData(valeur, role);
}

bool Lignes::Cellule::operator<(const QStandardItem &autre) const
{
    const auto &elle = static_cast<const Cellule &>(autre);
    return m_nombre != elle.m_nombre ? m_nombre < elle.m_nombre : m_cle < elle.m_cle;
}

void Lignes::Preparer(QTreeView *liste, QStandardItemModel &modele)
{
    liste->setModel(&modele);
    liste->setRootIsDecorated(false);
    liste->setUniformRowHeights(true);
    liste->setAllColumnsShowFocus(true);
    liste->setAlternatingRowColors(true);
    liste->setSelectionBehavior(QTreeView::SelectRows);
    // Until a heading is clicked, the lines stand as they were read.
    liste->header()->setSortIndicator(-1, Qt::AscendingOrder);
    liste->setSortingEnabled(true);
}

void Lignes::Trier(const QTreeView *liste, QStandardItemModel &modele)
{
    if (const int colonne = liste->header()->sortIndicatorSection(); colonne >= 0)
        modele.sort(colonne, liste->header()->sortIndicatorOrder());
}

QString Lignes::Cle(int id)
{
    return QStringLiteral("N %1").arg(id);
}

int Lignes::Courante(const QTreeView *liste)
{
    return NumeroDe(liste->currentIndex());
}

int Lignes::NumeroDe(const QModelIndex &cellule)
{
    return cellule.siblingAtColumn(0).data(Qt::UserRole).toString().mid(1).trimmed().toInt();
}

void Lignes::Retrouver(QTreeView *liste, int id, int rang)
{
    const QAbstractItemModel *modele = liste->model();
    const auto trouves = modele->match(modele->index(0, 0), Qt::UserRole, Cle(id), 1, Qt::MatchExactly);
    const int voisin = std::min(rang, modele->rowCount() - 1);
    if (!trouves.isEmpty())
        liste->setCurrentIndex(trouves.first());
    else if (id > 0 && voisin >= 0)
        liste->setCurrentIndex(modele->index(voisin, 0));
}
