#include "acts/Acte.h"
#include "db/Base.h"
#include "db/files/Sauvegardes.h"
#include "db/files/Verification.h"
#include "support/Bac.h"
#include "support/Colonnes.h"

#include <QDir>
#include <QTest>

namespace {

QDateTime instant(const QString &texte)
{
    return QDateTime::fromString(texte, "yyyy-MM-dd HH-mm-ss");
}

/// A collection that holds something, in a run that has not written yet, and a clock that stands.
struct Etabli
{
    Etabli()
    {
        Bac::executer("INSERT INTO Genre VALUES (1, 'un')");
        suivi.derniere = {};
        suivi.maintenant = [this] { return heure; };
    }
    QStringList copies() const
    {
        return QDir(bac.chemin("sauvegardes")).entryList({"*.bd"}, QDir::Files, QDir::Name);
    }
    /// Writes, so many times, an hour between.
    void ecrire(int fois = 1)
    {
        for (int i = 0; i < fois; ++i, heure = heure.addSecs(3600))
            Bac::agir("UPDATE Genre SET Nom = Nom || '.'");
    }

    Bac bac;
    Annonces::SuiviDesSauvegardes &suivi = bac.annonces.sauvegardes;
    QDateTime heure = instant("2026-11-21 18-05-12");
};

}

class tst_sauvegardes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ceQuiAFaitSonTempsSEnVa_data()
    {
        const Colonnes<QStringList, QStringList> cas;
        // Today is Saturday 2026-11-21.
        cas("tout d'aujourd'hui", {"2026-11-21 00-00-00", "2026-11-21 09-00-00", "2026-11-21 18-00-00"}, {});
        cas("une horloge qui avancait", {"2027-01-01 09-00-00", "2027-01-01 10-00-00"}, {});
        cas("le quatorzieme jour, puis la semaine", {"2026-11-07 10-00-00", "2026-11-06 09-00-00"},
            {"2026-11-07 09-00-00", "2026-11-05 09-00-00"});
        cas("une par semaine, du lundi au dimanche", {"2026-10-25 09-00-00", "2026-10-27 09-00-00"},
            {"2026-10-19 09-00-00", "2026-10-26 09-00-00"});
        cas("la derniere semaine, puis le mois",
            {"2026-09-12 09-00-00", "2026-09-11 09-00-00", "2026-08-31 09-00-00"}, {"2026-09-01 09-00-00"});
        cas("une par mois", {"2026-03-31 09-00-00", "2025-03-15 09-00-00"}, {"2026-03-01 09-00-00"});
    }

    void ceQuiAFaitSonTempsSEnVa()
    {
        auto [gardees, perimees] = essai<QStringList, QStringList>();
        QList<Sauvegardes::Sauvegarde> sauvegardes;
        QStringList dates = gardees + perimees;
        dates.sort(); // as they were made
        for (const QString &date : std::as_const(dates))
            sauvegardes << Sauvegardes::Sauvegarde{date, instant(date), 1, -1};
        QStringList parties = Sauvegardes::ADetruire(sauvegardes, instant("2026-11-21 18-05-12"));
        parties.sort();
        perimees.sort();
        QCOMPARE(parties, perimees);
    }

    void uneCopiePrecedeLaPremiereEcriturePuisUneParHeure()
    {
        Etabli e;
        {
            // Reading, what is not the user's, and the catalogue make none.
            Bac::toutLire();
            Bac::executer("UPDATE Genre SET Nom = 'un'");
            Base(e.bac.chemin("BDbase.bd"), Entete::Nature::Catalogue).Execute("DELETE FROM BD");
            QVERIFY(!QDir(e.bac.chemin("sauvegardes")).exists());
        }
        e.ecrire();
        QCOMPARE(e.copies(), QStringList("bd 2026-11-21 18-05-12.bd"));
        e.heure = e.heure.addSecs(-1);
        Bac::agir("UPDATE Genre SET Nom = 'deux'");
        e.heure = e.heure.addSecs(1);
        Bac::toutLire();
        QCOMPARE(e.copies().size(), 1);
        Bac::agir("UPDATE Genre SET Nom = 'trois'");
        e.suivi.derniere = {}; // another run, within the same second
        Bac::agir("UPDATE Genre SET Nom = 'quatre'");
        const auto liste = Sauvegardes::Lister();
        QCOMPARE(liste.size(), 3);
        QCOMPARE(QFileInfo(liste[0].chemin).fileName(), "bd 2026-11-21 19-05-12 (2).bd");
        QCOMPARE(liste[0].albums, 0);
        e.heure = instant("2026-11-21 10-00-00"); // a clock that was set back
        e.ecrire();
        QCOMPARE(e.copies().size(), 4);
        const Bac vierge; // of an empty collection there is nothing to keep, the first hour
        Bac::agir("INSERT INTO Genre VALUES (1, 'a')");
        QVERIFY(Sauvegardes::Lister().isEmpty());
    }

    /// A year ahead for one write, then back: nothing is lost, and what was made last is the newest.
    void uneHorlogeQuiSauteNeCoutePasLesCopies()
    {
        Etabli e;
        constexpr int Jours = 14;
        for (int jour = 0; jour < Jours; ++jour, e.heure = e.heure.addDays(1))
            e.ecrire();
        const QDateTime juste = e.heure;
        const auto autreSeance = [&](const QDateTime &heure) {
            e.suivi = {};
            e.suivi.maintenant = [&e] { return e.heure; };
            e.heure = heure;
            e.ecrire();
        };
        autreSeance(juste.addYears(1));
        QCOMPARE(e.copies().size(), Jours - 1); // one made, two gone at most
        autreSeance(juste);
        QCOMPARE(e.copies().size(), Jours);
        const QString derniere = QStringLiteral("bd %1.bd").arg(juste.toString("yyyy-MM-dd HH-mm-ss"));
        QCOMPARE(QFileInfo(Sauvegardes::DerniereSaine()).fileName(), derniere);
        QVERIFY(Sauvegardes::Lister()[1].date > e.heure);
        // The list of what was made is lost: a date to come says nothing.
        QVERIFY(QFile::remove(e.bac.chemin("sauvegardes/liste.txt")));
        QCOMPARE(QFileInfo(Sauvegardes::DerniereSaine()).fileName(), derniere);
    }

    void laCopieEstLaBaseDAvantLEcriture()
    {
        for (const QString comment : {"instruction", "parcours"}) {
            const Etabli e;
            const QStringList avant = Bac::toutLire();
            {
                Acte acte("acte");
                Base &base = acte.base();
                if (comment == "instruction")
                    base.Execute("DELETE FROM Genre");
                else
                    base.edit("Genre").Delete();
                // The hour that passes in the middle of a write is not the time for a copy, not even to try.
                e.suivi.derniere = {};
                base.Execute("INSERT INTO Genre VALUES (7, 'sept')");
                QVERIFY(!e.suivi.derniere.isValid());
                acte.valider();
            }
            QCOMPARE(e.copies().size(), 1);
            const Bac autre;
            Bac::ecrire(autre.collection(), Bac::lire(e.bac.chemin("sauvegardes/" + e.copies().first())));
            QCOMPARE(Verification::Verifier(), "");
            QCOMPARE(Bac::toutLire(), avant);
        }
    }

    void uneCopieManqueeNArretePasLEcriture()
    {
        Etabli e;
        Bac::ecrire(e.bac.chemin("sauvegardes"), "un fichier");
        int dites = 0;
        e.suivi.manquee = [&](const Error &) { ++dites; };
        e.ecrire(3);
        QCOMPARE(dites, 1);
        QCOMPARE(Bac::valeur("SELECT Nom FROM Genre"), "un...");
        QVERIFY(QFile::remove(e.bac.chemin("sauvegardes")));
        e.ecrire();
        QCOMPARE(e.copies().size(), 1);
        QDir(e.bac.chemin("sauvegardes")).mkdir("liste en cours.tmp"); // a copy that cannot be noted is none
        e.ecrire();
        QCOMPARE(dites, 2);
        QCOMPARE(e.copies().size(), 1);
        QVERIFY(!QFile::exists(e.bac.chemin("sauvegardes/copie en cours.tmp")));
    }

    void seulCeQueLeProgrammeAFaitEstDetruit()
    {
        Etabli e;
        const QString ici = e.bac.chemin("sauvegardes/");
        e.ecrire(4);
        const QStringList faites = e.copies();
        // One that the user changed, one that he put there under such a name, and a list that points elsewhere.
        Bac::ecrire(ici + faites[0], "la mienne");
        Bac::ecrire(ici + "bd 2020-01-01 00-00-00.bd", "à moi");
        Bac::ecrire(ici + "bd 2020-01-02 00-00-00.bd", "à moi aussi");
        const QByteArray taille = QByteArray::number(QFileInfo(e.bac.collection()).size());
        Bac::ecrire(ici + "liste.txt",
            Bac::lire(ici + "liste.txt") + "../bd.mdb\t" + taille + "\nbd 2020-01-01 00-00-00.bd\t" + taille
                + '\n');
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
};

QTEST_GUILESS_MAIN(tst_sauvegardes)
#include "tst_sauvegardes.moc"
