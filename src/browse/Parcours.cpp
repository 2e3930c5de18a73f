#include "browse/Parcours.h"

#include "acts/Renommer.h"
#include "browse/Pied.h"
#include "browse/PileFiches.h"
#include "browse/VoletListes.h"
#include "browse/VueListe.h"
#include "core/Dossier.h"
#include "core/Reglages.h"
#include "core/ui/Messages.h"
#include "db/files/Reprise.h"

#include <QLoggingCategory>
#include <QTimer>

using namespace General;

namespace {

/// For measuring the start: QT_LOGGING_RULES="bulleo.demarrage=true" tells when the list is on screen.
Q_LOGGING_CATEGORY(demarrage, "bulleo.demarrage", QtInfoMsg)

}

Parcours::Parcours(VoletListes &volet, PileFiches &fiches, Pied &pied, QObject *parent)
    : QObject(parent)
    , m_volet(volet)
    , m_fiches(fiches)
    , m_pied(pied)
{
    connect(&Annonces::courant(), &Annonces::changee, this, &Parcours::actualiser);
    connect(&m_volet, &VoletListes::triDemande, this, &Parcours::montrerTri);
    connect(&m_volet, &VoletListes::entreeChoisie, this, &Parcours::choisir);
    connect(&m_volet, &VoletListes::renommageDemande, this, &Parcours::renommer);
}

void Parcours::ouvrir()
{
    // One in the old format is not opened: it is offered to be converted.
    if (Reprise::EstAncien(Dossier::courant().collection()))
        return;
    m_volet.montrer(TriDe(Reglages::courant().entier(Cle::Tris)));
    m_ouverte = true;
}

void Parcours::montrerTri(Tri tri)
{
    quitterFiche();
    m_volet.montrer(tri);
    m_ouverte = true;
    retenirTri(tri);
    m_courante = {};
    // The list that was there already keeps its entry.
    if (m_volet.liste()->choisie() > 0)
        choisirCourante();
    else
        montrerPremiere();
}

void Parcours::retenirTri(Tri tri)
{
    Reglages::courant().ecrire(Cle::Tris, static_cast<int>(tri));
    Q_EMIT triChange(static_cast<int>(tri));
}

void Parcours::montrerSelection(const QString &libelle, const std::vector<int> &albums)
{
    montrerTri(Tri::Albums);
    m_volet.montrerSelection(libelle, albums);
    m_volet.liste()->setCurrentIndex(m_volet.liste()->modele().index(0));
}

Selection Parcours::listeMontree() const
{
    return m_volet.montree();
}

void Parcours::montrerPremiere()
{
    qCDebug(demarrage) << "peinte";
    VueListe *liste = m_volet.liste();
    if (!m_ouverte)
        return;
    m_pied.poserTotaux();
    if (liste->currentIndex().isValid())
        return;
    if (liste->modele().rowCount() == 0) {
        oublier();
        return;
    }
    choisirPremiere();
    liste->setFocus();
}

void Parcours::choisirPremiere()
{
    ListeEntrees &modele = m_volet.liste()->modele();
    const int premiere = modele.id(modele.index(0));
    if (premiere == 0)
        return;
    m_volet.liste()->choisir(premiere);
    choisir({modele.tri(), premiere});
}

void Parcours::montrerEntree(Entree entree)
{
    // An album shows beside any list that has albums; every other entry belongs to its own list.
    if (entree.tri != Tri::Albums && entree.tri != m_volet.tri()) {
        m_volet.montrer(entree.tri);
        retenirTri(entree.tri);
    }
    if (entree.tri == m_volet.tri()) {
        m_volet.montrerLigne(entree.id);
        choisir(entree);
        return;
    }
    m_volet.albums()->choisir(entree.id);
    montrerFiche(entree);
}

/// An entry was chosen in a list: its sheet, and what is linked to it when the main list shows it.
void Parcours::choisir(Entree entree)
{
    if (entree.tri == m_volet.tri())
        m_volet.montrerLies(entree);
    montrerFiche(entree);
}

void Parcours::montrerFiche(Entree entree)
{
    if (entree != m_courante)
        quitterFiche();
    m_courante = entree;
    if (m_fiches.montrer(entree))
        Q_EMIT entreeMontree(entree);
    else
        oublier();
}

/// What was typed into the sheet's texts is written before another sheet stands in its place.
void Parcours::quitterFiche()
{
    try {
        m_fiches.ecrireMemos();
    } catch (...) {
        // The text stays, and the list stands by it.
        if (m_courante.tri == m_volet.tri())
            m_volet.liste()->choisir(m_courante.id);
        throw;
    }
}

/// The entry shown is gone.
void Parcours::oublier()
{
    m_courante = {};
    m_fiches.vider(m_ouverte && General::EstVierge());
    Q_EMIT entreeMontree(m_courante);
}

void Parcours::renommerEntree(Entree entree)
{
    m_volet.renommer(entree);
}

void Parcours::ajouterEntree(Tri tri)
{
    if (tri != m_volet.tri())
        montrerTri(tri);
    m_volet.ajouter();
}

void Parcours::ajouter(Tri tri, const QString &libelle)
{
    const Renommer::Ajout ajout = Renommer::AjouterEntree(tri, libelle);
    if (ajout.id == 0)
        return;
    if (!ajout.nouveau)
        Messages::Avertir(m_volet.window(), tr("La donnée existe déjà !"));
    // Once the lists know of it.
    QTimer::singleShot(0, this, [this, tri, id = ajout.id] { montrerEntree({tri, id}); });
}

void Parcours::renommer(Tri tri, int id, const QString &libelle)
{
    if (id == 0)
        return ajouter(tri, libelle);
    if (Renommer::RenommerEntree({tri, id}, libelle) == Renommer::Renommage::Coupe)
        m_pied.dire(tr("Le titre a été coupé à 50 caractères."));
}

void Parcours::actualiser(const Changements &changements)
{
    m_volet.actualiser(changements);
    const Entree avant = m_courante;
    // Who is no longer in the list of his kind is gone from here, though his row may stay.
    const bool parti = avant.tri == m_volet.tri() && m_volet.liste()->modele().entrees().rang(avant.id) < 0;
    if (parti)
        oublier();
    else if (m_courante.id > 0)
        montrerFiche(m_courante);
    if (m_courante.id == 0 && avant.id > 0 && avant.tri != m_volet.tri())
        montrerVoisin(avant.tri);
    if (m_courante.id == 0)
        choisirCourante();
    // The first entries of a collection that was empty.
    if (m_courante.id == 0)
        choisirPremiere();
    m_pied.poserTotaux();
}

/// An entry of the lower lists is gone: the one that stands in its place is shown.
void Parcours::montrerVoisin(Tri tri)
{
    VueListe *liste = tri == Tri::Albums ? m_volet.albums() : m_volet.presse();
    if (const int voisin = liste->choisie())
        montrerFiche({tri, voisin});
}

/// Shows the sheet of the entry that the main list stands on, if it stands on one.
void Parcours::choisirCourante()
{
    if (const int courante = m_volet.liste()->choisie())
        choisir({m_volet.tri(), courante});
}
