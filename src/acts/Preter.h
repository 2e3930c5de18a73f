#pragma once

/// What is done to loans: what ends one, and what ends a borrower. A loan begins where its field is chosen. Both throw
/// Error.
namespace Preter {

/// Ends a loan; an album that is gone is no error.
void Rendre(int album);

/// Deletes a borrower. His albums stay marked as lent to his number.
void SupprimerEmprunteur(int emprunteur);

}
