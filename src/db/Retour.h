#pragma once

class Bande;
class Base;

/// The way back from what was done to the rows.
namespace Retour {

/// Takes back what a tape holds, the last change first. What it does is noted in its turn, so that the way back has
/// a way back. Call it within a transaction that is given up when this throws: Error of the sort Perimee when a row
/// is no longer as the tape left it.
void Refaire(Base &base, const Bande &bande);

/// True when what a tape holds was committed, as the file says: its last row stands as it was left. Throws Error.
bool EstFait(Base &base, const Bande &bande);

}
