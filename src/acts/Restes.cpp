#include "acts/Restes.h"

#include "acts/Acte.h"
#include "model/Especes.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

namespace {

/// Rows of a table by the numbers that the engine gave them.
struct Perdus
{
    QString table;
    QString lesquels; ///< a query for those numbers
};

/// All rows but one that say the same of an album.
Perdus doubles(const Especes::Espece &espece)
{
    const bool roles = &espece == &Especes::Auteur;
    return {QLatin1String(espece.liens),
        QStringLiteral("SELECT l.rowid From %1 l join (SELECT min(rowid) r, NAlbum, %2%3 From %1"
                       " group by NAlbum, %2%3 having count(*) > 1) d"
                       " on d.NAlbum = l.NAlbum and d.%2 = l.%2 and l.rowid <> d.r%4")
            .arg(QLatin1String(espece.liens), QLatin1String(espece.cle),
                roles ? QStringLiteral(", Dessin, Scena, Color") : QString(),
                roles ? QStringLiteral(" and d.Dessin = l.Dessin and d.Scena = l.Scena and d.Color = l.Color")
                      : QString())};
}

/// In the order in which they are taken away: what hangs on an album goes behind it.
std::vector<Perdus> perdus()
{
    std::vector<Perdus> tous{{QStringLiteral("Album"),
        QStringLiteral("SELECT a.rowid From Album a left join LAlbums l on l.NAlbum = a.Num"
                       " where l.NAlbum is null and a.Num > 0")}};
    for (const Especes::Rangs &rangs : Especes::Album.ailleurs)
        tous.push_back({QLatin1String(rangs.table),
            QStringLiteral("SELECT r.rowid From %1 r left join LAlbums l on l.NAlbum = r.%2"
                           " where l.NAlbum is null")
                .arg(QLatin1String(rangs.table), QLatin1String(rangs.cle))});
    for (const Especes::Espece *espece : Especes::Liees)
        tous.push_back(doubles(*espece));
    return tous;
}

}

bool Restes::YEnA()
{
    const Base base;
    const std::vector<Perdus> tous = perdus();
    return std::any_of(tous.begin(), tous.end(), [&base](const Perdus &p) {
        return base.read(QStringLiteral("SELECT exists (%1)").arg(p.lesquels)).Int64(0) != 0;
    });
}

int Restes::Oter()
{
    Acte acte({});
    int otes = 0;
    for (const Perdus &p : perdus())
        otes += acte.base().Execute(
            QStringLiteral("DELETE From %1 where rowid in (%2)").arg(p.table, p.lesquels));
    acte.intituler(QCoreApplication::translate("Restes", "Restes ôtés : %1").arg(otes));
    acte.valider();
    return otes;
}
