#include "launcher/Splash.h"

#include "acts/Demandes.h"
#include "core/Fonds.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Icones.h"
#include "core/ui/Liens.h"
#include "core/ui/Nommer.h"
#include "core/ui/Raccourcis.h"
#include "core/ui/Theme.h"
#include "launcher/Boutons.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>

namespace {

constexpr QSize TailleDessinee(900, 600);
constexpr QSize TailleMinimale(780, 520);
constexpr int LargeurMenu = 220;
constexpr int Colonnes = 3;
constexpr int PremierGroupe = 0;
constexpr int GroupeHabituel = 1;
const QColor BleuDuSurvol(0, 0, 255);

struct Groupe
{
    Txt titre;
    Txt commentaire;
    bool nomme; ///< the comment is followed by the program's title
};
constexpr std::array Groupes{
    Groupe{Txt::Creation, Txt::VousPouvezCreerUneFiche, true},
    Groupe{Txt::Tris, Txt::ModifiezLesCriteres, false},
    Groupe{Txt::Interface, Txt::SelectionnezLAffichage, true},
    Groupe{Txt::Outils, Txt::AccedezAuxOutils, false},
    Groupe{Txt::SiteWeb, Txt::AccedezDirectementAuxSites, false},
};

QString commentaireDe(const Groupe &groupe)
{
    return groupe.nomme ? texte(groupe.commentaire) + u' ' + titre() : texte(groupe.commentaire);
}

/// The lists that have a button here: all but those of publishers and collections.
constexpr int NombreDeListes = 7;

using Outil = Splash::Outil;
constexpr std::array Creations{
    Outil{Txt::CreationManuelle, Txt::SaisirUneFicheManuellement, "creation-manuelle", Forme::Nom::Manuelle},
    Outil{Txt::CreationFacile, Txt::SelectionnerFichePresaisie, "creation-facile", Forme::Nom::Facile},
    Outil{Txt::CreationAvecBDNet, Txt::SelectionnerFicheDuSite, "creation-bdnet", Forme::Nom::BDNet},
};
constexpr std::array Interfaces{
    Outil{Txt::PolicesDeCaracteres, Txt::ConfigurerLesPolices, "polices", Forme::Nom::Polices},
    Outil{Txt::LesTextures, Txt::ModifierLesTextures, "textures", Forme::Nom::Textures},
};
constexpr std::array Outils{
    Outil{Txt::Statistiques, Txt::AfficherLesStatistiques, "statistiques", Forme::Nom::Stats},
    Outil{Txt::Impression, Txt::AccederAuMenuDImpression, "impression", Forme::Nom::Impression},
    Outil{Txt::Acquisition, Txt::AcquerirVosImages, "acquisition", Forme::Nom::Acquisition},
    Outil{Txt::GestionDesPrets, Txt::AccederALaGestionDesPrets, "prets", Forme::Nom::Pret},
    Outil{Txt::Sauvegarde, Txt::SauvegarderVotreBase, "sauvegarde", std::nullopt},
    Outil{Txt::Restauration, Txt::RestaurerVotreBase, "restauration", Forme::Nom::Restauration},
};

/// The left column: the groups on ink blue.
class Colonne : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
    }
};

/// A text in two lines where one would be cut.
QString enDeuxLignes(const QString &texte, const QFontMetrics &mesures, int largeur)
{
    if (mesures.horizontalAdvance(texte) <= largeur)
        return texte;
    qsizetype coupe = texte.size();
    while (coupe > 0 && mesures.horizontalAdvance(texte.left(coupe)) > largeur)
        coupe = texte.lastIndexOf(u' ', coupe - 1);
    return coupe <= 0 ? texte : texte.left(coupe) + u'\n' + texte.mid(coupe + 1);
}

}

Splash::Splash(Demandes &demandes)
    : Forme(QStringLiteral("Splash"))
    , m_demandes(demandes)
{
    setWindowIcon(Icones::Programme());
    Raccourcis::Poser(*this, [this](Nom forme) { Q_EMIT m_demandes.forme(forme); });
    const QSize ecran = screen()->availableSize();
    setMinimumSize(TailleMinimale.boundedTo(ecran));
    resize(TailleDessinee.boundedTo(ecran));
    auto *panneau = nommer(new Fond(this), QStringLiteral("SSSplash1"));
    panneau->poser(Fonds::Texture(Reglages::courant().entier(Cle::Splash)), true);
    auto *page = new QHBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(panneau);
    auto *moities = new QHBoxLayout(panneau);
    moities->setContentsMargins(0, 0, 0, 0);
    moities->setSpacing(0);
    moities->addWidget(construireMenu());
    moities->addWidget(construirePages(), 1);
    m_auto->setChecked(Reglages::courant().booleen(Cle::SplashAuto));
    poserTri(Reglages::courant().entier(Cle::Tris));
    ouvrirGroupe(Reglages::courant().nombre(Cle::FirstTime) == 1 ? GroupeHabituel : PremierGroupe);
    Splash::Traduire();
}

QWidget *Splash::construireMenu()
{
    auto *zone = new Colonne(this);
    zone->setFixedWidth(LargeurMenu);
    QPalette claire = zone->palette();
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
        claire.setColor(role, zone->palette().color(QPalette::HighlightedText));
    zone->setPalette(claire);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(18, 24, 18, 18);
    colonne->setSpacing(10);
    auto *titreProgramme = new QLabel(titre(), zone);
    titreProgramme->setFont(Theme::Taille(font(), 1.9, QFont::Bold));
    m_sousTitre = new QLabel(zone);
    m_sousTitre->setWordWrap(true);
    colonne->addWidget(titreProgramme);
    colonne->addWidget(m_sousTitre);
    colonne->addSpacing(Theme::Grand);

    m_menu = new QButtonGroup(this);
    for (std::size_t i = 0; i < Groupes.size(); ++i) {
        auto *bouton = nommer(new BoutonGroupe(zone), QStringLiteral("Menu"), static_cast<int>(i));
        bouton->installEventFilter(this);
        m_menu->addButton(bouton, static_cast<int>(i));
        colonne->addWidget(bouton);
    }
    connect(m_menu, &QButtonGroup::idClicked, this, &Splash::ouvrirGroupe);
    colonne->addStretch(1);

    m_auto = nommer(new QCheckBox(zone), QStringLiteral("SphashAuto"));
    // Its box is paper with a blue tick: blue with a white one would be lost on this ground.
    QPalette boite = claire;
    boite.setColor(QPalette::Highlight, claire.color(QPalette::HighlightedText));
    boite.setColor(QPalette::HighlightedText, claire.color(QPalette::Highlight));
    m_auto->setPalette(boite);
    colonne->addWidget(m_auto);
    connect(m_auto, &QCheckBox::clicked, this,
        [](bool coche) { Reglages::courant().ecrire(Cle::SplashAuto, coche); });
    return zone;
}

QWidget *Splash::construirePages()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(34, 26, 34, 26);
    colonne->setSpacing(Theme::Moyen);
    m_titreGroupe = new QLabel(zone);
    m_titreGroupe->setFont(Theme::Taille(font(), 1.3, QFont::Bold));
    m_titreGroupe->setForegroundRole(QPalette::Link);
    colonne->addWidget(m_titreGroupe);

    m_pages = new QStackedWidget(zone);
    QGridLayout *creation = ouvrirPage();
    construireOutils(creation, QStringLiteral("Creation"), Creations);
    construireImport(creation);
    construireTris(ouvrirPage());
    construireOutils(ouvrirPage(), QStringLiteral("Interf"), Interfaces);
    construireOutils(ouvrirPage(), QStringLiteral("Outils"), Outils);
    construireLiens(ouvrirPage());
    colonne->addWidget(m_pages, 1);

    m_commentaire = nommer(new QLabel(zone), QStringLiteral("Commentaire"));
    m_commentaire->setWordWrap(true);
    m_commentaire->setMinimumHeight(44);
    m_commentaire->setFrameShape(QFrame::StyledPanel);
    m_commentaire->setMargin(Theme::Petit);
    colonne->addWidget(m_commentaire);

    colonne->addLayout(construireBoutons());
    return zone;
}

QLayout *Splash::construireBoutons()
{
    m_mini = nommer(new QPushButton(this), QStringLiteral("Mini"));
    m_quit = nommer(new QPushButton(this), QStringLiteral("Quit"));
    m_quit->setIcon(Icones::Charger(QStringLiteral("fleche"), QPalette::HighlightedText));
    Theme::Accentuer(m_quit);
    auto *boutons = new QHBoxLayout;
    boutons->addStretch(1);
    for (QPushButton *bouton : {m_mini, m_quit}) {
        bouton->setMinimumSize(84, 34);
        bouton->installEventFilter(this);
        boutons->addWidget(bouton);
    }
    connect(m_mini, &QPushButton::clicked, this, &QWidget::hide);
    connect(m_quit, &QPushButton::clicked, this, [this] {
        Q_EMIT m_demandes.retour();
        hide();
    });
    return boutons;
}

/// The next group's page, a grid of large buttons.
QGridLayout *Splash::ouvrirPage()
{
    auto *cadre = nommer(new QWidget(m_pages), QStringLiteral("Frames"), m_pages->count());
    auto *grille = new QGridLayout(cadre);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setSpacing(16);
    for (int c = 0; c < Colonnes; ++c)
        grille->setColumnStretch(c, 1);
    constexpr int DerniereLigne = 9;
    grille->setRowStretch(DerniereLigne, 1);
    m_pages->addWidget(cadre);
    return grille;
}

QToolButton *Splash::ajouter(
    QGridLayout *page, const QString &nom, int rang, const QString &icone, const Bouton &bouton)
{
    auto *controle = nommer(new GrosBouton(this), nom, rang);
    controle->setIcon(Icones::Charger(icone));
    controle->installEventFilter(this);
    page->addWidget(controle, rang / Colonnes, rang % Colonnes);
    m_boutons.push_back(bouton);
    m_boutons.back().controle = controle;
    return controle;
}

/// One button for each tool: it opens its form, or asks for a copy of the collection.
void Splash::construireOutils(QGridLayout *page, const QString &nom, std::span<const Outil> outils)
{
    int rang = 0;
    for (const Outil &outil : outils) {
        auto *bouton = ajouter(page, nom, rang++, QString::fromLatin1(outil.icone),
            {nullptr, [&outil] { return texte(outil.legende); },
                [&outil] { return texte(outil.commentaire); },
                outil.forme ? Raccourcis::De(*outil.forme) : QKeySequence()});
        if (const auto forme = outil.forme)
            connect(bouton, &QToolButton::clicked, this, [this, forme] { Q_EMIT m_demandes.forme(*forme); });
        else
            connect(bouton, &QToolButton::clicked, &m_demandes, &Demandes::copie);
    }
}

void Splash::construireImport(QGridLayout *page)
{
    auto *bouton = ajouter(page, QStringLiteral("Creation"), static_cast<int>(Creations.size()),
        QStringLiteral("ouvrir"),
        {nullptr, [] { return tr("Importer des albums"); },
            [] { return tr("Créer beaucoup d'albums d'un coup, à partir d'un fichier CSV"); }, {}});
    connect(bouton, &QToolButton::clicked, this, [this] { Q_EMIT m_demandes.forme(Nom::Import); });
}

void Splash::construireTris(QGridLayout *page)
{
    m_tris = new QButtonGroup(this);
    for (int rang = 0; rang < NombreDeListes; ++rang) {
        const General::Liste &liste = General::ListeDe(General::TriDe(rang));
        auto *bouton = ajouter(page, QStringLiteral("Tris"), rang, QString::fromLatin1(liste.icone),
            {nullptr, [&liste] { return texte(liste.bouton); },
                [&liste] { return tr(" Sélectionner la liste des ") + texte(liste.bouton); }, {}});
        bouton->setCheckable(true);
        m_tris->addButton(bouton, rang);
    }
    connect(m_tris, &QButtonGroup::idClicked, this,
        [this](int tri) { Q_EMIT m_demandes.liste(General::TriDe(tri)); });
}

void Splash::construireLiens(QGridLayout *page)
{
    auto *bouton = ajouter(page, QStringLiteral("Liens"), 0, QStringLiteral("liens"),
        {nullptr, [] { return texte(Txt::SiteWeb); }, [] { return texte(Txt::VisitezLeSiteDeLAuteur); }, {}});
    bouton->setObjectName(QStringLiteral("Liens"));
    connect(bouton, &QToolButton::clicked, this, [] { Liens::Ouvrir(Reglages::courant().texte(Cle::Site)); });
}

void Splash::ouvrirGroupe(int groupe)
{
    m_menu->button(groupe)->setChecked(true);
    // The keyboard goes on from the group that is shown.
    if (isVisible())
        m_menu->button(groupe)->setFocus();
    m_pages->setCurrentIndex(groupe);
    m_titreGroupe->setText(texte(Groupes[static_cast<std::size_t>(groupe)].titre));
}

void Splash::poserTri(int tri)
{
    m_tris->setExclusive(false);
    for (QAbstractButton *bouton : m_tris->buttons())
        bouton->setChecked(m_tris->id(bouton) == tri);
    m_tris->setExclusive(true);
}

void Splash::Traduire()
{
    setWindowTitle(titre());
    m_sousTitre->setText(texte(Txt::LeGestionnaireDeBDTheque));
    for (std::size_t i = 0; i < Groupes.size(); ++i)
        libeller(m_menu->button(static_cast<int>(i)), texte(Groupes[i].titre));
    for (const Bouton &bouton : m_boutons) {
        const QString legende = bouton.legende().simplified();
        libeller(bouton.controle, legende);
        bouton.controle->setToolTip(
            bouton.touche.isEmpty() ? QString() : Raccourcis::Avec(legende, bouton.touche));
    }
    libeller(m_mini, texte(Txt::Fermer));
    libeller(m_quit, tr("Voir la liste"));
    expliquer(m_quit, texte(Txt::AccederAuMenuPrincipal) + u' ' + titre());
    const int place = LargeurMenu - 36 - style()->pixelMetric(QStyle::PM_IndicatorWidth) - Theme::Petit;
    m_auto->setText(enDeuxLignes(texte(Txt::AfficherCetEcranAuDemarrage), m_auto->fontMetrics(), place));
    m_auto->setAccessibleName(texte(Txt::AfficherCetEcranAuDemarrage));
    m_commentaire->clear();
    const bool site = !Reglages::courant().texte(Cle::Site).isEmpty();
    m_menu->button(static_cast<int>(Groupes.size()) - 1)->setVisible(site);
    m_boutons.back().controle->setVisible(site);
    ouvrirGroupe(m_pages->currentIndex());
}

bool Splash::eventFilter(QObject *objet, QEvent *evenement)
{
    // Whoever comes by keyboard reads the same as whoever comes by mouse.
    const bool entre = evenement->type() == QEvent::Enter || evenement->type() == QEvent::FocusIn;
    const bool sort = evenement->type() == QEvent::Leave || evenement->type() == QEvent::FocusOut;
    auto *bouton = qobject_cast<QAbstractButton *>(objet);
    if (bouton && evenement->type() == QEvent::KeyPress
        && marcher(*bouton, *static_cast<QKeyEvent *>(evenement)))
        return true;
    if (bouton && (entre || sort))
        survoler(*bouton, entre);
    return Forme::eventFilter(objet, evenement);
}

/// Up and down among the groups: the page goes along.
bool Splash::marcher(QAbstractButton &bouton, const QKeyEvent &touche)
{
    const int pas = touche.key() == Qt::Key_Down ? 1 : touche.key() == Qt::Key_Up ? -1 : 0;
    const int groupe = m_menu->id(&bouton);
    if (pas == 0 || groupe < 0)
        return false;
    const QAbstractButton *voisin = m_menu->button(groupe + pas);
    if (voisin && !voisin->isHidden())
        ouvrirGroupe(groupe + pas);
    return true;
}

void Splash::showEvent(QShowEvent *evenement)
{
    Forme::showEvent(evenement);
    m_menu->checkedButton()->setFocus();
}

void Splash::survoler(QAbstractButton &bouton, bool entre)
{
    m_commentaire->setText(entre ? commentaireDuBouton(bouton) : QString());
    if (&bouton == m_quit)
        return; // it stands on red
    // The groups turn to paper, in the dark, too.
    const bool sombre = Theme::EstSombre(this->palette()) && m_menu->id(&bouton) < 0;
    QPalette palette;
    if (entre && bouton.isEnabled())
        palette.setColor(QPalette::ButtonText, sombre ? Theme::Bleu(this->palette()) : BleuDuSurvol);
    bouton.setPalette(palette);
}

QString Splash::commentaireDuBouton(QAbstractButton &bouton) const
{
    for (const Bouton &connu : m_boutons) {
        if (connu.controle == &bouton)
            return connu.commentaire();
    }
    const int groupe = m_menu->id(&bouton);
    return groupe >= 0 ? commentaireDe(Groupes[static_cast<std::size_t>(groupe)]) : bouton.accessibleName();
}
