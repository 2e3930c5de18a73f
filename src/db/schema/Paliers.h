#pragma once

#include <QStringList>
#include <map>
#include <span>
#include <string>

namespace SQLite {
class Database;
}

/// The numbered steps by which a collection grows from what it is to what it should be, and what one has that is
/// made anew. A step runs in a transaction of its own; additions stand behind what was there.
namespace Paliers {

struct Palier
{
    int numero;
    void (*faire)(SQLite::Database &db); ///< throws SQLite::Exception
};

/// In the order in which they run; the first brings files from before the steps were counted.
std::span<const Palier> Tous();

/// The rules of a collection: their statements by their names.
std::map<std::string, std::string> Declencheurs();

/// The statements that make an empty collection of the last step, and an empty reference catalogue.
QStringList CollectionVierge();
QStringList CatalogueVierge();

}
