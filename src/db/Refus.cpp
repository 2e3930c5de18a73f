#include "db/Refus.h"

#include <QCoreApplication>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Base)
};

}

Error Refus::Dire(const SQLite::Exception &e, const QString &chemin)
{
    using Sorte = Error::Sorte;
    const QString mots = QString::fromUtf8(e.what());
    switch (e.getErrorCode()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Sorte::EnUsage, Tr::tr("La base est utilisée par un autre programme."), chemin};
    case SQLITE_READONLY:
        return {Sorte::LectureSeule, Tr::tr("La base est en lecture seule."), chemin};
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {Sorte::Abimee, Tr::tr("La base est abîmée."), chemin, mots};
    case SQLITE_INTERRUPT:
        return {Tr::tr("La lecture a été arrêtée."), chemin};
    case SQLITE_FULL:
        return {Tr::tr("Le disque est plein."), chemin, mots};
    default:
        return {Tr::tr("La base a refusé l'opération."), chemin, mots};
    }
}
