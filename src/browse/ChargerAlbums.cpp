#include "browse/ChargerAlbums.h"

#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "db/Transaction.h"

namespace {

QString lireIntervenant(const Base &base, int numero)
{
    const auto rs = base.OpenRecordset(
        QStringLiteral("SELECT * From Inter where NInter= ? order by Nom asc"), {numero});
    if (rs.AtEnd())
        return {};
    const QString prenom = rs.Fields(2).toString().trimmed();
    const QString nom = rs.Fields(1).toString().trimmed();
    return prenom.isEmpty() ? nom : prenom + QStringLiteral(" , ") + nom;
}

QString lireMetier(const Base &base, int numero)
{
    const auto rs = base.OpenRecordset(
        QStringLiteral("SELECT * From Metier where NMetier = ? order by Nom asc"), {numero});
    return rs.AtEnd() ? QString() : rs.Fields(1).toString().trimmed();
}

/// What a cell of a grid says; the dots say nothing.
QString nu(const QString &texte)
{
    return Texte::EstVide(texte) ? QString() : texte.trimmed();
}

/// The row of a named entry that a query finds, or a new one with these names; 0 for a blank name.
int trouverOuFaire(const Base &base, const QString &table, const QString &cle, const QString &recherche,
    const QStringList &noms)
{
    if (noms.first().isEmpty())
        return 0;
    QVariantList valeurs;
    for (const QString &nom : noms)
        valeurs << nom;
    const auto trouve = base.OpenRecordset(recherche, valeurs);
    if (!trouve.AtEnd())
        return trouve.Fields(cle).toInt();
    const int numero = AccesBase::NouvelIdentifiant(table, cle);
    auto rs = base.OpenRecordset(QStringLiteral("SELECT * From ") + table);
    rs.AddNew();
    rs.SetField(cle, numero);
    rs.SetField(QStringLiteral("Nom"), noms.first());
    if (noms.size() > 1)
        rs.SetField(QStringLiteral("Prenom"), noms.at(1));
    rs.Update();
    return numero;
}

/// A surname alone is looked up alone; with a first name before the comma both must agree.
int trouverIntervenant(const Base &base, const QString &texte)
{
    const QString table = QStringLiteral("Inter");
    const QString cle = QStringLiteral("NInter");
    const qsizetype virgule = texte.indexOf(u',');
    if (virgule < 0 || texte.mid(virgule + 1).trimmed().isEmpty())
        return trouverOuFaire(base, table, cle, QStringLiteral("SELECT * From Inter where Nom = ?"), {texte});
    return trouverOuFaire(base, table, cle,
        QStringLiteral(
            "SELECT * From Inter where Nom = ? and trim(coalesce(Prenom, '')) = ? collate FRANCAIS"),
        {texte.mid(virgule + 1).trimmed(), texte.left(virgule).trimmed()});
}

/// Takes away the first of the rows that a query finds.
void oterUne(const Base &base, const QString &sql, const QVariantList &valeurs)
{
    auto rs = base.OpenRecordset(sql, valeurs);
    if (!rs.AtEnd())
        rs.Delete();
}

/// An album without a summary of its own shows the copy that its list row keeps.
void completerResume(const Base &base, int num, ValeurDeChamp &resume)
{
    if (!Texte::EstVide(resume.stockee.toString()))
        return;
    const auto rs
        = base.OpenRecordset(QStringLiteral("SELECT Histoire From LAlbums where NAlbum = ?"), {num});
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
    for (auto rs = base.OpenRecordset(
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
    for (auto rs = base.OpenRecordset(
             QStringLiteral("SELECT * From InterMetier where NAlbum = ? order by NAlbum asc"), {num});
         !rs.AtEnd(); rs.MoveNext()) {
        const int intervenant = rs.Fields(QStringLiteral("NInter")).toInt();
        const int metier = rs.Fields(QStringLiteral("NMetier")).toInt();
        lignes.push_back({intervenant, metier, lireIntervenant(base, intervenant), lireMetier(base, metier)});
    }
    return lignes;
}

bool ChargerAlbums::EcrireAlbum(int num, const QString &champ, const QString &valeur)
{
    const Base base;
    Transaction transaction(base);
    const QString cle = champ == QLatin1String("DateD") ? QStringLiteral("DateParu") : champ;
    if (!Fiche::EcrireSaisie(Champs::Feuille::Album, num, cle, valeur))
        return false;
    if (cle == QLatin1String("Hist"))
        base.Execute(QStringLiteral("UPDATE LAlbums SET Histoire = ? where NAlbum = ? and Histoire IS NOT ?"),
            {valeur, num, valeur});
    transaction.Commit();
    return true;
}

bool ChargerAlbums::EcrireListe(int num, const QString &champ, const QString &valeur)
{
    return Fiche::EcrireSaisie(Champs::Feuille::Album, num, champ, valeur);
}

ChargerAlbums::Intervenant ChargerAlbums::EcrireIntervenant(
    int num, const Intervenant &ancien, const Intervenant &nouveau)
{
    const QString ligne
        = QStringLiteral("SELECT * From InterMetier where NAlbum = ? and NInter = ? and NMetier = ?");
    const Base base;
    Transaction transaction(base);
    Intervenant neuf = nouveau;
    if (neuf.intervenant == 0)
        neuf.intervenant = trouverIntervenant(base, nu(neuf.nom));
    const bool perdu = ancien.intervenant > 0 && neuf.intervenant == 0;
    if (perdu)
        neuf.metier = 0;
    else if (neuf.metier == 0)
        neuf.metier = trouverOuFaire(base, QStringLiteral("Metier"), QStringLiteral("NMetier"),
            QStringLiteral("SELECT * From Metier where Nom = ?"), {nu(neuf.activite)});
    const bool change = neuf.intervenant != ancien.intervenant || neuf.metier != ancien.metier;
    if (change)
        oterUne(base, ligne, {num, ancien.intervenant, ancien.metier});
    if (change && (neuf.intervenant > 0 || neuf.metier > 0)) {
        auto rs = base.OpenRecordset(ligne, {num, neuf.intervenant, neuf.metier});
        if (rs.AtEnd()) {
            rs.AddNew();
            rs.SetField(QStringLiteral("NMetier"), neuf.metier);
            rs.SetField(QStringLiteral("NInter"), neuf.intervenant);
            rs.SetField(QStringLiteral("NAlbum"), num);
            rs.Update();
        }
    }
    transaction.Commit();
    return neuf;
}

void ChargerAlbums::EcrireCote(int num, const Cote &ancienne, const Cote &nouvelle)
{
    const QString ligne
        = QStringLiteral("SELECT * From CotesAlbum where NAlbum = ? and coalesce(Mois, '') = ?"
                         " and coalesce(Cotes, '') = ?");
    const QString mois = nu(nouvelle.mois);
    const QString cote = nu(nouvelle.cote);
    if (ancienne.mois == mois && ancienne.cote == cote)
        return;
    const Base base;
    Transaction transaction(base);
    oterUne(base, ligne, {num, ancienne.mois, ancienne.cote});
    auto rs = base.OpenRecordset(ligne, {num, mois, cote});
    if (rs.AtEnd() && !(mois.isEmpty() && cote.isEmpty())) {
        rs.AddNew();
        rs.SetField(QStringLiteral("NAlbum"), num);
        rs.SetField(QStringLiteral("Mois"), mois);
        rs.SetField(QStringLiteral("Cotes"), cote);
        rs.Update();
    }
    transaction.Commit();
}
