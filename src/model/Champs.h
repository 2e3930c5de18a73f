#pragma once

#include "core/Txt.h"
#include "model/Sources.h"

#include <span>
#include <string_view>

/// The fields of all sheets, one row each: the one place that says what a field is called, where it is stored,
/// how it is entered, shown and checked. Loaders, editors, write-back, lists and import walk this table.
namespace Champs {

using Especes::Feuille;

/// The way in which a field is edited.
enum class Voie { Saisie, Directe, Choix, Date };

/// What a value must be to be stored.
enum class Regle {
    Texte, ///< as entered
    Titre, ///< cut at 50 characters
    Tome, ///< whole number, cut at 3 characters; empty is 0
    Nombre, ///< whole number, or empty
    Pages, ///< text that is empty or a number
    Prix, ///< amount; empty is none
    Http, ///< web address; "http://" is put in front of one without scheme
    Drapeau, ///< yes or no
    Identifiant ///< number of an entry of another table
};

/// How a value is shown.
enum class Vue {
    Texte,
    Memo,
    Tome,
    Prix,
    Cote,
    Etoiles,
    Case,
    Format,
    Couleur,
    Parution,
    Type, ///< of an ex-libris
    Nom,
    Lien,
    Dedicace, ///< a note, or the name of a picture
    Image
};

struct Champ
{
    Feuille feuille;
    const char *nom; ///< key, together with the sheet
    const char *controle;
    Txt libelle;
    const char *table;
    const char *colonne;
    Voie voie;
    Regle regle;
    Vue vue;
    const Sources::Source *source = nullptr;
};

inline constexpr Champ Tous[] = {
    {Feuille::Album, "TAlbum", "TAlbum", Txt::TitreAlbum, "LAlbums", "TAlbum", Voie::Saisie, Regle::Titre,
        Vue::Texte},
    {Feuille::Album, "Qualite", "Qualite", Txt::Qualite, "Album", "QualBD", Voie::Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Album, "Serie", "Serie", Txt::Serie, "Album", "NumSerie", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::SerieDAlbum},
    {Feuille::Album, "NumBD", "NumBD", Txt::NumeroDeLAlbum, "Album", "NAlbum", Voie::Saisie, Regle::Tome,
        Vue::Tome},
    {Feuille::Album, "NbPage", "NbPage", Txt::NombreDePages, "Album", "NbPage", Voie::Saisie, Regle::Pages,
        Vue::Texte},
    {Feuille::Album, "Hist", "Hist", Txt::Resume, "Album", "Histoire", Voie::Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Album, "Infos", "Infos", Txt::Commentaires, "Album", "Commentaire", Voie::Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Album, "EtatBD", "Etat", Txt::EtatDeLaBD, "Album", "EtatBD", Voie::Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Album, "DepotLegale", "DepotLegale", Txt::DepotLegal, "Album", "DepotL", Voie::Saisie,
        Regle::Texte, Vue::Texte},
    {Feuille::Album, "Couleur", "Couleur", Txt::Couleur, "Album", "Couleur", Voie::Directe, Regle::Nombre,
        Vue::Couleur},
    {Feuille::Album, "Format", "Format", Txt::Format, "Album", "NCouverture", Voie::Directe, Regle::Nombre,
        Vue::Format},
    {Feuille::Album, "DPret", "DPret", Txt::DateDuPret, "Album", "DPret", Voie::Date, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "PrixA", "PrixA", Txt::PrixDAchat, "Album", "PrixA", Voie::Saisie, Regle::Prix,
        Vue::Prix},
    {Feuille::Album, "LSerieLim", "LSerieLim", Txt::SerieLimitee, "Album", "SerieLim", Voie::Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Album, "LCoffret", "LCoffret", Txt::Coffret, "Album", "Coffret", Voie::Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Album, "LEditionOri", "LEditionOri", Txt::EditionOriginale, "Album", "EDitOrig", Voie::Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Album, "LHorsSerie", "LHorsSerie", Txt::HorsSerie, "Album", "HSerie", Voie::Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Album, "LIntegral", "LIntegral", Txt::Integrale, "Album", "Integrale", Voie::Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Album, "LBrochee", "LBrochee", Txt::Brochee, "Album", "Broche", Voie::Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Album, "Dessin", "Dessin", Txt::Dessinateur, "Album", "NDessin", Voie::Choix,
        Regle::Identifiant, Vue::Nom, &Sources::Dessinateur},
    {Feuille::Album, "Scena", "Scena", Txt::Scenariste, "Album", "NScen", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Scenariste},
    {Feuille::Album, "Color", "Color", Txt::Coloriste, "Album", "NColor", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Coloriste},
    {Feuille::Album, "DateParu", "Dateparu", Txt::DateDeParution, "Album", "Dateparu", Voie::Date,
        Regle::Texte, Vue::Texte},
    {Feuille::Album, "ISBN", "ISBN", Txt::Isbn, "Album", "ISBN", Voie::Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Album, "ISSN", "ISSN", Txt::Issn, "Album", "ISSN", Voie::Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Album, "DA", "DA", Txt::DateDAchat, "Album", "DA", Voie::Date, Regle::Texte, Vue::Texte},
    {Feuille::Album, "NPret", "NPret", Txt::NomPret, "Album", "NPret", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Emprunteur},
    {Feuille::Album, "Edit", "Edit", Txt::Editeur, "Album", "NEdit", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::EditeurDAlbum},
    {Feuille::Album, "Genre", "Genre", Txt::Genre, "Album", "NGenre", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::GenreDAlbum},
    {Feuille::Album, "Pays", "Pays", Txt::Pays, "Album", "NPays", Voie::Choix, Regle::Identifiant, Vue::Nom,
        &Sources::PaysDAlbum},
    {Feuille::Album, "Coll", "Coll", Txt::Collection, "Album", nullptr, Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::CollDAlbum},
    {Feuille::Album, "Photo1", "Photo1", Txt::Couverture, "LAlbums", "Photo1", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Album, "Photo2", "Photo2", Txt::Couverture, "LAlbums", "Photo2", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Album, "Dedi(0)", "Dedi(0)", Txt::Dedicace, "LAlbums", "dedi1", Voie::Saisie, Regle::Texte,
        Vue::Dedicace},
    {Feuille::Album, "Dedi(1)", "Dedi(1)", Txt::Dedicace, "LAlbums", "dedi2", Voie::Saisie, Regle::Texte,
        Vue::Dedicace},
    {Feuille::Album, "LieuD", "LieuD", Txt::LieuDeLaDedicace, "LAlbums", "LieuD", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "DateD", "DateD", Txt::DateDeLaDedicace, "LAlbums", "DateD", Voie::Date, Regle::Texte,
        Vue::Texte},
    {Feuille::Album, "EtatD", "EtatD", Txt::EtatDeLaDedicace, "LAlbums", "EtatD", Voie::Directe, Regle::Texte,
        Vue::Etoiles},

    {Feuille::Serie, "Nom", "Nom", Txt::NomDeLaSerie, "Serie", "Nom", Voie::Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Serie, "NomGenre", "NomGenre", Txt::Genre, "Serie", "NGenre", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Genre},
    {Feuille::Serie, "NoteG", "NoteG", Txt::AppreciationGenerale, "Serie", "NoteG", Voie::Directe,
        Regle::Nombre, Vue::Etoiles},
    {Feuille::Serie, "NoteD", "NoteD", Txt::NoteDessin, "Serie", "NoteD", Voie::Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Serie, "NoteS", "NoteS", Txt::NoteScenario, "Serie", "NoteS", Voie::Directe, Regle::Nombre,
        Vue::Etoiles},
    {Feuille::Serie, "SiteWeb(0)", "SiteWeb(0)", Txt::LienInternet1, "Serie", "SiteWeb1", Voie::Saisie,
        Regle::Http, Vue::Lien},
    {Feuille::Serie, "SiteWeb(1)", "SiteWeb(1)", Txt::LienInternet2, "Serie", "SiteWeb2", Voie::Saisie,
        Regle::Http, Vue::Lien},
    {Feuille::Serie, "Commentaire", "Commentaire", Txt::Commentaires, "Serie", "Commentaire", Voie::Directe,
        Regle::Texte, Vue::Memo},
    {Feuille::Serie, "CoteSerie", "CoteSerie", Txt::Cote, "Serie", "cote", Voie::Saisie, Regle::Nombre,
        Vue::Cote},
    {Feuille::Serie, "Editeur", "Editeur", Txt::Editeur, "Serie", "NEditeur", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Editeur},
    {Feuille::Serie, "Histoire", "Histoire", Txt::ResumeDeLaSerie, "Serie", "Histoire", Voie::Directe,
        Regle::Texte, Vue::Memo},
    {Feuille::Serie, "Photo1", "Photo1", Txt::Photos, "Serie", "Photo1", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Serie, "Photo2", "Photo2", Txt::Photos, "Serie", "Photo2", Voie::Directe, Regle::Texte,
        Vue::Image},

    {Feuille::Auteur, "Nom", "Nom", Txt::Nom, "Auteurs", "Nom", Voie::Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "Prenom", "Prenom", Txt::Prenom, "Auteurs", "Prenom", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Auteur, "Surnom", "SurNom", Txt::Surnom, "Auteurs", "SurNom", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Auteur, "Naiss", "Naiss", Txt::DateDeNaissance, "Auteurs", "DateNaiss", Voie::Date,
        Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "LieuN", "LieuN", Txt::LieuDeNaissance, "Auteurs", "LieuNaiss", Voie::Saisie,
        Regle::Texte, Vue::Texte},
    {Feuille::Auteur, "PaysN", "PaysN", Txt::Nationalite, "Auteurs", "NPays", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Pays},
    {Feuille::Auteur, "Liens(0)", "Liens(0)", Txt::LienInternet1, "Auteurs", "web1", Voie::Saisie,
        Regle::Texte, Vue::Lien},
    {Feuille::Auteur, "Liens(1)", "Liens(1)", Txt::LienInternet2, "Auteurs", "web2", Voie::Saisie,
        Regle::Texte, Vue::Lien},
    {Feuille::Auteur, "CommA", "CommA", Txt::Commentaires, "Auteurs", "Commentaire", Voie::Directe,
        Regle::Texte, Vue::Memo},
    {Feuille::Auteur, "Photo1", "Photo1", Txt::Photos, "Auteurs", "Photo1", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Auteur, "Photo2", "Photo2", Txt::Photos, "Auteurs", "Photo2", Voie::Directe, Regle::Texte,
        Vue::Image},

    {Feuille::Editeur, "NomE", "NomE", Txt::NomDeLEditeur, "Editeur", "Nom", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "AdressE(0)", "AdressE(0)", Txt::Adresse, "Editeur", "adresse1", Voie::Saisie,
        Regle::Texte, Vue::Texte},
    {Feuille::Editeur, "AdressE(1)", "AdressE(1)", Txt::Adresse, "Editeur", "adresse2", Voie::Saisie,
        Regle::Texte, Vue::Texte},
    {Feuille::Editeur, "CPE", "CPE", Txt::CodePostal, "Editeur", "CP", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "VilleE", "VilleE", Txt::Ville, "Editeur", "ville", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "PaysE", "PaysE", Txt::Pays, "Editeur", "NPays", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Pays},
    {Feuille::Editeur, "TelE", "TelE", Txt::Telephone, "Editeur", "Tel", Voie::Saisie, Regle::Texte,
        Vue::Texte},
    {Feuille::Editeur, "SiteE", "SiteE", Txt::SiteInternet, "Editeur", "Site", Voie::Saisie, Regle::Texte,
        Vue::Lien},
    {Feuille::Editeur, "Photo1", "Photo1", Txt::Photos, "Editeur", "Photo1", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Editeur, "Photo2", "Photo2", Txt::Photos, "Editeur", "Photo2", Voie::Directe, Regle::Texte,
        Vue::Image},

    {Feuille::ExLibris, "DescriptionX", "DescriptionX", Txt::Nom, "ExLibris", "Nom", Voie::Saisie,
        Regle::Texte, Vue::Texte},
    {Feuille::ExLibris, "SerieX", "SerieX", Txt::Serie, "ExLibris", "NSerie", Voie::Choix, Regle::Identifiant,
        Vue::Nom, &Sources::Serie},
    {Feuille::ExLibris, "DessinX", "DessinX", Txt::Dessinateur, "ExLibris", "NDessin", Voie::Choix,
        Regle::Identifiant, Vue::Nom, &Sources::DessinateurDExLibris},
    {Feuille::ExLibris, "Librairie", "Librairie", Txt::Librairie, "ExLibris", "NLibrairie", Voie::Choix,
        Regle::Identifiant, Vue::Nom, &Sources::Librairie},
    {Feuille::ExLibris, "DAX", "DAX", Txt::DateDAchat, "ExLibris", "DAchat", Voie::Date, Regle::Texte,
        Vue::Texte},
    {Feuille::ExLibris, "PrixAX", "PrixAX", Txt::PrixDAchat, "ExLibris", "PrixA", Voie::Saisie, Regle::Prix,
        Vue::Prix},
    {Feuille::ExLibris, "DedicaceX", "DedicaceX", Txt::AvecDedicace, "ExLibris", "Dedicace", Voie::Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::ExLibris, "SigneX", "SigneX", Txt::Signe, "ExLibris", "Signe", Voie::Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::ExLibris, "TypeExlibris", "TypeExlibris", Txt::ExLibris, "ExLibris", "TypeExlibris",
        Voie::Directe, Regle::Nombre, Vue::Type},
    {Feuille::ExLibris, "CommX", "CommX", Txt::Commentaires, "ExLibris", "Comm", Voie::Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::ExLibris, "Photo1", "Photo1", Txt::Photos, "ExLibris", "Photo1", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::ExLibris, "Photo2", "Photo2", Txt::Photos, "ExLibris", "Photo2", Voie::Directe, Regle::Texte,
        Vue::Image},

    {Feuille::Presse, "NomP", "NomP", Txt::Nom, "PresseBD", "Nom", Voie::Saisie, Regle::Texte, Vue::Texte},
    {Feuille::Presse, "NumP", "NumP", Txt::Numero, "PresseBD", "NPresseBD", Voie::Saisie, Regle::Nombre,
        Vue::Texte},
    {Feuille::Presse, "EditeurP", "EditeurP", Txt::Editeur, "PresseBD", "NEdit", Voie::Choix,
        Regle::Identifiant, Vue::Nom, &Sources::Editeur},
    {Feuille::Presse, "ParutionP", "ParutionP", Txt::PeriodeDeParution, "PresseBD", "Parution", Voie::Directe,
        Regle::Nombre, Vue::Parution},
    {Feuille::Presse, "DepotLP", "DepotLP", Txt::DepotLegal, "PresseBD", "DepotLegale", Voie::Saisie,
        Regle::Texte, Vue::Texte},
    {Feuille::Presse, "DAP", "DAP", Txt::DateDAchat, "PresseBD", "DAchat", Voie::Date, Regle::Texte,
        Vue::Texte},
    {Feuille::Presse, "PrixAP", "PrixAP", Txt::PrixDAchat, "PresseBD", "PrixA", Voie::Saisie, Regle::Prix,
        Vue::Prix},
    {Feuille::Presse, "ReliureP", "ReliureP", Txt::Reliure, "PresseBD", "Reliure", Voie::Directe,
        Regle::Drapeau, Vue::Case},
    {Feuille::Presse, "HSP", "HSP", Txt::HorsSerie, "PresseBD", "HS", Voie::Directe, Regle::Drapeau,
        Vue::Case},
    {Feuille::Presse, "CommP", "CommP", Txt::Commentaires, "PresseBD", "Comm", Voie::Directe, Regle::Texte,
        Vue::Memo},
    {Feuille::Presse, "Photo1", "Photo1", Txt::Photos, "PresseBD", "Photo1", Voie::Directe, Regle::Texte,
        Vue::Image},
    {Feuille::Presse, "Photo2", "Photo2", Txt::Photos, "PresseBD", "Photo2", Voie::Directe, Regle::Texte,
        Vue::Image},

    {Feuille::Coll, "NomC", "NomC", Txt::Nom, "Coll", "Nom", Voie::Saisie, Regle::Texte, Vue::Texte},
};

/// The field of a sheet by its name, or null.
constexpr const Champ *Chercher(Feuille feuille, std::string_view nom)
{
    for (const Champ &champ : Tous) {
        if (champ.feuille == feuille && nom == champ.nom)
            return &champ;
    }
    return nullptr;
}

/// The same of a field that there must be: a wrong name does not compile.
consteval const Champ &De(Feuille feuille, std::string_view nom)
{
    return *Chercher(feuille, nom);
}

/// The field that names an entry in lists.
const Champ &DuNom(Feuille feuille);

}
