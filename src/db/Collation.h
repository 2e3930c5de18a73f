#pragma once

struct sqlite3;

/// Makes the collation FRANCAIS known to a connection. Throws Error when ICU has no collator.
namespace Collation {

void Enregistrer(sqlite3 *db);

}
