#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

namespace SQLite {
class Database;
}

/// The dated copies of the collection that the program makes by itself, in "sauvegardes" of the application
/// folder. What it made is noted in "liste.txt" there, in the order of making, which decides what is newer whatever the
/// clock said; it deletes nothing else.
namespace Sauvegardes {

struct Sauvegarde
{
    QString chemin;
    QDateTime date;
    qint64 taille = 0;
    int albums = -1; ///< -1 when the file cannot be read
};

/// All copies in the folder, the last one made first; those that the user put there stand among them by their dates,
/// and last when they are dated after now.
QList<Sauvegarde> Lister();
/// Path of the newest copy that is sound; empty when there is none.
QString DerniereSaine();
/// When a copy was made: by its name, else by its file's date.
QDateTime DateDe(const QString &chemin);

/// Makes a copy of the open collection; returns its path. Throws Error.
QString Faire(SQLite::Database &db);
/// Makes one now, whether it is due or not, and deletes those that have had their time. Throws Error.
void Garder(SQLite::Database &db);
/// Called before each write of the user: makes the copy that is due, at the first write of a run and then once
/// an hour, and deletes those that have had their time. A failure is told to Annonces and stops nothing.
void AvantEcriture(SQLite::Database &db);

/// The copies that have had their time, of those given in the order of making: kept are all of today, then the newest
/// of each day for 14 days, of each week for 8 weeks, and of each month. One dated after now stays, and is no reason
/// for another to go. A run deletes as many as it made and one more, the oldest first.
QStringList ADetruire(const QList<Sauvegarde> &sauvegardes, const QDateTime &maintenant);

}
