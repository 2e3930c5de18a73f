#pragma once

#include "browse/Edition.h"

/// The pictures of a sheet: its two photos, and the dedications that are pictures.
namespace PhotosFiche {

/// Takes a picture file into the collection and makes it the one of this field, as one step. Throws Error, and
/// nothing is written, when the file is no picture.
void Poser(const Edition &edition, const QString &chemin);

/// Removes the picture from the field; the file stays. Throws Error.
void Oter(const Edition &edition);

}
