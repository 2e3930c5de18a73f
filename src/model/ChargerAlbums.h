#pragma once

#include "model/Fiche.h"
#include "model/PreparerInfosAlbum.h"

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

}
