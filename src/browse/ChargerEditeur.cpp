#include "browse/ChargerEditeur.h"

using Champs::Feuille;

std::optional<Valeurs> ChargerEditeur::AfficherEditeur(int nEdit)
{
    return Fiche::Lire(Feuille::Editeur, nEdit);
}

bool ChargerEditeur::EcrireEditeur(int nEdit, const QString &champ, const QString &valeur)
{
    return Fiche::EcrireSaisie(Feuille::Editeur, nEdit, champ, valeur);
}
