#include "entry/FormeCreation.h"

#include "acts/Demandes.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "entry/FormulaireAlbum.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int EcartDesBoutons = 6;

}

FormeCreation::FormeCreation(Demandes &demandes, const QString &nom, const QSize &taille, Txt titre)
    : FormeOutil(nom, taille, Mini, {Large.cotes, Large.bords, Large.ecart, EcartDesBoutons, Large.titre})
    , m_demandes(demandes)
    , m_titre(titre)
{
    Fond::Tapisser(this);
    m_ligne = new QHBoxLayout;
    m_ligne->setSpacing(Theme::Grand);
    corps()->addLayout(m_ligne, 1);
    m_refus = ajouterMessageAuPied(QStringLiteral("Refus"), Cote::Avant);
    m_refus->setForegroundRole(QPalette::BrightText);
    // A refusal is read whole: the form grows for it.
    m_refus->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_creer = ajouterAuPied(QStringLiteral("BtnCreer"), true);
    reserverEntree();
    connect(m_creer, &QPushButton::clicked, this, &FormeCreation::creer);
}

void FormeCreation::construireFormulaire(bool date)
{
    m_formulaire = new FormulaireAlbum(date, this);
    m_ligne->addWidget(m_formulaire, 1);
    connect(m_formulaire, &FormulaireAlbum::refusOte, this, [this] { dire({}); });
    connect(m_formulaire, &FormulaireAlbum::serieChoisie, this, [this](const QString &serie) {
        if (const auto tome = Saisie::ProchainTome(serie))
            m_formulaire->proposerTome(*tome);
    });
    FormeCreation::Traduire();
}

void FormeCreation::charger()
{
    m_formulaire->vider();
    dire({});
    m_formulaire->proposer(Saisie::LireChoix());
}

void FormeCreation::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(m_titre));
    libeller(m_creer, texte(Txt::Creer));
    m_creer->setToolTip(tr("Ctrl+Entrée"));
    m_formulaire->Traduire();
}

void FormeCreation::creer()
{
    const Album album = m_formulaire->album();
    if (const auto refus = Saisie::Verifier(album)) {
        m_formulaire->montrerRefus(*refus);
        dire(refus->raison);
        return;
    }
    dire(texte(Txt::CreationEnCours));
    m_refus->repaint();
    int num = 0;
    try {
        num = Saisie::CreerAlbum(album);
    } catch (...) {
        dire({});
        throw;
    }
    dire({});
    Messages::Informer(this, texte(Txt::CreationEffectuee));
    charger();
    Q_EMIT m_demandes.liste(General::Tri::Albums);
    Q_EMIT m_demandes.entree({General::Tri::Albums, num});
}
