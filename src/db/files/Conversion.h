#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

/// What is said between the program and `bulleo-convertir OLD NEW`, which makes a new file of an old one.
///
/// The converter writes lines on its output: UTF-8, parts separated by a tab; a tab, a line end or a "\" within
/// a part is written \t, \n, \r, \\.
///     avance <percent>                   now and then
///     table <name> <rows>                a table is written, with so many rows
///     ecarte <kind> <table> <what...>    something of the old file that the new one does not hold as it was:
///         tableInconnue <table> <rows>           a table that no collection has
///         tableManquante <table>                 a table of the collection that the old file lacks
///         champInconnu <table> <field>           a field that this table does not have, or of no readable type
///         double <table> <field=value...>        a further row with the identifier of an earlier one
///         identifiant <table> <field=value...>   a row without an identifier
///         nombre <table> <key> <field> <value>   a text that is no number where one stands: Null instead, or 0
///         montant <table> <key> <field> <value>  an amount too large to be kept to the cent: nearly that
///     fini <nature>                      the new file is in its place: collection, catalogue
///     erreur <code> <details>            there is no new file (codes below); the exit code is not 0
namespace Conversion {

/// Why there is no new file. The last two are never said by the converter itself.
enum class Code {
    Aucun,
    Abimee, ///< damaged, or so much so that the converter fell over it
    Chiffree,
    Etrangere, ///< no old collection or catalogue, or no file that can be read
    Existe, ///< NEW is there already
    Ecriture, ///< the new file cannot be written
    Annulee,
    Absent, ///< the converter is not there
};

struct TableLue
{
    QString nom;
    qint64 rangees = 0;
};

/// One line about something left out or altered; `quoi` is what follows the table.
struct Ecarte
{
    QString sorte;
    QString table;
    QStringList quoi;
};

struct Rapport
{
    int avance = 0; ///< percent
    QList<TableLue> tables;
    QList<Ecarte> ecartes;
    QString nature; ///< empty until the new file is in its place
    Code erreur = Code::Aucun;
    QString details; ///< of the failure, in French
};

/// One line of the converter from its parts, and back. False for a line that is none; the report is then as it was.
QByteArray Ligne(const QStringList &parties);
bool lire(Rapport &rapport, const QByteArray &ligne);
/// The word for a code in the line `erreur`.
QString NomDuCode(Code code);

/// Where the new file is made before it is whole, and the removal of what a work cut short left there.
QString Partiel(const QString &nouveau);
void RetirerPartiel(const QString &nouveau);

/// Converts `ancien` into a new file, in a process of its own; the caller waits. `suivre` is told the percentage,
/// many times a second, and ends the work by answering false. A converter that is silent for longer than the
/// limit, or falls over, counts as a damaged file. Unless all went well, nothing is left at `nouveau` that was not
/// there before.
Rapport Convertir(const QString &ancien, const QString &nouveau, const std::function<bool(int)> &suivre = {},
    int silenceMs = 60'000);

}
