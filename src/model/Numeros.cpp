#include "model/Numeros.h"

#include "core/Annonces.h"
#include "db/Base.h"
#include "model/Champs.h"

#include <algorithm>

using Especes::Espece;
using Especes::Rangs;

namespace {

/// The columns of each table that hold numbers of a kind, its own rows aside.
using Renvois = std::map<QString, QStringList>;

Renvois renvoisA(const Espece &espece)
{
    Renvois renvois;
    const auto ajouter = [&renvois](const char *table, const char *colonne) {
        renvois[QLatin1String(table)] << QStringLiteral("max(%1)").arg(QLatin1String(colonne));
    };
    if (espece.liens)
        ajouter(espece.liens, espece.cle);
    for (const Rangs &rangs : espece.ailleurs)
        ajouter(rangs.table, rangs.cle);
    for (const Champs::Champ &champ : Champs::Tous) {
        if (champ.source && champ.source->espece == &espece && champ.colonne)
            ajouter(champ.table, champ.colonne);
    }
    return renvois;
}

/// The highest of some columns of a table, by one query.
int plusHaut(const Base &base, const QString &table, const QStringList &colonnes)
{
    const auto rs
        = base.read(QStringLiteral("SELECT %1 From %2").arg(colonnes.join(QStringLiteral(", ")), table));
    int haut = 0;
    for (int i = 0; i < colonnes.size(); ++i)
        haut = std::max(haut, rs.Fields(i).toInt());
    return haut;
}

int plusHautRenvoi(const Base &base, const Espece &espece)
{
    int haut = 0;
    for (const auto &[table, colonnes] : renvoisA(espece))
        haut = std::max(haut, plusHaut(base, table, colonnes));
    return haut;
}

/// The highest number of the entries themselves.
int plusHautRang(const Base &base, const Espece &espece)
{
    const Rangs rangs{espece.table, espece.cle};
    const std::span<const Rangs> siens = espece.fiche.empty() ? std::span(&rangs, 1) : espece.fiche;
    int haut = 0;
    for (const Rangs &r : siens)
        haut = std::max(haut,
            plusHaut(base, QLatin1String(r.table), {QStringLiteral("max(%1)").arg(QLatin1String(r.cle))}));
    return haut;
}

}

int Numeros::Suivant(Base &base, const Espece &espece)
{
    // What refers to an entry is walked once a run: it takes a walk over all albums.
    const auto [haut, inconnu] = Annonces::courant().numeros.try_emplace(QLatin1String(espece.table), 0);
    if (inconnu)
        haut->second = plusHautRenvoi(base, espece);
    haut->second = std::max(haut->second, plusHautRang(base, espece)) + 1;
    return haut->second;
}
