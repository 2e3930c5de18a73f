#pragma once

#include <QString>

/// Opening of what a person may open from the collection.
namespace Liens {

/// Opens a web or mail address in the desktop's program for it; "http://" is assumed without a scheme. Any
/// other scheme is refused, and of a mail address nothing but the address goes along. Where it cannot be opened, a box
/// says what to do.
void Ouvrir(const QString &adresse);

/// Opens a picture of the collection, by its stored name, likewise. Throws Error when there is no such file.
void OuvrirImage(const QString &nom);

/// Opens a page of the help, likewise.
void OuvrirPage(const QString &chemin);

}
