#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

/// The program's icons: line drawings that take the colour of the text beside them.
namespace Icones {

/// The icon of this name; drawn when it is first shown, at the size and in the colour needed then.
QIcon Charger(const QString &nom);
/// The same in another colour of the palette.
QIcon Charger(const QString &nom, QPalette::ColorRole couleur);

/// The same with a small mark of its own colour in the lower corner.
QIcon AvecMarque(const QString &nom, const QString &marque);

/// The program's own icon.
QIcon Programme();

}
