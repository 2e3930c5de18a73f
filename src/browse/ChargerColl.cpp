#include "browse/ChargerColl.h"

using Champs::Feuille;

std::optional<Valeurs> ChargerColl::AfficherColl(int nColl)
{
    return Fiche::Lire(Feuille::Coll, nColl);
}

bool ChargerColl::EcrireColl(int nColl, const QString &valeur)
{
    return Fiche::EcrireSaisie(Feuille::Coll, nColl, QStringLiteral("NomC"), valeur);
}
