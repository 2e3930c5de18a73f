#pragma once

#include <QVariant>
#include <string_view>

namespace SQLite {
class Column;
class Statement;
}

/// Values on their way into and out of the engine: Null is an invalid variant, a boolean is -1 or 0, an
/// amount is rounded to four decimals.
namespace Valeur {

/// Binds a value to a parameter (1-based). Throws SQLite::Exception.
void Lier(SQLite::Statement &instruction, int position, const QVariant &valeur);

/// True when writing one over the other would change nothing: 12 equals 12.0, but no text equals a number.
bool Egales(const QVariant &a, const QVariant &b);

QVariant Lire(const SQLite::Column &colonne);

/// The place of a column by its name, in any letter case. Throws Error when there is none.
int Champ(const SQLite::Statement &instruction, const QString &nom);

/// The bytes of a text column, without a copy; valid until the statement moves.
std::string_view Utf8(const SQLite::Column &colonne);

}
