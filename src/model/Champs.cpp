#include "model/Champs.h"

#include <algorithm>

using namespace Champs;

const Champ &Champs::DuNom(Feuille feuille)
{
    const Especes::Espece &espece = Especes::De(feuille);
    return *std::find_if(std::begin(Tous), std::end(Tous), [&](const Champ &champ) {
        return champ.feuille == feuille && champ.colonne && std::string_view(champ.table) == espece.table
            && std::string_view(champ.colonne) == espece.nom;
    });
}
