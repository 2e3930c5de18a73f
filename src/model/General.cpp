#include "model/General.h"

#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/files/Moteur.h"
#include "db/schema/Tables.h"

#include <array>

using namespace General;
using Champs::Feuille;

namespace {

constexpr std::array Genres{
    Genre{
        Tri::Albums, Txt::ListeDesAlbums, Txt::AlbumsNombre, Txt::AlbumsDeBD, Feuille::Album, "liste-albums"},
    Genre{Tri::Series, Txt::ListeDesSeries, Txt::SeriesNombre, Txt::Series, Feuille::Serie, "liste-series"},
    Genre{Tri::Dessinateurs, Txt::ListeDesDessinateurs, Txt::DessinateursNombre, Txt::Dessinateurs,
        Feuille::Auteur, "liste-dessinateurs"},
    Genre{Tri::Scenaristes, Txt::ListeDesScenaristes, Txt::ScenaristesNombre, Txt::Scenaristes,
        Feuille::Auteur, "liste-scenaristes"},
    Genre{Tri::Coloristes, Txt::ListeDesColoristes, Txt::ColoristesNombre, Txt::Coloristes, Feuille::Auteur,
        "liste-coloristes"},
    Genre{Tri::ExLibris, Txt::ListeDesExLibris, Txt::ExLibrisNombre, Txt::ExLibris, Feuille::ExLibris,
        "liste-exlibris"},
    Genre{Tri::Presse, Txt::ListeDesPressesBD, Txt::PressesBDNombre, Txt::PressesBD, Feuille::Presse,
        "liste-presse"},
    Genre{Tri::Editeurs, Txt::ListeDesEditeurs, Txt::EditeursNombre, Txt::Editeurs, Feuille::Editeur,
        "liste-editeurs"},
    Genre{Tri::Collections, Txt::ListeDesCollections, Txt::CollectionsNombre, Txt::Collections, Feuille::Coll,
        "liste-collections"},
};

/// How the second part of a line's text is joined to the first.
enum class Forme { Nom, NomPrenom, PrenomNom, NomNumero };

/// The queries of a kind. Each names the columns that the lines show, so that an index covers it.
struct Requetes
{
    const char *table;
    const char *liste;
    const char *ligne; ///< one line, by identifier
    const char *albums; ///< identifier and title of the linked albums, or null
    Forme forme;
};

constexpr std::array<Requetes, NombreDeTris> ToutesLesRequetes{
    Requetes{"LAlbums", "SELECT NAlbum, TAlbum From LAlbums order by TAlbum asc",
        "SELECT NAlbum, TAlbum From LAlbums where NAlbum = ?", nullptr, Forme::Nom},
    Requetes{"Serie", "SELECT NSerie, Nom From Serie order by Nom asc",
        "SELECT NSerie, Nom From Serie where NSerie = ?",
        "SELECT l.NAlbum, l.TAlbum From SerieAlbums s join LAlbums l on l.NAlbum = s.NAlbum"
        " where s.NSerie = ? order by s.NumeroAlbum2 asc",
        Forme::Nom},
    Requetes{"Auteurs", "SELECT NAuteur, Nom, Prenom From Auteurs where Dessin <> 0 order by Nom asc",
        "SELECT NAuteur, Nom, Prenom From Auteurs where NAuteur = ?",
        "SELECT l.NAlbum, l.TAlbum From AuteursAlbums a join LAlbums l on l.NAlbum = a.NAlbum"
        " where a.NAuteur= ? and a.Dessin <> 0 order by a.rowid asc",
        Forme::NomPrenom},
    Requetes{"Auteurs", "SELECT NAuteur, Nom, Prenom From Auteurs where Scena <> 0 order by Nom asc",
        "SELECT NAuteur, Nom, Prenom From Auteurs where NAuteur = ?",
        "SELECT l.NAlbum, l.TAlbum From AuteursAlbums a join LAlbums l on l.NAlbum = a.NAlbum"
        " where a.NAuteur= ? and a.Scena = -1 order by a.rowid asc",
        Forme::NomPrenom},
    Requetes{"Auteurs", "SELECT NAuteur, Nom, Prenom From Auteurs where Color <> 0 order by Nom asc",
        "SELECT NAuteur, Nom, Prenom From Auteurs where NAuteur = ?",
        "SELECT l.NAlbum, l.TAlbum From AuteursAlbums a join LAlbums l on l.NAlbum = a.NAlbum"
        " where a.NAuteur= ? and a.Color <> 0 order by a.rowid asc",
        Forme::NomPrenom},
    Requetes{"ExLibris", "SELECT NExLibris, Nom From ExLibris order by Nom asc",
        "SELECT NExLibris, Nom From ExLibris where NExLibris = ?", nullptr, Forme::Nom},
    Requetes{"PresseBD", "SELECT NPressBD, Nom, NPresseBD From PresseBD order by Nom asc",
        "SELECT NPressBD, Nom, NPresseBD From PresseBD where NPressBD = ?", nullptr, Forme::NomNumero},
    Requetes{"Editeur", "SELECT NEdit, Nom From editeur order by Nom asc",
        "SELECT NEdit, Nom From editeur where NEdit = ?",
        "SELECT l.NAlbum, l.TAlbum From EditeurAlbums e join LAlbums l on l.NAlbum = e.NAlbum"
        " where e.NEdit = ? order by e.rowid asc",
        Forme::Nom},
    Requetes{"Coll", "SELECT NColl, Nom From Coll order by Nom asc",
        "SELECT NColl, Nom From Coll where NColl = ?",
        "SELECT l.NAlbum, l.TAlbum From CollAlbums c join LAlbums l on l.NAlbum = c.NAlbum"
        " where c.NColl = ? order by c.rowid asc",
        Forme::Nom},
};

const Requetes &requetes(Tri tri)
{
    return ToutesLesRequetes[static_cast<std::size_t>(tri)];
}

std::string_view sansBlancs(std::string_view texte)
{
    const std::size_t debut = texte.find_first_not_of(' ');
    if (debut == std::string_view::npos)
        return {};
    return texte.substr(debut, texte.find_last_not_of(' ') - debut + 1);
}

void ajouterLigne(Entrees &entrees, const Cursor &rs, Forme forme)
{
    const int id = static_cast<int>(rs.Int64(0));
    const std::string_view second = forme == Forme::Nom ? std::string_view() : sansBlancs(rs.Utf8(2));
    if (forme == Forme::PrenomNom && !second.empty()) {
        entrees.ajouter(id, second);
        entrees.prolonger(" , ");
        return entrees.prolonger(rs.Utf8(1));
    }
    entrees.ajouter(id, rs.Utf8(1));
    if (forme == Forme::NomNumero || !second.empty()) {
        entrees.prolonger(forme == Forme::NomNumero ? " - " : ", ");
        entrees.prolonger(second);
    }
}

Entrees remplir(Cursor rs, Forme forme, const Avance &avance)
{
    constexpr int Pas = 1 << 16;
    Entrees entrees;
    const qint64 total = avance ? rs.RecordCount() : 0;
    for (; !rs.AtEnd(); rs.MoveNext()) {
        ajouterLigne(entrees, rs, forme);
        if (avance && entrees.size() % Pas == 0)
            avance(entrees.size(), total);
    }
    if (avance && !entrees.empty())
        avance(entrees.size(), entrees.size());
    return entrees;
}

/// A change that leaves a row where it is and what its line shows: identifier, name and what stands behind it. An
/// author's flags say in which lists he is.
bool garde(const Changement &c)
{
    constexpr quint64 ChampsMontres = 0b111;
    const bool auteur = c.table.compare(QLatin1String("Auteurs"), Qt::CaseInsensitive) == 0;
    return !auteur && c.sorte == Changement::Sorte::Edition && (c.champs & ChampsMontres) == 0;
}

bool touche(const Changements &changements, std::initializer_list<const char *> tables)
{
    for (const Changement &changement : changements) {
        if (changement.table.isEmpty())
            return true;
        if (garde(changement))
            continue;
        for (const char *table : tables) {
            if (changement.table.compare(QLatin1String(table), Qt::CaseInsensitive) == 0)
                return true;
        }
    }
    return false;
}

/// How a line of a pick-list is made of what its table holds.
Forme formeDuChoix(const QString &liste, const QString &table)
{
    if (table.compare(QLatin1String("Auteurs"), Qt::CaseInsensitive) == 0)
        return Forme::NomPrenom;
    if (table.compare(QLatin1String("Inter"), Qt::CaseInsensitive) == 0)
        return Forme::PrenomNom;
    return liste == QLatin1String("LPresseBD") ? Forme::NomNumero : Forme::Nom;
}

}

const Genre &General::GenreDe(Tri tri)
{
    return Genres[static_cast<std::size_t>(tri)];
}

QString General::TableDe(Tri tri)
{
    return QLatin1String(requetes(tri).table);
}

QString General::DrapeauDe(Tri tri)
{
    if (GenreDe(tri).feuille != Feuille::Auteur)
        return {};
    const int rang = static_cast<int>(tri) - static_cast<int>(Tri::Dessinateurs);
    return AccesBase::NomDuRole(static_cast<AccesBase::Role>(rang));
}

Tri General::TriDe(int numero)
{
    return numero >= 0 && numero < NombreDeTris ? static_cast<Tri>(numero) : Tri::Albums;
}

Entrees General::LireListe(Tri tri, const Avance &avance)
{
    const Base base;
    return remplir(base.read(QLatin1String(requetes(tri).liste)), requetes(tri).forme, avance);
}

Entrees General::LireAlbums(Tri tri, int id)
{
    const char *sql = requetes(tri).albums;
    if (!sql)
        return {};
    const Base base;
    return remplir(base.read(QLatin1String(sql), {id}), Forme::Nom, {});
}

std::vector<Volume> General::LireVolumes(const std::vector<int> &albums)
{
    const Base base;
    std::vector<Volume> volumes;
    for (const int num : albums) {
        const auto rs = base.read(QStringLiteral("SELECT l.Photo1, a.NAlbum From LAlbums l"
                                                 " left join Album a on a.Num = l.NAlbum where l.NAlbum = ?"),
            {num});
        volumes.push_back(
            rs.AtEnd() ? Volume() : Volume{Images::Trouver(rs.Fields(0).toString()), rs.Fields(1).toInt()});
    }
    return volumes;
}

Entrees General::LirePresse(int editeur)
{
    const Base base;
    return remplir(
        base.read(QStringLiteral("SELECT * From PresseBD where NEdit = ? order by NPressBD asc"), {editeur}),
        Forme::NomNumero, {});
}

Choix General::LireChoix(const QString &liste, const QString &table, const QString &valeur)
{
    static const QStringList roles{
        QStringLiteral("Scena"), QStringLiteral("Dessin"), QStringLiteral("Color")};
    const QString role = liste.startsWith(u'L') ? liste.mid(1) : liste;
    const Forme forme = formeDuChoix(liste, table);
    const QString champs
        = Schema::Champs(table).mid(0, forme == Forme::Nom ? 2 : 3).join(QStringLiteral(", "));
    const QString sql = roles.contains(role)
        ? QStringLiteral("SELECT %1 From %2 where  %3 = -1 order by Nom asc").arg(champs, table, role)
        : QStringLiteral("SELECT %1 From %2 order by Nom asc").arg(champs, table);
    const Base base;
    Choix choix{remplir(base.read(sql), forme, {}), -1};
    const QString voulu = Texte::EstVide(valeur) ? QString() : valeur.trimmed().toUpper();
    for (int i = 0; i < choix.entrees.size() && !voulu.isEmpty() && choix.choisie < 0; ++i) {
        if (choix.entrees.texte(i).trimmed().toUpper() == voulu)
            choix.choisie = i;
    }
    return choix;
}

std::vector<int> General::LirePretes()
{
    const Base base;
    std::vector<int> numeros;
    for (auto rs = base.read(QStringLiteral("SELECT Num From Album where NPret > 0")); !rs.AtEnd();
         rs.MoveNext())
        numeros.push_back(static_cast<int>(rs.Int64(0)));
    std::sort(numeros.begin(), numeros.end());
    return numeros;
}

QString General::LireTexte(Tri tri, int id)
{
    const Base base;
    const Entrees ligne
        = remplir(base.read(QLatin1String(requetes(tri).ligne), {id}), requetes(tri).forme, {});
    return ligne.empty() ? QString() : ligne.texte(0);
}

bool General::EstDansLaListe(Tri tri, int id)
{
    const QString table = TableDe(tri);
    const QString role = DrapeauDe(tri);
    QString sql = QStringLiteral("SELECT 1 From %1 where %2 = ?").arg(table, Schema::Champs(table).first());
    if (!role.isEmpty())
        sql += QStringLiteral(" and %1 <> 0").arg(role);
    const Base base;
    return !base.read(sql, {id}).AtEnd();
}

Totaux General::LireTotaux()
{
    const Base base;
    const auto albums
        = base.read(QStringLiteral("SELECT count(*), coalesce(sum(PrixA), 0.0) From Album where +Num > 0"));
    const auto series = base.read(QStringLiteral("SELECT count(*) From Serie where NSerie > 0"));
    return {albums.Int64(0), series.Int64(0), albums.Fields(1).toDouble()};
}

bool General::EstVierge()
{
    const Base base;
    return std::all_of(Genres.begin(), Genres.end(), [&](const Genre &genre) {
        return base.read(QStringLiteral("SELECT 1 From %1 limit 1").arg(TableDe(genre.tri))).AtEnd();
    });
}

bool General::Concerne(const Changements &changements, Tri tri)
{
    return touche(changements, {requetes(tri).table});
}

QString General::VerifierCopie(const QString &chemin)
{
    const Dossier &dossier = Dossier::courant();
    for (const QString &nom : {Dossier::Collection, Dossier::Catalogue}) {
        if (Dossier::EstLeFichier(chemin, dossier.chemin(nom)))
            return nom;
    }
    return {};
}

void General::CopierBase(const QString &chemin)
{
    Base base;
    Moteur::Copier(base.connexion().db(), chemin);
}
