#pragma once

#include <QString>

/// Makes an application folder with a collection of `albums` albums, the same one for the same numbers: per
/// 100 albums about 5 series, 8 authors, a publisher per 500 (one holds a fifth of all), and all links. An
/// existing folder of that name is used as it is. Throws Error.
void generer(const QString &dossier, int albums, unsigned graine = 1);
