#include "model/ChargerAlbums.h"

#include "core/Texte.h"
#include "db/Base.h"

namespace {

/// "first name , name", as the grid shows a contributor.
QString lireIntervenant(const Base &base, int numero)
{
    const auto rs = base.read(QStringLiteral("SELECT Nom, Prenom From Inter where NInter = ?"), {numero});
    if (rs.AtEnd())
        return {};
    const QString prenom = rs.Fields(1).toString().trimmed();
    const QString nom = rs.Fields(0).toString().trimmed();
    return prenom.isEmpty() ? nom : prenom + QStringLiteral(" , ") + nom;
}

/// An album without a summary of its own shows the copy that its list row keeps.
void completerResume(const Base &base, int num, ValeurDeChamp &resume)
{
    if (!Texte::EstVide(resume.stockee.toString()))
        return;
    const auto rs = base.read(QStringLiteral("SELECT Histoire From LAlbums where NAlbum = ?"), {num});
    if (!rs.AtEnd() && !Texte::EstVide(rs.Fields(0).toString()))
        resume.affichee = rs.Fields(0).toString();
}

}

std::optional<ChargerAlbums::FicheAlbum> ChargerAlbums::AfficherAlbum(int num)
{
    const Base base;
    auto valeurs = Fiche::Lire(Champs::Feuille::Album, num);
    if (!valeurs)
        return std::nullopt;
    FicheAlbum fiche;
    fiche.num = num;
    fiche.valeurs = std::move(*valeurs);
    completerResume(base, num, fiche.valeurs[QStringLiteral("Hist")]);
    fiche.cotes = AfficherCotes(num);
    fiche.intervenants = AfficherIntervenants(num);
    fiche.infos = PreparerInfosAlbum::Preparer(num, fiche.valeurs[QStringLiteral("Serie")].stockee.toInt());
    return fiche;
}

std::vector<ChargerAlbums::Cote> ChargerAlbums::AfficherCotes(int num)
{
    const Base base;
    std::vector<Cote> cotes;
    for (auto rs = base.read(
             QStringLiteral("SELECT * From CotesAlbum where NAlbum = ? order by Mois asc, Cotes desc"),
             {num});
         !rs.AtEnd(); rs.MoveNext())
        cotes.push_back({rs.Fields(1).toString(), rs.Fields(2).toString()});
    return cotes;
}

std::vector<ChargerAlbums::Intervenant> ChargerAlbums::AfficherIntervenants(int num)
{
    const Base base;
    std::vector<Intervenant> lignes;
    for (auto rs
         = base.read(QStringLiteral("SELECT * From InterMetier where NAlbum = ? order by NAlbum asc"), {num});
         !rs.AtEnd(); rs.MoveNext()) {
        const int intervenant = rs.Fields(QStringLiteral("NInter")).toInt();
        const int metier = rs.Fields(QStringLiteral("NMetier")).toInt();
        lignes.push_back({intervenant, metier, lireIntervenant(base, intervenant),
            Sources::LireNom(Sources::Activite, metier)});
    }
    return lignes;
}
