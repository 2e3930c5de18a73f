#pragma once

#include <QRect>

class QWidget;

/// Where windows stand on the screen.
namespace Placement {

/// The frame within what the screen leaves free: no larger, and moved as little as needed.
QRect Dans(QRect cadre, const QRect &libre);

/// Puts a window that is not shown yet in the middle of another one, within the screen and not exactly where a window
/// already is.
void Centrer(QWidget &fenetre, const QWidget &sur);

/// Brings a window that is shown into the screen, its frame included, as far as it can be that small. False as long as
/// nobody has put a frame around it.
bool Rentrer(QWidget &fenetre);

}
