#include "db/Comparaison.h"

#include <sqlite3ext.h>
SQLITE_EXTENSION_INIT1

/// Entry point of the extension: `.load ./francais` in the SQLite shell makes the collection's collation known.
extern "C" int sqlite3_francais_init(sqlite3 *db, char **, const sqlite3_api_routines *api)
{
    SQLITE_EXTENSION_INIT2(api);
    void *collateur = Comparaison::creer();
    if (!collateur)
        return SQLITE_ERROR;
    return sqlite3_create_collation_v2(
        db, "FRANCAIS", SQLITE_UTF8, collateur, Comparaison::comparer, Comparaison::detruire);
}
