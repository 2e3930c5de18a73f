#pragma once

#include "browse/Fiche.h"
#include "browse/PreparerInfosAlbum.h"

#include <QString>
#include <vector>

/// The album sheet: what does not fit the field table, and the order in which its parts are read.
namespace ChargerAlbums {

/// One line of the grid of contributors, with the identifiers behind its two cells.
struct Intervenant
{
    int intervenant = 0;
    int metier = 0;
    QString nom;
    QString activite;
};

/// One line of the grid of price quotes.
struct Cote
{
    QString mois;
    QString cote;
};

struct FicheAlbum
{
    int num = 0;
    Valeurs valeurs;
    std::vector<Cote> cotes;
    std::vector<Intervenant> intervenants;
    InfosAlbum infos;
};

/// All of an album's sheet, or nothing when there is no such album. Throws Error.
std::optional<FicheAlbum> AfficherAlbum(int num);

/// Price quotes by month; within a month the higher one (as text) first. Throws Error.
std::vector<Cote> AfficherCotes(int num);

/// Contributors ("first name , name") with their trades. Throws Error.
std::vector<Intervenant> AfficherIntervenants(int num);

/// Writes one field of the album. "Hist" goes into the list row's copy, too; "DateD" is the album's publication
/// date here. False when the field refuses the text. Throws Error.
bool EcrireAlbum(int num, const QString &champ, const QString &valeur);

/// Writes one field of the album's list row: title, pictures, dedications. Throws Error.
bool EcrireListe(int num, const QString &champ, const QString &valeur);

/// Replaces a line of the grid of contributors. A cell without an identifier is looked up by its text, the
/// contributor ("first name , name") and the trade being made when there are none. A blank cell is none; a line
/// that loses its contributor goes. `ancien` is the line as it was, empty for a new one. Returns the line as it
/// is now. Throws Error.
Intervenant EcrireIntervenant(int num, const Intervenant &ancien, const Intervenant &nouveau);

/// Replaces a line of the grid of quotes; one that is blank in both halves goes. Throws Error.
void EcrireCote(int num, const Cote &ancienne, const Cote &nouvelle);

}
