#pragma once

#include "db/conversion/TableJet.h"
#include "db/schema/Tables.h"

#include <QByteArray>
#include <QString>
#include <variant>

/// What becomes of a cell of the old file in the new one.
namespace Cellules {

/// Null, a whole number, an amount, a text in UTF-8.
using Valeur = std::variant<std::monostate, qint64, double, QByteArray>;

/// What of the cell is lost: nothing; all, for it is no number that its field can hold; a fraction of a cent.
enum class Perte { Aucune, Nombre, Montant };

struct Convertie
{
    Valeur valeur;
    Perte perte = Perte::Aucune;
};

/// A cell, null when there is none, in a field of this type.
Convertie Convertir(const QString &cellule, TableJet::Sorte sorte, Schema::Type type);

}
