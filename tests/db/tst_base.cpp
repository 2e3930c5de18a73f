#include "db/Base.h"
#include "db/Comparaison.h"
#include "db/Transaction.h"
#include "db/files/MiseANiveau.h"
#include "db/schema/Version.h"
#include "support/Anonyme.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QTextStream>
#include <QtEndian>
#include <sqlite3.h>

namespace {

/// What this program does when it is started by its own tests as another process.
int roleDAutre(const QStringList &arguments);

/// SQLITE_OK when another process can take the file for itself, SQLITE_BUSY when it cannot even read it.
int essayer(const QString &fichier)
{
    return QProcess::execute(QCoreApplication::applicationFilePath(), {"essayer", fichier});
}

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
            QCOMPARE(essayer(bac.collection()), SQLITE_BUSY);
            {
                Base interne;
                interne.Execute("INSERT INTO Genre VALUES (1, 'Humour')");
                QCOMPARE(externe.OpenRecordset("SELECT Nom FROM Genre").Fields(0), "Humour");
            }
            QCOMPARE(essayer(bac.collection()), SQLITE_BUSY);
        }
        {
            // A walk keeps its base open, where it goes, too.
            auto rs = Base().edit("Genre");
            Recordset autre = std::move(rs);
            QCOMPARE(essayer(bac.collection()), SQLITE_BUSY);
            QCOMPARE(autre.Fields("Nom"), "Humour");
        }
        QCOMPARE(QDir(bac.chemin()).entryList(), entrees);
        QCOMPARE(essayer(bac.collection()), SQLITE_OK);
    }

    void unFichierTenuAilleursEstEnUsageJusquAuNouvelEssai()
    {
        Bac bac;
        QProcess teneur;
        teneur.start(QCoreApplication::applicationFilePath(), {"tenir", bac.collection()});
        QVERIFY(teneur.waitForReadyRead(30'000));
        QElapsedTimer temps;
        temps.start();
        QVERIFY(refus([] { Base(); }) == Error::Sorte::EnUsage);
        QVERIFY2(temps.elapsed() < 1500, qPrintable(QString::number(temps.elapsed())));

        int questions = 0;
        bac.annonces.reessayer = [&](const Error &) { return ++questions < 2; };
        QVERIFY(refus([] { Base(); }) == Error::Sorte::EnUsage);
        QCOMPARE(questions, 2);

        bac.annonces.reessayer = [&](const Error &) {
            teneur.closeWriteChannel();
            return ++questions < 10 && teneur.waitForFinished();
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
        colonnes<QByteArray, Error::Sorte>();
        using enum Error::Sorte;
        const QByteArray access = QByteArray("\0\1\0\0Standard Jet DB\0", 20);
        QTest::newRow("vide") << QByteArray() << Etrangere;
        QTest::newRow("texte") << QByteArray("Ceci n'est pas une base.\n").repeated(50) << Etrangere;
        QTest::newRow("autre base") << avecApplication(vierge(), 0) << Etrangere;
        QTest::newRow("en-tete coupe") << vierge().left(99) << Etrangere;
        QTest::newRow("en-tete seul") << vierge().left(100) << Abimee;
        QTest::newRow("coupe au milieu") << vierge().left(vierge().size() / 8192 * 4096) << Abimee;
        QTest::newRow("dernier octet perdu") << vierge().chopped(1) << Abimee;
        QTest::newRow("ancien format") << access + QByteArray(4096, '\0') << Ancienne;
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

    void unFichierEnLectureSeuleEstRefuse()
    {
        const Bac bac;
        const QByteArray avant = Bac::lire(bac.collection());
        Anonyme::donner(bac.chemin(".."));
        QVERIFY(QFile::setPermissions(bac.collection(), QFile::ReadOwner));
        {
            const Anonyme lui;
            QVERIFY(refus([] { Base(); }) == Error::Sorte::LectureSeule);
        }
        QVERIFY(Bac::lire(bac.collection()) == avant);
    }

    /// A process that rewrites all rows at a time, says when it has nearly done so and when it has, and is killed
    /// in turn at the one and at the other. The rows are more than the engine's cache holds, so that the file itself
    /// is half written by then.
    void uneMortBrutaleNePerdRien()
    {
        const Bac bac;
        for (int i = 1; i <= 200; ++i)
            Bac::executer("INSERT INTO Auteurs (NAuteur, Commentaire) VALUES (?, '0')", {i});
        qint64 dit = 0;
        for (int tour = 0; tour < 10; ++tour) {
            QProcess ecrivain;
            ecrivain.start(QCoreApplication::applicationFilePath(),
                {"ecrire", bac.collection(), QString::number(dit + 1)});
            const auto entendre = [&] {
                bool nombre = false;
                const qint64 ligne = ecrivain.readLine().trimmed().toLongLong(&nombre);
                dit = nombre ? ligne : dit;
            };
            for (int lignes = 0; lignes < 1 + tour; ++lignes) {
                QVERIFY(ecrivain.canReadLine() || ecrivain.waitForReadyRead(30'000));
                entendre();
            }
            ecrivain.kill();
            QVERIFY(ecrivain.waitForFinished(30'000));
            QCOMPARE(ecrivain.exitStatus(), QProcess::CrashExit);
            while (ecrivain.canReadLine())
                entendre();

            QCOMPARE(Bac::valeur("PRAGMA integrity_check"), "ok");
            QCOMPARE(Bac::valeur("SELECT count(DISTINCT Commentaire) FROM Auteurs"), 1);
            const qint64 garde = Bac::valeur("SELECT CAST(Commentaire AS INTEGER) FROM Auteurs").toLongLong();
            QVERIFY2(
                garde == dit || garde == dit + 1, qPrintable(QStringLiteral("%1 %2").arg(garde).arg(dit)));
            dit = garde;
        }
        // The journal of the dead goes with the first write after it.
        Bac::executer("DELETE FROM Auteurs WHERE NAuteur = 1");
        QVERIFY(!QFile::exists(bac.collection() + "-journal"));
    }

    void unAutreCollateurRefaitLesIndex()
    {
        const Bac bac;
        sqlite3 *db = nullptr;
        QCOMPARE(sqlite3_open(qPrintable(bac.collection()), &db), SQLITE_OK);
        sqlite3_create_collation(db, "FRANCAIS", SQLITE_UTF8, nullptr, comparerALEnvers);
        const int rc = sqlite3_exec(db,
            "INSERT INTO Genre VALUES (1, 'Edgar'), (2, 'Écume'), (3, 'Echo'); PRAGMA user_version = 1",
            nullptr, nullptr, nullptr);
        sqlite3_close(db);
        QCOMPARE(rc, SQLITE_OK);

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

namespace {

int prendre(const QString &fichier, bool garder)
{
    sqlite3 *db = nullptr;
    sqlite3_open(qPrintable(fichier), &db);
    int rc = sqlite3_exec(db, "SELECT * FROM sqlite_schema", nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK && sqlite3_exec(db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
        rc = SQLITE_LOCKED;
    if (garder) {
        QTextStream(stdout) << "tenu\n" << Qt::flush;
        QTextStream(stdin).readAll();
    }
    sqlite3_close(db);
    return rc;
}

int ecrireSansFin(const QString &fichier, qint64 debut)
{
    Annonces annonces;
    QTextStream sortie(stdout);
    for (qint64 i = debut;; ++i) {
        Base base(fichier, Entete::Nature::Collection);
        Transaction transaction(base);
        for (auto rs = base.edit("Auteurs"); !rs.AtEnd(); rs.MoveNext()) {
            rs.Edit();
            rs.SetField("Commentaire", QString::number(i).leftJustified(16'000));
            rs.Update();
            if (rs.Fields(0) == 180)
                sortie << "presque\n" << Qt::flush;
        }
        transaction.Commit();
        sortie << i << '\n' << Qt::flush;
    }
}

int roleDAutre(const QStringList &arguments)
{
    const QString role = arguments.value(1);
    const QString fichier = arguments.value(2);
    if (role == "tenir" || role == "essayer")
        return prendre(fichier, role == "tenir");
    return ecrireSansFin(fichier, arguments.value(3).toLongLong());
}

}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList roles{"tenir", "essayer", "ecrire"};
    if (roles.contains(application.arguments().value(1)))
        return roleDAutre(application.arguments());
    tst_base test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_base.moc"
