#include "db/Collation.h"

#include "core/Error.h"
#include "db/Comparaison.h"

#include <QCoreApplication>
#include <memory>
#include <sqlite3.h>

void Collation::Enregistrer(sqlite3 *db)
{
    // One collator serves all connections: making one costs more than opening a file.
    static const std::unique_ptr<void, void (*)(void *)> collateur(
        Comparaison::creer(), Comparaison::detruire);
    if (!collateur
        || sqlite3_create_collation_v2(
               db, "FRANCAIS", SQLITE_UTF8, collateur.get(), Comparaison::comparer, nullptr)
            != SQLITE_OK)
        throw Error(QCoreApplication::translate("Base", "L'ordre alphabétique n'est pas disponible."), {});
}
