#include "db/Base.h"
#include "db/Journal.h"
#include "db/Sauvegardes.h"
#include "db/Transaction.h"
#include "db/Verification.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QDir>
#include <QTest>

class tst_sauvegardes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ceQuiAFaitSonTempsSEnVa_data();
    void ceQuiAFaitSonTempsSEnVa();
    void uneCopiePrecedeLaPremiereEcriturePuisUneParHeure();
    void ceQuiNEstPasDeLUtilisateurNeSeCopiePas();
    void laCopieEstLaBaseDAvantLEcriture_data();
    void laCopieEstLaBaseDAvantLEcriture();
    void uneCopieManqueeNArretePasLEcriture();
    void seulCeQueLeProgrammeAFaitEstDetruit();
    void laDerniereSaineEstTrouvee();
};

namespace {

const QString Depart = QStringLiteral("2026-11-21 18-05-12");

QDateTime instant(const QString &texte)
{
    return QDateTime::fromString(texte, "yyyy-MM-dd HH-mm-ss");
}

/// A collection that holds something, and a clock that stands.
struct Etabli
{
    Etabli()
    {
        Bac::executer("INSERT INTO Genre VALUES (1, 'un')");
        bac.collectionCourante.sauvegardes.derniere = {};
        bac.collectionCourante.sauvegardes.maintenant = [this] { return heure; };
    }
    QStringList copies() const
    {
        return QDir(bac.chemin("sauvegardes")).entryList({"*.bd"}, QDir::Files, QDir::Name);
    }
    void avancer(qint64 secondes) { heure = heure.addSecs(secondes); }
    static void ecrire() { Bac::executer("UPDATE Genre SET Nom = Nom || '.'"); }

    Bac bac;
    QDateTime heure = instant(Depart);
};

/// The genres of a copy, read as the collection of another folder.
QString genres(const QString &copie)
{
    const Bac autre;
    Bac::ecrire(autre.collection(), Bac::lire(copie));
    return Bac::valeur("SELECT group_concat(Nom) FROM Genre").toString();
}

}

void tst_sauvegardes::ceQuiAFaitSonTempsSEnVa_data()
{
    QTest::addColumn<QStringList>("dates");
    QTest::addColumn<QList<int>>("attendues"); // ranks of those that go
    const auto cas = [](const char *nom, const QStringList &dates, const QList<int> &attendues) {
        QTest::newRow(nom) << dates << attendues;
    };
    // Today is Saturday 2026-11-21.
    cas("rien", {}, {});
    cas("aujourd'hui tout reste", {"2026-11-21 00-00-00", "2026-11-21 09-00-00", "2026-11-21 18-00-00"}, {});
    cas("une horloge qui avancait", {"2027-01-01 09-00-00", "2027-01-01 10-00-00"}, {});
    cas("la plus recente d'hier", {"2026-11-20 23-59-59", "2026-11-20 08-00-00", "2026-11-20 12-00-00"},
        {1, 2});
    cas("le quatorzieme jour, puis la semaine",
        {"2026-11-07 09-00-00", "2026-11-07 10-00-00", "2026-11-06 09-00-00", "2026-11-05 09-00-00"}, {0, 3});
    cas("une par semaine, du lundi au dimanche",
        {"2026-10-19 09-00-00", "2026-10-25 09-00-00", "2026-10-26 09-00-00", "2026-10-27 09-00-00"}, {0, 2});
    cas("la derniere semaine, puis le mois",
        {"2026-09-12 09-00-00", "2026-09-11 09-00-00", "2026-09-01 09-00-00", "2026-08-31 09-00-00"}, {2});
    cas("une par mois", {"2026-03-01 09-00-00", "2026-03-31 09-00-00", "2025-03-15 09-00-00"}, {0});
    cas("semaine a cheval sur deux annees", {"2025-12-29 09-00-00", "2026-01-01 09-00-00"}, {});
}

void tst_sauvegardes::ceQuiAFaitSonTempsSEnVa()
{
    QFETCH(QStringList, dates);
    QFETCH(QList<int>, attendues);
    QList<Sauvegardes::Sauvegarde> sauvegardes;
    for (const QString &date : std::as_const(dates))
        sauvegardes << Sauvegardes::Sauvegarde{date, instant(date), 1, -1};
    QStringList parties = Sauvegardes::ADetruire(sauvegardes, instant("2026-11-21 18-05-12"));
    parties.sort();
    QStringList voulues;
    for (const int rang : std::as_const(attendues))
        voulues << dates[rang];
    voulues.sort();
    QCOMPARE(parties, voulues);
}

void tst_sauvegardes::uneCopiePrecedeLaPremiereEcriturePuisUneParHeure()
{
    Etabli e;
    Bac::valeur("SELECT Nom FROM Genre");
    QVERIFY(!QDir(e.bac.chemin("sauvegardes")).exists()); // reading alone makes none
    e.ecrire();
    QCOMPARE(e.copies(), QStringList("bd 2026-11-21 18-05-12.bd"));
    e.avancer(3599);
    e.ecrire();
    QCOMPARE(e.copies().size(), 1);
    e.avancer(1);
    Bac::toutLire();
    QCOMPARE(e.copies().size(), 1);
    e.ecrire();
    QCOMPARE(e.copies().last(), "bd 2026-11-21 19-05-12.bd");
    e.bac.collectionCourante.sauvegardes.derniere = {}; // another run within the same second
    e.ecrire();
    QVERIFY(e.copies().contains("bd 2026-11-21 19-05-12 (2).bd"));
    const auto liste = Sauvegardes::Lister();
    QCOMPARE(liste.size(), 3);
    QCOMPARE(genres(liste[1].chemin), "un..");
    QCOMPARE(genres(liste[2].chemin), "un");
    QCOMPARE(liste[0].albums, 0);
    e.heure = instant("2026-11-21 10-00-00"); // a clock that was set back
    e.ecrire();
    QCOMPARE(e.copies().size(), 4);
}

void tst_sauvegardes::ceQuiNEstPasDeLUtilisateurNeSeCopiePas()
{
    Etabli e;
    {
        const Base base;
        const Journal::Pause pause(base);
        base.Execute("UPDATE Genre SET Nom = 'mis à niveau'");
        const Base catalogue(e.bac.chemin("BDbase.bd"), Entete::Nature::Catalogue);
        catalogue.Execute("DELETE FROM BD");
    }
    QVERIFY(e.copies().isEmpty());
    e.ecrire();
    QCOMPARE(e.copies().size(), 1);
    const Bac vierge; // of an empty collection there is nothing to keep, the first hour
    for (int i = 1; i < 3; ++i)
        Bac::executer("INSERT INTO Genre VALUES (?, 'a')", {i});
    QVERIFY(Sauvegardes::Lister().isEmpty());
}

void tst_sauvegardes::laCopieEstLaBaseDAvantLEcriture_data()
{
    QTest::addColumn<QString>("comment");
    for (const char *comment : {"instruction", "fiche", "suppression", "transaction", "annulation"})
        QTest::newRow(comment) << comment;
}

void tst_sauvegardes::laCopieEstLaBaseDAvantLEcriture()
{
    QFETCH(QString, comment);
    const Etabli e;
    const QStringList avant = Bac::toutLire();
    {
        const Base base;
        Transaction transaction(base);
        auto rs = base.OpenRecordset("SELECT * From Genre");
        if (comment == "fiche") {
            rs.Edit();
            rs.SetField("Nom", "autre");
            rs.Update();
        } else if (comment == "suppression") {
            rs.Delete();
        } else if (comment == "annulation") {
            Journal::Annuler(base, {{"Genre", 1, std::nullopt, Changement::Ligne{1, "un"}}});
        } else {
            base.Execute("DELETE FROM Genre");
        }
        // The hour that passes in the middle of a write must not copy the half of it.
        Collection::courant().sauvegardes.derniere = {};
        base.Execute("INSERT INTO Genre VALUES (7, 'sept')");
        if (comment == "transaction")
            transaction.Commit();
    }
    QCOMPARE(e.copies().size(), 1);
    const QString copie = e.bac.chemin("sauvegardes/" + e.copies().first());
    QCOMPARE(Verification::Verifier(copie), "");
    const Bac autre;
    Bac::ecrire(autre.collection(), Bac::lire(copie));
    QCOMPARE(Bac::toutLire(), avant);
    QCOMPARE(
        QDir(e.bac.chemin("sauvegardes")).entryList(QDir::Files).size(), 2); // with the list, nothing else
}

void tst_sauvegardes::uneCopieManqueeNArretePasLEcriture()
{
    Etabli e;
    Bac::ecrire(e.bac.chemin("sauvegardes"), "un fichier");
    int dites = 0;
    e.bac.collectionCourante.sauvegardes.manquee = [&](const Error &) { ++dites; };
    for (int i = 0; i < 3; ++i) {
        e.ecrire();
        e.avancer(3600);
    }
    QCOMPARE(dites, 1);
    QCOMPARE(Bac::valeur("SELECT Nom FROM Genre"), "un...");
    QVERIFY(QFile::remove(e.bac.chemin("sauvegardes")));
    e.ecrire();
    QCOMPARE(e.copies().size(), 1);
    QDir(e.bac.chemin("sauvegardes")).mkdir("liste en cours.tmp"); // a copy that cannot be noted is none
    e.avancer(3600);
    e.ecrire();
    QCOMPARE(dites, 2);
    QCOMPARE(e.copies().size(), 1);
    QVERIFY(!QFile::exists(e.bac.chemin("sauvegardes/copie en cours.tmp")));
}

void tst_sauvegardes::seulCeQueLeProgrammeAFaitEstDetruit()
{
    Etabli e;
    const QString ici = e.bac.chemin("sauvegardes/");
    for (int heure = 0; heure < 4; ++heure) {
        e.ecrire();
        e.avancer(3600);
    }
    const QStringList faites = e.copies();
    // One that the user changed, one that he put there under such a name, and a list that points elsewhere.
    Bac::ecrire(ici + faites[0], "la mienne");
    Bac::ecrire(ici + "bd 2020-01-01 00-00-00.bd", "à moi");
    Bac::ecrire(ici + "bd 2020-01-02 00-00-00.bd", "à moi aussi");
    Bac::ecrire(ici + "liste.txt",
        Bac::lire(ici + "liste.txt") + "../bd.mdb\t"
            + QByteArray::number(QFileInfo(e.bac.collection()).size()) + "\n");
    Bac::ecrire(ici + "copie en cours.tmp", "d'une fin brutale");
    e.heure = e.heure.addDays(3);
    e.ecrire();
    QCOMPARE(e.copies(),
        QStringList({"bd 2020-01-01 00-00-00.bd", "bd 2020-01-02 00-00-00.bd", faites[0], faites[3],
            "bd 2026-11-24 22-05-12.bd"}));
    QVERIFY(QFile::exists(e.bac.collection()));
    QVERIFY(!QFile::exists(ici + "copie en cours.tmp"));
    QCOMPARE(Bac::lire(ici + "liste.txt").count('\n'), 2);
}

void tst_sauvegardes::laDerniereSaineEstTrouvee()
{
    Etabli e;
    for (int i = 0; i < 3; ++i) {
        e.ecrire();
        e.avancer(3600);
    }
    const auto liste = Sauvegardes::Lister();
    QByteArray octets = Bac::lire(liste[0].chemin);
    Bac::ecrire(liste[0].chemin, octets.replace(4096, 40'000, QByteArray(40'000, '\x5A')));
    Bac::ecrire(liste[1].chemin, "plus rien");
    QCOMPARE(Sauvegardes::DerniereSaine(), liste[2].chemin);
    QCOMPARE(Sauvegardes::Lister()[1].albums, -1);
    QFile::remove(liste[2].chemin);
    QCOMPARE(Sauvegardes::DerniereSaine(), "");
    QCOMPARE(Verification::Verifier(), "");
}

QTEST_GUILESS_MAIN(tst_sauvegardes)
#include "tst_sauvegardes.moc"
