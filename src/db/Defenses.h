#pragma once

class QString;
struct sqlite3;

/// What a file that somebody else made could hold to hang or fool whoever opens it.
namespace Defenses {

/// The engine's own guards: nothing in the file writes to its schema or calls functions that do more than count.
void Poser(sqlite3 *db);

/// Throws Error when the file holds views, virtual tables or rules that this program does not make. Rules are known by
/// their texts once the file has reached the last step, before it by their names.
void Examiner(sqlite3 *db, const QString &chemin);

}
