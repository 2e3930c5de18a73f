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
using Especes::Espece;
using Especes::Libelle;
using Sources::Source;

namespace {

/// The two names of a typed text; the first name is empty where there is no comma.
struct Personne
{
    QString nom;
    QString prenom;
};
Personne separer(const QString &texte, Libelle libelle)
{
    const qsizetype virgule = texte.indexOf(u',');
    if (libelle == Libelle::Nom || virgule < 0)
        return {texte.trimmed(), {}};
    const QString avant = texte.left(virgule).trimmed();
    const QString apres = texte.mid(virgule + 1).trimmed();
    // With nothing where the name should be, the text is a name as it stands.
    if ((libelle == Libelle::NomPrenom ? avant : apres).isEmpty())
        return {texte.trimmed(), {}};
    return libelle == Libelle::NomPrenom ? Personne{avant, apres} : Personne{apres, avant};
}

/// Both names first, for an artist in the order of his sheet, too, which the caption may have put there; then
/// the whole text as the one name of somebody who has a comma in it.
int chercher(const Base &base, const Source &source, const QString &texte)
{
    const QString nom = texte.trimmed();
    if (nom.isEmpty())
        return 0;
    const Espece &espece = *source.espece;
    const Personne personne = separer(nom, espece.libelle);
    const bool deux = personne.nom != nom;
    int id = deux ? Trouver::Personne(base, espece, personne.nom, personne.prenom) : 0;
    if (id == 0 && deux && source.prenom == Sources::Prenom::Avant)
        id = Trouver::Personne(base, espece, personne.prenom, personne.nom);
    return id > 0 ? id : Trouver::ParNom(base, espece, nom);
}

int porteurDe(const Base &base, const Source &source, const QString &texte)
{
    const QString entier = texte.trimmed();
    const Espece &espece = *source.espece;
    if (espece.libelle == Libelle::Nom)
        return entier.isEmpty() ? 0 : Trouver::ParNom(base, espece, entier);
    const Personne personne = separer(entier, espece.libelle);
    int id = Trouver::Personne(base, espece, personne.nom, personne.prenom);
    if (id == 0 && source.prenom == Sources::Prenom::Avant)
        id = Trouver::Personne(base, espece, personne.prenom, personne.nom);
    return id > 0 ? id : Trouver::Personne(base, espece, entier, {});
}

int creer(const Source &source, const QString &texte)
{
    const auto [nom, prenom] = separer(texte, source.espece->libelle);
    return source.role ? Creer::CreerAuteur(nom, prenom, *source.role)
                       : Creer::CreerEntree(*source.espece, nom, prenom);
}

int trouverOuCreer(Base &base, const Source &source, const Choisie &choisie)
{
    if (choisie.id > 0 || Texte::EstVide(choisie.texte))
        return choisie.id;
    const int id = choisie.neuve ? 0 : chercher(base, source, choisie.texte);
    return id > 0 ? id : creer(source, choisie.texte);
}

/// The album's links of one table become the one to this entry, or none.
void remplacerLiens(Base &base, const Source &source, int album, int id)
{
    if (source.role) {
        AccesBase::OterRole(album, *source.role);
        if (id > 0)
            Creer::LierAuteur(id, *source.role, album);
        return;
    }
    AccesBase::SupprimerLignes(QLatin1String(source.espece->liens), QStringLiteral("NAlbum"), album);
    if (id > 0)
        Creer::Lier(base, *source.espece, id, album);
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

void ecrireLien(Base &base, int entree, const Champ &champ, int id)
{
    const Source &source = *champ.source;
    if (source.role && id > 0)
        AccesBase::PoserRole(id, *source.role);
    if (source.lien != Sources::Lien::Aucun)
        remplacerLiens(base, source, entree, id);
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
    const int id = trouverOuCreer(base, source, choisie);
    if (const auto *cellule = std::get_if<CelluleIntervenant>(&edition.quoi))
        ecrireIntervenant(edition.entree.id, *cellule, id);
    else
        ecrireLien(base, edition.entree.id, *Ecrire::ChampDe(edition), id);
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

int Choisir::Ajouter(const Edition &edition, const QString &texte)
{
    int id = 0;
    Ecrire::EnUnActe(edition, texte, [&](Base &) {
        id = creer(*Ecrire::SourceDe(edition), texte);
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

bool Choisir::PeutVider(const Edition &edition)
{
    const Champ *champ = Ecrire::ChampDe(edition);
    const bool legende = !champ || champ->voie != Champs::Voie::Directe;
    const bool nom = champ && champ == &Champs::DuNom(champ->feuille);
    return legende && !nom && edition.viseUneValeur() && !Texte::EstVide(edition.affichee);
}

void Choisir::Vider(const Edition &edition)
{
    if (Ecrire::SourceDe(edition))
        Valider(edition, {});
    else
        Ecrire::EcrireSaisie(edition, {});
}
