#include "model/ChargerAuteurs.h"

#include "db/Base.h"

using Especes::Metier;
using General::Tri;

namespace {

Cursor ouvrir(const Base &base, int nAuteur)
{
    return base.read(Especes::Lecture(Especes::Auteur.fiche.front()), {nAuteur});
}

}

ChargerAuteurs::ZoneMetiers ChargerAuteurs::LireMetiers(int nAuteur, Tri liste)
{
    const Base base;
    const auto rs = ouvrir(base, nAuteur);
    ZoneMetiers metiers{Especes::TousLesMetiers[0].libelle, {}};
    int rang = 0;
    for (const Metier &metier : Especes::TousLesMetiers) {
        if (metier.role == General::ListeDe(liste).role)
            metiers.titre = metier.libelle;
        else if (rang < 2)
            metiers.autres[rang++]
                = {metier.libelle, !rs.AtEnd() && rs.Fields(AccesBase::NomDuRole(metier.role)).toBool()};
    }
    return metiers;
}

QString ChargerAuteurs::TexteDesMetiers(Tri liste, bool premier, bool second)
{
    QStringList mots;
    int rang = 0;
    for (const Metier &metier : Especes::TousLesMetiers) {
        if (metier.role == General::ListeDe(liste).role || (rang++ == 0 ? premier : second))
            mots << QString::fromUtf8(metier.mot);
    }
    return mots.join(u'|');
}
