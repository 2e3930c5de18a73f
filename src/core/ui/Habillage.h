#pragma once

#include "core/ui/Theme.h"

class QApplication;

/// The look that the whole program wears: style, font and palette, light or dark.
namespace Habillage {

/// Gives the program its look, and follows the desktop and the setting from then on.
void Appliquer(QApplication &application);
/// Takes the colours anew, after the setting changed.
void Relire();
/// The colours that come with a choice.
QPalette PaletteDe(Theme::Choix choix);

}
