#include "acts/Importer.h"
#include "db/Base.h"
#include "db/files/Moteur.h"
#include "db/files/Remplacement.h"
#include "db/files/Sauvegardes.h"
#include "db/files/Verification.h"
#include "support/Bac.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QTextStream>
#include <SQLiteCpp/Database.h>

namespace {

constexpr int Coupures = 50;
constexpr int DureeMs = 150; ///< of endless work, within which it is killed

/// A collection of rows with one text, larger than what one write of the engine puts down.
QByteArray remplie(const QString &texte)
{
    const Bac bac;
    Bac::executer(
        "INSERT INTO Auteurs (NAuteur, Commentaire)"
        " WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 100) SELECT i, ? FROM n",
        {texte.leftJustified(4000)});
    return Bac::lire(bac.collection());
}

/// Runs this program at a work on a folder and kills it so many ms after it has begun, if it is still at it.
/// Returns how long it was let run, or nothing when it had ended.
std::optional<qint64> couper(const QString &travail, const Bac &bac, int delai, int tour = 0)
{
    QProcess enfant;
    enfant.start(QCoreApplication::applicationFilePath(), {travail, bac.chemin(), QString::number(tour)});
    if (!enfant.waitForReadyRead(30'000))
        qFatal("%s", enfant.readAllStandardError().constData());
    QElapsedTimer chrono;
    chrono.start();
    enfant.waitForFinished(delai);
    const qint64 duree = chrono.elapsed();
    enfant.kill();
    enfant.waitForFinished(30'000);
    return enfant.exitStatus() == QProcess::CrashExit ? std::nullopt : std::optional(duree);
}

/// The file is sound, and no copy of the half of a write.
bool estEntiere(const QString &copie)
{
    return Verification::Verifier(copie).isEmpty()
        && Moteur::Ouvrir(copie)->execAndGet("SELECT count(DISTINCT Commentaire) FROM Auteurs").getInt() == 1;
}

bool sontEntieres(const QList<Sauvegardes::Sauvegarde> &copies)
{
    return std::all_of(
        copies.begin(), copies.end(), [](const auto &copie) { return estEntiere(copie.chemin); });
}

}

/// A process that is at work on the collection is killed at any moment: what it leaves is sound, and as before
/// or as after.
class tst_coupures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneSauvegardeCoupee()
    {
        Bac bac;
        Bac::ecrire(bac.collection(), remplie("0"));
        QRandomGenerator hasard(1);
        for (int tour = 0; tour < Coupures; ++tour) {
            QVERIFY(!couper("sauver", bac, hasard.bounded(DureeMs), tour));
            QCOMPARE(Verification::Verifier(), "");
            QVERIFY(estEntiere(bac.collection()));
            QVERIFY(sontEntieres(Sauvegardes::Lister()));
        }
        QVERIFY(!Sauvegardes::Lister().isEmpty());
        // The next copy clears what the dead left; of fifty days few copies are kept.
        bac.annonces.sauvegardes.maintenant = [] { return QDateTime({2026, 12, 1}, {8, 0}); };
        Bac::agir("UPDATE Auteurs SET Nom = 'fin'");
        const QStringList restes = QDir(bac.chemin("sauvegardes")).entryList(QDir::Files);
        QCOMPARE(restes.filter(".tmp"), QStringList());
        QVERIFY2(restes.size() < 30, qPrintable(restes.join(u'\n')));
    }

    /// In every second round the collection to be replaced is damaged.
    void uneRestaurationCoupee()
    {
        const Bac bac;
        Bac::ecrire(bac.chemin("a.bd"), remplie("a"));
        Bac::ecrire(bac.chemin("b.bd"), remplie("b"));
        const QByteArray abimee
            = Bac::lire(bac.chemin("a.bd")).replace(4096, 40'000, QByteArray(40'000, '\x5A'));
        QRandomGenerator hasard(2);
        for (int tour = 0; tour < Coupures; ++tour) {
            const bool saine = tour % 2 == 0;
            Bac::ecrire(bac.collection(), saine ? Bac::lire(bac.chemin("b.bd")) : abimee);
            QVERIFY(!couper("restaurer", bac, hasard.bounded(DureeMs)));
            const bool enPlace = Bac::lire(bac.collection()) == abimee;
            const QStringList deCote = QDir(bac.chemin()).entryList({"bd abîmée *.mdb"});
            QVERIFY(saine || enPlace || deCote.size() == 1);
            for (const QString &nom : deCote)
                QVERIFY(Bac::lire(bac.chemin(nom)) == abimee && QFile::remove(bac.chemin(nom)));
            QVERIFY(enPlace || (Verification::Verifier().isEmpty() && estEntiere(bac.collection())));
            QVERIFY(sontEntieres(Sauvegardes::Lister()));
            QDir(bac.chemin("sauvegardes")).removeRecursively();
        }
    }

    void uneImportationCoupee()
    {
        const Bac bac;
        const QByteArray octets = remplie("a");
        Bac::ecrire(bac.collection(), octets);
        QByteArray albums = "Titre;Tome;Série;Dessinateur;Résumé\n";
        for (int i = 0; i < 60; ++i)
            albums += "L'album " + QByteArray::number(i) + ";1;Zig;Cham;" + QByteArray(4000, 'x') + '\n';
        Bac::ecrire(bac.chemin("albums.csv"), albums);
        const QStringList avant = Bac::toutLire();
        const auto duree = couper("importer", bac, 60'000);
        const QStringList apres = Bac::toutLire();
        QVERIFY(duree && Bac::valeur("SELECT count(*) FROM Album") == 60);
        QRandomGenerator hasard(3);
        int coupees = 0;
        for (int tour = 0; tour < Coupures; ++tour) {
            Bac::ecrire(bac.collection(), octets);
            coupees += couper("importer", bac, hasard.bounded(static_cast<int>(*duree) + 1)) ? 0 : 1;
            QCOMPARE(Verification::Verifier(), "");
            const QStringList trouvee = Bac::toutLire();
            QVERIFY(trouvee == avant || trouvee == apres);
        }
        QVERIFY2(coupees > Coupures / 4, qPrintable(QString::number(coupees)));
    }
};

namespace {

/// A write an hour, on a day of its own.
void sauverSansFin(Annonces &annonces, int jour)
{
    QDateTime heure = QDateTime({2026, 10, 1}, {8, 0}).addDays(jour);
    annonces.sauvegardes.maintenant = [&heure] { return heure; };
    for (int i = 1;; ++i, heure = heure.addSecs(3600))
        Bac::agir("UPDATE Auteurs SET Commentaire = ?",
            {QStringLiteral("%1 %2").arg(jour).arg(i).leftJustified(4000)});
}

int travailler(const QString &travail, const QString &chemin, int tour)
{
    const Dossier dossier(chemin, {});
    const Reglages reglages(chemin + "/reglages.ini");
    const Traduction traduction;
    Annonces annonces;
    QTextStream(stdout) << "pret\n" << Qt::flush;
    using namespace Importer;
    if (travail == "sauver")
        sauverSansFin(annonces, tour);
    if (travail == "importer")
        ImporterAlbums(
            chemin + "/albums.csv", Proposer(Lire(chemin + "/albums.csv").entete), Doublons::Prendre);
    while (travail == "restaurer")
        Remplacement::Restaurer(chemin + (tour++ % 2 == 0 ? "/a.bd" : "/b.bd"));
    return 0;
}

}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (QStringList({"sauver", "restaurer", "importer"}).contains(arguments.value(1)))
        return travailler(arguments[1], arguments[2], arguments[3].toInt());
    tst_coupures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_coupures.moc"
