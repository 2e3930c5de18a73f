#include "acts/Renommer.h"

#include "acts/Acte.h"
#include "acts/Creer.h"
#include "acts/Ecrire.h"
#include "acts/EcrireFiche.h"
#include "core/Traduction.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "db/schema/Tables.h"
#include "model/Fiche.h"

using namespace Renommer;
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

Renommage ecrireNom(Feuille feuille, int id, const char *champ, const QString &libelle)
{
    const auto valeur = Fiche::Verifier(*Champs::Chercher(feuille, champ), libelle);
    EcrireFiche::Poser(feuille, id, champ, *valeur);
    return valeur->toString() == libelle ? Renommage::Fait : Renommage::Coupe;
}

void renommerAuteur(int id, const QString &libelle)
{
    const qsizetype virgule = libelle.indexOf(u',');
    const QString nom = virgule < 0 ? libelle : libelle.left(virgule).trimmed();
    if (!nom.isEmpty())
        EcrireFiche::Poser(Feuille::Auteur, id, "Nom", nom);
    EcrireFiche::Poser(
        Feuille::Auteur, id, "Prenom", virgule < 0 ? QString() : libelle.mid(virgule + 1).trimmed());
}

void renommerPresse(int id, const QString &libelle)
{
    const DePresse lu = LireDePresse(libelle);
    if (!lu.nom.isEmpty())
        EcrireFiche::Poser(Feuille::Presse, id, "NomP", lu.nom);
    if (lu.numero)
        EcrireFiche::Poser(Feuille::Presse, id, "NumP", *lu.numero);
}

/// A person has one row, whatever his trades.
Ajout ajouterAuteur(const Base &base, Tri tri, const QString &libelle)
{
    const auto role
        = static_cast<AccesBase::Role>(static_cast<int>(tri) - static_cast<int>(Tri::Dessinateurs));
    const QString avant = libelle.section(u',', 0, 0).trimmed();
    // With nothing before the comma, the text is a name as it stands.
    const QString nom = avant.isEmpty() ? libelle : avant;
    const QString prenom = avant.isEmpty() ? QString() : libelle.section(u',', 1).trimmed();
    const auto la = base.read(
        QStringLiteral(
            "SELECT * From Auteurs where Nom = ? and trim(coalesce(Prenom, '')) = ? collate FRANCAIS"
            " order by NAuteur asc"),
        {nom, prenom});
    if (la.AtEnd())
        return {Creer::CreerAuteur(nom, prenom, role), true};
    const int id = la.Fields(0).toInt();
    const bool exerce = la.Fields(AccesBase::NomDuRole(role)).toBool();
    AccesBase::PoserRole(id, role);
    return {id, !exerce};
}

/// The entry of this label; a press item is told from its neighbours by its number.
int chercherNomme(const Base &base, Tri tri, const QString &libelle)
{
    const QString table = General::TableDe(tri);
    QString sql = QStringLiteral("SELECT %1 From %2 where Nom = ?").arg(Schema::Champs(table).first(), table);
    QVariantList valeurs{libelle};
    if (tri == Tri::Presse) {
        const DePresse lu = LireDePresse(libelle);
        sql += QStringLiteral(" and coalesce(NPresseBD, 0) = ?");
        valeurs = {lu.nom, lu.numero.value_or(0)};
    }
    const auto rs = base.read(sql + QStringLiteral(" order by 1 asc"), valeurs);
    return rs.AtEnd() ? 0 : rs.Fields(0).toInt();
}

Ajout ajouterNomme(const Base &base, Tri tri, const QString &libelle)
{
    const QString table = General::TableDe(tri);
    // Of one print one may have several.
    const int la = tri == Tri::ExLibris ? 0 : chercherNomme(base, tri, libelle);
    if (la > 0)
        return {la, false};
    const int id = Creer::CreerEntree(table, libelle);
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
    const QString net = libelle.trimmed();
    if (net.isEmpty())
        return Renommage::Rien;
    const Champs::Champ &champ = ChampDe(entree.tri);
    Acte acte(Ecrire::Titre(texte(champ.libelle), libelle), entree);
    Renommage fait = Renommage::Fait;
    if (champ.feuille == Feuille::Auteur)
        renommerAuteur(entree.id, net);
    else if (champ.feuille == Feuille::Presse)
        renommerPresse(entree.id, net);
    else
        fait = ecrireNom(champ.feuille, entree.id, champ.nom, net);
    acte.valider();
    return fait;
}

Ajout Renommer::AjouterEntree(Tri tri, const QString &libelle)
{
    const QString net = libelle.trimmed();
    if (net.isEmpty() || tri == Tri::Albums)
        return {};
    Acte acte(texte(Txt::Ajouter) + QStringLiteral(": ") + libelle.simplified());
    const bool auteur = General::GenreDe(tri).feuille == Feuille::Auteur;
    const Ajout ajout = auteur ? ajouterAuteur(acte.base(), tri, net) : ajouterNomme(acte.base(), tri, net);
    acte.placer({tri, ajout.id});
    acte.valider();
    return ajout;
}

const Champs::Champ &Renommer::ChampDe(Tri tri)
{
    const auto champ = [](Feuille feuille, const char *nom) -> const Champs::Champ & {
        return *Champs::Chercher(feuille, nom);
    };
    switch (General::GenreDe(tri).feuille) {
    case Feuille::Album:
        return champ(Feuille::Album, "TAlbum");
    case Feuille::Serie:
        return champ(Feuille::Serie, "Nom");
    case Feuille::Auteur:
        return champ(Feuille::Auteur, "Nom");
    case Feuille::ExLibris:
        return champ(Feuille::ExLibris, "DescriptionX");
    case Feuille::Presse:
        return champ(Feuille::Presse, "NomP");
    case Feuille::Editeur:
        return champ(Feuille::Editeur, "NomE");
    case Feuille::Coll:
        return champ(Feuille::Coll, "NomC");
    }
    Q_UNREACHABLE();
}
