#pragma once

#include <QByteArray>
#include <QString>

/// Small rules on texts that hold everywhere.
namespace Texte {

/// What a sheet shows for a missing value; the caption clips it to its width, so it reads as a leader.
const QString &Pointilles();

/// A value that counts as nothing: empty, blanks only, or the dots.
bool EstVide(const QString &texte);

/// A text as one line: line breaks, tabs and other signs that control a line are blanks; none at its ends.
QString UneLigne(const QString &texte);

/// The first characters of a text, at most `longueur` units of it; none is halved, nor parted from its accents.
QString Couper(const QString &texte, qsizetype longueur);

/// True when there is more in it than blanks and commas, so that somebody or something may be called so.
bool EstUnNom(const QString &texte);

/// Bytes of a text file: UTF-8 when they are valid UTF-8 (a byte-order mark is dropped), else Windows-1252.
QString Decoder(const QByteArray &octets);
/// Bytes that are known to be Windows-1252.
QString Decoder1252(const QByteArray &octets);

/// The text as a search compares it: without case, accents and ligatures ("Œuvre" gives "oeuvre").
QString Plier(const QString &texte);

/// "name, first name", or the name alone when there is no first name.
QString NomPrenom(const QString &nom, const QString &prenom);

}
