#include "browse/Champs.h"

#include <cstring>

using namespace Champs;

namespace {

constexpr Source Series{"Serie", "SELECT * From Serie where NSerie= ? order by NSerie asc"};
constexpr Source Genres{"Genre", "SELECT * From Genre where NGenre = ? order by Nom asc",
    "SELECT * From GenreAlbums where NAlbum = ? order by NGenre asc"};
constexpr Source Pays{"Pays", "SELECT * From Pays where NPays = ? order by Nom asc",
    "SELECT * From PaysAlbum where NAlbum = ? order by NPays asc"};
constexpr Source Collections{"Coll", "SELECT * From Coll where NColl = ? order by Nom asc",
    "SELECT * From CollAlbums where NAlbum = ? order by NColl asc"};
constexpr Source Editeurs{
    "Editeur", "SELECT * From Editeur where NEdit = ? and NEdit <> 0 order by NEdit asc"};
constexpr Source Emprunteurs{"Pret", "SELECT * From Pret where NPret = ? order by NPret asc"};
constexpr Source Dessinateurs{
    "Auteurs", "SELECT * From Auteurs where NAuteur= ? and Dessin <> 0 order by NAuteur asc", nullptr, true};
constexpr Source Scenaristes{
    "Auteurs", "SELECT * From Auteurs where NAuteur= ? and Scena <> 0 order by NAuteur asc", nullptr, true};
constexpr Source Coloristes{
    "Auteurs", "SELECT * From Auteurs where NAuteur= ? and Color <> 0 order by NAuteur asc", nullptr, true};

constexpr Ligne ToutesLesLignes[] = {
    {Feuille::Album, "Album", "SELECT * From Album where Num = ? order by NAlbum asc; ",
        "SELECT * From Album where Num = ?"},
    {Feuille::Album, "LAlbums", "SELECT * From LAlbums where NAlbum = ? order by NAlbum asc",
        "SELECT * From LAlbums where NAlbum = ?"},
    {Feuille::Serie, "Serie", "SELECT * From Serie where NSerie = ? order by NSerie asc; ",
        "SELECT * From Serie where NSerie = ?"},
    {Feuille::Auteur, "Auteurs", "SELECT * From Auteurs where NAuteur = ? order by NAuteur asc; ",
        "SELECT * From Auteurs where NAuteur = ?"},
    {Feuille::Editeur, "Editeur", "SELECT * From Editeur where NEdit = ? order by NEdit  asc; ",
        "SELECT * From Editeur where NEdit = ?"},
    {Feuille::ExLibris, "ExLibris", "SELECT * From ExLibris where NExLibris= ? order by NExLibris asc; ",
        "SELECT * From ExLibris where NExLibris = ?"},
    {Feuille::Presse, "PresseBD", "SELECT * From PresseBD where NPressBD= ? order by NPressBD asc; ",
        "SELECT * From Pressebd where NPressbd = ?"},
    {Feuille::Coll, "Coll", "SELECT * From Coll where NColl = ?", "SELECT * From Coll where NColl = ?"},
};

using enum Voie;

constexpr Champ TousLesChamps[] = {
    {Feuille::Album, "TAlbum", "TAlbum", Txt::TitreAlbum, "LAlbums", "TAlbum", Saisie, Regle::Titre,
        Vue::Texte},
    {Feuille::Album, "Qualite", "Qualite", Txt::Qualite, "Album", "QualBD", Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Album, "Serie", "Serie", Txt::Serie, "Album", "NumSerie", Choix, Regle::Identifiant, Vue::Nom,
        &Series},
    {Feuille::Album, "NumBD", "NumBD", Txt::NumeroDeLAlbum, "Album", "NAlbum", Saisie, Regle::Tome,
        Vue::Tome},
    {Feuille::Album, "NbPage", "NbPage", Txt::NombreDePages, "Album", "NbPage", Saisie, Regle::Pages,
        Vue::Texte},
    {Feuille::Album, "Hist", "Hist", Txt::Resume, "Album", "Histoire", Directe, Regle::Texte, Vue::Memo},
    {Feuille::Album, "Infos", "Infos", Txt::Commentaires, "Album", "Commentaire", Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Album, "EtatBD", "Etat", Txt::EtatDeLaBD, "Album", "EtatBD", Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Album, "DepotLegale", "DepotLegale", Txt::DepotLegal, "Album", "DepotL", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "Couleur", "Couleur", Txt::Couleur, "Album", "Couleur", Directe, Regle::Nombre,
        Vue::Couleur},
    {Feuille::Album, "Format", "Format", Txt::Format, "Album", "NCouverture", Directe, Regle::Nombre,
        Vue::Format},
    {Feuille::Album, "DPret", "DPret", Txt::DateDuPret, "Album", "DPret", Date, Regle::Texte, Vue::Texte},
    {Feuille::Album, "PrixA", "PrixA", Txt::PrixDAchat, "Album", "PrixA", Saisie, Regle::Prix, Vue::Prix},
    {Feuille::Album, "LSerieLim", "LSerieLim", Txt::SerieLimitee, "Album", "SerieLim", Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Album, "LCoffret", "LCoffret", Txt::Coffret, "Album", "Coffret", Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Album, "LEditionOri", "LEditionOri", Txt::EditionOriginale, "Album", "EDitOrig", Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Album, "LHorsSerie", "LHorsSerie", Txt::HorsSerie, "Album", "HSerie", Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Album, "LIntegral", "LIntegral", Txt::Integrale, "Album", "Integrale", Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Album, "LBrochee", "LBrochee", Txt::Brochee, "Album", "Broche", Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Album, "Dessin", "Dessin", Txt::Dessinateur, "Album", "NDessin", Choix, Regle::Identifiant,
        Vue::Nom, &Dessinateurs},
    {Feuille::Album, "Scena", "Scena", Txt::Scenariste, "Album", "NScen", Choix, Regle::Identifiant, Vue::Nom,
        &Scenaristes},
    {Feuille::Album, "Color", "Color", Txt::Coloriste, "Album", "NColor", Choix, Regle::Identifiant, Vue::Nom,
        &Coloristes},
    {Feuille::Album, "DateParu", "Dateparu", Txt::DateDeParution, "Album", "Dateparu", Date, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "ISBN", "ISBN", Txt::Isbn, "Album", "ISBN", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Album, "ISSN", "ISSN", Txt::Issn, "Album", "ISSN", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Album, "DA", "DA", Txt::DateDAchat, "Album", "DA", Date, Regle::Texte, Vue::Texte},
    {Feuille::Album, "NPret", "NPret", Txt::NomPret, "Album", "NPret", Choix, Regle::Identifiant, Vue::Nom,
        &Emprunteurs},
    {Feuille::Album, "Edit", "Edit", Txt::Editeur, "Album", "NEdit", Choix, Regle::Identifiant, Vue::Nom,
        &Editeurs},
    {Feuille::Album, "Genre", "Genre", Txt::Genre, "Album", "NGenre", Choix, Regle::Identifiant, Vue::Nom,
        &Genres},
    {Feuille::Album, "Pays", "Pays", Txt::Pays, "Album", "NPays", Choix, Regle::Identifiant, Vue::Nom, &Pays},
    {Feuille::Album, "Coll", "Coll", Txt::Collection, "Album", nullptr, Choix, Regle::Identifiant, Vue::Nom,
        &Collections},
    {Feuille::Album, "Photo1", "Photo1", Txt::Couverture, "LAlbums", "Photo1", Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Album, "Photo2", "Photo2", Txt::Couverture, "LAlbums", "Photo2", Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Album, "Dedi(0)", "Dedi(0)", Txt::Dedicace, "LAlbums", "dedi1", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "Dedi(1)", "Dedi(1)", Txt::Dedicace, "LAlbums", "dedi2", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "LieuD", "LieuD", Txt::LieuDeLaDedicace, "LAlbums", "LieuD", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "DateD", "DateD", Txt::DateDeLaDedicace, "LAlbums", "DateD", Date, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "EtatD", "EtatD", Txt::EtatDeLaDedicace, "LAlbums", "EtatD", Directe, Regle::Texte,
        Vue::Etoiles},

    {Feuille::Serie, "Nom", "Nom", Txt::Nom, "Serie", "Nom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "Nom", "Nom", Txt::Nom, "Auteurs", "Nom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "Prenom", "Prenom", Txt::Prenom, "Auteurs", "Prenom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Editeur, "NomE", "NomE", Txt::NomDeLEditeur, "Editeur", "Nom", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::ExLibris, "DescriptionX", "DescriptionX", Txt::Nom, "ExLibris", "Nom", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Presse, "NomP", "NomP", Txt::Nom, "PresseBD", "Nom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Presse, "NumP", "NumP", Txt::Numero, "PresseBD", "NPresseBD", Saisie, Regle::Nombre,
        Vue::Texte},
    {Feuille::Coll, "NomC", "NomC", Txt::Nom, "Coll", "Nom", Saisie, Regle::Texte, Vue::Texte},
};

}

std::span<const Champ> Champs::Tous()
{
    return TousLesChamps;
}

std::span<const Ligne> Champs::Lignes()
{
    return ToutesLesLignes;
}

const Champ *Champs::Chercher(Feuille feuille, const char *nom)
{
    for (const Champ &champ : TousLesChamps) {
        if (champ.feuille == feuille && std::strcmp(champ.nom, nom) == 0)
            return &champ;
    }
    return nullptr;
}
