#pragma once

#include <QString>

/// Files of this program in the making. Both throw Error when the file exists or cannot be made, whole or not at all.
namespace FichierNeuf {

/// A new, empty collection.
void CreerVierge(const QString &chemin);
/// A new, empty reference catalogue.
void CreerCatalogue(const QString &chemin);

}
