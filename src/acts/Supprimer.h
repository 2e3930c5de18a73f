#pragma once

#include "model/General.h"

/// The deletion of an entry of a list with what belongs to it.
namespace Supprimer {

/// Deletes an album with its list row and its links to authors, collections, publisher, genres, countries and
/// series; takes from an author the trade of his list; deletes any other entry's own row. One step, in one
/// transaction; what is gone already is no error. Throws Error.
void SupprimerEntree(General::Entree entree);

/// What else a deletion means, in a line to be read before it: the albums that stay without the entry, the borrower
/// who has the album. Empty when it concerns the entry alone. Throws Error.
QString Suites(General::Entree entree);

}
