#pragma once

#include "browse/Fiche.h"

/// The publisher sheet.
namespace ChargerEditeur {

/// Values of the sheet, or nothing when there is no such publisher. Throws Error.
std::optional<Valeurs> AfficherEditeur(int nEdit);
/// Writes one field, as entered. False when the field refuses the text. Throws Error.
bool EcrireEditeur(int nEdit, const QString &champ, const QString &valeur);

}
