#include "browse/PileFiches.h"

#include "browse/Accueil.h"
#include "browse/FicheAlbum.h"
#include "browse/FicheEntite.h"
#include "model/ChargerAlbums.h"

#include <QLayout>

PileFiches::PileFiches(Demandes &demandes, QWidget *parent)
    : QStackedWidget(parent)
    , m_demandes(demandes)
{
    m_accueil = new Accueil(m_demandes, this);
    addWidget(m_accueil);
    connect(this, &QStackedWidget::currentChanged, this, [this] { layout()->update(); });
}

QSize PileFiches::minimumSizeHint() const
{
    return currentWidget()->minimumSizeHint();
}

QSize PileFiches::sizeHint() const
{
    return currentWidget()->sizeHint();
}

int PileFiches::heightForWidth(int largeur) const
{
    return currentWidget()->heightForWidth(largeur);
}

bool PileFiches::allerAuGroupe(int pas)
{
    FicheForme *fiche = montree();
    if (fiche)
        fiche->allerAuGroupe(pas);
    return fiche;
}

bool PileFiches::montrer(General::Entree entree)
{
    const bool la = entree.tri == General::Tri::Albums ? montrerAlbum(entree.id) : montrerEntite(entree);
    if (la)
        montree()->permettre(m_permis);
    return la;
}

bool PileFiches::montrerEntite(General::Entree entree)
{
    const Champs::Feuille feuille = General::ListeDe(entree.tri).feuille;
    const auto valeurs = Fiche::Lire(feuille, entree.id);
    if (!valeurs)
        return false;
    FicheEntite *&fiche = m_entites[feuille];
    if (!fiche) {
        fiche = new FicheEntite(feuille, m_demandes, this);
        addWidget(fiche);
    }
    fiche->montrer(entree, *valeurs, General::LireAlbums(entree.tri, entree.id));
    if (feuille == Champs::Feuille::Auteur)
        fiche->montrerMetiers(ChargerAuteurs::LireMetiers(entree.id, entree.tri));
    setCurrentWidget(fiche);
    return true;
}

bool PileFiches::montrerAlbum(int num)
{
    const auto fiche = ChargerAlbums::AfficherAlbum(num);
    if (!fiche)
        return false;
    if (!m_album) {
        m_album = new FicheAlbum(m_demandes, this);
        addWidget(m_album);
        m_album->poserDefilement(m_defile);
    }
    m_album->montrer(*fiche);
    setCurrentWidget(m_album);
    return true;
}

void PileFiches::vider(bool vierge)
{
    m_accueil->poserVierge(vierge);
    setCurrentWidget(m_accueil);
}

FicheForme *PileFiches::montree() const
{
    return qobject_cast<FicheForme *>(currentWidget());
}

void PileFiches::ecrireMemos()
{
    if (FicheForme *fiche = montree())
        fiche->ecrireMemos();
}

bool PileFiches::memosEnAttente() const
{
    const FicheForme *fiche = montree();
    return fiche && fiche->memosEnAttente();
}

void PileFiches::oublierMemos()
{
    if (FicheForme *fiche = montree())
        fiche->oublierMemos();
}

void PileFiches::poserDefilement(bool defile)
{
    m_defile = defile;
    if (m_album)
        m_album->poserDefilement(defile);
}

void PileFiches::appliquerPolices()
{
    if (m_album)
        m_album->AppliquerPolicesFiche();
    for (const auto &[feuille, fiche] : m_entites)
        fiche->AppliquerPolicesFiche();
}

void PileFiches::Traduire()
{
    m_accueil->Traduire();
}
