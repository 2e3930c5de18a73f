#pragma once

#include <QByteArray>
#include <QString>

/// Small rules on texts that hold everywhere.
namespace Texte {

/// What a sheet shows for a missing value; the caption clips it to its width, so it reads as a leader.
const QString &Pointilles();

/// A value that counts as nothing: empty, blanks only, or the dots.
bool EstVide(const QString &texte);

/// Bytes of a text file: UTF-8 when they are valid UTF-8 (a byte-order mark is dropped), else Windows-1252.
QString Decoder(const QByteArray &octets);
/// Bytes that are known to be Windows-1252.
QString Decoder1252(const QByteArray &octets);

/// The text as a search compares it: without case, accents and ligatures ("Œuvre" gives "oeuvre").
QString Plier(const QString &texte);

/// "name, first name", or the name alone when there is no first name.
QString NomPrenom(const QString &nom, const QString &prenom);

}
