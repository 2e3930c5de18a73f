#include "db/Base.h"
#include "db/Comparaison.h"
#include "db/Connexion.h"
#include "db/files/MiseANiveau.h"
#include "db/files/Verification.h"
#include "db/schema/Version.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QtEndian>
#include <sqlite3.h>
#include <unistd.h>

namespace {

QByteArray vierge()
{
    return Bac::lire(Bac::livre() + "/Base vierge.bd");
}

QByteArray avecApplication(QByteArray octets, quint32 nature)
{
    qToBigEndian(nature, octets.data() + 68);
    return octets;
}

/// The collation's name with the reverse of any sensible order, as an older ICU might have sorted.
int comparerALEnvers(void *, int la, const void *a, int lb, const void *b)
{
    return QByteArray(static_cast<const char *>(b), lb).compare(QByteArray(static_cast<const char *>(a), la));
}

/// A write that was begun, reached the file in part, and never ended.
void laisserEnSuspens(const QString &fichier)
{
    QByteArray entamee;
    QByteArray journal;
    {
        Autre autre(fichier);
        autre.executer("PRAGMA cache_size = 2; BEGIN; UPDATE Genre SET Nom = 'perdu';"
                       "INSERT INTO Pays WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n"
                       " LIMIT 500) SELECT i, printf('%0100d', i) FROM n");
        entamee = Bac::lire(fichier);
        journal = Bac::lire(fichier + "-journal");
    }
    QVERIFY(entamee != Bac::lire(fichier) && !journal.isEmpty());
    Bac::ecrire(fichier, entamee);
    Bac::ecrire(fichier + "-journal", journal);
}

}

class tst_base : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesOuverturesImbriqueesPartagentEtLaDerniereFerme()
    {
        const Bac bac;
        const QStringList entrees = QDir(bac.chemin()).entryList();
        {
            Base externe;
            QCOMPARE(Autre::essayer(bac.collection()), SQLITE_BUSY);
            {
                Base interne;
                interne.Execute("INSERT INTO Genre VALUES (1, 'Humour')");
                QCOMPARE(externe.OpenRecordset("SELECT Nom FROM Genre").Fields(0), "Humour");
            }
            QCOMPARE(Autre::essayer(bac.collection()), SQLITE_BUSY);
        }
        {
            // A walk keeps its base open, where it goes, too.
            auto rs = Base().edit("Genre");
            Recordset autre = std::move(rs);
            QCOMPARE(Autre::essayer(bac.collection()), SQLITE_BUSY);
            QCOMPARE(autre.Fields("Nom"), "Humour");
        }
        QCOMPARE(QDir(bac.chemin()).entryList(), entrees);
        QCOMPARE(Autre::essayer(bac.collection()), SQLITE_OK);
    }

    void unFichierTenuAilleursEstEnUsageJusquAuNouvelEssai()
    {
        Bac bac;
        auto teneur = std::make_unique<Autre>(bac.collection());
        teneur->executer("BEGIN EXCLUSIVE");
        QElapsedTimer temps;
        temps.start();
        QVERIFY(refus([] { Base(); }) == Error::Sorte::EnUsage);
        QVERIFY2(temps.elapsed() < 1500, qPrintable(QString::number(temps.elapsed())));

        int questions = 0;
        bac.annonces.reessayer = [&](const Error &) { return ++questions < 2; };
        QVERIFY(refus([] { Base(); }) == Error::Sorte::Abandonnee);
        QCOMPARE(questions, 2);

        bac.annonces.reessayer = [&](const Error &) {
            teneur.reset();
            return ++questions < 10;
        };
        Bac::executer("INSERT INTO Genre VALUES (1, 'Humour')");
        QCOMPARE(questions, 3);

        // Only a file in use is worth another try.
        QVERIFY(QFile::remove(bac.collection()));
        QVERIFY(refus([] { Base(); }) == Error::Sorte::Introuvable);
        QVERIFY(!QFile::exists(bac.collection()));
        QCOMPARE(questions, 3);
    }

    void unFichierEtrangerResteIntact_data()
    {
        const Colonnes<QByteArray, Error::Sorte> cas;
        using enum Error::Sorte;
        const QByteArray access = QByteArray("\0\1\0\0Standard Jet DB\0", 20);
        cas("vide", {}, Etrangere);
        cas("texte", QByteArray("Ceci n'est pas une base.\n").repeated(50), Etrangere);
        cas("autre base", avecApplication(vierge(), 0), Etrangere);
        cas("en-tete seul", vierge().left(100), Abimee);
        cas("dernier octet perdu", vierge().chopped(1), Abimee);
        cas("ancien format", access + QByteArray(4096, '\0'), Ancienne);
    }

    void unFichierEtrangerResteIntact()
    {
        const auto [octets, sorte] = essai<QByteArray, Error::Sorte>();
        const Bac bac;
        Bac::ecrire(bac.collection(), octets);
        const QStringList entrees = QDir(bac.chemin()).entryList();
        QVERIFY(refus([] { Base(); }) == sorte);
        MiseANiveau::Executer();
        QVERIFY(Bac::lire(bac.collection()) == octets);
        QCOMPARE(QDir(bac.chemin()).entryList(), entrees);
    }

    /// The header is whole, the rest is not: found only on reading, and nothing is made worse.
    void desPagesAbimeesSontDites()
    {
        const Bac bac;
        QByteArray octets = vierge();
        octets.replace(4096, octets.size() - 4096, QByteArray(octets.size() - 4096, '\x5A'));
        Bac::ecrire(bac.collection(), octets);
        QVERIFY(refus([] { Bac::valeur("SELECT * From Genre"); }) == Error::Sorte::Abimee);
        QVERIFY(refus([] { Bac::executer("INSERT INTO Genre VALUES (1, 'x')"); }) == Error::Sorte::Abimee);
        QVERIFY(Bac::lire(bac.collection()) == octets);
    }

    void unFichierEnLectureSeuleSeLit_data()
    {
        // what is done to it before
        const Colonnes<QString> cas;
        cas("a jour", "");
        cas("d'un autre collateur", "PRAGMA user_version = 2");
        cas("d'un palier plus bas", "DROP TRIGGER CleTomeLien; PRAGMA user_version = 1");
        cas("ecriture en suspens", "-");
    }

    void unFichierEnLectureSeuleSeLit()
    {
        const auto [avant] = essai<QString>();
        const Bac bac;
        Bac::executer("INSERT INTO Genre VALUES (1, 'Écume'), (2, 'Zut')");
        if (avant == "-")
            laisserEnSuspens(bac.collection());
        else
            Autre(bac.collection()).executer(avant);
        for (const QString nom : {"..", ".", "bd.mdb", "bd.mdb-journal"})
            QFile::setPermissions(
                bac.chemin(nom), QFile::Permissions(nom.startsWith("bd") ? 0x4444 : 0x5555));
        const QByteArray octets = Bac::lire(bac.collection());
        // Root is not held back by what a file's mode forbids.
        const bool racine = geteuid() == 0;
        QVERIFY(!racine || setresuid(65534, 65534, 0) == 0);
        QVariant lu;
        const auto enLisant
            = refus([&] { lu = Bac::valeur("SELECT NGenre FROM Genre WHERE Nom = 'ÉCUME'"); });
        const auto enEcrivant = refus([] { Bac::executer("INSERT INTO Genre VALUES (3, 'x')"); });
        const auto enAgissant = refus([] { Bac::agir("INSERT INTO Genre VALUES (3, 'x')"); });
        bool seule = false;
        const auto enOuvrant = refus([&] { seule = Base().connexion().lectureSeule(); });
        const auto enJugeant = refus([&] { Verification::Verifier(bac.collection()); });
        QVERIFY(!racine || setresuid(0, 0, 0) == 0);
        QVERIFY(!enLisant && !enOuvrant && !enJugeant);
        QCOMPARE(lu, 1);
        QVERIFY(seule);
        QVERIFY(enEcrivant == Error::Sorte::LectureSeule && enAgissant == Error::Sorte::LectureSeule);
        QVERIFY(Bac::lire(bac.collection()) == octets);
        for (const QString nom : {"..", ".", "bd.mdb", "bd.mdb-journal"})
            QFile::setPermissions(bac.chemin(nom), QFile::Permissions(0x7777));
        Bac::executer("INSERT INTO Genre VALUES (4, 'x')");
    }

    /// A view that never ends, or a rule of somebody else, hangs or fools whoever opens the file.
    void ceQuiNEstPasDeNousNEstPasOuvert()
    {
        const QString sansFin = QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i FROM n)");
        for (const QString &sql :
            QStringList{"CREATE VIEW Autre AS " + sansFin + " SELECT i FROM n",
                "DROP TABLE LAlbums; CREATE VIEW LAlbums AS " + sansFin
                    + " SELECT i NAlbum, 'x' TAlbum FROM n",
                "CREATE TRIGGER Piege AFTER INSERT ON Genre BEGIN DELETE FROM Album; END",
                "DROP TRIGGER CleTomeLien; CREATE TRIGGER CleTomeLien AFTER INSERT ON Genre BEGIN DELETE FROM"
                " Album; END",
                QStringLiteral("CREATE VIRTUAL TABLE Autre USING fts5(x)")}) {
            const Bac bac;
            Autre(bac.collection()).executer(sql);
            QVERIFY2(refus([] { Base(); }) == Error::Sorte::Etrangere, qPrintable(sql));
            QVERIFY2(refus([&] { Verification::Verifier(bac.collection()); }) == Error::Sorte::Etrangere,
                qPrintable(sql));
        }
    }

    void uneLectureSansFinSArrete()
    {
        Bac bac;
        const QString sansFin = QStringLiteral(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i FROM n) SELECT max(i) FROM n");
        int questions = 0;
        bool occupee = false;
        bac.annonces.patience.delai = std::chrono::milliseconds(20);
        bac.annonces.patience.continuer = [&] {
            occupee = refus([] { Bac::valeur("SELECT 1"); }) == Error::Sorte::EnUsage;
            return ++questions < 2;
        };
        QVERIFY(refus([&] { Bac::valeur(sansFin); }).has_value());
        QCOMPARE(questions, 2);
        QVERIFY(occupee);
        QCOMPARE(Bac::valeur("SELECT 1"), 1);
    }

    void unAutreCollateurRefaitLesIndex()
    {
        const Bac bac;
        {
            Autre autre(bac.collection());
            sqlite3_create_collation(autre.db(), "FRANCAIS", SQLITE_UTF8, nullptr, comparerALEnvers);
            autre.executer("INSERT INTO Genre VALUES (1, 'Edgar'), (2, 'Écume'), (3, 'Echo');"
                           "PRAGMA user_version = 1");
        }
        QStringList noms;
        for (auto rs = Base().OpenRecordset("SELECT Nom FROM Genre ORDER BY Nom"); !rs.AtEnd(); rs.MoveNext())
            noms << rs.Fields(0).toString();
        QCOMPARE(noms, QStringList({"Echo", "Écume", "Edgar"}));
        QCOMPARE(Bac::valeur("SELECT NGenre FROM Genre WHERE Nom = 'ECHO'"), 3);
        QCOMPARE(Bac::valeur("PRAGMA integrity_check"), "ok");
        QCOMPARE(Bac::valeur("PRAGMA user_version"),
            Version::Composer(Comparaison::version(), Version::PremierPalier));
    }
};

QTEST_GUILESS_MAIN(tst_base)
#include "tst_base.moc"
