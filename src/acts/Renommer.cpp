#include "acts/Renommer.h"

#include "acts/Acte.h"
#include "acts/Creer.h"
#include "acts/Ecrire.h"
#include "acts/EcrireFiche.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/Fiche.h"
#include "model/Trouver.h"

using namespace Renommer;
using Champs::De;
using Champs::Feuille;
using General::Entree;
using General::Tri;

namespace {

std::optional<int> nombre(const QString &texte)
{
    bool sur = false;
    const int valeur = texte.trimmed().toInt(&sur);
    return sur ? std::optional(valeur) : std::nullopt;
}

Renommage ecrireNom(const Champs::Champ &champ, int id, const QString &libelle)
{
    const auto valeur = Fiche::Verifier(champ, libelle);
    EcrireFiche::Poser(champ, id, *valeur);
    return valeur->toString() == libelle ? Renommage::Fait : Renommage::Coupe;
}

void renommerAuteur(int id, const QString &libelle)
{
    const qsizetype virgule = libelle.indexOf(u',');
    const QString nom = virgule < 0 ? libelle : libelle.left(virgule).trimmed();
    if (!nom.isEmpty())
        EcrireFiche::Poser(De(Feuille::Auteur, "Nom"), id, nom);
    EcrireFiche::Poser(
        De(Feuille::Auteur, "Prenom"), id, virgule < 0 ? QString() : libelle.mid(virgule + 1).trimmed());
}

void renommerPresse(int id, const QString &libelle)
{
    const DePresse lu = LireDePresse(libelle);
    if (!lu.nom.isEmpty())
        EcrireFiche::Poser(De(Feuille::Presse, "NomP"), id, lu.nom);
    if (lu.numero)
        EcrireFiche::Poser(De(Feuille::Presse, "NumP"), id, *lu.numero);
}

Renommage ecrireLibelle(const Champs::Champ &champ, int id, const QString &libelle)
{
    if (champ.feuille == Feuille::Auteur)
        renommerAuteur(id, libelle);
    else if (champ.feuille == Feuille::Presse)
        renommerPresse(id, libelle);
    else
        return ecrireNom(champ, id, libelle);
    return Renommage::Fait;
}

/// A person has one row, whatever his trades.
Ajout ajouterAuteur(const Base &base, AccesBase::Role role, const QString &libelle)
{
    const Trouver::Noms noms = Trouver::Separer(Especes::Auteur, libelle);
    const int id = Trouver::Personne(base, Especes::Auteur, noms.nom, noms.prenom);
    if (id == 0)
        return {Creer::CreerAuteur(libelle, role), true};
    const bool exerce = base.read(Especes::Lecture(Especes::Auteur.fiche.front()), {id})
                            .Fields(AccesBase::NomDuRole(role))
                            .toBool();
    AccesBase::PoserRole(id, role);
    return {id, !exerce};
}

/// A press item is told from its neighbours by its number.
int chercherPresse(const Base &base, const QString &libelle)
{
    const DePresse lu = LireDePresse(libelle);
    const auto rs = base.read(QStringLiteral("SELECT NPressBD From PresseBD where Nom = ?"
                                             " and coalesce(NPresseBD, 0) = ? order by 1 asc"),
        {lu.nom, lu.numero.value_or(0)});
    return rs.AtEnd() ? 0 : rs.Fields(0).toInt();
}

int chercherNomme(const Base &base, Tri tri, const QString &libelle)
{
    // Of one print one may have several.
    if (tri == Tri::ExLibris)
        return 0;
    return tri == Tri::Presse ? chercherPresse(base, libelle)
                              : Trouver::ParNom(base, General::EspeceDe(tri), libelle);
}

Ajout ajouterNomme(const Base &base, Tri tri, const QString &libelle)
{
    if (const int la = chercherNomme(base, tri, libelle); la > 0)
        return {la, false};
    const int id = Creer::CreerEntree(General::EspeceDe(tri), libelle);
    if (tri == Tri::Presse)
        renommerPresse(id, libelle);
    return {id, true};
}

}

DePresse Renommer::LireDePresse(const QString &libelle)
{
    const qsizetype dernier = libelle.lastIndexOf(u'-');
    if (dernier < 0)
        return {libelle.trimmed(), {}};
    const QString fin = libelle.mid(dernier + 1).trimmed();
    const auto numero = nombre(fin);
    if (numero || fin.isEmpty())
        return {libelle.left(dernier).trimmed(), numero};
    const qsizetype premier = libelle.indexOf(u'-');
    if (const auto debut = nombre(libelle.left(premier)))
        return {libelle.mid(premier + 1).trimmed(), debut};
    return {libelle.trimmed(), {}};
}

Renommage Renommer::RenommerEntree(Entree entree, const QString &libelle)
{
    const QString net = Texte::UneLigne(libelle);
    if (!Texte::EstUnNom(net))
        return Renommage::Rien;
    const Champs::Champ &champ = Champs::DuNom(General::ListeDe(entree.tri).feuille);
    Renommage fait = Renommage::Rien;
    Ecrire::EnUnActe({entree, &champ}, libelle, [&](Base &) {
        fait = ecrireLibelle(champ, entree.id, net);
        return QString();
    });
    return fait;
}

Ajout Renommer::AjouterEntree(Tri tri, const QString &libelle)
{
    const QString net = Texte::UneLigne(libelle);
    if (!Texte::EstUnNom(net) || tri == Tri::Albums)
        return {};
    Acte acte(texte(Txt::Ajouter) + QStringLiteral(": ") + libelle.simplified());
    const auto role = General::ListeDe(tri).role;
    const Ajout ajout = role ? ajouterAuteur(acte.base(), *role, net) : ajouterNomme(acte.base(), tri, net);
    acte.placer({tri, ajout.id});
    acte.valider();
    return ajout;
}
