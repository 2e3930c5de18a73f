#pragma once

#include <QString>

/// Opening of what a person may open from the collection.
namespace Liens {

/// Opens a web or mail address in the desktop's program for it; "http://" is assumed without a scheme. Any
/// other scheme is refused. Throws Error.
void Ouvrir(const QString &adresse);

/// Opens a picture of the collection, by its stored name, likewise. Throws Error.
void OuvrirImage(const QString &nom);

}
