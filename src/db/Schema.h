#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

/// The tables of the collection: one place says which there are and what their fields hold. The program reads
/// and upgrades a collection; only the build makes an empty one.
namespace Schema {

/// What `user_version` of an up-to-date file holds: the schema's version below the collator's.
int Version();

QStringList Tables();
/// Fields of a table in their order; empty when there is no such table. Names are matched without case.
QStringList Champs(const QString &table);
/// What a new row holds in each of its fields until more is known: a blank, 0, no flag.
QVariantList Blanc(const QString &table);

/// Makes a new, empty collection file. Throws Error when the file exists or cannot be made.
void CreerVierge(const QString &chemin);

/// Makes a new, empty reference catalogue, likewise.
void CreerCatalogue(const QString &chemin);

/// Brings the collection of the application folder up to date: adds the two fields that old files lack, and
/// the sort key of each album in its series. All errors are ignored; a file that is up to date is not written.
void MettreANiveau();

}
