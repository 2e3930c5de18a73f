#pragma once

#include <QString>

/// Fills the collection of the application folder from the CSV files of a folder. Pictures are named by
/// identifier, "album-12.jpg". Throws Error on a file that cannot be read or a name that nothing defines.
void remplirExemple(const QString &sources);
