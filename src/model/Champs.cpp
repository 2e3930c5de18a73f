#include "model/Champs.h"

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
constexpr Source Dessinateurs{"Auteurs",
    "SELECT * From Auteurs where NAuteur= ? and Dessin <> 0 order by NAuteur asc", nullptr, Prenom::Apres};
constexpr Source Scenaristes{"Auteurs",
    "SELECT * From Auteurs where NAuteur= ? and Scena <> 0 order by NAuteur asc", nullptr, Prenom::Apres};
constexpr Source Coloristes{"Auteurs",
    "SELECT * From Auteurs where NAuteur= ? and Color <> 0 order by NAuteur asc", nullptr, Prenom::Apres};

constexpr Source GenreDeSerie{"Genre", "SELECT * From Genre where NGenre= ? order by NGenre asc"};
constexpr Source EditeurDeFiche{"Editeur", "SELECT * From Editeur where NEdit = ? order by NEdit asc"};
constexpr Source PaysDeFiche{"Pays", "SELECT * From Pays where NPays = ? order by NPays asc"};
constexpr Source DessinateurDExLibris{"Auteurs",
    "SELECT * From Auteurs where NAuteur = ? and Dessin <> 0 order by NAuteur  asc", nullptr, Prenom::Avant};
constexpr Source Librairies{
    "Librairie", "SELECT * From Librairie where NLibrairie = ? order by NLibrairie asc"};

constexpr Ligne ToutesLesLignes[] = {
    {Feuille::Album, "Album", "SELECT * From Album where Num = ? order by NAlbum asc; ", "Num"},
    {Feuille::Album, "LAlbums", "SELECT * From LAlbums where NAlbum = ? order by NAlbum asc", "NAlbum"},
    {Feuille::Serie, "Serie", "SELECT * From Serie where NSerie = ? order by NSerie asc; ", "NSerie"},
    {Feuille::Auteur, "Auteurs", "SELECT * From Auteurs where NAuteur = ? order by NAuteur asc; ", "NAuteur"},
    {Feuille::Editeur, "Editeur", "SELECT * From Editeur where NEdit = ? order by NEdit  asc; ", "NEdit"},
    {Feuille::ExLibris, "ExLibris", "SELECT * From ExLibris where NExLibris= ? order by NExLibris asc; ",
        "NExLibris"},
    {Feuille::Presse, "PresseBD", "SELECT * From PresseBD where NPressBD= ? order by NPressBD asc; ",
        "NPressbd"},
    {Feuille::Coll, "Coll", "SELECT * From Coll where NColl = ?", "NColl"},
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

    {Feuille::Serie, "Nom", "Nom", Txt::NomDeLaSerie, "Serie", "Nom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Serie, "NomGenre", "NomGenre", Txt::Genre, "Serie", "NGenre", Choix, Regle::Identifiant,
        Vue::Nom, &GenreDeSerie},
    {Feuille::Serie, "NoteG", "NoteG", Txt::AppreciationGenerale, "Serie", "NoteG", Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Serie, "NoteD", "NoteD", Txt::NoteDessin, "Serie", "NoteD", Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Serie, "NoteS", "NoteS", Txt::NoteScenario, "Serie", "NoteS", Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Serie, "SiteWeb(0)", "SiteWeb(0)", Txt::LienInternet1, "Serie", "SiteWeb1", Saisie, Regle::Http,
        Vue::Lien},
    {Feuille::Serie, "SiteWeb(1)", "SiteWeb(1)", Txt::LienInternet2, "Serie", "SiteWeb2", Saisie, Regle::Http,
        Vue::Lien},
    {Feuille::Serie, "Commentaire", "Commentaire", Txt::Commentaires, "Serie", "Commentaire", Directe,
        Regle::Texte, Vue::Memo},
    {Feuille::Serie, "CoteSerie", "CoteSerie", Txt::Cote, "Serie", "cote", Saisie, Regle::Nombre, Vue::Cote},
    {Feuille::Serie, "Editeur", "Editeur", Txt::Editeur, "Serie", "NEditeur", Choix, Regle::Identifiant,
        Vue::Nom, &EditeurDeFiche},
    {Feuille::Serie, "Histoire", "Histoire", Txt::ResumeDeLaSerie, "Serie", "Histoire", Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Serie, "Photo1", "Photo1", Txt::Photos, "Serie", "Photo1", Directe, Regle::Texte, Vue::Image},
    {Feuille::Serie, "Photo2", "Photo2", Txt::Photos, "Serie", "Photo2", Directe, Regle::Texte, Vue::Image},

    {Feuille::Auteur, "Nom", "Nom", Txt::Nom, "Auteurs", "Nom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "Prenom", "Prenom", Txt::Prenom, "Auteurs", "Prenom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "Surnom", "SurNom", Txt::Surnom, "Auteurs", "SurNom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "Naiss", "Naiss", Txt::DateDeNaissance, "Auteurs", "DateNaiss", Date, Regle::Texte,
        Vue::Texte},
    {Feuille::Auteur, "LieuN", "LieuN", Txt::LieuDeNaissance, "Auteurs", "LieuNaiss", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Auteur, "PaysN", "PaysN", Txt::Nationalite, "Auteurs", "NPays", Choix, Regle::Identifiant,
        Vue::Nom, &PaysDeFiche},
    {Feuille::Auteur, "Liens(0)", "Liens(0)", Txt::LienInternet1, "Auteurs", "web1", Saisie, Regle::Texte,
        Vue::Lien},
    {Feuille::Auteur, "Liens(1)", "Liens(1)", Txt::LienInternet2, "Auteurs", "web2", Saisie, Regle::Texte,
        Vue::Lien},
    {Feuille::Auteur, "CommA", "CommA", Txt::Commentaires, "Auteurs", "Commentaire", Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Auteur, "Photo1", "Photo1", Txt::Photos, "Auteurs", "Photo1", Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Auteur, "Photo2", "Photo2", Txt::Photos, "Auteurs", "Photo2", Directe, Regle::Texte,
        Vue::Image},

    {Feuille::Editeur, "NomE", "NomE", Txt::NomDeLEditeur, "Editeur", "Nom", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "AdressE(0)", "AdressE(0)", Txt::Adresse, "Editeur", "adresse1", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "AdressE(1)", "AdressE(1)", Txt::Adresse, "Editeur", "adresse2", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "CPE", "CPE", Txt::CodePostal, "Editeur", "CP", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Editeur, "VilleE", "VilleE", Txt::Ville, "Editeur", "ville", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Editeur, "PaysE", "PaysE", Txt::Pays, "Editeur", "NPays", Choix, Regle::Identifiant, Vue::Nom,
        &PaysDeFiche},
    {Feuille::Editeur, "TelE", "TelE", Txt::Telephone, "Editeur", "Tel", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Editeur, "SiteE", "SiteE", Txt::SiteInternet, "Editeur", "Site", Saisie, Regle::Texte,
        Vue::Lien},
    {Feuille::Editeur, "Photo1", "Photo1", Txt::Photos, "Editeur", "Photo1", Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Editeur, "Photo2", "Photo2", Txt::Photos, "Editeur", "Photo2", Directe, Regle::Texte,
        Vue::Image},

    {Feuille::ExLibris, "DescriptionX", "DescriptionX", Txt::Nom, "ExLibris", "Nom", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::ExLibris, "SerieX", "SerieX", Txt::Serie, "ExLibris", "NSerie", Choix, Regle::Identifiant,
        Vue::Nom, &Series},
    {Feuille::ExLibris, "DessinX", "DessinX", Txt::Dessinateur, "ExLibris", "NDessin", Choix,
        Regle::Identifiant, Vue::Nom, &DessinateurDExLibris},
    {Feuille::ExLibris, "Librairie", "Librairie", Txt::Librairie, "ExLibris", "NLibrairie", Choix,
        Regle::Identifiant, Vue::Nom, &Librairies},
    {Feuille::ExLibris, "DAX", "DAX", Txt::DateDAchat, "ExLibris", "DAchat", Date, Regle::Texte, Vue::Texte},
    {Feuille::ExLibris, "PrixAX", "PrixAX", Txt::PrixDAchat, "ExLibris", "PrixA", Saisie, Regle::Prix,
        Vue::Prix},
    {Feuille::ExLibris, "DedicaceX", "DedicaceX", Txt::AvecDedicace, "ExLibris", "Dedicace", Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::ExLibris, "SigneX", "SigneX", Txt::Signe, "ExLibris", "Signe", Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::ExLibris, "TypeExlibris", "TypeExlibris", Txt::ExLibris, "ExLibris", "TypeExlibris", Directe,
        Regle::Nombre, Vue::Genre},
    {Feuille::ExLibris, "CommX", "CommX", Txt::Commentaires, "ExLibris", "Comm", Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::ExLibris, "Photo1", "Photo1", Txt::Photos, "ExLibris", "Photo1", Directe, Regle::Texte,
        Vue::Image},
    {Feuille::ExLibris, "Photo2", "Photo2", Txt::Photos, "ExLibris", "Photo2", Directe, Regle::Texte,
        Vue::Image},

    {Feuille::Presse, "NomP", "NomP", Txt::Nom, "PresseBD", "Nom", Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Presse, "NumP", "NumP", Txt::Numero, "PresseBD", "NPresseBD", Saisie, Regle::Nombre,
        Vue::Texte},
    {Feuille::Presse, "EditeurP", "EditeurP", Txt::Editeur, "PresseBD", "NEdit", Choix, Regle::Identifiant,
        Vue::Nom, &EditeurDeFiche},
    {Feuille::Presse, "ParutionP", "ParutionP", Txt::PeriodeDeParution, "PresseBD", "Parution", Directe,
        Regle::Nombre, Vue::Parution},
    {Feuille::Presse, "DepotLP", "DepotLP", Txt::DepotLegal, "PresseBD", "DepotLegale", Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Presse, "DAP", "DAP", Txt::DateDAchat, "PresseBD", "DAchat", Date, Regle::Texte, Vue::Texte},
    {Feuille::Presse, "PrixAP", "PrixAP", Txt::PrixDAchat, "PresseBD", "PrixA", Saisie, Regle::Prix,
        Vue::Prix},
    {Feuille::Presse, "ReliureP", "ReliureP", Txt::Reliure, "PresseBD", "Reliure", Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Presse, "HSP", "HSP", Txt::HorsSerie, "PresseBD", "HS", Directe, Regle::Drapeau, Vue::Case},
    {Feuille::Presse, "CommP", "CommP", Txt::Commentaires, "PresseBD", "Comm", Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Presse, "Photo1", "Photo1", Txt::Photos, "PresseBD", "Photo1", Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Presse, "Photo2", "Photo2", Txt::Photos, "PresseBD", "Photo2", Directe, Regle::Texte,
        Vue::Image},

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
