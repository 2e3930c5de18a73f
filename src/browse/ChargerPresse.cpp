#include "browse/ChargerPresse.h"

using Champs::Feuille;

std::optional<Valeurs> ChargerPresse::AfficherPresse(int nPressBD)
{
    return Fiche::Lire(Feuille::Presse, nPressBD);
}

bool ChargerPresse::EcrirePresse(int nPressBD, const QString &champ, const QString &valeur)
{
    return Fiche::EcrireSaisie(Feuille::Presse, nPressBD, champ, valeur);
}
