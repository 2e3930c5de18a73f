#include "db/Copie.h"

#include "core/Error.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

namespace {

const QString Journal = QStringLiteral("-journal");

}

bool Copie::EstEnSuspens(const QString &chemin)
{
    return QFileInfo(chemin + Journal).size() > 0;
}

std::unique_ptr<SQLite::Database> Copie::Ouvrir(const QString &chemin)
{
    // The names go at the end of this routine, the files with the connection.
    const QTemporaryDir passage;
    const QString copie = passage.filePath(QStringLiteral("copie"));
    const bool entiere = passage.isValid() && QFile::copy(chemin, copie)
        && (!EstEnSuspens(chemin) || QFile::copy(chemin + Journal, copie + Journal));
    if (!entiere)
        throw Error(QCoreApplication::translate(
                        "Base", "Pour lire cette base, il en faut une copie, qui ne peut pas être faite."),
            passage.path());
    for (const QString &nom : {copie, copie + Journal})
        QFile::setPermissions(nom, QFile::ReadOwner | QFile::WriteOwner);
    auto db = std::make_unique<SQLite::Database>(
        copie.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    db->exec("PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=MEMORY; BEGIN EXCLUSIVE; COMMIT");
    return db;
}
