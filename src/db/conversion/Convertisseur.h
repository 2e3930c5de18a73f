#pragma once

#include <QString>
#include <QStringList>
#include <functional>

/// The conversion of an old file into a new one.
namespace Convertisseur {

/// Says the lines of `Conversion` through `dire`, but for the one about a failure: Echec, Error and what the
/// engine throws come to the caller, and then there is no new file.
void Convertir(
    const QString &ancien, const QString &nouveau, const std::function<void(const QStringList &)> &dire);

}
