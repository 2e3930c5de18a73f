#pragma once

#include "core/Txt.h"
#include "db/AccesBase.h"

#include <span>

/// The kinds of entries, one row each: where they stand, how they are called, and what belongs to them. Lists, choices,
/// search, creation, renaming and deletion walk these rows; none of them names a table.
namespace Especes {

/// How a label is made of an entry's name and of the field behind it.
enum class Libelle { Nom, NomPrenom, PrenomNom, NomNumero };

/// The rows of a table that belong to an entry: the field that holds its number.
struct Rangs
{
    const char *table;
    const char *cle;
};

struct Espece
{
    const char *table; ///< in which its names stand
    const char *cle; ///< field of its number
    const char *nom = "Nom"; ///< field of its name
    const char *suite = nullptr; ///< field that a label shows, too
    Libelle libelle = Libelle::Nom;
    const char *liens = nullptr; ///< table that ties albums to it
    const char *ordre = "rowid"; ///< by which its albums stand
    std::span<const Rangs> fiche = {}; ///< the rows that its sheet shows
    std::span<const Rangs> ailleurs = {}; ///< what else refers to it, and is no field of a sheet
};

namespace Lignes {
inline constexpr Rangs Album[] = {{"Album", "Num"}, {"LAlbums", "NAlbum"}};
inline constexpr Rangs Serie[] = {{"Serie", "NSerie"}};
inline constexpr Rangs Auteur[] = {{"Auteurs", "NAuteur"}};
inline constexpr Rangs Editeur[] = {{"Editeur", "NEdit"}};
inline constexpr Rangs ExLibris[] = {{"ExLibris", "NExLibris"}};
inline constexpr Rangs Presse[] = {{"PresseBD", "NPressBD"}};
inline constexpr Rangs Coll[] = {{"Coll", "NColl"}};

inline constexpr Rangs DAlbums[] = {{"AuteursAlbums", "NAlbum"}, {"CollAlbums", "NAlbum"},
    {"EditeurAlbums", "NAlbum"}, {"GenreAlbums", "NAlbum"}, {"PaysAlbum", "NAlbum"},
    {"SerieAlbums", "NAlbum"}, {"InterMetier", "NAlbum"}, {"CotesAlbum", "NAlbum"}};
inline constexpr Rangs DIntervenants[] = {{"InterMetier", "NInter"}};
inline constexpr Rangs DActivites[] = {{"InterMetier", "NMetier"}};
}

inline constexpr Espece Album{.table = "LAlbums",
    .cle = "NAlbum",
    .nom = "TAlbum",
    .fiche = Lignes::Album,
    .ailleurs = Lignes::DAlbums};
inline constexpr Espece Serie{.table = "Serie",
    .cle = "NSerie",
    .liens = "SerieAlbums",
    .ordre = "NumeroAlbum2",
    .fiche = Lignes::Serie};
inline constexpr Espece Auteur{.table = "Auteurs",
    .cle = "NAuteur",
    .suite = "Prenom",
    .libelle = Libelle::NomPrenom,
    .liens = "AuteursAlbums",
    .fiche = Lignes::Auteur};
inline constexpr Espece Editeur{
    .table = "Editeur", .cle = "NEdit", .liens = "EditeurAlbums", .fiche = Lignes::Editeur};
inline constexpr Espece ExLibris{.table = "ExLibris", .cle = "NExLibris", .fiche = Lignes::ExLibris};
inline constexpr Espece Presse{.table = "PresseBD",
    .cle = "NPressBD",
    .suite = "NPresseBD",
    .libelle = Libelle::NomNumero,
    .fiche = Lignes::Presse};
inline constexpr Espece Coll{.table = "Coll", .cle = "NColl", .liens = "CollAlbums", .fiche = Lignes::Coll};
inline constexpr Espece Genre{.table = "Genre", .cle = "NGenre", .liens = "GenreAlbums"};
inline constexpr Espece Pays{.table = "Pays", .cle = "NPays", .liens = "PaysAlbum"};
inline constexpr Espece Emprunteur{.table = "Pret", .cle = "NPret"};
inline constexpr Espece Librairie{.table = "Librairie", .cle = "NLibrairie"};
inline constexpr Espece Intervenant{.table = "Inter",
    .cle = "NInter",
    .suite = "Prenom",
    .libelle = Libelle::PrenomNom,
    .ailleurs = Lignes::DIntervenants};
inline constexpr Espece Activite{.table = "Metier", .cle = "NMetier", .ailleurs = Lignes::DActivites};

/// The kinds that albums are tied to by rows of links.
inline constexpr const Espece *Liees[] = {&Auteur, &Coll, &Editeur, &Genre, &Pays, &Serie};

/// The kinds that have a sheet.
enum class Feuille { Album, Serie, Auteur, Editeur, ExLibris, Presse, Coll };
const Espece &De(Feuille feuille);

/// A trade of authors: its caption, and its word in a text of trades.
struct Metier
{
    AccesBase::Role role;
    Txt libelle;
    const char *mot;
};
inline constexpr Metier TousLesMetiers[] = {
    {AccesBase::Role::Dessin, Txt::Dessinateur, "Dessinateur"},
    {AccesBase::Role::Scena, Txt::Scenariste, "Scénariste"},
    {AccesBase::Role::Color, Txt::Coloriste, "Coloriste"},
};

/// The columns that a label is made of: number, name, and what stands behind it.
QString Colonnes(const Espece &espece);
/// The rows that a number, given for "?", names in a table.
QString Lecture(const Rangs &rangs);

}
