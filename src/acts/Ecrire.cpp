#include "acts/Ecrire.h"

#include "acts/Acte.h"
#include "acts/EcrireFiche.h"
#include "acts/EcrireGrilles.h"
#include "core/Traduction.h"

#include <QCoreApplication>

using Champs::Champ;
using Champs::Feuille;
using Champs::Regle;
using Champs::Vue;
using Ecrire::Resultat;

namespace {

constexpr qsizetype LongueurMontree = 40;

Feuille feuilleDe(const Edition &edition)
{
    return General::GenreDe(edition.entree.tri).feuille;
}

/// The fields that no row of the table describes: the grids' columns, and an author's trades.
struct HorsTable
{
    const char *nom;
    Txt libelle;
};
constexpr HorsTable HorsTables[] = {
    {"NomI", Txt::Intervenants},
    {"ActI", Txt::Activite},
    {"Mois", Txt::Mois},
    {"Cotes", Txt::Cote},
    {"Métiers", Txt::Activites},
};

/// Writes a cell of the grid of quotes, which is the line with this cell replaced.
void ecrireCote(const Edition &edition, const QString &saisie)
{
    ChargerAlbums::Cote cote = edition.cote;
    (Ecrire::NomDe(edition) == QLatin1String("Mois") ? cote.mois : cote.cote) = saisie;
    ChargerAlbums::EcrireCote(edition.entree.id, edition.cote, cote);
}

/// What the field will show; a memo's title says only that it was edited, so that a visit is one step.
QString valeurMontree(const Champ *champ, const QString &saisie)
{
    if (!champ || champ->vue == Vue::Memo)
        return champ ? QString() : saisie;
    const auto valeur = Fiche::Verifier(*champ, saisie);
    return valeur ? Fiche::Afficher(*champ, *valeur) : QString();
}

QString avisDe(const Champ &champ, const QString &saisie)
{
    const QString ecrite = Fiche::Verifier(champ, saisie)->toString();
    const QString voulue = saisie.trimmed();
    if (champ.regle == Regle::Titre && ecrite != voulue)
        return QCoreApplication::translate("Edition", "Le titre a été coupé à 50 caractères.");
    if (champ.regle == Regle::Tome && voulue.size() > 3)
        return QCoreApplication::translate("Edition", "Le numéro a été coupé à 3 caractères : %1")
            .arg(ecrite);
    return {};
}

}

const Champ *Ecrire::ChampDe(const Edition &edition)
{
    return Champs::Chercher(feuilleDe(edition), edition.champ.toUtf8().constData());
}

QString Ecrire::NomDe(const Edition &edition)
{
    return edition.champ.section(u'(', 0, 0);
}

QString Ecrire::LibelleDe(const Edition &edition)
{
    if (const Champ *champ = ChampDe(edition))
        return texte(champ->libelle);
    for (const HorsTable &hors : HorsTables) {
        if (NomDe(edition) == QString::fromUtf8(hors.nom))
            return texte(hors.libelle);
    }
    return {};
}

QString Ecrire::Titre(const QString &quoi, const QString &valeur)
{
    const QString ligne = valeur.simplified();
    if (ligne.isEmpty())
        return quoi;
    const bool longue = ligne.size() > LongueurMontree;
    return quoi + QStringLiteral(": ") + (longue ? ligne.left(LongueurMontree) + QChar(0x2026) : ligne);
}

QString Ecrire::TitreDe(const Edition &edition, const QString &valeur)
{
    return Titre(LibelleDe(edition), valeur);
}

QString Ecrire::RaisonSiAbsente(const Edition &edition)
{
    const Champ *champ = ChampDe(edition);
    const Feuille feuille = feuilleDe(edition);
    const int id = edition.entree.id;
    return Fiche::Existe(feuille, id) && (!champ || Fiche::Existe(feuille, id, champ->table))
        ? QString()
        : QCoreApplication::translate("Edition", "Cette fiche n'existe plus.");
}

Resultat Ecrire::EcrireSaisie(const Edition &edition, const QString &saisie, int visite)
{
    const Champ *champ = ChampDe(edition);
    Acte acte(TitreDe(edition, valeurMontree(champ, saisie)), edition.entree, visite);
    if (const QString absente = RaisonSiAbsente(edition); !absente.isEmpty())
        return {absente, {}};
    const bool grille = !champ && NomDe(edition) != QStringLiteral("Métiers");
    if (grille)
        ecrireCote(edition, saisie);
    else if (!EcrireFiche::PoserSaisie(feuilleDe(edition), edition.entree.id, edition.champ, saisie))
        return {Fiche::RaisonDuRefus(*champ), {}};
    acte.valider();
    return {{}, champ ? avisDe(*champ, saisie) : QString()};
}
