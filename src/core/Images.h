#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

/// The pictures of the collection: where their files are, how one is taken in, how one is decoded.
namespace Images {

/// More pixels than this are refused, so that no file can freeze the program or eat its memory.
constexpr qint64 PixelsMax = 120'000'000;

/// The kinds of pictures that a person is offered to choose, by their endings ("jpg"); those beyond the common ones
/// only where the platform reads them.
QStringList Extensions();

/// True for a name that ends like a picture file, of whatever kind that may have been chosen anywhere.
bool EstUneImage(const QString &nom);

/// Full path of a stored picture name, or empty when there is no such file. A bare name is looked for in
/// "images", then "image"; a relative path from the application folder, then by its last part; a full path
/// as it is, and when it does not exist (a path of another machine) by its last part.
QString Trouver(const QString &nom);

/// Copies a picture into "images" and returns the bare name to store. A picture that is already there is
/// not copied again; a name that another picture has gets " (2)" and so on. Signs that would mislead, and what is too
/// long, do not enter its name. Throws Error.
QString Copier(const QString &chemin);
/// The same into another folder of the application folder.
QString CopierDans(const QString &dossier, const QString &chemin);

/// The bytes that a name made of a text takes at most: with a number and an ending behind it a file system still has
/// room for it, and for what a file is called while it is written.
constexpr qsizetype OctetsDuNom = 200;

/// A text as part of a file name: what a file system refuses or hides, and what makes a name read otherwise than it is
/// (controls, line ends, marks of direction), becomes "_"; cut between two characters at OctetsDuNom.
QString NomDeFichier(const QString &texte);

/// Decoded picture of a file, reduced to fit `taille` (pixels) when it is larger; upright by its own
/// orientation mark. Null when the file is no picture or has more than PixelsMax pixels; of one that is cut
/// short, what there is of it may come. Safe in any thread.
QImage Decoder(const QString &chemin, const QSize &taille);

}
