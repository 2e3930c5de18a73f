// The program's routines over generated collections, beside the bare walk: bulleo-mesures [benchmark options].
// The collections are made on first use, in $BULLEO_BENCH, else in "bulleo-bench" of the temporary folder.

#include "Generateur.h"
#include "acts/Creer.h"
#include "acts/Historique.h"
#include "acts/Importer.h"
#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "db/Comparaison.h"
#include "db/files/Livraison.h"
#include "db/files/MiseANiveau.h"
#include "db/schema/Tables.h"
#include "model/ChargerAlbums.h"
#include "model/ChargerAuteurs.h"
#include "model/General.h"
#include "model/ListeEntrees.h"
#include "pictures/Scan.h"
#include "reports/Listage.h"
#include "reports/Rechercher.h"
#include "reports/Sorties.h"
#include "reports/Statistiques.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>
#include <sqlite3.h>
#include <vector>

namespace {

/// The application folder of a generated collection, as the current one.
struct Terrain
{
    explicit Terrain(int albums)
        : chemin(qEnvironmentVariable("BULLEO_BENCH", QDir::tempPath() + QStringLiteral("/bulleo-bench"))
            + QStringLiteral("/%1").arg(albums))
        , dossier(chemin, Dossier::Livre())
        , reglages(chemin + QStringLiteral("/reglages"))
    {
        generer(chemin, albums);
    }
    QString chemin;
    Dossier dossier;
    Reglages reglages;
    Traduction traduction;
    Annonces annonces;
};

/// The floor of every list: the same file, the same two columns by the covering index, nothing kept.
void parcoursNu(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const QByteArray fichier = terrain.dossier.collection().toUtf8();
    for (auto _ : etat) {
        sqlite3 *db = nullptr;
        sqlite3_open_v2(fichier.constData(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
        void *collateur = Comparaison::creer();
        sqlite3_create_collation_v2(
            db, "FRANCAIS", SQLITE_UTF8, collateur, Comparaison::comparer, Comparaison::detruire);
        sqlite3_stmt *instruction = nullptr;
        sqlite3_prepare_v2(
            db, "SELECT NAlbum, TAlbum FROM LAlbums ORDER BY TAlbum", -1, &instruction, nullptr);
        qint64 somme = 0;
        while (sqlite3_step(instruction) == SQLITE_ROW)
            somme += sqlite3_column_int(instruction, 0) + sqlite3_column_text(instruction, 1)[0];
        benchmark::DoNotOptimize(somme);
        sqlite3_finalize(instruction);
        sqlite3_close(db);
    }
}

void ouvrir(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    for (auto _ : etat)
        Base base;
}

/// The search form's own search: a text in the middle of the names, and one that nothing holds.
void chercher(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const QString texte = etat.range(1) == 0 ? QStringLiteral("é") : QStringLiteral("zzz");
    for (auto _ : etat)
        benchmark::DoNotOptimize(
            Rechercher::Chercher(General::Tri::Albums, texte, Rechercher::Mode::Partout).size());
}

/// All albums into a file, with the columns that are proposed.
void lister(benchmark::State &etat)
{
    const Terrain terrain(100'000);
    const QString chemin = terrain.chemin + QStringLiteral("/liste");
    std::vector<Listage::Colonne> colonnes = Listage::ColonnesDe(General::Tri::Albums);
    std::erase_if(colonnes, [](const Listage::Colonne &c) { return !c.dOffice; });
    const auto ecrire = etat.range(0) == 0 ? Sorties::EcrireCsv
        : etat.range(0) == 1               ? Sorties::EcrireHtml
                                           : Sorties::EcrireTexte;
    for (auto _ : etat)
        ecrire(chemin, Listage::DesEntrees(General::Tri::Albums, colonnes), {});
}

/// The line that narrows the main list: its first letter on a list just read, then one letter more.
void filtrer(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const Entrees entrees = General::LireListe(General::Tri::Albums);
    ListeEntrees liste;
    liste.remplir(General::Tri::Albums, entrees);
    for (auto _ : etat) {
        if (etat.range(1) == 0) {
            etat.PauseTiming();
            liste.filtrer({});
            liste.remplir(General::Tri::Albums, entrees);
            etat.ResumeTiming();
            liste.filtrer(QStringLiteral("e"));
        } else {
            etat.PauseTiming();
            liste.filtrer(QStringLiteral("e"));
            etat.ResumeTiming();
            liste.filtrer(QStringLiteral("el"));
        }
    }
}

/// The statistics page, cleaning included, and the least that it must do: its six counts.
void statistiques(benchmark::State &etat)
{
    const Terrain terrain(100'000);
    for (auto _ : etat) {
        if (etat.range(0) == 1) {
            benchmark::DoNotOptimize(Statistiques::Calculer().size());
            continue;
        }
        Base base;
        for (const char *sql : {"SELECT NSerie, count(*) From SerieAlbums group by NSerie",
                 "SELECT NAuteur, count(*) From AuteursAlbums where Dessin = -1 group by NAuteur",
                 "SELECT NAuteur, count(*) From AuteursAlbums where Scena = -1 group by NAuteur",
                 "SELECT NGenre, count(*) From GenreAlbums group by NGenre",
                 "SELECT NEdit, count(*) From EditeurAlbums group by NEdit",
                 "SELECT NColl, count(*) From CollAlbums group by NColl"}) {
            for (auto rs = base.read(QLatin1String(sql)); !rs.AtEnd(); rs.MoveNext())
                benchmark::DoNotOptimize(rs.Int64(1));
        }
    }
}

/// A quarter turn of a picture of 12 million points, and the least that it must do: a copy of it.
void tourner(benchmark::State &etat)
{
    QImage image(4000, 3000, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (auto _ : etat) {
        if (etat.range(0) == 0)
            benchmark::DoNotOptimize(image.copy().constBits());
        else
            benchmark::DoNotOptimize(Scan::Tourner(image, Scan::QuartDeTour).constBits());
    }
}

void remplirListe(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const auto tri = General::TriDe(static_cast<int>(etat.range(1)));
    int lignes = 0;
    for (auto _ : etat)
        lignes = General::LireListe(tri).size();
    etat.counters["lignes"] = lignes;
}

void albumsDUnEditeur(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    int lignes = 0;
    for (auto _ : etat)
        lignes = General::LireAlbums(General::Tri::Editeurs, 1).size();
    etat.counters["lignes"] = lignes;
}

void chargerFiche(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const auto albums = static_cast<int>(etat.range(0));
    int num = 0;
    for (auto _ : etat) {
        num = (num + 7919) % albums / 10 * 10 + 10; // one with quotes and contributors, far from the last
        benchmark::DoNotOptimize(ChargerAlbums::AfficherAlbum(std::min(num, albums)));
    }
}

void chargerFicheDe(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const auto tri = General::TriDe(static_cast<int>(etat.range(1)));
    for (auto _ : etat) {
        benchmark::DoNotOptimize(Fiche::Lire(General::ListeDe(tri).feuille, 1));
        if (tri >= General::Tri::Dessinateurs && tri <= General::Tri::Coloristes)
            benchmark::DoNotOptimize(ChargerAuteurs::LireMetiers(1, tri).titre);
    }
}

void mettreANiveau(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    for (auto _ : etat)
        MiseANiveau::Executer();
}

void totaux(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    for (auto _ : etat)
        benchmark::DoNotOptimize(General::LireTotaux());
}

/// What a start does to its application folder: when nothing new was shipped, and when it is gone through.
void preparer(benchmark::State &etat)
{
    const QTemporaryDir lieu;
    const Dossier dossier(lieu.filePath(QStringLiteral("bulleo")), Dossier::Livre());
    Livraison::Preparer();
    for (auto _ : etat) {
        if (etat.range(0) == 1)
            QFile::remove(dossier.racine() + QStringLiteral("/.bulleo.livre"));
        Livraison::Preparer();
    }
}

/// A file of so many albums: series of ten, two thousand authors, the other columns as lists have them.
void ecrireAlbums(const QString &chemin, int albums)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly))
        qFatal("%s", qPrintable(fichier.errorString()));
    fichier.write("Titre,Tome,Série,Date de "
                  "parution,Éditeur,Broché,Couleur,Genre,Dessinateur,Scénariste,Résumé,Prix\n");
    for (int i = 0; i < albums; ++i)
        fichier.write(
            QStringLiteral("L'album %1,%2,La série %3,%4,Éditeur %5,non,oui,Genre %6,Auteur %7,Auteur %8,"
                           "\"Où l'on voit, une fois de plus, le héros %1.\",12.50\n")
                .arg(i)
                .arg(i % 10 + 1)
                .arg(i / 10)
                .arg(1950 + i % 70)
                .arg(i % 50)
                .arg(i % 20)
                .arg(i % 2000)
                .arg(i * 7 % 2000)
                .toUtf8());
}

/// An import into an empty collection with what undo keeps of it, and with 1 its way back, too.
void importer(benchmark::State &etat)
{
    const QTemporaryDir lieu;
    const QString albums = lieu.filePath(QStringLiteral("albums.csv"));
    ecrireAlbums(albums, static_cast<int>(etat.range(0)));
    for (auto _ : etat) {
        etat.PauseTiming();
        const Dossier dossier(lieu.filePath(QStringLiteral("bulleo")), Dossier::Livre());
        const Reglages reglages(lieu.filePath(QStringLiteral("reglages")));
        const Traduction traduction;
        Annonces annonces;
        QDir(dossier.racine()).removeRecursively();
        Livraison::Preparer();
        Historique histoire(annonces);
        etat.ResumeTiming();
        Importer::ImporterAlbums(
            albums, Importer::Proposer(Importer::Lire(albums).entete), Importer::Doublons::Prendre);
        if (etat.range(1) == 1)
            histoire.annuler();
    }
}

/// A copy of the terrain's collection, which a measure may change.
struct Copie
{
    explicit Copie(const Terrain &terrain)
        : dossier(terrain.chemin + QStringLiteral("/copie-XXXXXX"))
        , fichier(dossier.filePath(QStringLiteral("bd.mdb")))
    {
        QFile::copy(terrain.dossier.collection(), fichier);
    }
    QTemporaryDir dossier;
    QString fichier;
};

/// The floor of a creation: the commits that it must make, each with its fsync. The same eight rows go into the
/// same tables by statements prepared once, on a connection that stays open, with nothing looked up.
void validationsNues(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const Copie copie(terrain);
    sqlite3 *db = nullptr;
    sqlite3_open_v2(
        copie.fichier.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    void *collateur = Comparaison::creer();
    sqlite3_create_collation_v2(
        db, "FRANCAIS", SQLITE_UTF8, collateur, Comparaison::comparer, Comparaison::detruire);
    sqlite3_exec(db, "PRAGMA locking_mode=EXCLUSIVE", nullptr, nullptr, nullptr);
    std::vector<sqlite3_stmt *> lignes;
    for (const char *sql :
        {"INSERT INTO GenreAlbums VALUES (1, ?)", "INSERT INTO EditeurAlbums VALUES (1, ?)",
            "INSERT INTO SerieAlbums(NSerie, NAlbum) VALUES (1, ?)",
            "INSERT INTO AuteursAlbums VALUES (1, ?, -1, 0, 0)",
            "INSERT INTO AuteursAlbums VALUES (2, ?, 0, -1, 0)",
            "INSERT INTO AuteursAlbums VALUES (3, ?, 0, 0, -1)",
            "INSERT INTO Album(Num, NAlbum, NumSerie, PrixA, Dateparu) VALUES (?, 7, 1, 12.5, 'mai 1931')",
            "INSERT INTO LAlbums(NAlbum, TAlbum) VALUES (?, 'Un album de plus')"}) {
        lignes.emplace_back();
        sqlite3_prepare_v2(db, sql, -1, &lignes.back(), nullptr);
    }
    int num = static_cast<int>(etat.range(0));
    for (auto _ : etat) {
        ++num;
        for (sqlite3_stmt *ligne : lignes) {
            sqlite3_bind_int(ligne, 1, num);
            sqlite3_step(ligne);
            sqlite3_reset(ligne);
        }
    }
    for (sqlite3_stmt *ligne : lignes)
        sqlite3_finalize(ligne);
    sqlite3_close(db);
}

/// An album whose names are all known: its row, its list row, and a link row for each of genre, publisher, series
/// and three authors. It works on a copy, which grows.
void creer(benchmark::State &etat)
{
    const Terrain terrain(static_cast<int>(etat.range(0)));
    const Copie copie(terrain);
    const Dossier dossier(copie.dossier.path(), Dossier::Livre());
    const Entrees auteurs = General::LireListe(General::Tri::Dessinateurs);
    const Album album{{Rubrique::Titre, QStringLiteral("Un album de plus")},
        {Rubrique::Tome, QStringLiteral("7")}, {Rubrique::Serie, General::LireTexte(General::Tri::Series, 1)},
        {Rubrique::Editeur, General::LireTexte(General::Tri::Editeurs, 1)},
        {Rubrique::Genre, AccesBase::LireNoms(QStringLiteral("Genre")).first()},
        {Rubrique::Dessin, auteurs.texte(0)}, {Rubrique::Scena, auteurs.texte(1)},
        {Rubrique::Color, auteurs.texte(2)}};
    Creer::CreerAlbum(album); // the authors now have the roles that they lacked
    for (auto _ : etat)
        Creer::CreerAlbum(album);
}

void tailles(benchmark::internal::Benchmark *mesure)
{
    for (const int albums : {10'000, 100'000, 1'000'000})
        mesure->Arg(albums);
    mesure->Unit(benchmark::kMillisecond)->UseRealTime();
}

void taillesEtTris(benchmark::internal::Benchmark *mesure)
{
    for (const int albums : {10'000, 100'000, 1'000'000}) {
        for (int tri = 0; tri < General::NombreDeTris; ++tri)
            mesure->Args({albums, tri});
    }
    mesure->Unit(benchmark::kMillisecond)->UseRealTime();
}

}

BENCHMARK(parcoursNu)->Apply(tailles);
BENCHMARK(ouvrir)->Apply(tailles);
BENCHMARK(remplirListe)->Apply(taillesEtTris);
BENCHMARK(statistiques)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(lister)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(tourner)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(chercher)->Args({100'000, 0})->Args({100'000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(filtrer)->Args({100'000, 0})->Args({100'000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(albumsDUnEditeur)->Apply(tailles);
BENCHMARK(chargerFiche)->Apply(tailles);
BENCHMARK(chargerFicheDe)
    ->ArgsProduct({{100'000}, {1, 2, 5, 6, 7, 8}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(mettreANiveau)->Apply(tailles);
BENCHMARK(preparer)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(importer)
    ->ArgsProduct({{10'000, 100'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();
BENCHMARK(totaux)->Apply(tailles);
BENCHMARK(validationsNues)->Arg(100)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(creer)->Arg(100)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
