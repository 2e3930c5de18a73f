#include "model/PreparerInfosAlbum.h"

#include "db/Base.h"

namespace {

constexpr int TomeMax = 999;

struct Possede
{
    int num;
    int tome;
};

std::vector<Possede> lireSerie(const Base &base, int serie)
{
    std::vector<Possede> albums;
    const QString sql
        = QStringLiteral("SELECT s.NAlbum, a.NAlbum From SerieAlbums s join Album a on a.Num = s.NAlbum"
                         " where s.NSerie = ? order by a.NAlbum asc, a.Num asc");
    for (auto rs = base.read(sql, {serie}); !rs.AtEnd(); rs.MoveNext())
        albums.push_back({static_cast<int>(rs.Int64(0)), static_cast<int>(rs.Int64(1))});
    return albums;
}

/// Each owned album in its place, and the holes between the first tome and the last.
void poserPlaces(InfosAlbum &infos, const std::vector<Possede> &albums)
{
    int attendu = 1;
    for (const Possede &album : albums) {
        // A number beyond what a tome can be is a year or a slip: it makes no holes.
        const int jusque = album.tome <= TomeMax ? album.tome : attendu;
        for (; attendu < jusque; ++attendu) {
            infos.manquants.push_back(attendu);
            infos.bande.push_back({attendu, 0});
        }
        infos.bande.push_back({album.tome, album.num});
        attendu = std::max(attendu, jusque + 1);
    }
}

InfosAlbum::Voisin voisin(const Base &base, int num)
{
    const auto rs = base.read(QStringLiteral("SELECT TAlbum From LAlbums where NAlbum = ?"), {num});
    return {num, rs.AtEnd() ? QString() : rs.Fields(0).toString()};
}

}

InfosAlbum PreparerInfosAlbum::Preparer(int album, int serie)
{
    InfosAlbum infos;
    if (serie == 0)
        return infos;
    const Base base;
    const std::vector<Possede> albums = lireSerie(base, serie);
    infos.possedes = static_cast<int>(albums.size());
    poserPlaces(infos, albums);
    for (std::size_t i = 0; i < albums.size(); ++i) {
        if (albums[i].num != album)
            continue;
        infos.tome = albums[i].tome;
        if (i > 0)
            infos.precedent = voisin(base, albums[i - 1].num);
        if (i + 1 < albums.size())
            infos.suivant = voisin(base, albums[i + 1].num);
    }
    return infos;
}
