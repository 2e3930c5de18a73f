#include "entry/FormeCreation.h"

#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "entry/FormulaireAlbum.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FormeCreation::FormeCreation(const QString &nom, Txt titre, bool date)
    : Forme(nom)
    , m_titre(titre)
{
    setWindowIcon(Icones::Programme());
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(Theme::Grand, Theme::Moyen, Theme::Grand, Theme::Moyen);
    page->setSpacing(Theme::Moyen);
    m_entete = new QLabel(this);
    m_entete->setFont(Theme::Taille(font(), 1.3, QFont::Bold));
    m_entete->setForegroundRole(QPalette::Link);
    page->addWidget(m_entete);
    m_corps = new QHBoxLayout;
    m_corps->setSpacing(Theme::Grand);
    m_formulaire = new FormulaireAlbum(date, this);
    m_corps->addWidget(m_formulaire, 1);
    page->addLayout(m_corps, 1);
    page->addWidget(construirePied());
    connect(m_formulaire, &FormulaireAlbum::refusOte, this, [this] { dire({}); });
    connect(m_formulaire, &FormulaireAlbum::serieChoisie, this, [this](const QString &serie) {
        if (const auto tome = Saisie::ProchainTome(serie))
            m_formulaire->proposerTome(*tome);
    });
    FormeCreation::Traduire();
}

QWidget *FormeCreation::construirePied()
{
    auto *pied = new QWidget(this);
    auto *ligne = new QHBoxLayout(pied);
    ligne->setContentsMargins(0, 0, 0, 0);
    m_refus = nommer(new QLabel(pied), QStringLiteral("Refus"));
    m_refus->setForegroundRole(QPalette::BrightText);
    ligne->addWidget(m_refus, 1);
    m_creer = nommer(new QPushButton(pied), QStringLiteral("BtnCreer"));
    m_mini = nommer(new QPushButton(pied), QStringLiteral("Mini"));
    m_quit = nommer(new QPushButton(pied), QStringLiteral("Quit"));
    for (QPushButton *bouton : {m_creer, m_mini, m_quit}) {
        bouton->setMinimumSize(96, 32);
        ligne->addWidget(bouton);
    }
    Theme::Accentuer(m_creer);
    connect(m_creer, &QPushButton::clicked, this, &FormeCreation::creer);
    connect(m_mini, &QPushButton::clicked, this, &QWidget::showMinimized);
    connect(m_quit, &QPushButton::clicked, this, &QWidget::close);
    return pied;
}

void FormeCreation::charger()
{
    m_formulaire->vider();
    dire({});
    m_formulaire->proposer(Saisie::LireChoix());
}

void FormeCreation::Traduire()
{
    setWindowTitle(texte(m_titre) + QStringLiteral(" - ") + titre());
    m_entete->setText(texte(m_titre));
    libeller(m_creer, texte(Txt::Creer));
    m_creer->setToolTip(tr("Ctrl+Entrée"));
    libeller(m_mini, texte(Txt::Minimiser));
    libeller(m_quit, texte(Txt::Fermer));
    m_formulaire->Traduire();
}

void FormeCreation::keyPressEvent(QKeyEvent *evenement)
{
    const bool entree = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (entree && evenement->modifiers().testFlag(Qt::ControlModifier))
        m_creer->click();
    else
        Forme::keyPressEvent(evenement);
}

void FormeCreation::dire(const QString &ligne)
{
    m_refus->setText(ligne);
}

void FormeCreation::creer()
{
    const Saisie::Textes textes = m_formulaire->textes();
    if (const auto refus = Saisie::Verifier(textes)) {
        m_formulaire->montrerRefus(*refus);
        dire(refus->raison);
        return;
    }
    dire(texte(Txt::CreationEnCours));
    m_refus->repaint();
    int num = 0;
    try {
        num = Saisie::CreerAlbum(textes);
    } catch (...) {
        dire({});
        throw;
    }
    dire({});
    Messages::Informer(this, texte(Txt::CreationEffectuee));
    charger();
    Q_EMIT albumCree(num);
}
