#pragma once

#include "reports/Listage.h"

/// The files into which a list is written. Each is whole or not there: a file of that name is replaced once the
/// new one is written.
namespace Sorties {

/// Told now and then what part of the work is done, in percent; false ends it.
using Avance = std::function<bool(int pourcent)>;

/// A page in UTF-8 that needs no other file: a picture that goes with the list stands in it.
/// Text in UTF-8, in columns of equal width for a font of equal widths.
/// CSV by RFC 4180, in UTF-8 with a byte-order mark, by which a spreadsheet knows it.
/// All three return false when they were ended, and throw Error.
bool EcrireHtml(const QString &chemin, const Listage::Tableau &tableau, const Avance &avance = {});
bool EcrireTexte(const QString &chemin, const Listage::Tableau &tableau, const Avance &avance = {});
bool EcrireCsv(const QString &chemin, const Listage::Tableau &tableau, const Avance &avance = {});

/// The line at the head of a list that says what made it.
QString EnTete();
/// Walks the rows and tells of the progress, from `debut` to `fin` percent; false when it was ended.
bool Parcourir(const Listage::Tableau &tableau, const Avance &avance, int debut, int fin,
    const std::function<void(const QStringList &cellules)> &pour);
/// The longest line and the longest word of a column, in characters, its head not counted.
struct Largeur
{
    qsizetype ligne = 0;
    qsizetype mot = 0;
};
/// Those of each column; nothing when it was ended.
std::optional<std::vector<Largeur>> Mesurer(
    const Listage::Tableau &tableau, const Avance &avance, int debut, int fin);

}
