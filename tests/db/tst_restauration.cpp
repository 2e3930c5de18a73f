#include "db/Base.h"
#include "db/Historique.h"
#include "db/Remplacement.h"
#include "db/Sauvegardes.h"
#include "db/Schema.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QDir>
#include <QTest>

using Remplacement::Etat;

class tst_restauration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unFichierEstPrisPourCeQuIlEst_data();
    void unFichierEstPrisPourCeQuIlEst();
    void laBaseEnServiceNEstPasRestauree_data();
    void laBaseEnServiceNEstPasRestauree();
    void laBaseRemplaceeEstGardee_data();
    void laBaseRemplaceeEstGardee();
    void unEchecLaisseToutEnPlace();
    void uneBaseDAvantEstMiseANiveau();
    void onRepartDeLaBaseRestauree();
};

namespace {

/// The bytes of a collection with one album of this title.
QByteArray albumNomme(const QString &titre)
{
    const Bac bac;
    Bac::executer("INSERT INTO Album (Num, NAlbum) VALUES (1, 3)");
    Bac::executer("INSERT INTO LAlbums (NAlbum, TAlbum) VALUES (1, ?)", {titre});
    return Bac::lire(bac.collection());
}

QByteArray abimer(QByteArray octets)
{
    return octets.replace(4096, 80'000, QByteArray(80'000, '\x5A'));
}

QByteArray sansTable()
{
    const Bac bac;
    Bac::executer("DROP TABLE Editeur");
    return Bac::lire(bac.collection());
}

QString titreEcrit()
{
    return Bac::valeur("SELECT TAlbum FROM LAlbums").toString();
}

QStringList dossier(const Bac &bac, const QString &motif)
{
    return QDir(bac.chemin()).entryList({motif}, QDir::Files);
}

const QByteArray Access = QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4096, '\0');

}

void tst_restauration::unFichierEstPrisPourCeQuIlEst_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<Etat>("etat");
    const Bac bac;
    QTest::newRow("saine") << albumNomme("a") << Etat::Saine;
    QTest::newRow("vierge") << Bac::lire(bac.collection()) << Etat::Vierge;
    QTest::newRow("ancienne") << Access << Etat::Ancienne;
    QTest::newRow("catalogue") << Bac::lire(bac.chemin("BDbase.bd")) << Etat::Catalogue;
    QTest::newRow("coupee") << albumNomme("a").chopped(5000) << Etat::Abimee;
    QTest::newRow("pages abimees") << abimer(albumNomme("a")) << Etat::Abimee;
    QTest::newRow("table qui manque") << sansTable() << Etat::Abimee;
    QTest::newRow("texte") << QByteArray("du texte") << Etat::Etrangere;
    QTest::newRow("vide") << QByteArray() << Etat::Etrangere;
}

void tst_restauration::unFichierEstPrisPourCeQuIlEst()
{
    QFETCH(QByteArray, octets);
    QFETCH(Etat, etat);
    const Bac bac;
    const QString fichier = bac.chemin("bd 2026-03-01 10-00-00.bd");
    Bac::ecrire(fichier, octets);
    const QStringList entrees = QDir(bac.chemin()).entryList();
    const auto examen = Remplacement::Examiner(fichier);
    QCOMPARE(examen.etat, etat);
    QCOMPARE(examen.date, QDateTime({2026, 3, 1}, {10, 0}));
    QCOMPARE(examen.taille, octets.size());
    QCOMPARE(examen.albums, etat == Etat::Saine ? 1 : 0);
    const bool permise = etat == Etat::Saine || etat == Etat::Vierge;
    QCOMPARE(Remplacement::Restaurer(fichier).isEmpty(), permise);
    QCOMPARE(Bac::toutLire().size(), etat == Etat::Saine ? 2 : 0);
    QCOMPARE(Bac::lire(fichier), octets);
    QCOMPARE(QDir(bac.chemin()).entryList(), entrees);
    QCOMPARE(refus([&] { Remplacement::Examiner(bac.chemin("absent")); }), Error::Sorte::Introuvable);
}

void tst_restauration::laBaseEnServiceNEstPasRestauree_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::newRow("son nom") << "bd.mdb";
    QTest::newRow("un detour") << "images/../bd.mdb";
    QTest::newRow("un lien") << "lien.bd";
}

void tst_restauration::laBaseEnServiceNEstPasRestauree()
{
    QFETCH(QString, chemin);
    const Bac bac;
    Bac::executer("INSERT INTO Genre VALUES (1, 'un')");
    QFile::link(bac.collection(), bac.chemin("lien.bd"));
    const QByteArray avant = Bac::lire(bac.collection());
    QCOMPARE(Remplacement::Examiner(bac.chemin(chemin)).etat, Etat::Courante);
    QVERIFY(!Remplacement::Restaurer(bac.chemin(chemin)).isEmpty());
    QCOMPARE(Bac::lire(bac.collection()), avant);
    QVERIFY(Sauvegardes::Lister().isEmpty());
}

void tst_restauration::laBaseRemplaceeEstGardee_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<bool>("saine");
    QTest::addColumn<bool>("journal");
    QTest::newRow("saine") << albumNomme("celle d'avant") << true << false;
    QTest::newRow("abimee") << abimer(albumNomme("celle d'avant")) << false << false;
    QTest::newRow("coupee") << albumNomme("celle d'avant").chopped(5000) << false << false;
    QTest::newRow("ancienne") << Access << false << false;
    QTest::newRow("vide") << QByteArray() << false << true;
}

void tst_restauration::laBaseRemplaceeEstGardee()
{
    QFETCH(QByteArray, octets);
    QFETCH(bool, saine);
    QFETCH(bool, journal);
    const Bac bac;
    Bac::ecrire(bac.collection(), octets);
    Bac::ecrire(bac.chemin("choisie.bd"), albumNomme("la nouvelle"));
    Bac::ecrire(bac.chemin("bd.mdb.neuve"), "d'une fin brutale");
    if (journal)
        Bac::ecrire(bac.collection() + "-journal", "un reste");
    for (int tour = 0; tour < 2; ++tour) {
        QCOMPARE(Remplacement::Restaurer(bac.chemin("choisie.bd")), "");
        QCOMPARE(titreEcrit(), "la nouvelle");
        QVERIFY(dossier(bac, "*.neuve").isEmpty());
        QVERIFY(!QFile::exists(bac.collection() + "-journal"));
        const QStringList deCote = dossier(bac, "bd abîmée *.mdb");
        QCOMPARE(deCote.size(), saine ? 0 : tour + 1);
        for (const QString &nom : deCote)
            QVERIFY(Bac::lire(bac.chemin(nom)) == octets);
        QCOMPARE(dossier(bac, "bd abîmée *.mdb-journal").size(), journal ? 1 : 0);
        if (!saine)
            Bac::ecrire(bac.collection(), octets); // the one aside is never overwritten
        else
            break;
    }
    if (!saine)
        return;
    QCOMPARE(Remplacement::Restaurer(Sauvegardes::DerniereSaine()), "");
    QCOMPARE(titreEcrit(), "celle d'avant");
    QCOMPARE(Sauvegardes::Lister().size(), 2);
}

void tst_restauration::unEchecLaisseToutEnPlace()
{
    const Bac bac;
    Bac::ecrire(bac.collection(), albumNomme("celle d'avant"));
    Bac::ecrire(bac.chemin("choisie.bd"), albumNomme("la nouvelle"));
    Bac::ecrire(bac.chemin("sauvegardes"), "un fichier");
    QVERIFY(refus([&] { Remplacement::Restaurer(bac.chemin("choisie.bd")); }).has_value());
    QVERIFY(QFile::remove(bac.chemin("sauvegardes")));
    {
        Autre autre(bac.collection());
        autre.executer("BEGIN EXCLUSIVE");
        QCOMPARE(refus([&] { Remplacement::Restaurer(bac.chemin("choisie.bd")); }), Error::Sorte::EnUsage);
    }
    QCOMPARE(titreEcrit(), "celle d'avant");
    QVERIFY(Sauvegardes::Lister().isEmpty());
    QVERIFY(dossier(bac, "*.neuve").isEmpty());
}

void tst_restauration::uneBaseDAvantEstMiseANiveau()
{
    const Bac bac;
    Bac::ecrire(bac.chemin("choisie.bd"), albumNomme("été"));
    Autre(bac.chemin("choisie.bd"))
        .executer(
            "DROP TRIGGER CleTomeAlbumNeuf; DROP TRIGGER CleTomeAlbum; DROP TRIGGER CleTomeLien;"
            "DROP TRIGGER CleTomeLienNeuf; ALTER TABLE Album DROP COLUMN Coffret; PRAGMA user_version=1;"
            "INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 1)");
    QCOMPARE(Remplacement::Examiner(bac.chemin("choisie.bd")).etat, Etat::Saine);
    QCOMPARE(Remplacement::Restaurer(bac.chemin("choisie.bd")), "");
    QCOMPARE(Bac::valeur("SELECT Coffret FROM Album"), 0);
    QCOMPARE(Bac::valeur("SELECT NumeroAlbum2 FROM SerieAlbums"), "D");
    QCOMPARE(Bac::valeur("PRAGMA user_version"), Schema::Version());
}

void tst_restauration::onRepartDeLaBaseRestauree()
{
    Bac bac;
    const Historique histoire(bac.collectionCourante);
    Bac::executer("INSERT INTO Genre VALUES (1, 'un')");
    Ecoute ecoute(bac.collectionCourante);
    QCOMPARE(ecoute.annonces().size(), 1U);
    Bac::ecrire(bac.chemin("choisie.bd"), albumNomme("a"));
    QVERIFY(histoire.peutAnnuler());
    QCOMPARE(Remplacement::Restaurer(bac.chemin("choisie.bd")), "");
    QVERIFY(!histoire.peutAnnuler());
    QCOMPARE(ecoute.annonces().size(), 2U);
    QVERIFY(ecoute.annonces().back().front().table.isEmpty());
}

QTEST_GUILESS_MAIN(tst_restauration)
#include "tst_restauration.moc"
