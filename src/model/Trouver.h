#pragma once

#include "model/Especes.h"

class Base;

/// The entry that a name names, whatever its letter case; of several the oldest one. 0 when there is none. All throw
/// Error.
namespace Trouver {

/// By the whole name.
int ParNom(const Base &base, const Especes::Espece &espece, const QString &nom);
/// A person by both names.
int Personne(const Base &base, const Especes::Espece &espece, const QString &nom, const QString &prenom);
/// True when there is an entry of this number.
bool Existe(const Base &base, const Especes::Espece &espece, int numero);

}
