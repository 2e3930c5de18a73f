#pragma once

#include "model/Especes.h"

#include <optional>
#include <unordered_map>

/// Where the values of a choice come from, one row for each.
namespace Sources {

/// How an album is tied to what is chosen for it: by its own field alone, by a row of links, too, or by rows of links
/// alone, each of which is named.
enum class Lien { Aucun, Un, Tous };

/// In which order a person's two names are shown, if there are two.
enum class Prenom { Sans, Apres, Avant };

struct Source
{
    const Especes::Espece *espece;
    Lien lien = Lien::Aucun;
    std::optional<AccesBase::Role> role = {}; ///< the trade that an author has, and gets, by this choice
    Prenom prenom = Prenom::Sans;
    bool sansZero = false; ///< number 0 names nothing, whatever the table holds under it
};

inline constexpr Source SerieDAlbum{&Especes::Serie, Lien::Un};
inline constexpr Source GenreDAlbum{&Especes::Genre, Lien::Tous};
inline constexpr Source PaysDAlbum{&Especes::Pays, Lien::Tous};
inline constexpr Source CollDAlbum{&Especes::Coll, Lien::Tous};
inline constexpr Source EditeurDAlbum{&Especes::Editeur, Lien::Un, {}, Prenom::Sans, true};
inline constexpr Source Dessinateur{&Especes::Auteur, Lien::Un, AccesBase::Role::Dessin, Prenom::Apres};
inline constexpr Source Scenariste{&Especes::Auteur, Lien::Un, AccesBase::Role::Scena, Prenom::Apres};
inline constexpr Source Coloriste{&Especes::Auteur, Lien::Un, AccesBase::Role::Color, Prenom::Apres};
inline constexpr Source DessinateurDExLibris{
    &Especes::Auteur, Lien::Aucun, AccesBase::Role::Dessin, Prenom::Avant};
inline constexpr Source Serie{&Especes::Serie};
inline constexpr Source Genre{&Especes::Genre};
inline constexpr Source Pays{&Especes::Pays};
inline constexpr Source Editeur{&Especes::Editeur};
inline constexpr Source Emprunteur{&Especes::Emprunteur};
inline constexpr Source Librairie{&Especes::Librairie};
inline constexpr Source Intervenant{&Especes::Intervenant};
inline constexpr Source Activite{&Especes::Activite};

/// The name of an entry, as this choice shows it; empty when there is none. Throws Error.
QString LireNom(const Source &source, int id);
/// The names of all entries that an album is linked to, joined by ", ". Throws Error.
QString LireNomsLies(const Source &source, int album);
/// The same of all albums at once, by the number of the album. Throws Error.
std::unordered_map<int, QString> LireTousLesNomsLies(const Source &source);

}
