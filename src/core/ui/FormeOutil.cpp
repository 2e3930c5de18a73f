#include "core/ui/FormeOutil.h"

#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr QSize TailleBouton(96, 32);

}

const FormeOutil::Cadre FormeOutil::Large{Theme::Grand, Theme::Moyen, Theme::Moyen, Theme::Moyen, 1.3};
const FormeOutil::Cadre FormeOutil::Serre{Theme::Moyen, Theme::Moyen, Theme::Petit, Theme::Petit, 0};

FormeOutil::FormeOutil(const QString &nom, const QSize &taille, int elements, const Cadre &cadre)
    : Forme(nom)
{
    setWindowIcon(Icones::Programme());
    if (taille.isValid())
        resize(taille.boundedTo(screen()->availableSize()));
    m_page = new QVBoxLayout(this);
    m_page->setContentsMargins(cadre.cotes, cadre.bords, cadre.cotes, cadre.bords);
    m_page->setSpacing(cadre.ecart);
    if (cadre.titre > 0) {
        m_titre = new QLabel(this);
        m_titre->setFont(Theme::Taille(font(), cadre.titre, QFont::Bold));
        m_titre->setForegroundRole(QPalette::Link);
        m_page->addWidget(m_titre);
    }
    m_corps = new QVBoxLayout;
    m_corps->setSpacing(cadre.ecart);
    m_page->addLayout(m_corps, 1);
    construirePied(elements, cadre.ecartDuPied);
}

void FormeOutil::construirePied(int elements, int ecart)
{
    auto *pied = new QHBoxLayout;
    pied->setSpacing(ecart);
    m_gauche = new QHBoxLayout;
    m_gauche->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    pied->addLayout(m_gauche, 1);
    m_boutons = new QHBoxLayout;
    pied->addLayout(m_boutons);
    m_page->addLayout(pied);
    if (elements & Progression)
        construireProgression();
    if (elements & Mini) {
        m_mini = ajouterAuPied(QStringLiteral("Mini"));
        connect(m_mini, &QPushButton::clicked, this, &QWidget::showMinimized);
    }
    m_quit = ajouterAuPied(QStringLiteral("Quit"));
    connect(m_quit, &QPushButton::clicked, this, &QWidget::close);
}

void FormeOutil::construireProgression()
{
    m_progression = nommer(new QProgressBar(this), QStringLiteral("Progression"));
    m_progression->setTextVisible(false);
    m_annuler = nommer(new QPushButton(this), QStringLiteral("Annuler"));
    m_gauche->addWidget(m_progression, 1);
    m_gauche->addWidget(m_annuler);
    m_progression->hide();
    m_annuler->hide();
}

QPushButton *FormeOutil::ajouterAuPied(const QString &nom, bool accent)
{
    auto *bouton = nommer(new QPushButton(this), nom);
    bouton->setMinimumSize(TailleBouton);
    if (accent) {
        Theme::Accentuer(bouton);
        m_principal = bouton;
    }
    // The form's own buttons stand before those of the frame.
    const bool propre = m_quit != nullptr;
    m_boutons->insertWidget(propre ? m_boutons->count() - (m_mini ? 2 : 1) : m_boutons->count(), bouton);
    return bouton;
}

QLabel *FormeOutil::ajouterMessage(const QString &nom)
{
    m_message = nommer(new QLabel(this), nom);
    m_message->setWordWrap(true);
    // Room for one line, so that the form does not jump when there is something to say.
    m_message->setMinimumHeight(m_message->fontMetrics().height());
    m_page->insertWidget(m_page->count() - 1, m_message);
    return m_message;
}

QLabel *FormeOutil::ajouterMessageAuPied(const QString &nom, Cote cote)
{
    m_message = nommer(new QLabel(this), nom);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_gauche->insertWidget(cote == Cote::Avant ? 0 : m_gauche->count(), m_message, 1);
    return m_message;
}

QLabel *FormeOutil::ajouterEtat(const QString &nom)
{
    auto *etat = nommer(new QLabel(this), nom);
    m_gauche->insertWidget(0, etat);
    return etat;
}

void FormeOutil::dire(const QString &ligne)
{
    m_message->setText(ligne);
}

void FormeOutil::dire(const QString &ligne, QPalette::ColorRole encre)
{
    m_message->setForegroundRole(encre);
    dire(ligne);
}

void FormeOutil::keyPressEvent(QKeyEvent *evenement)
{
    if (!EstEntree(*evenement))
        return Forme::keyPressEvent(evenement);
    if (!m_entreeSeule && evenement->modifiers().testFlag(Qt::ControlModifier))
        presserPrincipal();
    else if (!presserSousLeClavier())
        entrer();
}

void FormeOutil::surEntree(QWidget *champ, std::function<void()> acte)
{
    m_entrees[champ] = std::move(acte);
    champ->installEventFilter(this);
}

bool FormeOutil::eventFilter(QObject *objet, QEvent *evenement)
{
    const auto entree = m_entrees.find(objet);
    if (evenement->type() != QEvent::KeyPress || entree == m_entrees.end()
        || !EstEntree(*static_cast<QKeyEvent *>(evenement)))
        return Forme::eventFilter(objet, evenement);
    entree->second();
    return true;
}

void FormeOutil::entrer()
{
    if (m_entreeSeule)
        presserPrincipal();
}

void FormeOutil::presserPrincipal()
{
    if (m_principal && m_principal->isVisible())
        m_principal->click();
}

/// The foot was made before what stands above it: the keyboard comes to it last, and begins above it.
void FormeOutil::showEvent(QShowEvent *evenement)
{
    Forme::showEvent(evenement);
    if (std::exchange(m_ordonnee, true))
        return;
    const std::vector<QWidget *> dessus = auDessusDuPied();
    if (dessus.empty())
        return;
    QWidget *dernier = dessus.back();
    for (QWidget *bouton : boutonsDuPied()) {
        // By way of the first: the order is a ring, and what stands before it seems to stand behind the last.
        setTabOrder(dessus.front(), bouton);
        setTabOrder(dernier, bouton);
        dernier = bouton;
    }
    const auto premier = std::find_if(dessus.begin(), dessus.end(),
        [](const QWidget *controle) { return controle->isVisible() && controle->isEnabled(); });
    if (!focusWidget() && premier != dessus.end())
        (*premier)->setFocus(Qt::TabFocusReason);
}

std::vector<QWidget *> FormeOutil::boutonsDuPied() const
{
    std::vector<QWidget *> boutons;
    if (m_annuler)
        boutons.push_back(m_annuler);
    for (int i = 0; i < m_boutons->count(); ++i)
        boutons.push_back(m_boutons->itemAt(i)->widget());
    return boutons;
}

/// What the keyboard comes to elsewhere than in the foot, in its order.
std::vector<QWidget *> FormeOutil::auDessusDuPied() const
{
    const std::vector<QWidget *> pied = boutonsDuPied();
    std::vector<QWidget *> dessus;
    for (QWidget *suivant = nextInFocusChain(); suivant != this; suivant = suivant->nextInFocusChain()) {
        const bool duPied = std::find(pied.begin(), pied.end(), suivant) != pied.end();
        if (!duPied && suivant->focusPolicy() & Qt::TabFocus)
            dessus.push_back(suivant);
    }
    return dessus;
}

void FormeOutil::poserTitre(const QString &texte)
{
    setWindowTitle(texte + QStringLiteral(" - ") + ::titre());
    if (m_titre)
        m_titre->setText(texte);
}

void FormeOutil::Traduire()
{
    if (m_progression) {
        m_progression->setAccessibleName(texte(Txt::ChargementEnCours));
        libeller(m_annuler, tr("Annuler"));
    }
    if (m_mini)
        libeller(m_mini, texte(Txt::Minimiser));
    libeller(m_quit, texte(Txt::Fermer));
}
