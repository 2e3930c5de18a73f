#pragma once

#include "model/ChargerAlbums.h"

/// The writing half of the album sheet's two grids. Both throw Error.
namespace ChargerAlbums {

/// Replaces a line of the grid of contributors. A cell without an identifier is looked up by its text, the
/// contributor ("first name , name") and the trade being made when there are none. A blank cell is none; a line
/// that loses its contributor goes. `ancien` is the line as it was, empty for a new one. Returns the line as it
/// is now.
Intervenant EcrireIntervenant(int num, const Intervenant &ancien, const Intervenant &nouveau);

/// Replaces a line of the grid of quotes; one that is blank in both halves goes.
void EcrireCote(int num, const Cote &ancienne, const Cote &nouvelle);

}
