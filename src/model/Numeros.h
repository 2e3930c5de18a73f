#pragma once

#include "model/Especes.h"

class Base;

/// The numbers that new entries get.
namespace Numeros {

/// A number above all that the entries of this kind have, and above all that anything still refers to, so that nothing
/// new inherits what hung on something deleted. 1 in an empty collection. Throws Error.
int Suivant(Base &base, const Especes::Espece &espece);

}
