#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// Writes small files in the format of old, so that their conversion can be tried with content of our choice:
/// header, catalogue, table definitions, rows, long texts, and no more than a reader of tables wants to see.
namespace EcrivainJet {

/// Types of a field, by their number in the file.
enum class Type : quint8 {
    Booleen = 1,
    Court = 3,
    Long = 4,
    Monnaie = 5,
    Double = 7,
    Date = 8, ///< days since 30 December 1899
    Texte = 10,
    Ole = 11,
    Memo = 12,
};

struct Champ
{
    QString nom;
    Type type;
};

/// A cell that is no valid QVariant is Null. An amount is given in ten-thousandths.
struct Table
{
    QString nom;
    QList<Champ> champs;
    QList<QVariantList> rangees;
};

struct Fichier
{
    QList<Table> tables;
    bool codee = false; ///< says so in its header, by a key; the pages stay as they are
    bool jet3 = false; ///< the older one: smaller pages, texts in a code page (Windows-1252)
};

/// A table of the collection, or the catalogue, with the types of field that an old file gave it, and no rows.
Table DuSchema(const QString &nom);
/// Row of a table with these fields filled, the others Null.
QVariantList Rangee(const Table &table, const QMap<QString, QVariant> &valeurs);

/// A text whose parts all differ.
QString LongTexte(qsizetype longueur, char16_t premier = u'!');
/// Bytes of a collection of some albums, with titles, stories of many lengths, and links to series.
QByteArray UneCollection(int albums);
/// Bytes of a file with these tables.
QByteArray Octets(const Fichier &fichier);

}
