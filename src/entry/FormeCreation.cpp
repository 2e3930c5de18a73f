#include "entry/FormeCreation.h"

#include "acts/Demandes.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "entry/FormulaireAlbum.h"

#include <QCloseEvent>
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
    m_vider = ajouterAuPied(QStringLiteral("Vider"));
    m_vider->setEnabled(false);
    m_creer = ajouterAuPied(QStringLiteral("BtnCreer"), true);
    reserverEntree();
    connect(m_vider, &QPushButton::clicked, this, &FormeCreation::recommencer);
    connect(m_creer, &QPushButton::clicked, this, &FormeCreation::creer);
}

void FormeCreation::construireFormulaire(bool date)
{
    m_formulaire = new FormulaireAlbum(date, this);
    m_ligne->addWidget(m_formulaire, 1);
    connect(m_formulaire, &FormulaireAlbum::refusOte, this, [this] { dire({}); });
    connect(m_formulaire, &FormulaireAlbum::refusee, this, &FormeCreation::refuser);
    connect(m_formulaire, &FormulaireAlbum::change, this,
        [this] { m_vider->setEnabled(!m_formulaire->estVide()); });
    connect(m_formulaire, &FormulaireAlbum::serieChoisie, this,
        [this](const QString &serie) { m_formulaire->proposerTome(Saisie::ProchainTome(serie)); });
    FormeCreation::Traduire();
}

void FormeCreation::charger()
{
    if (!m_formulaire->aUneSaisie())
        vider();
    m_formulaire->proposer(Saisie::LireChoix());
}

void FormeCreation::vider()
{
    m_formulaire->vider();
    dire({});
}

void FormeCreation::recommencer()
{
    if (m_formulaire->aUneSaisie() && !Messages::Demander(this, tr("Effacer tout ce qui est saisi ici ?")))
        return;
    vider();
}

QString FormeCreation::brouillon() const
{
    if (!m_formulaire->aUneSaisie())
        return {};
    return tr("« %1 » : un album commencé n'est pas encore créé, il sera perdu.").arg(texte(m_titre));
}

/// Nothing is lost by closing, but an album that one thinks created would be missed.
void FormeCreation::closeEvent(QCloseEvent *evenement)
{
    const bool demande = isVisible() && m_formulaire->aUneSaisie();
    const QString question = tr("Cet album n'est pas encore créé. Fermer quand même ?") + u'\n'
        + tr("La saisie sera là à la prochaine ouverture, tant que le programme n'est pas quitté.");
    evenement->setAccepted(!demande || Messages::Demander(this, question));
}

void FormeCreation::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(m_titre));
    libeller(m_vider, tr("Vider"));
    m_vider->setToolTip(tr("Effacer tous les champs"));
    libeller(m_creer, texte(Txt::Creer));
    m_creer->setToolTip(tr("Ctrl+Entrée"));
    m_formulaire->Traduire();
}

void FormeCreation::creer()
{
    const Album album = m_formulaire->album();
    if (const auto refus = Saisie::Verifier(album))
        return refuser(*refus);
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
    vider();
    charger();
    Q_EMIT m_demandes.liste(General::Tri::Albums);
    Q_EMIT m_demandes.entree({General::Tri::Albums, num});
}

void FormeCreation::refuser(const Saisie::Refus &refus)
{
    m_formulaire->montrerRefus(refus);
    dire(refus.raison);
}
