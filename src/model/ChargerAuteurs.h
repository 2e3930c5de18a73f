#pragma once

#include "model/Fiche.h"
#include "model/General.h"

/// The author sheet: his trades.
namespace ChargerAuteurs {

/// The trades area, as it stands for an author who was chosen from the list of one trade.
struct ZoneMetiers
{
    Txt titre;
    struct Autre
    {
        Txt libelle;
        bool exerce;
    } autres[2];
};

/// The trade of the list first, then the two others with their flags. Throws Error.
ZoneMetiers LireMetiers(int nAuteur, General::Tri liste);

/// The text of trades of an author of that list, who has the two others or not.
QString TexteDesMetiers(General::Tri liste, bool premier, bool second);

}
