#include "browse/ChargerExLibris.h"

using Champs::Feuille;

std::optional<Valeurs> ChargerExLibris::AfficherExLibris(int nExLibris)
{
    return Fiche::Lire(Feuille::ExLibris, nExLibris);
}

bool ChargerExLibris::EcrireExLibris(int nExLibris, const QString &champ, const QString &valeur)
{
    return Fiche::EcrireSaisie(Feuille::ExLibris, nExLibris,
        champ == QLatin1String("Nom") ? QStringLiteral("DescriptionX") : champ, valeur);
}
