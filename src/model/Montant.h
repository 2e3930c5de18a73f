#pragma once

#include <QString>
#include <optional>
#include <vector>

/// Amounts as people write them.
namespace Montant {

/// What a text may mean: nothing when it is no amount, two where point or comma before three figures may group them
/// or not, and the language in force does not say which: "1.250" groups where the point is its sign for it. The euro
/// sign and blanks do not count. Amounts are below 900 719 925 474, to which the stored ones are exact.
std::vector<double> Lectures(const QString &saisie);

/// Its one meaning; nothing when it has none or two.
std::optional<double> Lire(const QString &saisie);

/// As the language in force writes it, with no more decimals than it has, ungrouped.
QString Ecrire(double montant);

/// The same with two decimals, its figures grouped.
QString Montrer(double montant);

}
