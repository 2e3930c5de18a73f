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

/// From number, name, first name and telephone, in this order.
Prets::Emprunteur lireEmprunteur(const Cursor &rs)
{
    return {rs.Fields(0).toInt(), rs.Fields(1).toString().trimmed(), rs.Fields(2).toString().trimmed(),
        rs.Fields(3).toString().trimmed()};
}

}

std::vector<Prets::Emprunteur> Prets::LireEmprunteurs()
{
    const Base base;
    std::vector<Emprunteur> emprunteurs;
    for (auto rs = base.read(QStringLiteral("SELECT * From pret order by nom ;")); !rs.AtEnd(); rs.MoveNext())
        emprunteurs.push_back(lireEmprunteur(rs));
    return emprunteurs;
}

QString Prets::NomDe(const Emprunteur &emprunteur)
{
    return Texte::NomPrenom(emprunteur.nom, emprunteur.prenom);
}

std::optional<Prets::Emprunteur> Prets::QuiA(int album)
{
    const Base base;
    const auto rs = base.read(QStringLiteral("SELECT a.NPret, p.Nom, p.Prenom, p.Tel From Album a"
                                             " left join Pret p on p.NPret = a.NPret"
                                             " where a.Num = ? and a.NPret > 0"),
        {album});
    return rs.AtEnd() ? std::nullopt : std::optional(lireEmprunteur(rs));
}

std::vector<Prets::Pret> Prets::LirePrets(int emprunteur)
{
    const Base base;
    const QString colonnes
        = QStringLiteral("SELECT a.Num, l.TAlbum, a.DPret, p.Nom, p.Prenom From Album a join LAlbums l"
                         " on l.NAlbum = a.Num left join Pret p on p.NPret = a.NPret ");
    auto rs = emprunteur > 0
        ? base.read(colonnes + QStringLiteral("where a.NPret = ? order by a.NAlbum ;"), {emprunteur})
        : base.read(colonnes + QStringLiteral("where a.NPret > 0 order by l.TAlbum"));
    std::vector<Pret> prets;
    for (; !rs.AtEnd(); rs.MoveNext())
        prets.push_back({rs.Fields(0).toInt(), rs.Fields(1).toString().trimmed(),
            Texte::NomPrenom(rs.Fields(3).toString().trimmed(), rs.Fields(4).toString().trimmed()),
            joursDepuis(rs.Fields(2).toString())});
    return prets;
}
