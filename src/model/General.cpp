#include "model/General.h"

#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/files/Moteur.h"

#include <array>

using namespace General;
using Champs::Feuille;
using Especes::Libelle;

namespace {

constexpr std::array Listes{
    Liste{
        Tri::Albums, Txt::ListeDesAlbums, Txt::AlbumsNombre, Txt::AlbumsDeBD, Feuille::Album, "liste-albums"},
    Liste{Tri::Series, Txt::ListeDesSeries, Txt::SeriesNombre, Txt::Series, Feuille::Serie, "liste-series"},
    Liste{Tri::Dessinateurs, Txt::ListeDesDessinateurs, Txt::DessinateursNombre, Txt::Dessinateurs,
        Feuille::Auteur, "liste-dessinateurs", AccesBase::Role::Dessin},
    Liste{Tri::Scenaristes, Txt::ListeDesScenaristes, Txt::ScenaristesNombre, Txt::Scenaristes,
        Feuille::Auteur, "liste-scenaristes", AccesBase::Role::Scena},
    Liste{Tri::Coloristes, Txt::ListeDesColoristes, Txt::ColoristesNombre, Txt::Coloristes, Feuille::Auteur,
        "liste-coloristes", AccesBase::Role::Color},
    Liste{Tri::ExLibris, Txt::ListeDesExLibris, Txt::ExLibrisNombre, Txt::ExLibris, Feuille::ExLibris,
        "liste-exlibris"},
    Liste{Tri::Presse, Txt::ListeDesPressesBD, Txt::PressesBDNombre, Txt::PressesBD, Feuille::Presse,
        "liste-presse"},
    Liste{Tri::Editeurs, Txt::ListeDesEditeurs, Txt::EditeursNombre, Txt::Editeurs, Feuille::Editeur,
        "liste-editeurs"},
    Liste{Tri::Collections, Txt::ListeDesCollections, Txt::CollectionsNombre, Txt::Collections, Feuille::Coll,
        "liste-collections"},
};

/// The lines of a list as far as a condition goes, which an index covers: no more columns than they show.
QString requete(const Especes::Espece &espece, const QString &condition)
{
    return QStringLiteral("SELECT %1 From %2 %3")
        .arg(Especes::Colonnes(espece), QLatin1String(espece.table),
            condition.isEmpty() ? QString() : QStringLiteral("where ") + condition);
}

QString parNom(const Especes::Espece &espece, const QString &condition)
{
    return requete(espece, condition) + QStringLiteral(" order by %1 asc").arg(QLatin1String(espece.nom));
}

std::string_view sansBlancs(std::string_view texte)
{
    const std::size_t debut = texte.find_first_not_of(' ');
    if (debut == std::string_view::npos)
        return {};
    return texte.substr(debut, texte.find_last_not_of(' ') - debut + 1);
}

Entrees remplir(Cursor rs, Libelle forme, const Avance &avance)
{
    constexpr int Pas = 1 << 16;
    Entrees entrees;
    const qint64 total = avance ? rs.RecordCount() : 0;
    for (; !rs.AtEnd(); rs.MoveNext()) {
        AjouterLigne(entrees, rs, forme);
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
    const bool auteur = c.table.compare(QLatin1String(Especes::Auteur.table), Qt::CaseInsensitive) == 0;
    return !auteur && c.sorte == Changement::Sorte::Edition && (c.champs & ChampsMontres) == 0;
}

}

void General::AjouterLigne(Entrees &entrees, const Cursor &rs, Libelle forme)
{
    const int id = static_cast<int>(rs.Int64(0));
    const std::string_view second = forme == Libelle::Nom ? std::string_view() : sansBlancs(rs.Utf8(2));
    if (forme == Libelle::PrenomNom && !second.empty()) {
        entrees.ajouter(id, second);
        entrees.prolonger(" , ");
        return entrees.prolonger(rs.Utf8(1));
    }
    entrees.ajouter(id, rs.Utf8(1));
    if (forme == Libelle::NomNumero || !second.empty()) {
        entrees.prolonger(forme == Libelle::NomNumero ? " - " : ", ");
        entrees.prolonger(second);
    }
}

const Liste &General::ListeDe(Tri tri)
{
    return Listes[static_cast<std::size_t>(tri)];
}

QString General::ConditionDe(Tri tri)
{
    const auto role = ListeDe(tri).role;
    return role ? AccesBase::NomDuRole(*role) + QStringLiteral(" <> 0") : QString();
}

Tri General::TriDe(int numero)
{
    return numero >= 0 && numero < NombreDeTris ? static_cast<Tri>(numero) : Tri::Albums;
}

Entrees General::LireListe(Tri tri, const Avance &avance)
{
    const Base base;
    const Especes::Espece &espece = EspeceDe(tri);
    return remplir(base.read(parNom(espece, ConditionDe(tri))), espece.libelle, avance);
}

Entrees General::LireAlbums(Tri tri, int id)
{
    const Especes::Espece &espece = EspeceDe(tri);
    if (!espece.liens)
        return {};
    const auto role = ListeDe(tri).role;
    const Base base;
    return remplir(
        base.read(
            QStringLiteral("SELECT l.NAlbum, l.TAlbum From %1 a join LAlbums l on l.NAlbum = a.NAlbum"
                           " where a.%2 = ?%3 order by a.%4 asc")
                .arg(QLatin1String(espece.liens), QLatin1String(espece.cle),
                    role ? QStringLiteral(" and a.%1 <> 0").arg(AccesBase::NomDuRole(*role)) : QString(),
                    QLatin1String(espece.ordre)),
            {id}),
        Libelle::Nom, {});
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
    const QString sql
        = requete(Especes::Presse, QStringLiteral("NEdit = ?")) + QStringLiteral(" order by NPressBD asc");
    return remplir(base.read(sql, {editeur}), Especes::Presse.libelle, {});
}

Choix General::LireChoix(const Sources::Source &source, const QString &valeur)
{
    const QString condition
        = source.role ? AccesBase::NomDuRole(*source.role) + QStringLiteral(" = -1") : QString();
    const Base base;
    Choix choix{remplir(base.read(parNom(*source.espece, condition)), source.espece->libelle, {}), -1};
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
    const Especes::Espece &espece = EspeceDe(tri);
    const QString sql = requete(espece, QLatin1String(espece.cle) + QStringLiteral(" = ?"));
    const Entrees ligne = remplir(base.read(sql, {id}), espece.libelle, {});
    return ligne.empty() ? QString() : ligne.texte(0);
}

bool General::EstDansLaListe(Tri tri, int id)
{
    QString condition = QLatin1String(EspeceDe(tri).cle) + QStringLiteral(" = ?");
    if (const QString role = ConditionDe(tri); !role.isEmpty())
        condition += QStringLiteral(" and ") + role;
    const Base base;
    return !base.read(requete(EspeceDe(tri), condition), {id}).AtEnd();
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
    return std::all_of(Listes.begin(), Listes.end(), [&](const Liste &liste) {
        return base
            .read(QStringLiteral("SELECT 1 From %1 limit 1").arg(QLatin1String(EspeceDe(liste.tri).table)))
            .AtEnd();
    });
}

bool General::EstEnLectureSeule()
{
    return Base().connexion().lectureSeule();
}

bool General::Concerne(const Changements &changements, Tri tri)
{
    const QLatin1String table(EspeceDe(tri).table);
    return std::any_of(changements.begin(), changements.end(), [table](const Changement &c) {
        return c.table.isEmpty() || (!garde(c) && c.table.compare(table, Qt::CaseInsensitive) == 0);
    });
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
