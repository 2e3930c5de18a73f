#pragma once

#include "browse/Fiche.h"

/// The sheet of a press item.
namespace ChargerPresse {

/// Values of the sheet, or nothing when there is no such press item. Throws Error.
std::optional<Valeurs> AfficherPresse(int nPressBD);
/// Writes one field; a number or price that is none changes nothing. False when the field refuses the text. Throws Error.
bool EcrirePresse(int nPressBD, const QString &champ, const QString &valeur);

}
