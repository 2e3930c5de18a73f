#pragma once

#include "db/files/Conversion.h"

#include <QString>
#include <functional>

/// The conversion of an old file into a new one.
namespace Convertisseur {

using Dire = std::function<void(const Conversion::Annonce &)>;

/// Says through `dire` how it goes, but not a failure: Echec, Error and what the engine throws come to the
/// caller, and then there is no new file.
void Convertir(const QString &ancien, const QString &nouveau, const Dire &dire);

}
