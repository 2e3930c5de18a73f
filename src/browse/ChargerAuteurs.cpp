#include "browse/ChargerAuteurs.h"

#include "db/Base.h"
#include "db/Transaction.h"

using Champs::Feuille;
using General::Tri;

namespace {

struct Metier
{
    Tri liste;
    Txt libelle;
    const char *drapeau;
    const char *mot; ///< in the text of trades
};
constexpr Metier Tous[] = {
    {Tri::Dessinateurs, Txt::Dessinateur, "Dessin", "Dessinateur"},
    {Tri::Scenaristes, Txt::Scenariste, "Scena", "Scénariste"},
    {Tri::Coloristes, Txt::Coloriste, "Color", "Coloriste"},
};

Recordset ouvrir(const Base &base, int nAuteur)
{
    return base.OpenRecordset(QStringLiteral("SELECT * From Auteurs where NAuteur = ?"), {nAuteur});
}

void ecrireMetiers(int nAuteur, const QString &metiers)
{
    const Base base;
    auto rs = ouvrir(base, nAuteur);
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    for (const Metier &metier : Tous)
        rs.SetField(QLatin1String(metier.drapeau), metiers.contains(QString::fromUtf8(metier.mot)));
    rs.Update();
}

/// "first name, name", as the sheet's two name fields take it.
void ecrireDeuxNoms(int nAuteur, const QString &texte)
{
    const Base base;
    Transaction transaction(base);
    const qsizetype coupe = texte.indexOf(QLatin1String(", "));
    Fiche::Ecrire(Feuille::Auteur, nAuteur, "Prenom", texte.left(coupe).trimmed());
    const QString nom = texte.mid(coupe + 2).trimmed();
    if (!nom.isEmpty())
        Fiche::Ecrire(Feuille::Auteur, nAuteur, "Nom", nom);
    transaction.Commit();
}

}

std::optional<Valeurs> ChargerAuteurs::AfficherAuteur(int nAuteur)
{
    return Fiche::Lire(Feuille::Auteur, nAuteur);
}

ChargerAuteurs::Metiers ChargerAuteurs::LireMetiers(int nAuteur, Tri liste)
{
    const Base base;
    const auto rs = ouvrir(base, nAuteur);
    Metiers metiers{Tous[0].libelle, {}};
    int rang = 0;
    for (const Metier &metier : Tous) {
        if (metier.liste == liste)
            metiers.titre = metier.libelle;
        else if (rang < 2)
            metiers.autres[rang++]
                = {metier.libelle, !rs.AtEnd() && rs.Fields(QLatin1String(metier.drapeau)).toBool()};
    }
    return metiers;
}

QString ChargerAuteurs::TexteDesMetiers(Tri liste, bool premier, bool second)
{
    QStringList mots;
    int rang = 0;
    for (const Metier &metier : Tous) {
        if (metier.liste == liste || (rang++ == 0 ? premier : second))
            mots << QString::fromUtf8(metier.mot);
    }
    return mots.join(u'|');
}

bool ChargerAuteurs::EcrireAuteur(int nAuteur, const QString &champ, const QString &valeur)
{
    const bool nom = champ == QLatin1String("Nom") || champ == QLatin1String("Prenom");
    if (champ == QStringLiteral("Métiers"))
        ecrireMetiers(nAuteur, valeur);
    else if (nom && valeur.contains(QLatin1String(", ")))
        ecrireDeuxNoms(nAuteur, valeur);
    else
        return Fiche::EcrireSaisie(Feuille::Auteur, nAuteur, champ, valeur);
    return true;
}
