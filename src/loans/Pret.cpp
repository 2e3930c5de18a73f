#include "loans/Pret.h"

#include "acts/Demandes.h"
#include "acts/Preter.h"
#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(820, 520);
constexpr int LargeurPersonnes = 240;
constexpr qsizetype LongueurDuTitre = 32;
const QString Personne = QStringLiteral("Pers");
const QString PretEnCours = QStringLiteral("Pret");

QStandardItem *cellule(const QString &texte, int id)
{
    auto *item = new QStandardItem(texte);
    item->setEditable(false);
    item->setData(QStringLiteral("N %1").arg(id), Qt::UserRole);
    return item;
}

int idDe(const QTreeView *liste)
{
    const QString cle = liste->currentIndex().siblingAtColumn(0).data(Qt::UserRole).toString();
    return cle.mid(1).trimmed().toInt();
}

/// Makes the line of an identifier the current one; without such a line, the one that took its place.
void retrouver(QTreeView *liste, int id, int rang)
{
    const QAbstractItemModel *modele = liste->model();
    const auto trouves = modele->match(
        modele->index(0, 0), Qt::UserRole, QStringLiteral("N %1").arg(id), 1, Qt::MatchExactly);
    const int voisin = std::min(rang, modele->rowCount() - 1);
    if (!trouves.isEmpty())
        liste->setCurrentIndex(trouves.first());
    else if (id > 0 && voisin >= 0)
        liste->setCurrentIndex(modele->index(voisin, 0));
}

}

Pret::Pret(Demandes &demandes)
    : FormeOutil(QStringLiteral("Pret"), TailleDessinee)
    , m_demandes(demandes)
{
    construireListes(corps());
    m_preter = ajouterAuPied(QStringLiteral("Preter"), true);
    m_del = ajouterAuPied(QStringLiteral("Del"));
    brancher();
    Pret::Traduire();
}

void Pret::construireListes(QBoxLayout *page)
{
    auto *listes = new QHBoxLayout;
    listes->setSpacing(Theme::Grand);
    m_lPers = construireListe(QStringLiteral("LPers"), m_personnes);
    m_lPret = construireListe(QStringLiteral("LPret"), m_prets);
    m_lPers->setFixedWidth(LargeurPersonnes);
    m_nombre = nommer(new QLabel(this), QStringLiteral("Nombre"));
    m_nombre->setForegroundRole(QPalette::PlaceholderText);
    m_tous = nommer(new QPushButton(this), QStringLiteral("Tous"));
    int rang = 0;
    for (QTreeView *liste : {m_lPers, m_lPret}) {
        auto *colonne = new QVBoxLayout;
        colonne->setSpacing(Theme::Fin);
        auto *tete = new QHBoxLayout;
        m_titres[rang] = new QLabel(this);
        m_titres[rang]->setFont(Theme::Taille(font(), 1, QFont::Bold));
        tete->addWidget(m_titres[rang], 1);
        if (liste == m_lPret)
            tete->addWidget(m_nombre);
        colonne->addLayout(tete);
        colonne->addWidget(liste, 1);
        if (liste == m_lPers)
            colonne->addWidget(m_tous);
        listes->addLayout(colonne, rang++);
    }
    page->addLayout(listes, 1);
}

void Pret::brancher()
{
    connect(m_lPers->selectionModel(), &QItemSelectionModel::currentChanged, this, &Pret::choisirPersonne);
    connect(m_lPers, &QTreeView::clicked, this, &Pret::choisirPersonne);
    connect(m_lPret->selectionModel(), &QItemSelectionModel::currentChanged, this, &Pret::choisirPret);
    connect(m_lPret, &QTreeView::clicked, this, &Pret::choisirPret);
    connect(m_lPret, &QTreeView::doubleClicked, this, [this] {
        Q_EMIT m_demandes.entree({General::Tri::Albums, pret()});
    });
    connect(m_tous, &QPushButton::clicked, this, [this] { m_lPers->setCurrentIndex({}); });
    connect(m_preter, &QPushButton::clicked, this, &Pret::preter);
    connect(m_del, &QPushButton::clicked, this, &Pret::supprimer);
}

QTreeView *Pret::construireListe(const QString &nom, QStandardItemModel &modele)
{
    auto *liste = nommer(new QTreeView(this), nom);
    liste->setModel(&modele);
    liste->setRootIsDecorated(false);
    liste->setUniformRowHeights(true);
    liste->setAlternatingRowColors(true);
    liste->setSelectionBehavior(QTreeView::SelectRows);
    return liste;
}

int Pret::personne() const
{
    return idDe(m_lPers);
}

int Pret::pret() const
{
    return idDe(m_lPret);
}

void Pret::charger()
{
    m_lPers->setCurrentIndex({});
    remplirPersonnes();
    remplirPrets();
    m_lPers->setFocus();
}

void Pret::actualiser(const Changements &)
{
    if (!isVisible())
        return;
    const int qui = personne();
    const int quoi = pret();
    const int rangQui = m_lPers->currentIndex().row();
    const int rangQuoi = m_lPret->currentIndex().row();
    const QString cible = m_del->property("tag").toString();
    remplirPersonnes();
    retrouver(m_lPers, qui, rangQui);
    remplirPrets();
    if (cible == PretEnCours)
        retrouver(m_lPret, quoi, rangQuoi);
    poserCourante(m_courante);
}

void Pret::remplirPersonnes()
{
    const Entrees emprunteurs = Prets::LireEmprunteurs();
    m_personnes.setRowCount(0);
    for (int i = 0; i < emprunteurs.size(); ++i)
        m_personnes.appendRow(cellule(emprunteurs.texte(i), emprunteurs.id(i)));
    poserCible({});
}

/// Three columns when everybody's loans are shown: then one wants to know whose they are.
void Pret::remplirPrets()
{
    const int qui = personne();
    m_prets.setRowCount(0);
    for (const Prets::Pret &pret : Prets::LirePrets(qui)) {
        const QString jours = pret.jours ? tr("%n jour(s)", nullptr, *pret.jours) : QString();
        m_prets.appendRow({cellule(pret.titre, pret.album), cellule(jours, pret.album),
            cellule(pret.emprunteur, pret.album)});
    }
    m_lPret->setColumnHidden(2, qui > 0);
    m_nombre->setText(texte(Txt::AlbumsNombre) + u' ' + QString::number(m_prets.rowCount()));
    m_tous->setEnabled(qui > 0);
    poserCible(qui > 0 ? Personne : QString());
}

void Pret::choisirPersonne()
{
    remplirPrets();
}

void Pret::choisirPret()
{
    poserCible(pret() > 0 ? PretEnCours : personne() > 0 ? Personne : QString());
}

/// What the button deletes follows what was chosen last.
void Pret::poserCible(const QString &cible)
{
    m_del->setProperty("tag", cible);
    m_del->setEnabled(!cible.isEmpty());
    libeller(m_del, cible == PretEnCours ? tr("Rendre l'album") : tr("Supprimer la personne"));
}

void Pret::supprimer()
{
    const bool rend = m_del->property("tag").toString() == PretEnCours;
    if (!Messages::Demander(this, texte(rend ? Txt::RetirerCePret : Txt::RetirerCettePersonne)))
        return;
    QStandardItemModel &modele = rend ? m_prets : m_personnes;
    const int rang = (rend ? m_lPret : m_lPers)->currentIndex().row();
    if (rend)
        Preter::Rendre(pret());
    else
        Preter::SupprimerEmprunteur(personne());
    modele.removeRow(rang);
}

void Pret::poserCourante(General::Entree entree)
{
    m_courante = entree;
    const bool album = entree.tri == General::Tri::Albums && entree.id > 0;
    m_preter->setEnabled(album);
    const QString titreAlbum = album ? General::LireTexte(entree.tri, entree.id) : QString();
    const QString coupe
        = titreAlbum.size() > LongueurDuTitre ? titreAlbum.left(LongueurDuTitre) + QChar(0x2026) : titreAlbum;
    libeller(m_preter, album ? tr("Prêter « %1 »").arg(coupe) : tr("Prêter"));
    m_preter->setToolTip(album ? tr("Choisir à qui l'album montré est prêté")
                               : tr("Montrez d'abord un album dans la fenêtre principale"));
}

void Pret::preter()
{
    Edition edition = Ecrire::EditionDe(m_courante, Champs::De(Champs::Feuille::Album, "NPret"));
    edition.place = QRect(m_preter->mapToGlobal(QPoint()), m_preter->size());
    Q_EMIT m_demandes.edition(edition);
}

void Pret::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::GestionDesPrets));
    m_titres[0]->setText(texte(Txt::ListeDesPersonnes));
    m_titres[1]->setText(texte(Txt::ListeDesPrets));
    m_lPers->setAccessibleName(texte(Txt::ListeDesPersonnes));
    m_lPret->setAccessibleName(texte(Txt::ListeDesPrets));
    m_personnes.setHorizontalHeaderLabels({texte(Txt::Nom)});
    m_prets.setHorizontalHeaderLabels({texte(Txt::TitreDeLAlbum), tr("Dehors depuis"), texte(Txt::NomPret)});
    m_lPret->header()->setStretchLastSection(false);
    m_lPret->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    libeller(m_tous, tr("Tous les prêts"));
    poserCible(m_del->property("tag").toString());
    poserCourante(m_courante);
    // The days and the count are words of the language, too.
    QTimer::singleShot(0, this, [this] { actualiser({}); });
}

/// Enter on a loan shows its album.
void Pret::entrer()
{
    if (m_lPret->hasFocus() && pret() > 0)
        Q_EMIT m_demandes.entree({General::Tri::Albums, pret()});
}

void Pret::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Delete && m_del->isEnabled())
        supprimer();
    else
        FormeOutil::keyPressEvent(evenement);
}
