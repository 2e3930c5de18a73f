#pragma once

#include "model/Album.h"
#include "model/Entrees.h"

#include <QString>
#include <optional>

/// The reference catalogue, "BDbase.bd", of known albums.
namespace Catalogue {

/// The albums by series, last series first: "title  (N° tome)". Rows whose texts cannot be decoded are left
/// out and counted. In a catalogue that was converted from an old one nobody knows the code: its texts are
/// given as they stand.
struct Liste
{
    Entrees albums;
    int illisibles = 0;
    bool telsQuels = false;
};
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
