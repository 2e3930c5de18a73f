#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <variant>

/// What is said between the program and `bulleo-convertir OLD NEW`, which makes a new file of an old one.
///
/// The converter writes lines on its output, each of them an object of JSON with these keys and no other:
///     {"avance":42}                                        percent, now and then
///     {"table":"Album","rangees":12}                       a table is written, with so many rows
///     {"ecarte":"double","table":"Album","quoi":["..."]}   the new file does not hold this as it was:
///         tableInconnue   rows: a table that no collection has
///         tableManquante  nothing: a table of the collection that the old file lacks
///         champInconnu    field: one that this table does not have, or of no readable type
///         double          field=value...: a further row with the identifier of an earlier one
///         identifiant     field=value...: a row without an identifier
///         nombre          key, field, value: a text that is no number where one stands: Null instead, or 0
///         montant         key, field, value: an amount too large to be kept to the cent: nearly that
///     {"fini":"collection"}                                the new file is in its place; or "catalogue"
///     {"erreur":"abimee","details":"..."}                  there is no new file; the exit code is not 0
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

/// Something left out or altered.
struct Ecarte
{
    QString sorte;
    QString table;
    QStringList quoi;
};

struct Avance
{
    int pourCent = 0;
};

struct Fini
{
    QString nature;
};

struct Echouee
{
    Code code = Code::Aucun;
    QString details; ///< in French
};

/// What one line says.
using Annonce = std::variant<Avance, TableLue, Ecarte, Fini, Echouee>;

struct Rapport
{
    int avance = 0; ///< percent
    QList<TableLue> tables;
    QList<Ecarte> ecartes;
    QString nature; ///< empty until the new file is in its place
    Code erreur = Code::Aucun;
    QString details; ///< of the failure, in French
};

/// A line of the converter, and back into the report. What is no line leaves the report as it was: false.
QByteArray Ligne(const Annonce &annonce);
bool Lire(Rapport &rapport, const QByteArray &ligne);

/// Where the new file is made before it is whole, and the removal of what a work cut short left there.
QString Partiel(const QString &nouveau);
void RetirerPartiel(const QString &nouveau);

/// Converts `ancien` into a new file, in a process of its own; the caller waits. `suivre` is told the percentage,
/// many times a second, and ends the work by answering false. A converter that says none of its lines for longer
/// than the limit, or falls over, counts as a damaged file. Unless all went well, nothing is left at `nouveau` that
/// was not there before.
Rapport Convertir(const QString &ancien, const QString &nouveau, const std::function<bool(int)> &suivre = {},
    int silenceMs = 60'000);

}
