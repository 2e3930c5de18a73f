#pragma once

#include <QDate>
#include <QString>
#include <optional>

/// Dates as the collection stores them: texts that people wrote.
namespace Dates {

/// What could be read of a stored date; 0 is unknown.
struct Partielle
{
    int jour = 0;
    int mois = 0;
    int annee = 0;
};

/// Reads "21 novembre 2026" with the month in any shipped language, "novembre 2026", "21/11/2026", "11/2026",
/// "2026", "2026-11" and "2026-11-21". Nothing for a text that is no such date.
std::optional<Partielle> Lire(const QString &texte);

/// The day that a stored date names, or the first one of its month or year.
std::optional<QDate> LireJour(const QString &texte);

/// "dd mmmm yyyy" in the language in force.
QString Ecrire(const QDate &date);

}
