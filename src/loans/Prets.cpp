#include "loans/Prets.h"

#include "core/Dates.h"
#include "core/Texte.h"
#include "db/Base.h"

namespace {

std::optional<int> joursDepuis(const QString &date)
{
    const auto lue = Dates::Lire(date);
    if (!lue || lue->jour == 0)
        return std::nullopt;
    const qint64 jours = QDate(lue->annee, lue->mois, lue->jour).daysTo(QDate::currentDate());
    return jours >= 0 ? std::optional(static_cast<int>(jours)) : std::nullopt;
}

}

Entrees Prets::LireEmprunteurs()
{
    const Base base;
    Entrees emprunteurs;
    for (auto rs = base.read(QStringLiteral("SELECT * From pret order by nom ;")); !rs.AtEnd(); rs.MoveNext())
        emprunteurs.ajouter(rs.Fields(0).toInt(), rs.Fields(1).toString().trimmed().toStdString());
    return emprunteurs;
}

std::vector<Prets::Pret> Prets::LirePrets(int emprunteur)
{
    const Base base;
    const QString colonnes
        = QStringLiteral("SELECT a.Num, l.TAlbum, a.DPret, p.Nom From Album a join LAlbums l"
                         " on l.NAlbum = a.Num left join Pret p on p.NPret = a.NPret ");
    auto rs = emprunteur > 0
        ? base.read(colonnes + QStringLiteral("where a.NPret = ? order by a.NAlbum ;"), {emprunteur})
        : base.read(colonnes + QStringLiteral("where a.NPret > 0 order by l.TAlbum"));
    std::vector<Pret> prets;
    for (; !rs.AtEnd(); rs.MoveNext())
        prets.push_back({rs.Fields(0).toInt(), rs.Fields(1).toString().trimmed(),
            rs.Fields(3).toString().trimmed(), joursDepuis(rs.Fields(2).toString())});
    return prets;
}
