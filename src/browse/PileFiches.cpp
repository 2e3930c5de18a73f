#include "browse/PileFiches.h"

#include "browse/Accueil.h"
#include "browse/FicheAlbum.h"
#include "browse/FicheEntite.h"
#include "model/ChargerAlbums.h"

PileFiches::PileFiches(QWidget *parent)
    : QStackedWidget(parent)
{
    m_accueil = new Accueil(this);
    connect(m_accueil, &Accueil::formeDemandee, this, &PileFiches::formeDemandee);
    addWidget(m_accueil);
}

bool PileFiches::montrer(General::Entree entree)
{
    if (entree.tri == General::Tri::Albums)
        return montrerAlbum(entree.id);
    const Champs::Feuille feuille = General::GenreDe(entree.tri).feuille;
    const auto valeurs = Fiche::Lire(feuille, entree.id);
    if (!valeurs)
        return false;
    FicheEntite *&fiche = m_entites[feuille];
    if (!fiche) {
        fiche = new FicheEntite(feuille, this);
        inscrire(fiche);
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
        m_album = new FicheAlbum(this);
        inscrire(m_album);
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

void PileFiches::inscrire(FicheForme *fiche)
{
    addWidget(fiche);
    connect(fiche, &FicheForme::entreeDemandee, this, &PileFiches::entreeDemandee);
    connect(fiche, &FicheForme::editionDemandee, this, &PileFiches::editionDemandee);
    connect(fiche, &FicheForme::menuDemande, this, &PileFiches::menuDemande);
    connect(fiche, &FicheForme::imageDemandee, this, &PileFiches::imageDemandee);
    connect(fiche, &FicheForme::dit, this, &PileFiches::dit);
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

void PileFiches::AppliquerPolices()
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
