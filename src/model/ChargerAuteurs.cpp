#include "model/ChargerAuteurs.h"

#include "db/Base.h"

using General::Tri;

namespace {

constexpr ChargerAuteurs::Metier Tous[] = {
    {Tri::Dessinateurs, Txt::Dessinateur, "Dessin", "Dessinateur"},
    {Tri::Scenaristes, Txt::Scenariste, "Scena", "Scénariste"},
    {Tri::Coloristes, Txt::Coloriste, "Color", "Coloriste"},
};

Cursor ouvrir(const Base &base, int nAuteur)
{
    return base.read(QStringLiteral("SELECT * From Auteurs where NAuteur = ?"), {nAuteur});
}

}

std::span<const ChargerAuteurs::Metier> ChargerAuteurs::TousLesMetiers()
{
    return Tous;
}

ChargerAuteurs::Metiers ChargerAuteurs::LireMetiers(int nAuteur, Tri liste)
{
    const Base base;
    const auto rs = ouvrir(base, nAuteur);
    Metiers metiers{Tous[0].libelle, {}};
    int rang = 0;
    for (const Metier &metier : Tous) {
        if (metier.liste == liste)
            metiers.titre = metier.libelle;
        else if (rang < 2)
            metiers.autres[rang++]
                = {metier.libelle, !rs.AtEnd() && rs.Fields(QLatin1String(metier.drapeau)).toBool()};
    }
    return metiers;
}

QString ChargerAuteurs::TexteDesMetiers(Tri liste, bool premier, bool second)
{
    QStringList mots;
    int rang = 0;
    for (const Metier &metier : Tous) {
        if (metier.liste == liste || (rang++ == 0 ? premier : second))
            mots << QString::fromUtf8(metier.mot);
    }
    return mots.join(u'|');
}
