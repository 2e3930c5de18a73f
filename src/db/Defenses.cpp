#include "db/Defenses.h"

#include "core/Error.h"
#include "db/schema/Paliers.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <map>
#include <memory>
#include <sqlite3.h>
#include <string>

namespace {

using Instruction = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)>;

Instruction preparer(sqlite3 *db, const char *sql)
{
    sqlite3_stmt *instruction = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &instruction, nullptr);
    return {instruction, sqlite3_finalize};
}

std::string texte(sqlite3_stmt *instruction, int colonne)
{
    const unsigned char *octets = sqlite3_column_text(instruction, colonne);
    return octets ? reinterpret_cast<const char *>(octets) : std::string();
}

bool estALaDerniereMarche(sqlite3 *db)
{
    const Instruction version = preparer(db, "PRAGMA user_version");
    return version && sqlite3_step(version.get()) == SQLITE_ROW
        && Version::Palier(sqlite3_column_int(version.get(), 0)) == Version::DernierPalier;
}

/// A rule of the program's own.
bool estDesNotres(sqlite3 *db, const std::string &nom, const std::string &sql)
{
    static const std::map<std::string, std::string> regles = Paliers::Declencheurs();
    const auto regle = regles.find(nom);
    return regle != regles.end() && (regle->second == sql || !estALaDerniereMarche(db));
}

}

void Defenses::Poser(sqlite3 *db)
{
    sqlite3_db_config(db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
}

void Defenses::Examiner(sqlite3 *db, const QString &chemin)
{
    const Instruction etrangers = preparer(db,
        "SELECT type, name, sql FROM sqlite_schema WHERE type IN ('view', 'trigger')"
        " OR sql LIKE 'CREATE VIRTUAL%'");
    while (etrangers && sqlite3_step(etrangers.get()) == SQLITE_ROW) {
        const bool regle = texte(etrangers.get(), 0) == "trigger";
        const std::string nom = texte(etrangers.get(), 1);
        if (!regle || !estDesNotres(db, nom, texte(etrangers.get(), 2)))
            throw Error(Error::Sorte::Etrangere,
                QCoreApplication::translate("Base",
                    "Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n'est pas "
                    "ouvert."),
                chemin, QString::fromStdString(nom));
    }
}
