#pragma once

#include <QtGlobal>
#include <string>
#include <string_view>

struct sqlite3_value;
namespace SQLite {
class Column;
class Statement;
}

/// The values of a row as bytes: as short as they may be, and equal where the engine would find them equal, so that
/// a row can be told from another by a digest. A whole number is written as such also where it stands in a field
/// for amounts, since the engine keeps it so, too.
namespace Rangee {

/// Writes a value behind those that are there; no value at all counts as Null.
void Ajouter(std::string &octets, sqlite3_value *valeur);
void Ajouter(std::string &octets, const SQLite::Column &valeur);

/// The first value's bytes, which are taken away from `octets`.
std::string_view Prendre(std::string_view &octets);

/// Binds a value's bytes to a parameter (1-based). Throws SQLite::Exception.
void Lier(SQLite::Statement &instruction, int position, std::string_view valeur);

/// 64 bits that differ when the bytes do; of this run of the program only.
quint64 Empreinte(std::string_view octets);

}
