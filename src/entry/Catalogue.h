#pragma once

#include "model/Album.h"
#include "model/Entrees.h"

#include <QString>
#include <optional>

/// The reference catalogue, "BDbase.bd", of known albums.
namespace Catalogue {

/// The albums by series, last series first, each with what it may be looked up by. Rows whose texts cannot be decoded are left
/// out and counted. In a catalogue that was converted from an old one nobody knows the code: its texts are
/// given as they stand.
struct Liste
{
    Entrees albums; ///< all parts of each, one behind the other
    int illisibles = 0;
    bool telsQuels = false;
};
/// A part of a line of that list.
enum class Partie { Titre, Tome, Serie, Dessin, Scena, Editeur };
QString PartieDe(const QString &ligne, Partie partie);
/// A line as it is shown: "title  (N° tome)", the abbreviation in the language in force.
QString Libelle(const QString &ligne);

/// Throws Error when the file is missing or is no catalogue, or when none of its rows can be decoded.
Liste LireAlbums();

/// What the catalogue knows of an album.
struct Reference
{
    Album album;
    QString carton; ///< binding, in words
};
/// Nothing when there is no such row, or when it cannot be decoded. Throws Error.
std::optional<Reference> LireReference(int numero);

}
