#include "acts/Ecrire.h"

#include "acts/Acte.h"
#include "acts/EcrireFiche.h"
#include "acts/EcrireGrilles.h"
#include "core/Texte.h"
#include "core/Traduction.h"

#include <QCoreApplication>

using Champs::Champ;
using Champs::Regle;
using Champs::Vue;
using Ecrire::Resultat;

namespace {

constexpr qsizetype LongueurMontree = 40;

QString libelle(const Champ *champ)
{
    return champ ? texte(champ->libelle) : QString();
}

QString libelle(const CelluleIntervenant &cellule)
{
    return texte(cellule.activite ? Txt::Activite : Txt::Intervenants);
}

QString libelle(const CelluleCote &cellule)
{
    return texte(cellule.mois ? Txt::Mois : Txt::Cote);
}

QString libelle(const Metiers &)
{
    return texte(Txt::Activites);
}

/// How a step that gives something a value is called: "Scénariste: Caumery".
QString titre(const Edition &edition, const QString &valeur)
{
    const QString quoi = Ecrire::LibelleDe(edition);
    const QString ligne = valeur.simplified();
    if (ligne.isEmpty())
        return quoi;
    const bool longue = ligne.size() > LongueurMontree;
    return quoi + QStringLiteral(": ")
        + (longue ? Texte::Couper(ligne, LongueurMontree) + QChar(0x2026) : ligne);
}

/// Writes a cell of the grid of quotes, which is the line with this cell replaced.
void ecrireCote(int album, const CelluleCote &cellule, const QString &saisie)
{
    ChargerAlbums::Cote cote = cellule.ligne;
    (cellule.mois ? cote.mois : cote.cote) = saisie;
    ChargerAlbums::EcrireCote(album, cellule.ligne, cote);
}

/// Why the text is refused; empty when it is written. A contributor's cell is chosen, never typed.
QString ecrire(const Edition &edition, const QString &saisie)
{
    Q_ASSERT(!std::holds_alternative<CelluleIntervenant>(edition.quoi));
    const int id = edition.entree.id;
    const Champ *champ = Ecrire::ChampDe(edition);
    if (const auto *cote = std::get_if<CelluleCote>(&edition.quoi))
        ecrireCote(id, *cote, saisie);
    else if (std::holds_alternative<Metiers>(edition.quoi))
        EcrireFiche::PoserMetiers(id, saisie);
    else if (!EcrireFiche::PoserSaisie(*champ, id, saisie))
        return Fiche::RaisonDuRefus(*champ, saisie);
    return {};
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
    const QString voulue = Texte::UneLigne(saisie);
    if (champ.regle == Regle::Titre && ecrite != voulue)
        return QCoreApplication::translate("Edition", "Le titre a été coupé à 50 caractères.");
    if (champ.regle == Regle::Tome && voulue.size() > Fiche::LongueurTome)
        return QCoreApplication::translate("Edition", "Le numéro a été coupé à 3 caractères : %1")
            .arg(ecrite);
    return {};
}

}

Edition Ecrire::EditionDe(General::Entree entree, const Champ &champ)
{
    Edition edition{entree, &champ};
    if (const auto valeurs = Fiche::Lire(champ.feuille, entree.id)) {
        const ValeurDeChamp &valeur = valeurs->at(QLatin1String(champ.nom));
        edition.affichee = valeur.affichee;
        edition.stockee = valeur.stockee;
    }
    return edition;
}

const Champ *Ecrire::ChampDe(const Edition &edition)
{
    const auto *champ = std::get_if<const Champ *>(&edition.quoi);
    return champ ? *champ : nullptr;
}

const Sources::Source *Ecrire::SourceDe(const Edition &edition)
{
    if (const auto *cellule = std::get_if<CelluleIntervenant>(&edition.quoi))
        return cellule->activite ? &Sources::Activite : &Sources::Intervenant;
    const Champ *champ = ChampDe(edition);
    return champ ? champ->source : nullptr;
}

QString Ecrire::LibelleDe(const Edition &edition)
{
    return std::visit([](const auto &quoi) { return libelle(quoi); }, edition.quoi);
}

QString Ecrire::RaisonSiAbsente(const Edition &edition)
{
    const Champ *champ = ChampDe(edition);
    const Champs::Feuille feuille = General::ListeDe(edition.entree.tri).feuille;
    const int id = edition.entree.id;
    return Fiche::Existe(feuille, id) && (!champ || Fiche::Existe(feuille, id, champ->table))
        ? QString()
        : QCoreApplication::translate("Edition", "Cette fiche n'existe plus.");
}

QString Ecrire::EnUnActe(
    const Edition &edition, const QString &montree, const std::function<QString(Base &)> &ecrire, int visite)
{
    Acte acte(titre(edition, montree), edition.entree, visite);
    QString refus = RaisonSiAbsente(edition);
    if (refus.isEmpty())
        refus = ecrire(acte.base());
    if (refus.isEmpty())
        acte.valider();
    return refus;
}

Resultat Ecrire::EcrireSaisie(const Edition &edition, const QString &saisie, int visite)
{
    const Champ *champ = ChampDe(edition);
    const QString refus = EnUnActe(
        edition, valeurMontree(champ, saisie), [&](Base &) { return ecrire(edition, saisie); }, visite);
    return {refus, champ && refus.isEmpty() ? avisDe(*champ, saisie) : QString()};
}
