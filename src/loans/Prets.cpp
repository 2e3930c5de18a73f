#include "loans/Prets.h"

#include "core/Annonces.h"
#include "core/Dates.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "model/General.h"

#include <QCoreApplication>

namespace {

std::optional<int> joursDepuis(const QString &date)
{
    const auto lue = Dates::Lire(date);
    if (!lue || lue->jour == 0)
        return std::nullopt;
    const qint64 jours = QDate(lue->annee, lue->mois, lue->jour).daysTo(QDate::currentDate());
    return jours >= 0 ? std::optional(static_cast<int>(jours)) : std::nullopt;
}

QString nomDe(int emprunteur)
{
    const Base base;
    const auto rs = base.OpenRecordset(QStringLiteral("SELECT Nom From Pret where NPret = ?"), {emprunteur});
    return rs.AtEnd() ? QString() : rs.Fields(0).toString().trimmed();
}

}

Entrees Prets::LireEmprunteurs()
{
    const Base base;
    Entrees emprunteurs;
    for (auto rs = base.OpenRecordset(QStringLiteral("SELECT * From pret order by nom ;")); !rs.AtEnd();
         rs.MoveNext())
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
        ? base.OpenRecordset(colonnes + QStringLiteral("where a.NPret = ? order by a.NAlbum ;"), {emprunteur})
        : base.OpenRecordset(colonnes + QStringLiteral("where a.NPret > 0 order by l.TAlbum"));
    std::vector<Pret> prets;
    for (; !rs.AtEnd(); rs.MoveNext())
        prets.push_back({rs.Fields(0).toInt(), rs.Fields(1).toString().trimmed(),
            rs.Fields(3).toString().trimmed(), joursDepuis(rs.Fields(2).toString())});
    return prets;
}

void Prets::Rendre(int album)
{
    const General::Entree entree{General::Tri::Albums, album};
    const Annonces::Intitule intitule(QCoreApplication::translate("Prets", "Retour") + QStringLiteral(": ")
            + General::LireTexte(entree.tri, album),
        QVariant::fromValue(entree));
    const Base base;
    auto rs = base.OpenRecordset(
        QStringLiteral("SELECT * From Album where Num = ? order by NAlbum asc; "), {album});
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    rs.SetField(QStringLiteral("DPret"), QString());
    rs.SetField(QStringLiteral("NPret"), 0);
    rs.Update();
}

void Prets::SupprimerEmprunteur(int emprunteur)
{
    const Annonces::Intitule intitule(texte(Txt::Supprimer) + QStringLiteral(": ") + nomDe(emprunteur));
    AccesBase::SupprimerLignes(QStringLiteral("Pret"), QStringLiteral("NPret"), emprunteur);
}
