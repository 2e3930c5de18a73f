#pragma once

#include "core/Txt.h"

#include <optional>
#include <span>

/// The fields of all sheets, one row each: the one place that says what a field is called, where it is stored,
/// how it is entered, shown and checked. Loaders, editors and write-back walk this table.
namespace Champs {

/// The sheets, one for each kind of entry.
enum class Feuille { Album, Serie, Auteur, Editeur, ExLibris, Presse, Coll };

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
    Http, ///< web address; "http://" is put in front when it is missing
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
    Genre,
    Nom,
    Lien,
    Image
};

/// In which order a person's two names are shown, if there are two.
enum class Prenom { Sans, Apres, Avant };

/// Where the names of a choice come from.
struct Source
{
    const char *table;
    const char *lecture; ///< the row of one entry, by its identifier
    const char *liens = nullptr; ///< link rows of an album; then every linked entry is named
    Prenom prenom = Prenom::Sans;
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
    const Source *source = nullptr;
};

/// A table that a sheet shows: the row of the entry.
struct Ligne
{
    Feuille feuille;
    const char *table;
    const char *lecture;
    const char *cle; ///< field of the entry's number
};

std::span<const Champ> Tous();
std::span<const Ligne> Lignes();

/// The field of a sheet by its name, or null.
const Champ *Chercher(Feuille feuille, const char *nom);

}
