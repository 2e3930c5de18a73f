#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// The two pictures of an album of the online catalogue: where they are, and under which names they are kept.
namespace Couvertures {

enum class Rang { Premiere = 1, Seconde = 2 };

/// Where a picture is on the catalogue's host ("http://" is assumed without a scheme).
QUrl Adresse(const QString &hote, const QString &morceau, Rang rang);

/// Keeps a downloaded picture: its bytes in the scratch file, then in "images" under the album's title. Returns
/// the bare name, empty when the bytes are no picture. A picture that an album uses is not overwritten: the new
/// one gets " (2)". Throws Error when a file cannot be written.
QString Garder(const QByteArray &octets, const QString &titre, Rang rang);

}
