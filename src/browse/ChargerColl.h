#pragma once

#include "browse/Fiche.h"

/// The sheet of a collection: its name.
namespace ChargerColl {

/// Values of the sheet, or nothing when there is no such collection. Throws Error.
std::optional<Valeurs> AfficherColl(int nColl);
/// Writes the name. False when the field refuses the text. Throws Error.
bool EcrireColl(int nColl, const QString &valeur);

}
