#include "browse/VoletListes.h"

#include "acts/Demandes.h"
#include "acts/Ecrire.h"
#include "browse/VueListe.h"
#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Raccourcis.h"
#include "core/ui/Theme.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

using namespace General;

namespace {

constexpr int CoteTri = 30;
constexpr int HauteurFilet = 3;

QHBoxLayout *ligneDeTitre(QLabel *titre, QLabel *nombre)
{
    auto *ligne = new QHBoxLayout;
    titre->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    nombre->setForegroundRole(QPalette::PlaceholderText);
    ligne->addWidget(titre, 1);
    ligne->addWidget(nombre, 0, Qt::AlignBottom);
    return ligne;
}

}

VoletListes::VoletListes(Demandes &demandes, QWidget *parent)
    : QWidget(parent)
    , m_demandes(demandes)
{
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(Theme::Moyen, Theme::Petit, 0, Theme::Petit);
    colonne->setSpacing(Theme::Petit);
    colonne->addWidget(construireTris());
    colonne->addWidget(construireTitre());

    m_liste = new VueListe(QStringLiteral("Liste"), this);
    construireVide();

    m_partage = new QSplitter(Qt::Vertical, this);
    m_partage->addWidget(m_liste);
    m_partage->addWidget(construireLies());
    m_partage->setStretchFactor(0, 3);
    m_partage->setStretchFactor(1, 2);
    m_partage->setChildrenCollapsible(false);
    colonne->addWidget(m_partage, 1);
    brancher();
    appliquerApparence();
    Traduire();
}

QWidget *VoletListes::construireTris()
{
    auto *zone = new QWidget(this);
    auto *ligne = new QHBoxLayout(zone);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(2);
    auto *groupe = new QButtonGroup(this);
    for (int i = 0; i < NombreDeTris; ++i) {
        auto *bouton = nommer(new QToolButton(zone), QStringLiteral("Tris"), i);
        bouton->setIcon(Icones::Charger(QString::fromLatin1(ListeDe(TriDe(i)).icone)));
        bouton->setIconSize({20, 20});
        bouton->setFixedSize(CoteTri, CoteTri);
        bouton->setCheckable(true);
        bouton->setAutoRaise(true);
        groupe->addButton(bouton, i);
        ligne->addWidget(bouton, 1);
        m_tris[static_cast<std::size_t>(i)] = bouton;
    }
    connect(groupe, &QButtonGroup::idClicked, this, [this](int i) { Q_EMIT triDemande(TriDe(i)); });
    return zone;
}

QWidget *VoletListes::construireTitre()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(Theme::Fin);
    m_titre = nommer(new QLabel(zone), QStringLiteral("TitreListe"));
    m_titre->setFont(Theme::Taille(font(), 1.15, QFont::Bold));
    m_nombre = nommer(new QLabel(zone), QStringLiteral("Nombre"));
    colonne->addLayout(ligneDeTitre(m_titre, m_nombre));

    m_progression = nommer(new QProgressBar(zone), QStringLiteral("Progression"));
    m_progression->setTextVisible(false);
    m_progression->setFixedHeight(HauteurFilet);
    colonne->addWidget(m_progression);
    m_filtre = nommer(new QLineEdit(zone), QStringLiteral("Filtre"));
    m_filtre->setClearButtonEnabled(true);
    m_filtre->addAction(
        Icones::Charger(QStringLiteral("recherche"), QPalette::PlaceholderText), QLineEdit::LeadingPosition);
    m_filtre->installEventFilter(this);
    colonne->addSpacing(Theme::Fin);
    colonne->addWidget(m_filtre);
    m_selection = nommer(new QToolButton(zone), QStringLiteral("Selection"));
    m_selection->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_selection->setIcon(Icones::Charger(QStringLiteral("fermer")));
    m_selection->setIconSize({14, 14});
    m_selection->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_selection->hide();
    colonne->addWidget(m_selection);
    return zone;
}

/// What stands in the place of the lines; a click beside its button is one into the list.
void VoletListes::construireVide()
{
    m_vide = new QWidget(m_liste->viewport());
    auto *colonne = new QVBoxLayout(m_vide);
    colonne->setContentsMargins(Theme::Moyen, Theme::Grand, Theme::Moyen, 0);
    colonne->setSpacing(Theme::Moyen);
    m_raison = new QLabel(m_vide);
    m_raison->setWordWrap(true);
    m_raison->setTextFormat(Qt::PlainText);
    m_raison->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_raison->setForegroundRole(QPalette::PlaceholderText);
    colonne->addWidget(m_raison);
    m_ajouter = nommer(new QPushButton(m_vide), QStringLiteral("Ajouter"));
    m_ajouter->setIcon(Icones::Charger(QStringLiteral("ajouter")));
    colonne->addWidget(m_ajouter, 0, Qt::AlignHCenter);
    connect(m_ajouter, &QPushButton::clicked, this, [this] {
        if (m_tri == Tri::Albums)
            Q_EMIT m_demandes.forme(Formes::Nom::Manuelle);
        else
            Q_EMIT m_demandes.ajout(m_tri);
    });
    auto *surListe = new QVBoxLayout(m_liste->viewport());
    surListe->setContentsMargins(0, 0, 0, 0);
    surListe->addWidget(m_vide);
    surListe->addStretch(1);
}

/// Why no line shows.
QString VoletListes::raisonDuVide() const
{
    if (m_liste->modele().entrees().size() > 0)
        return m_filtre->text().isEmpty() ? tr("Ces albums ne sont plus là.")
                                          : tr("Rien ne correspond à « %1 ».").arg(m_filtre->text());
    if (m_tri == Tri::Albums)
        return tr("Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.");
    // Nothing of an album makes these.
    if (m_tri == Tri::ExLibris || m_tri == Tri::Presse)
        return tr("Rien ici pour l'instant. Cette liste se remplit à la main, ligne par ligne.");
    return tr("Rien ici pour l'instant. Cette liste se remplit avec les albums que vous créez.");
}

QWidget *VoletListes::construireLies()
{
    m_voletLies = new QWidget(this);
    auto *colonne = new QVBoxLayout(m_voletLies);
    colonne->setContentsMargins(0, Theme::Fin, 0, 0);
    colonne->setSpacing(Theme::Fin);
    m_titreLies = nommer(new QLabel(m_voletLies), QStringLiteral("TitreLies"));
    m_titreLies->setFont(Theme::Taille(font(), 1, QFont::Bold));
    m_titreLies->setTextFormat(Qt::PlainText);
    m_nombreLies = nommer(new QLabel(m_voletLies), QStringLiteral("NombreLies"));
    colonne->addLayout(ligneDeTitre(m_titreLies, m_nombreLies));
    m_onglets = new QTabWidget(m_voletLies);
    m_onglets->setDocumentMode(true);
    m_onglets->tabBar()->setDrawBase(false);
    m_albums = new VueListe(QStringLiteral("LFilms"), m_onglets);
    m_presse = new VueListe(QStringLiteral("ListeExL"), m_onglets);
    m_onglets->addTab(m_albums, {});
    m_onglets->addTab(m_presse, {});
    colonne->addWidget(m_onglets);
    m_voletLies->hide();
    return m_voletLies;
}

void VoletListes::brancher()
{
    for (VueListe *liste : {m_liste, m_albums, m_presse}) {
        connect(liste, &VueListe::entreeChoisie, this, &VoletListes::entreeChoisie);
        connect(liste, &VueListe::menuDemande, this,
            [this](Entree entree, const QPoint &point) { Q_EMIT m_demandes.menu({entree}, point); });
        connect(liste, &VueListe::suppressionDemandee, &m_demandes, &Demandes::suppression);
        connect(&liste->modele(), &ListeEntrees::renommageDemande, this, &VoletListes::renommageDemande,
            Qt::QueuedConnection);
    }
    connect(m_filtre, &QLineEdit::textChanged, this, [this](const QString &texte) {
        m_liste->filtrer(texte);
        poserNombre();
    });
    connect(m_selection, &QToolButton::clicked, this, &VoletListes::oterSelection);
    connect(&m_liste->modele(), &ListeEntrees::rowsRemoved, this, &VoletListes::poserNombre);
}

void VoletListes::montrerLigne(int id)
{
    if (!m_liste->modele().indexDe(id).isValid())
        m_filtre->clear();
    if (!m_liste->modele().indexDe(id).isValid())
        oterSelection();
    m_liste->choisir(id);
}

Selection VoletListes::montree() const
{
    return {m_tri, m_liste->modele().visibles()};
}

void VoletListes::montrerSelection(const std::function<QString()> &libelle, const std::vector<int> &albums)
{
    m_filtre->clear();
    m_liste->restreindre(albums);
    m_libelleSelection = libelle;
    nommerSelection();
    m_selection->show();
    poserNombre();
}

void VoletListes::nommerSelection()
{
    const QString libelle = m_libelleSelection ? m_libelleSelection() : QString();
    m_selection->setText(libelle);
    expliquer(m_selection, tr("%1 — montrer toute la liste").arg(libelle));
}

void VoletListes::oterSelection()
{
    m_liste->restreindre({});
    m_selection->hide();
    poserNombre();
}

void VoletListes::filtrer()
{
    m_filtre->setFocus();
    m_filtre->selectAll();
}

void VoletListes::ajouter()
{
    m_filtre->clear();
    oterSelection();
    m_vide->hide();
    m_liste->ajouter();
}

void VoletListes::renommer(Entree entree)
{
    if (entree.tri == m_tri && m_liste->renommer(entree.id))
        return;
    for (VueListe *liste : {m_albums, m_presse}) {
        if (liste->modele().tri() == entree.tri && liste->renommer(entree.id))
            return;
    }
}

/// From the line one goes on into the list: down, or Enter for its first entry; Escape shows all again.
bool VoletListes::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet != m_filtre || evenement->type() != QEvent::KeyPress)
        return QWidget::eventFilter(objet, evenement);
    const int touche = static_cast<QKeyEvent *>(evenement)->key();
    if (touche == Qt::Key_Escape) {
        m_filtre->clear();
    } else if (touche == Qt::Key_Down || touche == Qt::Key_Return || touche == Qt::Key_Enter) {
        if (m_liste->choisie() == 0)
            m_liste->setCurrentIndex(m_liste->modele().index(0));
    } else {
        return false;
    }
    m_liste->setFocus();
    return true;
}

void VoletListes::montrer(Tri tri)
{
    if (tri != m_tri)
        m_filtre->clear();
    oterSelection();
    // The button pressed and the list shown never disagree, even when the reading fails.
    try {
        remplir(tri);
    } catch (...) {
        m_tris[static_cast<std::size_t>(m_tri)]->setChecked(true);
        throw;
    }
    m_tris[static_cast<std::size_t>(tri)]->setChecked(true);
    viderLies();
}

void VoletListes::remplir(Tri tri)
{
    m_liste->remplir(tri, LireListe(tri, [this](qint64 faites, qint64 total) {
        m_progression->setValue(static_cast<int>(100 * faites / total));
        if (m_progression->isVisible())
            m_progression->repaint();
    }));
    m_tri = tri;
    m_remplie = true;
    poserPretes();
    poserNombre();
}

/// The marks of lent albums come from another table than the titles, by one query of their own.
void VoletListes::poserPretes()
{
    const std::vector<int> pretes = LirePretes();
    m_liste->modele().poserPretes(pretes);
    m_albums->modele().poserPretes(pretes);
}

void VoletListes::poserNombre()
{
    const General::Liste &decrite = ListeDe(m_tri);
    const int nombre = m_liste->modele().rowCount();
    const int entier = m_liste->modele().entrees().size();
    m_titre->setText(texte(decrite.titre));
    const QString compte = QString::number(nombre);
    m_nombre->setText(texte(decrite.prefixe) + u' '
        + (nombre == entier ? compte : compte + QStringLiteral(" / ") + QString::number(entier)));
    m_liste->setAccessibleName(texte(decrite.titre));
    // A collection that could not be read must not look like an empty one.
    m_vide->setVisible(m_remplie && nombre == 0);
    m_raison->setText(raisonDuVide());
    m_ajouter->setVisible(entier == 0);
    libeller(m_ajouter, m_tri == Tri::Albums ? tr("Créer un album") : texte(Txt::Ajouter));
}

void VoletListes::viderLies()
{
    montrerLies({});
}

VoletListes::Lies VoletListes::lireLies(Entree entree)
{
    return {entree, LireTexte(entree.tri, entree.id), LireAlbums(entree.tri, entree.id),
        entree.tri == Tri::Editeurs ? LirePresse(entree.id) : Entrees()};
}

void VoletListes::montrerLies(Lies lies)
{
    m_lies = lies.entree;
    m_albums->remplir(Tri::Albums, std::move(lies.albums));
    m_presse->remplir(Tri::Presse, std::move(lies.presse));
    m_titreLies->setText(lies.titre);
    replier();
}

/// The main list stands on the entry shown, or on the one to which what is shown belongs. One where the user has just chosen
/// goes its way: what he chose is about to be shown.
void VoletListes::accorder(Entree montree)
{
    const auto poser = [](VueListe *liste, int id) {
        if (!liste->vaAnnoncer() && liste->choisie() != id)
            liste->choisir(id);
    };
    poser(m_liste, montree.tri == m_tri && montree.id > 0 ? montree.id : m_lies.id);
    for (VueListe *liste : {m_albums, m_presse})
        poser(liste, liste->modele().tri() == montree.tri && m_tri != montree.tri ? montree.id : 0);
}

VueListe *VoletListes::listeDe(Entree montree) const
{
    if (montree.tri == m_tri)
        return m_liste;
    return montree.tri == Tri::Albums ? m_albums : m_presse;
}

/// Shows the pane only when one of its lists holds something, and tabs only when both do.
void VoletListes::replier()
{
    const int albums = m_albums->modele().rowCount();
    const int presse = m_presse->modele().rowCount();
    m_voletLies->setVisible(albums + presse > 0);
    m_onglets->setTabVisible(0, albums > 0);
    m_onglets->setTabVisible(1, presse > 0);
    m_onglets->tabBar()->setVisible(albums > 0 && presse > 0);
    m_nombreLies->setText(albums > 0 ? QStringLiteral("%1 %2").arg(albums).arg(texte(Txt::AlbumsUnite))
                                     : QString::number(presse));
}

void VoletListes::actualiser(const Changements &changements)
{
    if (Concerne(changements, m_tri))
        remplir(m_tri);
    else
        poserPretes();
    if (m_lies.id > 0 && m_liste->modele().entrees().rang(m_lies.id) < 0)
        viderLies();
    else if (m_lies.id > 0)
        montrerLies(lireLies(m_lies));
}

void VoletListes::Traduire()
{
    nommerSelection();
    for (int i = 0; i < NombreDeTris; ++i) {
        QToolButton *bouton = m_tris[static_cast<std::size_t>(i)];
        expliquer(bouton, texte(ListeDe(TriDe(i)).bouton));
        bouton->setToolTip(Raccourcis::Avec(bouton->toolTip(), Qt::CTRL | Qt::Key(Qt::Key_1 + i)));
    }
    m_titre->setToolTip(tr("Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv."));
    m_onglets->setTabText(0, texte(Txt::AlbumsDeBD));
    m_onglets->setTabText(1, texte(Txt::PressesBD));
    m_albums->setAccessibleName(texte(Txt::ListeDesAlbums));
    m_presse->setAccessibleName(texte(Txt::ListeDesPressesBD));
    m_filtre->setPlaceholderText(tr("Filtrer la liste (Ctrl+F)"));
    m_filtre->setAccessibleName(tr("Filtrer la liste (Ctrl+F)"));
    m_progression->setAccessibleName(texte(Txt::ChargementEnCours));
    poserNombre();
    replier();
}

void VoletListes::appliquerApparence()
{
    QPalette rouge;
    rouge.setColor(QPalette::Highlight, Theme::Rouge(this->palette()));
    m_progression->setPalette(rouge);
    QPalette palette;
    if (Theme::CouleurChoisie().isValid())
        palette.setColor(QPalette::Text, Theme::CouleurChoisie());
    for (VueListe *liste : {m_liste, m_albums, m_presse}) {
        liste->setFont(Theme::PoliceChoisie());
        liste->setPalette(palette);
    }
}

QByteArray VoletListes::etat() const
{
    return m_partage->saveState();
}

void VoletListes::poserEtat(const QByteArray &etat)
{
    m_partage->restoreState(etat);
}
