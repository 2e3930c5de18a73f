#pragma once

#include "model/General.h"

/// The deletion of an entry of a list with what belongs to it.
namespace Supprimer {

/// Deletes an album with its list row and its links to authors, collections, publisher, genres, countries and
/// series; takes from an author the trade of his list; deletes any other entry's own row. One step, in one
/// transaction; what is gone already is no error. Throws Error.
void SupprimerEntree(General::Entree entree);

}
