#pragma once

#include <QString>
#include <memory>

namespace SQLite {
class Database;
}

/// Looking into a database file that may not be written, though what is unfinished in it must be taken back first.
namespace Copie {

/// True when a write was begun in the file and not ended.
bool EstEnSuspens(const QString &chemin);

/// Opens a copy of a file, in which what was unfinished is taken back. The copy has no name and goes with its
/// connection. Throws Error, SQLite::Exception.
std::unique_ptr<SQLite::Database> Ouvrir(const QString &chemin);

}
