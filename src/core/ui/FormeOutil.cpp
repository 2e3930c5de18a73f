#include "core/ui/FormeOutil.h"

#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr QSize TailleBouton(96, 32);

}

FormeOutil::FormeOutil(const QString &nom, const QSize &taille, int elements)
    : Forme(nom)
{
    setWindowIcon(Icones::Programme());
    resize(taille.boundedTo(screen()->availableSize()));
    m_page = new QVBoxLayout(this);
    m_page->setContentsMargins(Theme::Grand, Theme::Moyen, Theme::Grand, Theme::Moyen);
    m_page->setSpacing(Theme::Moyen);
    m_titre = new QLabel(this);
    m_titre->setFont(Theme::Taille(font(), 1.3, QFont::Bold));
    m_titre->setForegroundRole(QPalette::Link);
    m_page->addWidget(m_titre);
    m_corps = new QVBoxLayout;
    m_corps->setSpacing(Theme::Moyen);
    m_page->addLayout(m_corps, 1);

    auto *pied = new QHBoxLayout;
    m_gauche = new QHBoxLayout;
    m_gauche->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    pied->addLayout(m_gauche, 1);
    m_boutons = new QHBoxLayout;
    pied->addLayout(m_boutons);
    m_page->addLayout(pied);
    if (elements & Progression) {
        m_progression = nommer(new QProgressBar(this), QStringLiteral("Progression"));
        m_progression->setTextVisible(false);
        m_annuler = nommer(new QPushButton(this), QStringLiteral("Annuler"));
        m_gauche->addWidget(m_progression, 1);
        m_gauche->addWidget(m_annuler);
        m_progression->hide();
        m_annuler->hide();
    }
    if (elements & Mini) {
        m_mini = ajouterAuPied(QStringLiteral("Mini"));
        connect(m_mini, &QPushButton::clicked, this, &QWidget::showMinimized);
    }
    m_quit = ajouterAuPied(QStringLiteral("Quit"));
    connect(m_quit, &QPushButton::clicked, this, &QWidget::close);
}

QPushButton *FormeOutil::ajouterAuPied(const QString &nom, bool accent)
{
    auto *bouton = nommer(new QPushButton(this), nom);
    bouton->setMinimumSize(TailleBouton);
    if (accent)
        Theme::Accentuer(bouton);
    // The form's own buttons stand before those of the frame.
    const bool propre = m_quit != nullptr;
    m_boutons->insertWidget(propre ? m_boutons->count() - (m_mini ? 2 : 1) : m_boutons->count(), bouton);
    return bouton;
}

QLabel *FormeOutil::ajouterMessage()
{
    auto *message = nommer(new QLabel(this), QStringLiteral("Message"));
    message->setWordWrap(true);
    // Room for one line, so that the form does not jump when there is something to say.
    message->setMinimumHeight(message->fontMetrics().height());
    m_page->insertWidget(m_page->count() - 1, message);
    return message;
}

/// The foot was made before what stands above it: the keyboard comes to it last.
void FormeOutil::showEvent(QShowEvent *evenement)
{
    Forme::showEvent(evenement);
    if (std::exchange(m_ordonnee, true))
        return;
    if (m_annuler)
        setTabOrder(previousInFocusChain(), m_annuler);
    for (int i = 0; i < m_boutons->count(); ++i)
        setTabOrder(previousInFocusChain(), m_boutons->itemAt(i)->widget());
    if (!focusWidget())
        focusNextPrevChild(true);
}

void FormeOutil::poserTitre(const QString &texte)
{
    setWindowTitle(texte + QStringLiteral(" - ") + ::titre());
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
