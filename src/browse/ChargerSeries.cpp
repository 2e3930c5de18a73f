#include "browse/ChargerSeries.h"

using Champs::Feuille;

std::optional<Valeurs> ChargerSeries::AfficherSerie(int nSerie)
{
    return Fiche::Lire(Feuille::Serie, nSerie);
}

void ChargerSeries::EcrireSerie(int nSerie, const QString &champ, const QString &valeur)
{
    Fiche::EcrireSaisie(Feuille::Serie, nSerie, champ, valeur);
}
