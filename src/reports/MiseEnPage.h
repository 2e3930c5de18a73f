#pragma once

#include "reports/Sorties.h"

class QPagedPaintDevice;

/// A list on pages: paper, or a PDF file.
namespace MiseEnPage {

/// Draws the list page by page, with its title, the heads of its columns on each page, and the page's number.
/// Values that are too long for their column go on below. False when it was ended, with the pages drawn until
/// then. Throws Error.
bool Dessiner(QPagedPaintDevice &papier, const Listage::Tableau &tableau, const Sorties::Avance &avance = {});

/// The list as a PDF file, A4; upright, or across when it has many columns. The file is whole or not there.
/// False when it was ended. Throws Error.
bool EcrirePdf(const QString &chemin, const Listage::Tableau &tableau, const Sorties::Avance &avance = {});

/// True for a list that is better laid across the page.
bool EstLarge(const Listage::Tableau &tableau);

}
