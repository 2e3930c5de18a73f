#include "acts/EcrireGrilles.h"

#include "acts/Creer.h"
#include "core/Texte.h"
#include "db/Base.h"
#include "db/Transaction.h"
#include "model/Trouver.h"

namespace {

/// What a cell of a grid says; the dots say nothing.
QString nu(const QString &texte)
{
    return Texte::EstVide(texte) ? QString() : texte.trimmed();
}

/// The contributor or trade of a cell's text, made when there is none; 0 for a blank one. A surname alone is looked
/// up alone; with a first name before the comma both must agree.
int trouverOuFaire(Base &base, const Especes::Espece &espece, const QString &texte)
{
    if (!Texte::EstUnNom(texte))
        return 0;
    const int connu = Trouver::ParTexte(base, espece, texte);
    return connu > 0 ? connu : Creer::CreerEntree(espece, texte);
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
        neuf.intervenant = trouverOuFaire(base, Especes::Intervenant, nu(neuf.nom));
    const bool perdu = ancien.intervenant > 0 && neuf.intervenant == 0;
    if (perdu)
        neuf.metier = 0;
    else if (neuf.metier == 0)
        neuf.metier = trouverOuFaire(base, Especes::Activite, nu(neuf.activite));
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
