#pragma once

#include "db/Entete.h"

#include <memory>

namespace SQLite {
class Database;
}

/// What the engine does with whole files, beside the one that is at work.
namespace Moteur {

/// Opens a collection that is not at work, or a catalogue, to be read only; its file is not touched. Throws Error.
std::unique_ptr<SQLite::Database> Ouvrir(
    const QString &chemin, Entete::Nature nature = Entete::Nature::Collection);

/// True when no table holds a row. Throws Error.
bool EstVierge(SQLite::Database &db);

/// Copies an open base into a file, which is on the disk when this returns. A file that is there is replaced once the
/// copy is whole; nothing is left of a copy that fails. Throws Error.
void Copier(SQLite::Database &source, const QString &cible);

/// Puts a file in the place of another in one step. Throws Error.
void Remplacer(const QString &neuf, const QString &cible);

/// A second name for a file, so that it is never without one; where the disk knows no such thing, a copy. Throws
/// Error.
void Doubler(const QString &chemin, const QString &autre);

/// A path that no file has: the one given, or with " (2)" and so on before its suffix.
QString CheminLibre(const QString &chemin);

}
