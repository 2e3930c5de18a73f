#include "browse/ChargerSeries.h"

using Champs::Feuille;

std::optional<Valeurs> ChargerSeries::AfficherSerie(int nSerie)
{
    return Fiche::Lire(Feuille::Serie, nSerie);
}

bool ChargerSeries::EcrireSerie(int nSerie, const QString &champ, const QString &valeur)
{
    return Fiche::EcrireSaisie(Feuille::Serie, nSerie, champ, valeur);
}
