#include "acts/EcrireFiche.h"

#include "core/Texte.h"
#include "db/Base.h"
#include "db/Transaction.h"
#include "model/Fiche.h"

using namespace Champs;

namespace {

constexpr const Champ &NomDAuteur = De(Feuille::Auteur, "Nom");
constexpr const Champ &PrenomDAuteur = De(Feuille::Auteur, "Prenom");
const QString Separateur = QStringLiteral(", ");

/// The sheet's two name fields take "first name, name", with something on both sides.
bool aDeuxNoms(const Champ &champ, const QString &texte)
{
    return (&champ == &NomDAuteur || &champ == &PrenomDAuteur) && texte.contains(Separateur)
        && Texte::EstUnNom(texte.section(Separateur, 0, 0)) && Texte::EstUnNom(texte.section(Separateur, 1));
}

void ecrireDeuxNoms(int auteur, const QString &texte)
{
    Base base;
    Transaction transaction(base);
    EcrireFiche::Poser(PrenomDAuteur, auteur, texte.section(Separateur, 0, 0).trimmed());
    EcrireFiche::Poser(NomDAuteur, auteur, texte.section(Separateur, 1).trimmed());
    transaction.Commit();
}

/// A name without a comma that was left behind it.
QString sansVirgule(QString nom)
{
    while (nom.endsWith(u','))
        nom = nom.chopped(1).trimmed();
    return nom;
}

}

void EcrireFiche::Poser(const Champ &champ, int id, const QVariant &valeur)
{
    Q_ASSERT(champ.colonne);
    Base base;
    for (const Especes::Rangs &rangs : Especes::De(champ.feuille).fiche) {
        if (qstrcmp(rangs.table, champ.table) != 0)
            continue;
        auto rs
            = base.edit(QLatin1String(rangs.table), QLatin1String(rangs.cle) + QStringLiteral(" = ?"), {id});
        if (rs.RecordCount() == 0)
            return;
        rs.Edit();
        rs.SetField(QLatin1String(champ.colonne), valeur);
        rs.Update();
    }
}

bool EcrireFiche::PoserSaisie(const Champ &champ, int id, const QString &saisie)
{
    if (aDeuxNoms(champ, saisie)) {
        ecrireDeuxNoms(id, Texte::UneLigne(saisie));
        return true;
    }
    auto valeur = Fiche::Verifier(champ, saisie);
    if (!valeur)
        return false;
    if (&champ == &NomDAuteur)
        valeur = sansVirgule(valeur->toString());
    Base base;
    Transaction transaction(base);
    Poser(champ, id, *valeur);
    if (&champ == &De(Feuille::Album, "Hist"))
        base.Execute(QStringLiteral("UPDATE LAlbums SET Histoire = ? where NAlbum = ? and Histoire IS NOT ?"),
            {saisie, id, saisie});
    transaction.Commit();
    return true;
}

void EcrireFiche::PoserMetiers(int auteur, const QString &metiers)
{
    Base base;
    auto rs = base.edit(QStringLiteral("Auteurs"), QStringLiteral("NAuteur = ?"), {auteur});
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    for (const Especes::Metier &metier : Especes::TousLesMetiers)
        rs.SetField(AccesBase::NomDuRole(metier.role), metiers.contains(QString::fromUtf8(metier.mot)));
    rs.Update();
}

bool EcrireFiche::PoserParNom(Feuille feuille, int id, const QString &nom, const QString &saisie)
{
    if (feuille == Feuille::Auteur && nom == QStringLiteral("Métiers")) {
        PoserMetiers(id, saisie);
        return true;
    }
    const QByteArray cle = nom.toUtf8();
    const Champ *champ = Chercher(feuille, cle.constData());
    Q_ASSERT_X(champ, "EcrireFiche", cle.constData());
    return PoserSaisie(*champ, id, saisie);
}

bool ChargerAlbums::EcrireAlbum(int num, const QString &champ, const QString &valeur)
{
    const QString nom = champ == QLatin1String("DateD") ? QStringLiteral("DateParu") : champ;
    return EcrireFiche::PoserParNom(Feuille::Album, num, nom, valeur);
}
