#pragma once

#include "browse/Fiche.h"

/// The series sheet.
namespace ChargerSeries {

/// Values of the sheet, or nothing when there is no such series. Throws Error.
std::optional<Valeurs> AfficherSerie(int nSerie);
/// Writes one field: a web address gets "http://" in front when it lacks it, a grade that is no number changes
/// nothing. False when the field refuses the text. Throws Error.
bool EcrireSerie(int nSerie, const QString &champ, const QString &valeur);

}
