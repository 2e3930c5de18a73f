#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

/// How the albums are spread over series, artists, writers, genres, publishers and collections: a page in HTML.
namespace Statistiques {

/// Told now and then what part of the work is done, in percent; false ends it.
using Avance = std::function<bool(int pourcent)>;

/// Removes the link rows whose entry or album is gone, as a step of its own; returns how many. Throws Error.
int Nettoyer();

/// The page (UTF-8 with byte-order mark), counted on the collection as it is. Empty when it was ended. Throws Error.
QByteArray Page(const Avance &avance = {});

/// Cleans, counts and writes the page into "Stats/Statistiques.htm" of the application folder. Returns its full
/// path, empty when it was ended; the page that was there stays until the new one is whole. Throws Error.
QString Calculer(const Avance &avance = {});

}
