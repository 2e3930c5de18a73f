#include "acts/Choisir.h"

#include "acts/Acte.h"
#include "acts/Creer.h"
#include "acts/EcrireFiche.h"
#include "acts/EcrireGrilles.h"
#include "acts/Renommer.h"
#include "core/Dates.h"
#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/Base.h"

#include <QCoreApplication>

using AccesBase::Role;
using Champs::Champ;
using Choisir::Choisie;

namespace {

/// How the two names of a person stand in the chooser's text.
enum class Noms { Un, NomPrenom, PrenomNom };

/// What is offered for a field, and the links that the choice replaces.
struct Offre
{
    const char *champ;
    const char *liste; ///< pick-list
    const char *table;
    const char *cle;
    Noms noms = Noms::Un;
    const char *liens = nullptr;
    std::optional<Role> role = {};
};

constexpr Offre Offres[] = {
    {"NPret", "NPret", "pret", "NPret"},
    {"Pays", "Pays", "pays", "NPays", Noms::Un, "PaysAlbum"},
    {"Genre", "Genre", "genre", "NGenre", Noms::Un, "GenreAlbums"},
    {"Coll", "LColl", "Coll", "NColl", Noms::Un, "CollAlbums"},
    {"Librairie", "Librairie", "Librairie", "NLibrairie"},
    {"DessinX", "LDessin", "Auteurs", "NAuteur", Noms::NomPrenom, nullptr, Role::Dessin},
    {"SerieX", "LSerie", "Serie", "NSerie"},
    {"EditeurP", "LEditeur", "Editeur", "NEdit"},
    {"PaysN", "Pays", "pays", "NPays"},
    {"NomGenre", "Genre", "Genre", "NGenre"},
    {"Editeur", "LEditeur", "Editeur", "NEdit"},
    {"Serie", "LSerie", "serie", "NSerie", Noms::Un, "SerieAlbums"},
    {"Edit", "LEditeur", "Editeur", "NEdit", Noms::Un, "EditeurAlbums"},
    {"PaysE", "Pays", "pays", "NPays"},
    {"Scena", "LScena", "auteurs", "NAuteur", Noms::NomPrenom, "AuteursAlbums", Role::Scena},
    {"Color", "LColor", "auteurs", "NAuteur", Noms::NomPrenom, "AuteursAlbums", Role::Color},
    {"Dessin", "LDessin", "auteurs", "NAuteur", Noms::NomPrenom, "AuteursAlbums", Role::Dessin},
    {"NomI", "NomI", "Inter", "NInter", Noms::PrenomNom},
    {"ActI", "ActI", "Metier", "NMetier"},
};

const Offre *offreDe(const Edition &edition)
{
    const QString nom = Ecrire::NomDe(edition);
    for (const Offre &offre : Offres) {
        if (nom == QLatin1String(offre.champ))
            return &offre;
    }
    return nullptr;
}

QString table(const Offre &offre)
{
    return QString::fromLatin1(offre.table);
}

QString cle(const Offre &offre)
{
    return QString::fromLatin1(offre.cle);
}

/// The two names of a typed text; the first name is empty where there is no comma.
struct Personne
{
    QString nom;
    QString prenom;
};
Personne separer(const QString &texte, Noms noms)
{
    const qsizetype virgule = texte.indexOf(u',');
    if (noms == Noms::Un || virgule < 0)
        return {texte.trimmed(), {}};
    const QString avant = texte.left(virgule).trimmed();
    const QString apres = texte.mid(virgule + 1).trimmed();
    // With nothing where the name should be, the text is a name as it stands.
    if ((noms == Noms::NomPrenom ? avant : apres).isEmpty())
        return {texte.trimmed(), {}};
    return noms == Noms::NomPrenom ? Personne{avant, apres} : Personne{apres, avant};
}

int premier(const Base &base, const QString &sql, const QVariantList &valeurs)
{
    const auto rs = base.read(sql, valeurs);
    return rs.AtEnd() ? 0 : rs.Fields(0).toInt();
}

int chercherPersonne(const Base &base, const Offre &offre, const Personne &personne)
{
    return premier(base,
        QStringLiteral("SELECT %1 From %2 where Nom = ? and trim(coalesce(Prenom, '')) = ? collate FRANCAIS"
                       " order by %1 asc")
            .arg(cle(offre), table(offre)),
        {personne.nom, personne.prenom});
}

/// Both names first, for an artist in the order of his sheet, too, which the caption may have put there; then
/// the whole text as the one name of somebody who has a comma in it.
int chercher(const Base &base, const Offre &offre, const QString &texte)
{
    const QString nom = texte.trimmed();
    if (nom.isEmpty())
        return 0;
    const Personne personne = separer(nom, offre.noms);
    int id = personne.nom != nom ? chercherPersonne(base, offre, personne) : 0;
    if (id == 0 && personne.nom != nom && offre.role && !offre.liens)
        id = chercherPersonne(base, offre, {personne.prenom, personne.nom});
    if (id > 0)
        return id;
    return premier(base,
        QStringLiteral("SELECT %1 From %2 where Nom = ? order by %1 asc").arg(cle(offre), table(offre)),
        {nom});
}

int creer(Base &base, const Offre &offre, const QString &texte)
{
    const auto [nom, prenom] = separer(texte, offre.noms);
    if (offre.role)
        return Creer::CreerAuteur(nom, prenom, *offre.role);
    const int id = Creer::CreerEntree(table(offre), nom);
    if (!prenom.isEmpty()) {
        auto rs = base.edit(table(offre), cle(offre) + QStringLiteral(" = ?"), {id});
        rs.Edit();
        rs.SetField(QStringLiteral("Prenom"), prenom);
        rs.Update();
    }
    return id;
}

int trouverOuCreer(Base &base, const Offre &offre, const Choisie &choisie)
{
    if (choisie.id > 0 || Texte::EstVide(choisie.texte))
        return choisie.id;
    const int id = chercher(base, offre, choisie.texte);
    return id > 0 ? id : creer(base, offre, choisie.texte);
}

/// The album's links of one table become the one to this entry, or none.
void remplacerLiens(Base &base, const Offre &offre, int album, int id)
{
    if (offre.role) {
        AccesBase::OterRole(album, *offre.role);
        if (id > 0)
            Creer::LierAuteur(id, *offre.role, album);
        return;
    }
    const QString liens = QLatin1String(offre.liens);
    AccesBase::SupprimerLignes(liens, QStringLiteral("NAlbum"), album);
    if (id == 0)
        return;
    auto rs = base.edit(liens);
    rs.AddNew();
    rs.SetField(cle(offre), id);
    rs.SetField(QStringLiteral("NAlbum"), album);
    rs.Update();
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

void ecrireIntervenant(Base &base, const Edition &edition, const Offre &offre, const Choisie &choisie)
{
    ChargerAlbums::Intervenant ligne = edition.intervenant;
    const int id = trouverOuCreer(base, offre, choisie);
    if (Ecrire::NomDe(edition) == QLatin1String("NomI")) {
        ligne.intervenant = id;
        ligne.nom.clear();
    } else {
        ligne.metier = id;
        ligne.activite.clear();
    }
    ChargerAlbums::EcrireIntervenant(edition.entree.id, edition.intervenant, ligne);
}

void ecrireLien(Base &base, const Edition &edition, const Offre &offre, const Choisie &choisie)
{
    const int id = trouverOuCreer(base, offre, choisie);
    if (offre.role && id > 0)
        AccesBase::PoserRole(id, *offre.role);
    if (offre.liens)
        remplacerLiens(base, offre, edition.entree.id, id);
    const Champ *champ = Ecrire::ChampDe(edition);
    if (champ->colonne)
        EcrireFiche::Poser(champ->feuille, edition.entree.id, champ->nom, id);
    if (edition.champ == QLatin1String("NPret"))
        suivrePret(base, edition.entree.id, id);
}

bool existe(const Base &base, const Offre &offre, int id)
{
    return premier(base, QStringLiteral("SELECT %1 From %2 where %1 = ?").arg(cle(offre), table(offre)), {id})
        > 0;
}

}

bool Choisir::EstUneDate(const Edition &edition)
{
    const Champ *champ = Ecrire::ChampDe(edition);
    return champ ? champ->voie == Champs::Voie::Date : Ecrire::NomDe(edition) == QLatin1String("Mois");
}

General::Choix Choisir::LireChoix(const Edition &edition)
{
    const Offre *offre = offreDe(edition);
    Q_ASSERT(offre);
    General::Choix choix = General::LireChoix(QLatin1String(offre->liste), table(*offre), edition.affichee);
    const QString nom = Ecrire::NomDe(edition);
    const int tenue = nom == QLatin1String("NomI") ? edition.intervenant.intervenant
        : nom == QLatin1String("ActI")             ? edition.intervenant.metier
                                                   : edition.stockee.toInt();
    // The identifier knows better than the text, which another entry may bear, too.
    if (const int rang = choix.entrees.rang(tenue); tenue > 0 && rang >= 0)
        choix.choisie = rang;
    return choix;
}

int Choisir::Chercher(const Edition &edition, const QString &texte)
{
    const Base base;
    return chercher(base, *offreDe(edition), texte);
}

int Choisir::Ajouter(const Edition &edition, const QString &texte)
{
    Acte acte(Ecrire::TitreDe(edition, texte), edition.entree);
    const int id = creer(acte.base(), *offreDe(edition), texte);
    acte.valider();
    return id;
}

QString Choisir::Valider(const Edition &edition, const Choisie &choisie)
{
    if (EstUneDate(edition))
        return Ecrire::EcrireSaisie(edition, choisie.texte).refus;
    const Offre &offre = *offreDe(edition);
    Acte acte(Ecrire::TitreDe(edition, choisie.texte), edition.entree);
    if (const QString absente = Ecrire::RaisonSiAbsente(edition); !absente.isEmpty())
        return absente;
    if (choisie.id > 0 && !existe(acte.base(), offre, choisie.id))
        return QCoreApplication::translate("Modification", "« %1 » n'existe plus.").arg(choisie.texte);
    if (Ecrire::ChampDe(edition))
        ecrireLien(acte.base(), edition, offre, choisie);
    else
        ecrireIntervenant(acte.base(), edition, offre, choisie);
    acte.valider();
    return {};
}

bool Choisir::PeutVider(const Edition &edition)
{
    const Champ *champ = Ecrire::ChampDe(edition);
    const bool legende = !champ || champ->voie != Champs::Voie::Directe;
    const bool nom = champ && champ == &Renommer::ChampDe(edition.entree.tri);
    return legende && !nom && !edition.champ.isEmpty() && !Texte::EstVide(edition.affichee);
}

void Choisir::Vider(const Edition &edition)
{
    if (offreDe(edition))
        Valider(edition, {});
    else
        Ecrire::EcrireSaisie(edition, {});
}
