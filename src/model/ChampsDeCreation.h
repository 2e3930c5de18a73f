#pragma once

#include "model/Champs.h"

#include <algorithm>
#include <array>

/// What can be entered of an album; the first sixteen are the arguments of its creation, in their order.
enum class Rubrique {
    Titre,
    Tome,
    Serie,
    Dateparu,
    Editeur,
    Broche,
    Couleur,
    Integrale,
    Genre,
    Dessin,
    Color,
    Scena,
    Histoire,
    Photo1,
    Photo2,
    Prix,
    Collection,
    Pays,
    Qualite,
    Etat,
    NbPage,
    Isbn,
    Issn,
    Commentaire,
    DepotLegal,
    Format,
    DateAchat,
    Emprunteur,
    DatePret,
    EditionOriginale,
    SerieLimitee,
    HorsSerie,
    Coffret,
    Dedicace1,
    Dedicace2,
    LieuDedicace,
    DateDedicace,
    EtatDedicace,
};
constexpr std::size_t NombreDeRubriques = static_cast<std::size_t>(Rubrique::EtatDedicace) + 1;

/// What an album is made of when it is entered, a row each: creation, its forms, the import, the reference catalogue and
/// the pages of the online catalogue walk these rows, which stand in the order in which a form asks for them.
namespace ChampsDeCreation {

/// How a value is entered.
enum class Maniere { Ligne, Choix, Date, Case, Memo, Image };

/// How a column that holds it may be called: the program's own words, and common ones of its six languages, folded;
/// those that fit best come first.
struct Appellation
{
    std::array<Txt, 4> textes = {};
    std::size_t nombre = 0;
    const char *mots = nullptr; ///< without any it is not imported
};

/// Its line among the fields of a page, and its caption there; -1 where pages have none.
struct Place
{
    int rang = -1;
    Txt libelle = {};
};

struct ChampDeCreation
{
    Rubrique rubrique;
    const Champs::Champ *champ; ///< of the album sheet: where it is stored, what it must be
    Maniere maniere;
    const char *siVide = nullptr; ///< stored where nothing was entered; without it nothing is
    const char *controle = nullptr; ///< on the creation forms; without it they do not ask for it
    Txt libelle = {}; ///< there
    Appellation appellation = {};
    const char *catalogue = nullptr; ///< column of the reference catalogue
    Place page = {};
};

consteval const Champs::Champ *Album(std::string_view nom)
{
    return &Champs::De(Champs::Feuille::Album, nom);
}

using enum Maniere;
inline constexpr ChampDeCreation Tous[] = {
    {Rubrique::Titre, Album("TAlbum"), Ligne, " ", "Titre", Txt::TitreDeLAlbum,
        {{Txt::TitreAlbum, Txt::TitreDeLAlbum}, 2,
            "titre titrealbum titredelalbum title albumtitle titel albumtitel titulo tituloalbum"
            " titulodelalbum titolo titoloalbum titolodellalbum album nom name"},
        "Titre", {0, Txt::TitreDeLAlbum}},
    {Rubrique::Serie, Album("Serie"), Choix, nullptr, "Serie", Txt::TitreDeLaSerie,
        {{Txt::TitreSerie, Txt::TitreDeLaSerie, Txt::NomDeLaSerie, Txt::Serie}, 4,
            "serie series titreserie titredelaserie seriestitle serientitel tituloserie titoloserie"
            " reekstitel reeks reihe saga"},
        "Serie", {3, Txt::TitreDeLaSerie}},
    {Rubrique::Tome, Album("NumBD"), Ligne, "0", "Tome", Txt::NumeroAbrege,
        {{Txt::NumeroAlbum, Txt::NumeroDeLAlbum, Txt::NumeroAbrege, Txt::Numero}, 4,
            "tome tomo volume band deel numero number nummer numeroalbum nalbum issue vol num no nr n"},
        "Tome", {1, Txt::NumeroAbrege}},
    {Rubrique::Dateparu, Album("DateParu"), Date, " ", "Dateparu", Txt::DateDeParution,
        {{Txt::DateParution, Txt::DateDeParution}, 2,
            "dateparu dateparution datedeparution parution publdate publicationdate published"
            " erscheinungsdatum erschienen fechapublicacion fechadepublicacion datauscita"
            " datadipubblicazione datumuitgave date datum fecha data annee year jahr ano anno jaar"},
        "Dateparu", {2, Txt::DateDeParution}},
    {Rubrique::Editeur, Album("Edit"), Choix, nullptr, "Editeur", Txt::NomDeLEditeur,
        {{Txt::Editeur, Txt::NomDeLEditeur}, 2,
            "editeur publisher verlag editorial editore uitgever uitgeverij"},
        "Editeur", {7, Txt::Editeur}},
    {Rubrique::Genre, Album("Genre"), Choix, nullptr, "Genre", Txt::Genre,
        {{Txt::Genre, Txt::GenreDeBD}, 2, "genre genero genere categorie category kategorie categoria"},
        "Genre", {4, Txt::Genre}},
    {Rubrique::Dessin, Album("Dessin"), Choix, nullptr, "Dessin", Txt::Dessinateur,
        {{Txt::Dessinateur, Txt::NomDuDessinateur}, 2,
            "dessin dessinateur artist art zeichner zeichnung zeichnungen dibujante dibujo disegnatore"
            " disegni disegno tekenaar tekeningen"},
        "Dessin", {5, Txt::Dessinateur}},
    {Rubrique::Scena, Album("Scena"), Choix, nullptr, "Scena", Txt::Scenariste,
        {{Txt::Scenariste, Txt::NomDuScenariste}, 2,
            "scena scenario scenariste writer script szenarist szenario texter guionista guion"
            " sceneggiatore sceneggiatura scenarist schrijver auteur author autor autore"},
        "Scena", {6, Txt::Scenariste}},
    {Rubrique::Color, Album("Color"), Choix, nullptr, "Color", Txt::Coloriste,
        {{Txt::Coloriste}, 1, "coloriste colorist colourist kolorist colorista inkleurder color"}},
    {Rubrique::Prix, Album("PrixA"), Ligne, "0", "PrixA", Txt::PrixDAchat,
        {{Txt::PrixDAchat, Txt::Prix}, 2,
            "prix prixa prixdachat prixachat price preis kaufpreis precio prezzo prijs aankoopprijs"},
        nullptr, {8, Txt::Prix}},
    {Rubrique::Broche, Album("LBrochee"), Case, "0", "InfoSupp(0)", Txt::Broche,
        {{Txt::Broche, Txt::Brochee}, 2,
            "broche brochee paperback softcover broschiert rustica brossura ingenaaid"}},
    {Rubrique::Couleur, Album("Couleur"), Case, "2", "InfoSupp(1)", Txt::Couleur,
        {{Txt::Couleur}, 1, "couleur couleurs colour color farbe farbig colores colore colori kleur"},
        "Couleur"},
    {Rubrique::Integrale, Album("LIntegral"), Case, "0", "InfoSupp(2)", Txt::Integrale,
        {{Txt::Integrale}, 1, "integrale omnibus gesamtausgabe integral integraal"}, "Integrale"},
    {Rubrique::Histoire, Album("Hist"), Memo, " ", "Histoire", Txt::Resume,
        {{Txt::Resume}, 1,
            "histoire resume synopsis summary plot story handlung inhalt zusammenfassung resumen argumento"
            " riassunto trama storia samenvatting verhaal description"}},
    {Rubrique::Photo1, Album("Photo1"), Image, " ", "Photo1", Txt::Couverture,
        {{}, 0,
            "photo1 recto couverture photo image cover frontcover front titelbild portada copertina omslag"}},
    {Rubrique::Photo2, Album("Photo2"), Image, " ", "Photo2", Txt::Couverture,
        {{}, 0, "photo2 verso dos backcover back ruckseite contraportada retro achterkant"}},
    {Rubrique::Collection, Album("Coll"), Choix},
    {Rubrique::Pays, Album("Pays"), Choix, "0"},
    {Rubrique::Qualite, Album("Qualite"), Ligne, "5"},
    {Rubrique::Etat, Album("EtatBD"), Ligne, "5"},
    {Rubrique::NbPage, Album("NbPage"), Ligne, " "},
    {Rubrique::Isbn, Album("ISBN"), Ligne, " "},
    {Rubrique::Issn, Album("ISSN"), Ligne, " "},
    {Rubrique::Commentaire, Album("Infos"), Memo, " "},
    {Rubrique::DepotLegal, Album("DepotLegale"), Ligne, " "},
    {Rubrique::Format, Album("Format"), Ligne, "0"},
    {Rubrique::DateAchat, Album("DA"), Date, " "},
    {Rubrique::Emprunteur, Album("NPret"), Choix, "0"},
    {Rubrique::DatePret, Album("DPret"), Date, " "},
    {Rubrique::EditionOriginale, Album("LEditionOri"), Case},
    {Rubrique::SerieLimitee, Album("LSerieLim"), Case},
    {Rubrique::HorsSerie, Album("LHorsSerie"), Case},
    {Rubrique::Coffret, Album("LCoffret"), Case},
    {Rubrique::Dedicace1, Album("Dedi(0)"), Ligne, " "},
    {Rubrique::Dedicace2, Album("Dedi(1)"), Ligne, " "},
    {Rubrique::LieuDedicace, Album("LieuD"), Ligne},
    {Rubrique::DateDedicace, Album("DateD"), Date},
    {Rubrique::EtatDedicace, Album("EtatD"), Ligne},
};

consteval bool ChaqueRubriqueASaLigne()
{
    std::array<int, NombreDeRubriques> lignes{};
    for (const ChampDeCreation &champ : Tous)
        ++lignes[static_cast<std::size_t>(champ.rubrique)];
    return std::ranges::all_of(lignes, [](int nombre) { return nombre == 1; });
}
static_assert(ChaqueRubriqueASaLigne());

constexpr const ChampDeCreation &De(Rubrique rubrique)
{
    return *std::ranges::find(Tous, rubrique, &ChampDeCreation::rubrique);
}

/// What a box stands for: "1" ticked; unticked "0", or what the row says for nothing.
constexpr const char *TexteDeCase(const ChampDeCreation &champ, bool cochee)
{
    return cochee ? "1" : champ.siVide ? champ.siVide : "0";
}

}
