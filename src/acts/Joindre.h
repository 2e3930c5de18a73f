#pragma once

#include "acts/Ecrire.h"

#include <QImage>

/// The pictures of a sheet: its two photos, and the dedications that are pictures.
namespace Joindre {

/// What to ask before a picture takes the place of the field's value: a dedication that somebody wrote would go.
/// Empty when there is nothing to ask. Throws Error.
QString QuestionSurLaNote(const Edition &edition);

/// Takes a picture file into the collection and makes it the one of this field, as one step. Throws Error, and
/// nothing is written, when the file is no picture.
void Poser(const Edition &edition, const QString &chemin);

/// The same with a picture from memory, which is kept as a file under the entry's name.
void PoserImage(const Edition &edition, const QImage &image);

/// Removes the picture from the field; the file stays. Throws Error.
void Oter(const Edition &edition);

}
