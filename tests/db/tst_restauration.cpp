#include "acts/Historique.h"
#include "db/files/Remplacement.h"
#include "db/files/Sauvegardes.h"
#include "model/General.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QDir>
#include <QTest>

using Remplacement::Etat;

namespace {

const QByteArray Access = QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4096, '\0');

/// The bytes of a collection with one album of this title, once a statement has been run on it.
QByteArray albumNomme(const QString &titre, const QString &sql = "DELETE FROM Genre")
{
    const Bac bac;
    Bac::executer("INSERT INTO Album (Num, NAlbum) VALUES (1, 3)");
    Bac::executer("INSERT INTO LAlbums (NAlbum, TAlbum) VALUES (1, ?)", {titre});
    Bac::executer(sql);
    return Bac::lire(bac.collection());
}

QByteArray abimer(QByteArray octets)
{
    return octets.replace(4096, 80'000, QByteArray(80'000, '\x5A'));
}

QString titreEcrit()
{
    return Bac::valeur("SELECT TAlbum FROM LAlbums").toString();
}

QStringList fichiers(const Bac &bac, const QString &motif)
{
    return QDir(bac.chemin()).entryList({motif}, QDir::Files);
}

}

class tst_restauration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unFichierEstPrisPourCeQuIlEst_data()
    {
        const Colonnes<QByteArray, Etat> cas;
        const Bac bac;
        cas("saine", albumNomme("a"), Etat::Saine);
        cas("vierge", Bac::lire(bac.collection()), Etat::Vierge);
        cas("ancienne", Access, Etat::Ancienne);
        cas("catalogue", Bac::lire(bac.chemin("BDbase.bd")), Etat::Catalogue);
        cas("coupee", albumNomme("a").chopped(5000), Etat::Abimee);
        cas("pages abimees", abimer(albumNomme("a")), Etat::Abimee);
        cas("table qui manque", albumNomme("a", "DROP TABLE Editeur"), Etat::Abimee);
        cas("vide", {}, Etat::Etrangere);
    }

    void unFichierEstPrisPourCeQuIlEst()
    {
        const auto [octets, etat] = essai<QByteArray, Etat>();
        const Bac bac;
        const QString fichier = bac.chemin("bd 2026-03-01 10-00-00.bd");
        Bac::ecrire(fichier, octets);
        const QStringList entrees = QDir(bac.chemin()).entryList();
        const auto examen = Remplacement::Examiner(fichier);
        QCOMPARE(examen.etat, etat);
        QCOMPARE(examen.date, QDateTime({2026, 3, 1}, {10, 0}));
        QCOMPARE(examen.albums, etat == Etat::Saine ? 1 : 0);
        QCOMPARE(Remplacement::Restaurer(fichier).isEmpty(), etat == Etat::Saine || etat == Etat::Vierge);
        QCOMPARE(Bac::toutLire().size(), etat == Etat::Saine ? 2 : 0);
        QCOMPARE(Bac::lire(fichier), octets);
        QCOMPARE(QDir(bac.chemin()).entryList(), entrees);
        QCOMPARE(refus([&] { Remplacement::Examiner(bac.chemin("absent")); }), Error::Sorte::Introuvable);
    }

    void laBaseEnServiceNEstPasRestauree()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Genre VALUES (1, 'un')");
        QFile::link(bac.collection(), bac.chemin("lien.bd"));
        const QByteArray avant = Bac::lire(bac.collection());
        for (const char *chemin : {"bd.mdb", "images/../bd.mdb", "lien.bd"}) {
            QCOMPARE(Remplacement::Examiner(bac.chemin(chemin)).etat, Etat::Courante);
            QVERIFY(!Remplacement::Restaurer(bac.chemin(chemin)).isEmpty());
        }
        QCOMPARE(Bac::lire(bac.collection()), avant);
        QVERIFY(Sauvegardes::Lister().isEmpty());
    }

    void laBaseRemplaceeEstGardee_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::newRow("saine") << albumNomme("celle d'avant");
        QTest::newRow("abimee") << abimer(albumNomme("celle d'avant"));
        QTest::newRow("coupee") << albumNomme("celle d'avant").chopped(5000);
        QTest::newRow("ancienne") << Access;
    }

    void laBaseRemplaceeEstGardee()
    {
        QFETCH(QByteArray, octets);
        const bool saine = qstrcmp(QTest::currentDataTag(), "saine") == 0;
        Bac bac;
        const Historique histoire(bac.annonces);
        Bac::agir("INSERT INTO Genre VALUES (1, 'un')");
        QVERIFY(histoire.peutAnnuler());
        Bac::ecrire(bac.chemin("choisie.bd"), albumNomme("la nouvelle"));
        Bac::ecrire(bac.chemin("bd.mdb.neuve"), "d'une fin brutale");
        for (int tour = 1; tour < 3; ++tour) {
            Bac::ecrire(bac.collection(), octets);
            if (!saine)
                Bac::ecrire(bac.collection() + "-journal", "un reste");
            Ecoute ecoute(bac.annonces);
            QCOMPARE(Remplacement::Restaurer(bac.chemin("choisie.bd")), "");
            QCOMPARE(titreEcrit(), "la nouvelle");
            QVERIFY(!histoire.peutAnnuler());
            QVERIFY(General::Concerne(ecoute.annonces().back(), General::Tri::Collections));
            QCOMPARE(fichiers(bac, "bd.mdb*"), QStringList("bd.mdb"));
            const bool ancienne = octets == Access;
            const QStringList deCote = fichiers(bac, ancienne ? "bd-ancien*.mdb" : "bd abîmée *.mdb");
            QCOMPARE(deCote.size(), saine ? 0 : tour); // none is overwritten
            for (const QString &nom : deCote)
                QVERIFY(Bac::lire(bac.chemin(nom)) == octets);
        }
        QCOMPARE(Sauvegardes::Lister().size(), saine ? 2 : 0);
        if (saine)
            QCOMPARE(Remplacement::Restaurer(Sauvegardes::DerniereSaine()), "");
        QCOMPARE(titreEcrit(), saine ? "celle d'avant" : "la nouvelle");
    }

    void unEchecLaisseToutEnPlace()
    {
        const Bac bac;
        const auto restaurer = [&] { Remplacement::Restaurer(bac.chemin("choisie.bd")); };
        Bac::ecrire(bac.collection(), albumNomme("celle d'avant"));
        Bac::ecrire(bac.chemin("choisie.bd"), albumNomme("la nouvelle"));
        Bac::ecrire(bac.chemin("sauvegardes"), "un fichier");
        QVERIFY(refus(restaurer).has_value());
        QVERIFY(QFile::remove(bac.chemin("sauvegardes")));
        {
            Autre autre(bac.collection());
            autre.executer("BEGIN EXCLUSIVE");
            QCOMPARE(refus(restaurer), Error::Sorte::EnUsage);
        }
        QCOMPARE(titreEcrit(), "celle d'avant");
        QCOMPARE(fichiers(bac, "bd[. ]*"), QStringList("bd.mdb"));
    }
};

QTEST_GUILESS_MAIN(tst_restauration)
#include "tst_restauration.moc"
