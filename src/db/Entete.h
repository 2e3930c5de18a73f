#pragma once

#include <QString>

/// What a database file says of itself in its first bytes, read before SQLite sees it, so that a foreign,
/// damaged or empty file is never touched.
namespace Entete {

/// The two kinds of files of this program, by their SQLite application id ("BULL", "BULC").
enum class Nature : unsigned { Collection = 0x42554C4C, Catalogue = 0x42554C43 };

/// Throws Error when the file is missing, empty, cut short, an old collection, of another
/// kind, or of a newer program.
void Verifier(const QString &chemin, Nature nature);

}
