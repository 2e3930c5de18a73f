#include "db/Base.h"
#include "db/Moteur.h"
#include "db/Remplacement.h"
#include "db/Sauvegardes.h"
#include "db/Transaction.h"
#include "db/Verification.h"
#include "entry/ImporterAlbums.h"
#include "support/Bac.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QTextStream>
#include <SQLiteCpp/Database.h>

/// A process that is at work on the collection is killed at any moment: what it leaves is sound, and as before
/// or as after.
class tst_coupures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneCoupureDansUneSauvegarde();
    void uneCoupureDansUneRestauration();
    void uneCoupureDansUneImportation();
};

namespace {

constexpr int Coupures = 50;
constexpr int DureeMs = 150; ///< of the work in which an endless one is killed

/// Rows enough to make the file larger than what one write of the engine puts down.
void remplir(const QString &texte)
{
    const Base base;
    Transaction transaction(base);
    for (int i = 1; i <= 100; ++i)
        base.Execute(
            "INSERT INTO Auteurs (NAuteur, Commentaire) VALUES (?, ?)", {i, texte.leftJustified(4000)});
    transaction.Commit();
}

QByteArray remplie(const QString &texte)
{
    const Bac bac;
    remplir(texte);
    return Bac::lire(bac.collection());
}

/// Starts this program in another part and kills it within so many ms after it has begun. True when it was still
/// at it.
bool couper(const QStringList &arguments, QRandomGenerator &hasard, int duree)
{
    QProcess enfant;
    enfant.start(QCoreApplication::applicationFilePath(), arguments);
    if (!enfant.waitForReadyRead(30'000))
        qFatal("%s", enfant.readAllStandardError().constData());
    enfant.waitForFinished(hasard.bounded(duree + 1));
    enfant.kill();
    enfant.waitForFinished(30'000);
    return enfant.exitStatus() == QProcess::CrashExit;
}

/// Duration of the whole work in ms.
int mesurer(const QStringList &arguments)
{
    QProcess enfant;
    enfant.start(QCoreApplication::applicationFilePath(), arguments);
    if (!enfant.waitForReadyRead(30'000))
        qFatal("%s", enfant.readAllStandardError().constData());
    QElapsedTimer chrono;
    chrono.start();
    if (!enfant.waitForFinished(60'000) || enfant.exitCode() != 0)
        qFatal("%s", enfant.readAllStandardError().constData());
    return static_cast<int>(chrono.elapsed());
}

/// All authors of a copy bear one text: it was not made in the middle of a write.
bool estEntiere(const QString &copie)
{
    const QString sql = "SELECT count(DISTINCT Commentaire) FROM Auteurs";
    return Verification::Verifier(copie).isEmpty()
        && Moteur::Ouvrir(copie)->execAndGet(sql.toStdString()).getInt() == 1;
}

}

void tst_coupures::uneCoupureDansUneSauvegarde()
{
    Bac bac;
    remplir("0");
    QRandomGenerator hasard(1);
    for (int tour = 0; tour < Coupures; ++tour) {
        QVERIFY(couper({"sauver", bac.chemin(), QString::number(tour)}, hasard, DureeMs));
        QCOMPARE(Verification::Verifier(), "");
        QCOMPARE(Bac::valeur("SELECT count(DISTINCT Commentaire) FROM Auteurs"), 1);
        const auto copies = Sauvegardes::Lister();
        for (const auto &copie : copies.first(std::min<qsizetype>(copies.size(), 3)))
            QVERIFY2(estEntiere(copie.chemin), qPrintable(copie.chemin));
    }
    // The next copy clears what the dead left; of 50 days with many copies few are kept.
    bac.collectionCourante.sauvegardes.derniere = {};
    bac.collectionCourante.sauvegardes.maintenant = [] { return QDateTime({2026, 12, 1}, {8, 0}); };
    Bac::executer("UPDATE Auteurs SET Nom = 'fin'");
    const QStringList restes = QDir(bac.chemin("sauvegardes")).entryList(QDir::Files);
    QCOMPARE(restes.filter(".tmp"), QStringList());
    QCOMPARE(Bac::lire(bac.chemin("sauvegardes/liste.txt")).count('\n'), Sauvegardes::Lister().size());
    QVERIFY2(restes.size() < 30, qPrintable(restes.join(u'\n')));
}

/// In every second round the collection to be replaced is damaged.
void tst_coupures::uneCoupureDansUneRestauration()
{
    const Bac bac;
    Bac::ecrire(bac.chemin("a.bd"), remplie("a"));
    Bac::ecrire(bac.chemin("b.bd"), remplie("b"));
    const QByteArray abimee = Bac::lire(bac.chemin("a.bd")).replace(4096, 40'000, QByteArray(40'000, '\x5A'));
    QRandomGenerator hasard(2);
    for (int tour = 0; tour < Coupures; ++tour) {
        const bool saine = tour % 2 == 0;
        Bac::ecrire(bac.collection(), saine ? Bac::lire(bac.chemin("b.bd")) : abimee);
        QVERIFY(couper({"restaurer", bac.chemin(), "0"}, hasard, DureeMs));
        const bool enPlace = Bac::lire(bac.collection()) == abimee;
        const QStringList deCote = QDir(bac.chemin()).entryList({"bd abîmée *.mdb"});
        QVERIFY(saine || enPlace || deCote.size() == 1);
        for (const QString &nom : deCote) {
            QVERIFY(Bac::lire(bac.chemin(nom)) == abimee);
            QVERIFY(QFile::remove(bac.chemin(nom)));
        }
        QVERIFY(enPlace || Verification::Verifier().isEmpty());
        QVERIFY(enPlace || estEntiere(bac.collection()));
        const auto copies = Sauvegardes::Lister();
        for (const auto &copie : copies)
            QVERIFY2(estEntiere(copie.chemin), qPrintable(copie.chemin));
        QDir(bac.chemin("sauvegardes")).removeRecursively();
    }
}

void tst_coupures::uneCoupureDansUneImportation()
{
    const Bac bac;
    remplir("a");
    QByteArray albums = "Titre;Tome;Série;Dessinateur;Résumé\n";
    for (int i = 0; i < 60; ++i)
        albums += "L'album " + QByteArray::number(i) + ";1;Zig;Cham;" + QByteArray(4000, 'x') + '\n';
    Bac::ecrire(bac.chemin("albums.csv"), albums);
    const QByteArray octets = Bac::lire(bac.collection());
    const QStringList avant = Bac::toutLire();
    const int duree = mesurer({"importer", bac.chemin(), "0"});
    const QStringList apres = Bac::toutLire();
    QCOMPARE(Bac::valeur("SELECT count(*) FROM Album"), 60);
    QRandomGenerator hasard(3);
    int coupees = 0;
    for (int tour = 0; tour < Coupures; ++tour) {
        Bac::ecrire(bac.collection(), octets);
        coupees += couper({"importer", bac.chemin(), "0"}, hasard, duree) ? 1 : 0;
        QCOMPARE(Verification::Verifier(), "");
        const QStringList trouvee = Bac::toutLire();
        QVERIFY(trouvee == avant || trouvee == apres);
    }
    QVERIFY2(coupees > Coupures / 4, qPrintable(QString::number(coupees)));
}

namespace {

/// A write an hour, on a day of its own.
void sauverSansFin(Collection &collection, int jour)
{
    QDateTime heure = QDateTime({2026, 10, 1}, {8, 0}).addDays(jour);
    collection.sauvegardes.maintenant = [&heure] { return heure; };
    for (int i = 1;; ++i, heure = heure.addSecs(3600)) {
        const Base base;
        Transaction transaction(base);
        for (auto rs = base.OpenRecordset("SELECT * From Auteurs"); !rs.AtEnd(); rs.MoveNext()) {
            rs.Edit();
            rs.SetField("Commentaire", QStringLiteral("%1 %2").arg(jour).arg(i).leftJustified(4000));
            rs.Update();
        }
        transaction.Commit();
    }
}

int travailler(const QString &travail, const QString &chemin, int tour)
{
    const Dossier dossier(chemin, {});
    const Reglages reglages(chemin + "/reglages.ini");
    const Traduction traduction;
    Collection collection;
    QTextStream(stdout) << "pret\n" << Qt::flush;
    if (travail == "sauver")
        sauverSansFin(collection, tour);
    const QString albums = chemin + "/albums.csv";
    if (travail == "importer")
        ImporterAlbums::Importer(albums, ImporterAlbums::Proposer(ImporterAlbums::Lire(albums).entete),
            ImporterAlbums::Doublons::Prendre);
    while (travail == "restaurer") {
        for (const char *nom : {"/a.bd", "/b.bd"})
            Remplacement::Restaurer(chemin + nom);
    }
    return 0;
}

}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 4 && QStringList({"sauver", "restaurer", "importer"}).contains(arguments[1]))
        return travailler(arguments[1], arguments[2], arguments[3].toInt());
    tst_coupures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_coupures.moc"
