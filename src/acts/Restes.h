#pragma once

/// Rows that no list and no sheet shows, and that nothing deletes: what creations that were cut short by a fault once
/// left behind. Creations are acts since, and leave none.
namespace Restes {

/// Whether there are any. Some tenths of a second for 100,000 albums. Throws Error.
bool YEnA();

/// Takes them away as one step: albums without a line in the list, links of albums that are gone, links that stand
/// there twice. Returns how many rows. Throws Error.
int Oter();

}
