#pragma once

#include "browse/Fiche.h"
#include "browse/General.h"

/// The author sheet: his trades, and the two names that one field may hold.
namespace ChargerAuteurs {

/// The trades area, as it stands for an author who was chosen from the list of one trade.
struct Metiers
{
    Txt titre;
    struct Autre
    {
        Txt libelle;
        bool exerce;
    } autres[2];
};

/// Values of the sheet, or nothing when there is no such author. Throws Error.
std::optional<Valeurs> AfficherAuteur(int nAuteur);
/// The trade of the list first, then the two others with their flags. Throws Error.
Metiers LireMetiers(int nAuteur, General::Tri liste);

/// The text of trades of an author of that list, who has the two others or not.
QString TexteDesMetiers(General::Tri liste, bool premier, bool second);

/// Writes one field. "Nom" and "Prenom" take "first name, name"; "Métiers" takes trade names separated by "|",
/// and clears the flag of each that is not named. False when the field refuses the text. Throws Error.
bool EcrireAuteur(int nAuteur, const QString &champ, const QString &valeur);

}
