#pragma once

#include <QImage>
#include <QRect>
#include <functional>

/// The work on one picture: opening, saving, turning, mirroring, fitting into a frame.
namespace Scan {

/// A quarter turn, in radians, with 3.14 for pi.
constexpr double QuartDeTour = 3.14 / 2;

/// Turned by an angle in radians around the middles of both pictures; positive turns to the left. A turn nearer to
/// a quarter than to none exchanges width and height. Each point of the result takes the colour of the point that
/// it comes from, rounded to whole pixels; what comes from outside the picture is white. `entreColonnes` is called
/// now and then, so that a window can repaint.
QImage Tourner(const QImage &source, double angle, const std::function<void()> &entreColonnes = {});

/// Mirrored: left and right exchanged for Qt::Horizontal, top and bottom for Qt::Vertical.
QImage Miroir(const QImage &source, Qt::Orientation sens);

/// The place of a picture in a frame: as large as it fits, its proportions kept, in the middle.
QRect Ajuster(const QSize &image, const QSize &cadre);

/// The picture of a file, null when it is none, or too large (Images::PixelsMax).
QImage Ouvrir(const QString &chemin);

/// Writes a picture in the format of the name's ending. The file is whole or stays as it was. Throws Error.
void Enregistrer(const QImage &image, const QString &chemin);

/// True for an ending in which a picture can be written.
bool PeutEcrire(const QString &chemin);

/// The name that saving proposes for a picture of this file: one that ends in "jpg", or cannot be written, ends in
/// "bmp" instead.
QString NomPropose(const QString &chemin);

/// Full path of the scratch picture, "temp.bmp".
QString Brouillon();

/// A picture as it comes back from the scratch file, from which later edits start. Throws Error when the file
/// cannot be written.
QImage ParLeBrouillon(const QImage &image);

}
