#pragma once

#include <QString>

/// The background pictures: the one of the settings, and those of the folder "Fond Ecran".
namespace Fonds {

/// Full path of the background picture of the settings, or empty.
QString CheminChoisi();

/// Full path of the n-th texture of "Fond Ecran", by name; empty for 0 and beyond the last.
QString Texture(int rang);

}
