#pragma once

#include "model/General.h"

/// The search by name among the entries of one kind.
namespace Rechercher {

enum class Mode { Partout, Debut };

/// The entries whose name holds the text, or begins with it, whatever the letter case; accents count. Every
/// entry for an empty text; none with a number below 1. In the order of their names,
/// with the labels of their list. Throws Error.
Entrees Chercher(General::Tri tri, const QString &texte, Mode mode);

}
