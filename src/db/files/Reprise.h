#pragma once

#include "db/files/Conversion.h"

/// Taking up what an older program made: its collection, or its reference catalogue, converted and put in place.
namespace Reprise {

/// True for a file in the old format; false too when there is no such file.
bool EstAncien(const QString &chemin);

/// Converts an old file and puts the new one in the place of the collection, or of the reference catalogue,
/// whichever it is. What stood there is kept: a sound collection as a backup, an old file under its name with
/// "-ancien". The report says what came over; while it bears an error nothing has changed. Throws Error when the
/// new file cannot be put in place.
Conversion::Rapport Reprendre(const QString &chemin, const std::function<bool(int pourcent)> &suivre = {});

}
