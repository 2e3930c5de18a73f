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
    m_fiches.permettre(!EstEnLectureSeule());
}

void Parcours::montrerTri(Tri tri)
{
    enAccord([&] {
        m_fiches.ecrireMemos();
        m_volet.montrer(tri);
    });
    m_ouverte = true;
    m_fiches.permettre(!EstEnLectureSeule());
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

void Parcours::montrerSelection(const std::function<QString()> &libelle, const std::vector<int> &albums)
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
    if (entree.tri == m_volet.tri())
        m_volet.montrerLigne(entree.id);
    choisir(entree);
}

/// An entry was chosen in a list: its sheet, and what is linked to it when the main list shows it.
void Parcours::choisir(Entree entree)
{
    enAccord([&] {
        if (entree.tri != m_volet.tri())
            return montrerFiche(entree);
        VoletListes::Lies lies = VoletListes::lireLies(entree);
        montrerFiche(entree);
        m_volet.montrerLies(std::move(lies));
    });
    m_volet.accorder(m_courante);
    if (m_courante.id == 0 && !EstDansLaListe(entree.tri, entree.id))
        relire();
}

void Parcours::montrerFiche(Entree entree)
{
    if (entree != m_courante)
        m_fiches.ecrireMemos();
    if (!m_fiches.montrer(entree))
        return oublier();
    m_courante = entree;
    Q_EMIT entreeMontree(entree);
}

/// Where a sheet cannot be read, or a text not be written, the sheet stays, and the lists stand by it.
void Parcours::enAccord(const std::function<void()> &geste)
{
    try {
        geste();
    } catch (...) {
        m_volet.accorder(m_courante);
        throw;
    }
}

/// Nobody told of it, but the entry is gone: so may others be.
void Parcours::relire()
{
    m_pied.dire(tr("Cette fiche n'est plus là : les listes ont été relues."));
    actualiser({Changement()});
}

bool Parcours::estLa(Entree entree)
{
    if (entree.id == 0 || EstDansLaListe(entree.tri, entree.id))
        return true;
    relire();
    return false;
}

bool Parcours::avancer(int pas)
{
    return m_volet.listeDe(m_courante)->avancer(pas);
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
    const Entree parent = m_volet.lies();
    m_volet.actualiser(changements);
    // Who is no longer in the list of his kind is gone from here, though his row may stay.
    if (parent.id > 0 && m_volet.lies().id == 0)
        montrerRemplacante(m_volet.tri(), m_volet.liste()->remplacante());
    else if (m_courante.id > 0)
        remontrer();
    if (m_courante.id == 0)
        choisirCourante();
    // The first entries of a collection that was empty.
    if (m_courante.id == 0)
        choisirPremiere();
    m_pied.poserTotaux();
}

/// The sheet as it is now; when its entry is gone, that of the one in its place.
void Parcours::remontrer()
{
    const Entree avant = m_courante;
    const int voisine = m_volet.listeDe(avant)->remplacante();
    montrerFiche(avant);
    m_volet.accorder(m_courante);
    if (m_courante.id == 0 && avant.tri != m_volet.tri())
        montrerRemplacante(avant.tri, voisine);
}

void Parcours::montrerRemplacante(Tri tri, int id)
{
    oublier();
    if (id > 0)
        choisir({tri, id});
}

/// Shows the sheet of the entry that the main list stands on, if it stands on one.
void Parcours::choisirCourante()
{
    if (const int courante = m_volet.liste()->choisie())
        choisir({m_volet.tri(), courante});
}
