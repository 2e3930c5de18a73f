#include "acts/EcrireGrilles.h"

#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "db/Transaction.h"

namespace {

/// What a cell of a grid says; the dots say nothing.
QString nu(const QString &texte)
{
    return Texte::EstVide(texte) ? QString() : texte.trimmed();
}

/// The row of a named entry that a query finds, or a new one with these names; 0 for a blank name.
int trouverOuFaire(
    Base &base, const QString &table, const QString &cle, const QString &recherche, const QStringList &noms)
{
    if (noms.first().isEmpty())
        return 0;
    QVariantList valeurs;
    for (const QString &nom : noms)
        valeurs << nom;
    const auto trouve = base.read(recherche, valeurs);
    if (!trouve.AtEnd())
        return trouve.Fields(cle).toInt();
    const int numero = AccesBase::NouvelIdentifiant(table, cle);
    auto rs = base.edit(table);
    rs.AddNew();
    rs.SetField(cle, numero);
    rs.SetField(QStringLiteral("Nom"), noms.first());
    if (noms.size() > 1)
        rs.SetField(QStringLiteral("Prenom"), noms.at(1));
    rs.Update();
    return numero;
}

/// A surname alone is looked up alone; with a first name before the comma both must agree.
int trouverIntervenant(Base &base, const QString &texte)
{
    const QString table = QStringLiteral("Inter");
    const QString cle = QStringLiteral("NInter");
    const qsizetype virgule = texte.indexOf(u',');
    if (virgule < 0 || texte.mid(virgule + 1).trimmed().isEmpty())
        return trouverOuFaire(base, table, cle,
            QStringLiteral("SELECT * From Inter where Nom = ? order by NInter asc"), {texte});
    return trouverOuFaire(base, table, cle,
        QStringLiteral("SELECT * From Inter where Nom = ? and trim(coalesce(Prenom, '')) = ? collate FRANCAIS"
                       " order by NInter asc"),
        {texte.mid(virgule + 1).trimmed(), texte.left(virgule).trimmed()});
}

/// Takes away the first of the rows of a table that are such.
void oterUne(Base &base, const char *table, const QString &telles, const QVariantList &valeurs)
{
    auto rs = base.edit(QLatin1String(table), telles, valeurs);
    if (!rs.AtEnd())
        rs.Delete();
}

}

ChargerAlbums::Intervenant ChargerAlbums::EcrireIntervenant(
    int num, const Intervenant &ancien, const Intervenant &nouveau)
{
    const QString telle = QStringLiteral("NAlbum = ? and NInter = ? and NMetier = ?");
    Base base;
    Transaction transaction(base);
    Intervenant neuf = nouveau;
    if (neuf.intervenant == 0)
        neuf.intervenant = trouverIntervenant(base, nu(neuf.nom));
    const bool perdu = ancien.intervenant > 0 && neuf.intervenant == 0;
    if (perdu)
        neuf.metier = 0;
    else if (neuf.metier == 0)
        neuf.metier = trouverOuFaire(base, QStringLiteral("Metier"), QStringLiteral("NMetier"),
            QStringLiteral("SELECT * From Metier where Nom = ? order by NMetier asc"), {nu(neuf.activite)});
    const bool change = neuf.intervenant != ancien.intervenant || neuf.metier != ancien.metier;
    if (change)
        oterUne(base, "InterMetier", telle, {num, ancien.intervenant, ancien.metier});
    if (change && (neuf.intervenant > 0 || neuf.metier > 0)) {
        auto rs = base.edit(QStringLiteral("InterMetier"), telle, {num, neuf.intervenant, neuf.metier});
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
    const QString telle = QStringLiteral("NAlbum = ? and coalesce(Mois, '') = ? and coalesce(Cotes, '') = ?");
    const QString mois = nu(nouvelle.mois);
    const QString cote = nu(nouvelle.cote);
    if (ancienne.mois == mois && ancienne.cote == cote)
        return;
    Base base;
    Transaction transaction(base);
    oterUne(base, "CotesAlbum", telle, {num, ancienne.mois, ancienne.cote});
    auto rs = base.edit(QStringLiteral("CotesAlbum"), telle, {num, mois, cote});
    if (rs.AtEnd() && !(mois.isEmpty() && cote.isEmpty())) {
        rs.AddNew();
        rs.SetField(QStringLiteral("NAlbum"), num);
        rs.SetField(QStringLiteral("Mois"), mois);
        rs.SetField(QStringLiteral("Cotes"), cote);
        rs.Update();
    }
    transaction.Commit();
}
