#pragma once

/// The comparison behind the collation FRANCAIS, apart from the database so that the program and the loadable
/// extension share it. Letter case is ignored; accents decide only between otherwise equal texts.
namespace Comparaison {

/// A new ICU collator, or null when ICU has none.
void *creer();
void detruire(void *collateur);

/// Order of two UTF-8 texts: below, equal to or above 0. The signature is SQLite's.
int comparer(void *collateur, int la, const void *a, int lb, const void *b);

/// 23 bits that change with the collator's version: indexes made with another version must be rebuilt.
int version();

}
