#include "acts/EcrireFiche.h"

#include "db/Base.h"
#include "db/Transaction.h"
#include "model/ChargerAuteurs.h"
#include "model/Fiche.h"

#include <cstring>

using namespace Champs;

namespace {

void ecrireMetiers(int nAuteur, const QString &metiers)
{
    Base base;
    auto rs = base.edit(QStringLiteral("Auteurs"), QStringLiteral("NAuteur = ?"), {nAuteur});
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    for (const ChargerAuteurs::Metier &metier : ChargerAuteurs::TousLesMetiers())
        rs.SetField(QLatin1String(metier.drapeau), metiers.contains(QString::fromUtf8(metier.mot)));
    rs.Update();
}

/// "first name, name", as the sheet's two name fields take it.
void ecrireDeuxNoms(int nAuteur, const QString &texte)
{
    Base base;
    Transaction transaction(base);
    const qsizetype coupe = texte.indexOf(QLatin1String(", "));
    EcrireFiche::Poser(Feuille::Auteur, nAuteur, "Prenom", texte.left(coupe).trimmed());
    const QString nom = texte.mid(coupe + 2).trimmed();
    if (!nom.isEmpty())
        EcrireFiche::Poser(Feuille::Auteur, nAuteur, "Nom", nom);
    transaction.Commit();
}

/// True when the text was one that only the author's sheet knows, and is written.
bool ecrireAuteur(int nAuteur, const QString &nom, const QString &saisie)
{
    const bool sonNom = nom == QLatin1String("Nom") || nom == QLatin1String("Prenom");
    if (nom == QStringLiteral("Métiers"))
        ecrireMetiers(nAuteur, saisie);
    else if (sonNom && saisie.contains(QLatin1String(", ")))
        ecrireDeuxNoms(nAuteur, saisie);
    else
        return false;
    return true;
}

}

void EcrireFiche::Poser(Feuille feuille, int id, const char *nom, const QVariant &valeur)
{
    const Champ *champ = Chercher(feuille, nom);
    Q_ASSERT(champ && champ->colonne);
    Base base;
    for (const Ligne &ligne : Lignes()) {
        if (ligne.feuille != feuille || std::strcmp(ligne.table, champ->table) != 0)
            continue;
        auto rs
            = base.edit(QLatin1String(ligne.table), QLatin1String(ligne.cle) + QStringLiteral(" = ?"), {id});
        if (rs.RecordCount() == 0)
            return;
        rs.Edit();
        rs.SetField(QLatin1String(champ->colonne), valeur);
        rs.Update();
    }
}

bool EcrireFiche::PoserSaisie(Feuille feuille, int id, const QString &nom, const QString &saisie)
{
    if (feuille == Feuille::Auteur && ecrireAuteur(id, nom, saisie))
        return true;
    const QByteArray cle = nom.toUtf8();
    const Champ *champ = Chercher(feuille, cle.constData());
    Q_ASSERT_X(champ, "EcrireFiche", cle.constData());
    const auto valeur = Fiche::Verifier(*champ, saisie);
    if (!valeur)
        return false;
    Base base;
    Transaction transaction(base);
    Poser(feuille, id, champ->nom, *valeur);
    if (feuille == Feuille::Album && nom == QLatin1String("Hist"))
        base.Execute(QStringLiteral("UPDATE LAlbums SET Histoire = ? where NAlbum = ? and Histoire IS NOT ?"),
            {saisie, id, saisie});
    transaction.Commit();
    return true;
}

bool ChargerAlbums::EcrireAlbum(int num, const QString &champ, const QString &valeur)
{
    const QString nom = champ == QLatin1String("DateD") ? QStringLiteral("DateParu") : champ;
    return EcrireFiche::PoserSaisie(Feuille::Album, num, nom, valeur);
}
