#include "browse/Bandeau.h"

#include "acts/Demandes.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Langues.h"
#include "core/ui/Nommer.h"
#include "core/ui/Raccourcis.h"
#include "core/ui/Theme.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QToolButton>
#include <optional>

namespace {

/// What a menu button shows: a short word under its icon, the whole caption as tool tip and in the title.
struct Commande
{
    const char *icone;
    std::optional<Formes::Nom> forme;
    bool titre; ///< the caption is followed by the program's title
    Txt libelle;
    Txt mot; ///< under the icon, where the table of texts has a short word
};

constexpr std::array<Commande, 7> Commandes{
    Commande{"lanceur", Formes::Nom::Splash, true, Txt::AccederAuMenuPrincipal, Txt::Tris},
    Commande{"creation", Formes::Nom::Manuelle, false, Txt::Creation, Txt::Creation},
    Commande{"recherche", Formes::Nom::Recherche, false, Txt::AccederAuPanneauDeRecherche, Txt::Recherche},
    Commande{"impression", Formes::Nom::Impression, false, Txt::AccederAuMenuDImpression, Txt::Impression},
    Commande{"aide", std::nullopt, true, Txt::AccederALAide, Txt::AccederALAide},
    Commande{"web", std::nullopt, false, Txt::SiteWeb, Txt::SiteWeb},
    Commande{"apropos", std::nullopt, true, Txt::AProposDe, Txt::APropos},
};
/// A narrower row keeps its words for the menu.
constexpr int LargeurAisee = 1000;
constexpr int Lanceur = 0;
constexpr int Aide = 4;
constexpr int Web = 5;
constexpr int APropos = 6;
constexpr int Quitter = 7;

QString libelleDe(int rang)
{
    if (rang == Quitter)
        return Bandeau::tr("Quitter");
    const Commande &commande = Commandes[static_cast<std::size_t>(rang)];
    return commande.titre ? texte(commande.libelle) + u' ' + titre() : texte(commande.libelle);
}

QKeySequence toucheDe(int rang)
{
    if (rang == Quitter)
        return Qt::CTRL | Qt::Key_Q;
    const auto &forme = Commandes[static_cast<std::size_t>(rang)].forme;
    return forme ? Raccourcis::De(*forme) : QKeySequence();
}

QString motDe(int rang)
{
    if (rang == Lanceur)
        return Bandeau::tr("Menu");
    if (rang == Aide)
        return Bandeau::tr("Aide");
    if (rang == Quitter)
        return Bandeau::tr("Quitter");
    return texte(Commandes[static_cast<std::size_t>(rang)].mot);
}

}

Bandeau::Bandeau(Demandes &demandes, QWidget *parent)
    : QWidget(parent)
    , m_demandes(demandes)
{
    auto *ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(Theme::Moyen, Theme::Fin, Theme::Moyen, Theme::Fin);
    ligne->setSpacing(2);
    m_titre = nommer(new QLabel(this), QStringLiteral("Titre"));
    m_titre->setWordWrap(true);
    m_titre->setFont(Theme::Taille(font(), 1.2, QFont::Bold));
    m_titre->setForegroundRole(QPalette::Link);
    ligne->addWidget(m_titre);
    construireMenu();
    ligne->addStretch(1);
    construireDroite();
    Traduire();
}

void Bandeau::construireMenu()
{
    for (int i = 0; i <= Quitter; ++i) {
        auto *bouton = nommer(new QToolButton(this), QStringLiteral("Menu"), i);
        const auto rang = static_cast<std::size_t>(i);
        bouton->setIcon(Icones::Charger(
            i == Quitter ? QStringLiteral("quitter") : QString::fromLatin1(Commandes[rang].icone)));
        bouton->setIconSize({20, 20});
        bouton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        bouton->setAutoRaise(true);
        bouton->setFont(Theme::Taille(font(), 0.85));
        bouton->setMinimumSize(74, 44);
        bouton->installEventFilter(this);
        connect(bouton, &QToolButton::clicked, this, [this, i] { agir(i); });
        layout()->addWidget(bouton);
        m_menu[rang] = bouton;
    }
}

void Bandeau::construireDroite()
{
    m_defaire = nommer(new QToolButton(this), QStringLiteral("Defaire"));
    m_defaire->setIcon(Icones::Charger(QStringLiteral("annuler")));
    m_refaire = nommer(new QToolButton(this), QStringLiteral("Refaire"));
    m_refaire->setIcon(Icones::Charger(QStringLiteral("refaire")));
    for (QToolButton *bouton : {m_defaire, m_refaire}) {
        bouton->setAutoRaise(true);
        layout()->addWidget(bouton);
    }
    connect(m_defaire, &QToolButton::clicked, this, &Bandeau::annulationDemandee);
    connect(m_refaire, &QToolButton::clicked, this, &Bandeau::retablissementDemande);
    m_loops = nommer(new QToolButton(this), QStringLiteral("Loops"));
    m_loops->setIcon(Icones::Charger(QStringLiteral("diaporama")));
    m_loops->setCheckable(true);
    m_langues = nommer(new QToolButton(this), QStringLiteral("Langues"));
    m_langues->setIcon(Icones::Charger(QStringLiteral("langue")));
    m_langues->setPopupMode(QToolButton::InstantPopup);
    m_menuLangues = new QMenu(m_langues);
    m_langues->setMenu(m_menuLangues);
    for (QToolButton *bouton : {m_loops, m_langues}) {
        bouton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        bouton->setAutoRaise(true);
        layout()->addWidget(bouton);
    }
    connect(m_loops, &QToolButton::toggled, this, &Bandeau::loopBascule);
    connect(m_menuLangues, &QMenu::aboutToShow, this, [this] {
        RemplirLangues(*m_menuLangues, [this](const QString &fichier) { Q_EMIT m_demandes.langue(fichier); });
    });
}

void Bandeau::agir(int rang)
{
    switch (rang) {
    case Aide:
        return Q_EMIT aideDemandee();
    case Web:
        return Q_EMIT siteDemande();
    case APropos:
        return Q_EMIT aProposDemande();
    case Quitter:
        return Q_EMIT m_demandes.sortie();
    default:
        return Q_EMIT m_demandes.forme(*Commandes[static_cast<std::size_t>(rang)].forme);
    }
}

void Bandeau::Traduire()
{
    m_titre->setText(titre());
    for (int i = 0; i <= Quitter; ++i) {
        QToolButton *bouton = m_menu[static_cast<std::size_t>(i)];
        bouton->setText(motDe(i));
        expliquer(bouton, libelleDe(i));
        bouton->setToolTip(Raccourcis::Avec(bouton->toolTip(), toucheDe(i)));
    }
    poserEtapes(m_aAnnuler, m_aRefaire);
    libeller(m_loops, tr("Diaporama"));
    m_loops->setToolTip(
        tr("Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste"));
    libeller(m_langues, QFileInfo(Traduction::LangueCourante()).completeBaseName());
    m_langues->setToolTip(texte(Txt::SelectionnerLaLangue));
    m_menu[Web]->setVisible(!Reglages::courant().texte(Cle::Site).isEmpty());
}

void Bandeau::poserLoop(bool actif)
{
    m_loops->setChecked(actif);
}

void Bandeau::poserEtapes(const QString &aAnnuler, const QString &aRefaire)
{
    m_aAnnuler = aAnnuler;
    m_aRefaire = aRefaire;
    m_defaire->setEnabled(!aAnnuler.isEmpty());
    m_refaire->setEnabled(!aRefaire.isEmpty());
    expliquer(
        m_defaire, aAnnuler.isEmpty() ? tr("Annuler (Ctrl+Z)") : tr("Annuler %1 (Ctrl+Z)").arg(aAnnuler));
    expliquer(
        m_refaire, aRefaire.isEmpty() ? tr("Rétablir (Ctrl+Y)") : tr("Rétablir %1 (Ctrl+Y)").arg(aRefaire));
}

void Bandeau::poserLargeurTitre(int largeur)
{
    m_titre->setFixedWidth(largeur);
}

bool Bandeau::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::Enter || evenement->type() == QEvent::Leave) {
        const auto trouve = std::find(m_menu.begin(), m_menu.end(), objet);
        const bool entre = evenement->type() == QEvent::Enter && trouve != m_menu.end();
        m_titre->setText(
            entre ? titre() + u' ' + libelleDe(static_cast<int>(trouve - m_menu.begin())) : titre());
    }
    return QWidget::eventFilter(objet, evenement);
}

void Bandeau::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    m_loops->setToolButtonStyle(
        width() < LargeurAisee ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
}

void Bandeau::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Window));
    p.setPen(Theme::Trait(palette()));
    p.drawLine(0, height() - 1, width(), height() - 1);
}
