#pragma once

#include "model/ChargerAlbums.h"
#include "model/General.h"

#include <QRect>

/// A field of a sheet that the user wants to change: which one, of which entry, and what it shows.
struct Edition
{
    General::Entree entree;
    QString champ; ///< "Scena", "SiteWeb(0)", "Mois(2)"
    QString affichee; ///< empty where the sheet shows the dots
    QVariant stockee;
    ChargerAlbums::Intervenant intervenant; ///< the line of a grid's cell, as it was read
    ChargerAlbums::Cote cote;
    QRect place; ///< of the control, on the screen
};

/// The one door to the write-back routines of the seven sheets.
namespace Ecrire {

/// The row of the field table, or null for a cell of a grid and the trades.
const Champs::Champ *ChampDe(const Edition &edition);
/// What the field is called, in the language in force.
QString LibelleDe(const Edition &edition);
/// The name of the field without the number of its line: "Mois(2)" gives "Mois".
QString NomDe(const Edition &edition);
/// How a step that gives something a value is called: "Scénariste: Caumery".
QString Titre(const QString &quoi, const QString &valeur);
QString TitreDe(const Edition &edition, const QString &valeur);

/// What came of an entered text: why it was refused, or what is to be said of what was written. Both are empty
/// when it was written as it is.
struct Resultat
{
    QString refus;
    QString avis;
};
/// Writes an entered text into its field, as one step. Edits of a memo in one `visite` are one. Throws Error.
Resultat EcrireSaisie(const Edition &edition, const QString &saisie, int visite = 0);

/// Why nothing can be written: the entry is gone. Empty when it is there. Throws Error.
QString RaisonSiAbsente(const Edition &edition);

}
