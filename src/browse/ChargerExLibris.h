#pragma once

#include "browse/Fiche.h"

/// The sheet of an ex-libris print.
namespace ChargerExLibris {

/// Values of the sheet, or nothing when there is no such ex-libris. Throws Error.
std::optional<Valeurs> AfficherExLibris(int nExLibris);
/// Writes one field; "Nom" and "DescriptionX" are the same one. A price that is none changes nothing. False when the field refuses the text. Throws Error.
bool EcrireExLibris(int nExLibris, const QString &champ, const QString &valeur);

}
