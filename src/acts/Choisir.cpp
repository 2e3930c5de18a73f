#include "acts/Choisir.h"

#include "acts/Creer.h"
#include "acts/EcrireFiche.h"
#include "acts/EcrireGrilles.h"
#include "core/Dates.h"
#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "model/Trouver.h"

#include <QCoreApplication>

using Champs::Champ;
using Choisir::Choisie;
using Sources::Source;

namespace {

/// As the labels show it; an artist in the order of his sheet, too, which the caption may have put there.
int chercher(const Base &base, const Source &source, const QString &texte)
{
    const QString nom = texte.trimmed();
    if (nom.isEmpty())
        return 0;
    const int id = Trouver::ParTexte(base, *source.espece, nom, source.role);
    if (id > 0 || source.prenom != Sources::Prenom::Avant)
        return id;
    const Trouver::Noms noms = Trouver::Separer(*source.espece, nom);
    return Trouver::Personne(base, *source.espece, noms.prenom, noms.nom);
}

/// The one of this very name, first name included.
int porteurDe(const Base &base, const Source &source, const QString &texte)
{
    const Especes::Espece &espece = *source.espece;
    const Trouver::Noms noms = Trouver::Separer(espece, texte);
    if (!espece.suite || noms.nom.isEmpty())
        return noms.nom.isEmpty() ? 0 : Trouver::ParNom(base, espece, noms.nom);
    int id = Trouver::Personne(base, espece, noms.nom, noms.prenom);
    if (id == 0 && source.prenom == Sources::Prenom::Avant)
        id = Trouver::Personne(base, espece, noms.prenom, noms.nom);
    return id > 0 ? id : Trouver::Personne(base, espece, texte.trimmed(), {});
}

int creer(const Source &source, const QString &texte)
{
    return source.role ? Creer::CreerAuteur(texte, *source.role) : Creer::CreerEntree(*source.espece, texte);
}

/// Several where a field may hold several.
QStringList nomsDe(const Base &base, const Source &source, const QString &texte)
{
    return source.lien == Sources::Lien::Tous ? Trouver::Enumerer(base, *source.espece, texte)
                                              : QStringList{texte};
}

/// What was picked, or what the text names, made where there is none: several where a field may hold several.
std::vector<int> trouverOuCreer(Base &base, const Source &source, const Choisie &choisie)
{
    if (choisie.id > 0)
        return {choisie.id};
    if (Texte::EstVide(choisie.texte))
        return {};
    std::vector<int> ids;
    for (const QString &nom : nomsDe(base, source, choisie.texte)) {
        const int id = choisie.neuve ? 0 : chercher(base, source, nom);
        ids.push_back(id > 0 ? id : creer(source, nom));
    }
    return ids;
}

/// The album's links of one table become those to these entries.
void remplacerLiens(Base &base, const Source &source, int album, const std::vector<int> &ids)
{
    if (source.role)
        AccesBase::OterRole(album, *source.role);
    else
        AccesBase::SupprimerLignes(QLatin1String(source.espece->liens), QStringLiteral("NAlbum"), album);
    for (const int id : ids) {
        if (source.role)
            Creer::LierAuteur(id, *source.role, album);
        else
            Creer::Lier(base, *source.espece, id, album);
    }
}

/// A loan begins today unless its date is known already, and ends with its borrower.
void suivrePret(Base &base, int album, int emprunteur)
{
    auto rs = base.edit(QStringLiteral("Album"), QStringLiteral("Num = ?"), {album});
    const QString date = rs.Fields(QStringLiteral("DPret")).toString();
    if (emprunteur > 0 && !Texte::EstVide(date))
        return;
    rs.Edit();
    rs.SetField(QStringLiteral("DPret"), emprunteur > 0 ? Dates::Ecrire(QDate::currentDate()) : QString());
    rs.Update();
}

void ecrireIntervenant(int album, const CelluleIntervenant &cellule, int id)
{
    ChargerAlbums::Intervenant ligne = cellule.ligne;
    (cellule.activite ? ligne.metier : ligne.intervenant) = id;
    (cellule.activite ? ligne.activite : ligne.nom).clear();
    ChargerAlbums::EcrireIntervenant(album, cellule.ligne, ligne);
}

void ecrireLien(Base &base, int entree, const Champ &champ, const std::vector<int> &ids)
{
    const Source &source = *champ.source;
    const int id = ids.empty() ? 0 : ids.front();
    if (source.role && id > 0)
        AccesBase::PoserRole(id, *source.role);
    if (source.lien != Sources::Lien::Aucun)
        remplacerLiens(base, source, entree, ids);
    if (champ.colonne)
        EcrireFiche::Poser(champ, entree, id);
    if (&champ == &Champs::De(Champs::Feuille::Album, "NPret"))
        suivrePret(base, entree, id);
}

/// Why the choice is refused; empty when it is written.
QString ecrire(Base &base, const Edition &edition, const Choisie &choisie)
{
    const Source &source = *Ecrire::SourceDe(edition);
    if (choisie.id > 0 && !Trouver::Existe(base, *source.espece, choisie.id))
        return QCoreApplication::translate("Modification", "« %1 » n'existe plus.").arg(choisie.texte);
    if (choisie.id == 0 && !Texte::EstVide(choisie.texte) && !Texte::EstUnNom(choisie.texte))
        return QCoreApplication::translate("Modification", "Il manque un nom.");
    const std::vector<int> ids = trouverOuCreer(base, source, choisie);
    if (const auto *cellule = std::get_if<CelluleIntervenant>(&edition.quoi))
        ecrireIntervenant(edition.entree.id, *cellule, ids.empty() ? 0 : ids.front());
    else
        ecrireLien(base, edition.entree.id, *Ecrire::ChampDe(edition), ids);
    return {};
}

/// The entry that is held, by its number.
int tenue(const Edition &edition)
{
    if (const auto *cellule = std::get_if<CelluleIntervenant>(&edition.quoi))
        return cellule->activite ? cellule->ligne.metier : cellule->ligne.intervenant;
    return edition.stockee.toInt();
}

}

bool Choisir::EstUneDate(const Edition &edition)
{
    if (const auto *cote = std::get_if<CelluleCote>(&edition.quoi))
        return cote->mois;
    const Champ *champ = Ecrire::ChampDe(edition);
    return champ && champ->voie == Champs::Voie::Date;
}

General::Choix Choisir::LireChoix(const Edition &edition)
{
    General::Choix choix = General::LireChoix(*Ecrire::SourceDe(edition), edition.affichee);
    // The identifier knows better than the text, which another entry may bear, too.
    const int id = tenue(edition);
    if (const int rang = choix.entrees.rang(id); id > 0 && rang >= 0)
        choix.choisie = rang;
    return choix;
}

int Choisir::Chercher(const Edition &edition, const QString &texte)
{
    const Base base;
    return chercher(base, *Ecrire::SourceDe(edition), texte);
}

int Choisir::PorteurDe(const Edition &edition, const QString &texte)
{
    const Base base;
    return porteurDe(base, *Ecrire::SourceDe(edition), texte);
}

QStringList Choisir::Nouveaux(const Edition &edition, const QString &texte)
{
    const Base base;
    const Source &source = *Ecrire::SourceDe(edition);
    QStringList noms = nomsDe(base, source, texte);
    noms.removeIf([&](const QString &nom) { return chercher(base, source, nom) > 0; });
    return noms;
}

int Choisir::Ajouter(const Edition &edition, const QString &texte)
{
    if (!Texte::EstUnNom(texte))
        return 0;
    const Source &source = *Ecrire::SourceDe(edition);
    int id = 0;
    Ecrire::EnUnActe(edition, texte, [&](Base &base) {
        id = trouverOuCreer(base, source, {0, texte, source.lien != Sources::Lien::Tous}).front();
        return QString();
    });
    return id;
}

QString Choisir::Valider(const Edition &edition, const Choisie &choisie)
{
    if (EstUneDate(edition))
        return Ecrire::EcrireSaisie(edition, choisie.texte).refus;
    return Ecrire::EnUnActe(
        edition, choisie.texte, [&](Base &base) { return ecrire(base, edition, choisie); });
}

bool Choisir::TientUnDisparu(const Edition &edition)
{
    return Ecrire::SourceDe(edition) && Texte::EstVide(edition.affichee) && tenue(edition) > 0;
}

bool Choisir::PeutVider(const Edition &edition)
{
    const Champ *champ = Ecrire::ChampDe(edition);
    const bool legende = !champ || champ->voie != Champs::Voie::Directe;
    const bool nom = champ && champ == &Champs::DuNom(champ->feuille);
    const bool vide = Texte::EstVide(edition.affichee) && !TientUnDisparu(edition);
    return legende && !nom && edition.viseUneValeur() && !vide;
}

void Choisir::Vider(const Edition &edition)
{
    if (Ecrire::SourceDe(edition))
        Valider(edition, {});
    else
        Ecrire::EcrireSaisie(edition, {});
}
