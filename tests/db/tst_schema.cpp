#include "db/Base.h"
#include "db/Journal.h"
#include "db/schema/Tables.h"
#include "support/Bac.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QDateTime>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

class tst_schema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unAncienFichierEstMisANiveau_data();
    void unAncienFichierEstMisANiveau();
    void uneFicheDAvantLesChampsSupprimeeRevient();
    void unFichierAJourNEstPasEcrit();
    void laCleSuitLeTome();
    void lesErreursDeMiseANiveauSontIgnorees();
    void lExtensionSertLesAutresOutils();
};

namespace {

QStringList colonne(const QString &sql, const QVariantList &valeurs = {})
{
    const Base base;
    QStringList textes;
    for (auto rs = base.OpenRecordset(sql, valeurs); !rs.AtEnd(); rs.MoveNext())
        textes << rs.Fields(0).toString();
    return textes;
}

QString cle(int album)
{
    return Bac::valeur("SELECT NumeroAlbum2 FROM SerieAlbums WHERE NAlbum = ?", {album}).toString();
}

/// Takes the rules and indexes away, and the two late fields when asked, as in a file of before.
void vieillir(bool sansChamps)
{
    const Base base;
    const QStringList suppressions = colonne("SELECT 'DROP ' || type || ' ' || name FROM sqlite_schema"
                                             " WHERE type IN ('index', 'trigger') AND sql IS NOT NULL");
    for (const QString &suppression : suppressions)
        base.Execute(suppression);
    if (sansChamps) {
        base.Execute("ALTER TABLE Album DROP COLUMN Coffret");
        base.Execute("ALTER TABLE SerieAlbums DROP COLUMN NumeroAlbum2");
    }
}

/// One album for each tome, whose number is 10 + its rank, with a link; and a link without an album.
void remplir(const QList<int> &tomes)
{
    const Base base;
    for (int i = 0; i < tomes.size(); ++i) {
        base.Execute("INSERT INTO Album (Num, NAlbum) VALUES (?, ?)", {10 + i, tomes[i]});
        base.Execute("INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, ?)", {10 + i});
    }
    base.Execute("INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 99)");
}

QStringList reglesEtIndex()
{
    return colonne("SELECT sql FROM sqlite_schema WHERE type <> 'table' ORDER BY name");
}

}

void tst_schema::unAncienFichierEstMisANiveau_data()
{
    QTest::addColumn<bool>("sansChamps");
    QTest::newRow("sans les deux champs") << true;
    QTest::newRow("champs sans regles") << false;
}

void tst_schema::unAncienFichierEstMisANiveau()
{
    QFETCH(bool, sansChamps);
    Bac bac;
    const QStringList attendus = reglesEtIndex();
    vieillir(sansChamps);
    remplir({0, 1, 190, 191});
    if (!sansChamps)
        Bac::executer("UPDATE SerieAlbums SET NumeroAlbum2 = 'ancienne'");
    Ecoute ecoute(bac.annonces);
    const auto annonces = ecoute.annonces().size();

    Schema::MettreANiveau();
    QCOMPARE(ecoute.annonces().size(), annonces);
    QCOMPARE(Schema::Champs("Album"), colonne("SELECT name FROM pragma_table_info('Album')"));
    QCOMPARE(Schema::Champs("SerieAlbums"), colonne("SELECT name FROM pragma_table_info('SerieAlbums')"));
    QCOMPARE(reglesEtIndex(), attendus);
    QCOMPARE(Bac::valeur("SELECT count(*) FROM Album WHERE Coffret=false"), 4);
    const QString gardee = sansChamps ? QString() : "ancienne";
    QCOMPARE(QStringList({cle(10), cle(11), cle(12), cle(13), cle(99)}),
        QStringList({"A", "B", "ÿ", gardee, gardee}));
    QCOMPARE(Bac::valeur("PRAGMA integrity_check"), "ok");

    Bac::executer("UPDATE Album SET NAlbum = 2 WHERE Num = 13");
    QCOMPARE(cle(13), "C");
}

void tst_schema::uneFicheDAvantLesChampsSupprimeeRevient()
{
    Bac bac;
    vieillir(true);
    remplir({5});
    Schema::MettreANiveau();
    Ecoute ecoute(bac.annonces);
    ecoute.annonces();
    Bac::executer("DELETE FROM SerieAlbums");
    Bac::executer("DELETE FROM Album");
    const auto annonces = ecoute.annonces();
    for (auto annonce = annonces.rbegin(); annonce != annonces.rbegin() + 2; ++annonce)
        Journal::Annuler(Base(), *annonce);
    QCOMPARE(Bac::valeur("SELECT NAlbum || ' ' || Coffret FROM Album"), "5 0");
    QCOMPARE(cle(10), "F");
}

void tst_schema::unFichierAJourNEstPasEcrit()
{
    const Bac bac;
    vieillir(true);
    remplir({0, 1, 300});
    Schema::MettreANiveau();
    const QByteArray avant = Bac::lire(bac.collection());
    const QDateTime autrefois(QDate(2001, 2, 3), QTime(4, 5));
    QFile fichier(bac.collection());
    QVERIFY(fichier.open(QIODevice::ReadWrite));
    QVERIFY(fichier.setFileTime(autrefois, QFileDevice::FileModificationTime));
    fichier.close();

    Schema::MettreANiveau();
    QVERIFY(Bac::lire(bac.collection()) == avant);
    QCOMPARE(QFileInfo(bac.collection()).lastModified(), autrefois);
}

void tst_schema::laCleSuitLeTome()
{
    const Bac bac;
    remplir({100, 2, 33, 0, 10, 190, 32, 1, 62, 64});
    QCOMPARE(colonne("SELECT Album.NAlbum FROM SerieAlbums JOIN Album ON Num = SerieAlbums.NAlbum"
                     " WHERE NSerie = 1 ORDER BY NumeroAlbum2 ASC")
                 .join(u' '),
        "0 1 2 10 32 33 62 64 100 190");
    Bac::executer("DELETE FROM Album");
    Bac::executer("DELETE FROM SerieAlbums");

    Bac::executer("INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 10)");
    QCOMPARE(cle(10), "");
    Bac::executer("INSERT INTO Album (Num, NAlbum) VALUES (10, 2), (11, 6)");
    QCOMPARE(cle(10), "C");
    Bac::executer("UPDATE Album SET NAlbum = 0 WHERE Num = 10");
    QCOMPARE(cle(10), "A");
    Bac::executer("UPDATE Album SET NAlbum = 999 WHERE Num = 10");
    QCOMPARE(cle(10), "A");
    Bac::executer("UPDATE Album SET NAlbum = NULL WHERE Num = 10");
    QCOMPARE(cle(10), "A");
    Bac::executer("UPDATE SerieAlbums SET NAlbum = 11 WHERE NAlbum = 10");
    QCOMPARE(cle(11), "G");
    Bac::executer("UPDATE SerieAlbums SET NumeroAlbum2 = 'faux'");
    QCOMPARE(cle(11), "G");
    Bac::executer("INSERT INTO SerieAlbums VALUES (2, 11, 'faux')");
    QCOMPARE(colonne("SELECT NumeroAlbum2 FROM SerieAlbums"), QStringList({"G", "G"}));
}

void tst_schema::lesErreursDeMiseANiveauSontIgnorees()
{
    const Bac bac;
    // An index's name is taken by a table: that step fails, and the others are made all the same.
    vieillir(true);
    Bac::executer("CREATE TABLE IndexCotesAlbumNAlbumMoisCotes (a)");
    Schema::MettreANiveau();
    QCOMPARE(colonne("SELECT type FROM sqlite_schema WHERE name = 'IndexCotesAlbumNAlbumMoisCotes'"),
        QStringList("table"));
    QCOMPARE(colonne("SELECT count(*) FROM sqlite_schema WHERE type = 'trigger'"), QStringList("4"));
    QCOMPARE(
        colonne("SELECT count(*) FROM pragma_table_info('Album') WHERE name = 'Coffret'"), QStringList("1"));

    QVERIFY(QFile::remove(bac.collection()));
    Schema::MettreANiveau();
    QVERIFY(!QFile::exists(bac.collection()));
}

void tst_schema::lExtensionSertLesAutresOutils()
{
    const QString sqlite3 = QStandardPaths::findExecutable("sqlite3");
    if (sqlite3.isEmpty())
        QSKIP("the sqlite3 command is not here");
    const Bac bac;
    Bac::executer("INSERT INTO Genre VALUES (1, 'Edgar'), (2, 'Écume'), (3, 'echo')");

    QProcess outil;
#ifdef __SANITIZE_ADDRESS__
    // An extension built with the sanitizer needs its library loaded before all else.
    const QByteArray cartes = Bac::lire("/proc/self/maps");
    const qsizetype nom = cartes.indexOf("libasan");
    const qsizetype debut = cartes.lastIndexOf(' ', nom) + 1;
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert("LD_PRELOAD", cartes.mid(debut, cartes.indexOf('\n', nom) - debut));
    outil.setProcessEnvironment(environnement);
#endif
    outil.start(sqlite3,
        {"-batch", "-cmd", ".load " + QCoreApplication::applicationDirPath() + "/francais", bac.collection(),
            "SELECT Nom FROM Genre ORDER BY Nom; INSERT INTO Genre VALUES (4, 'Écho');"
            "SELECT NGenre FROM Genre WHERE Nom = 'ÉCHO'; PRAGMA integrity_check;"});
    QVERIFY(outil.waitForFinished());
    QCOMPARE(QString::fromUtf8(outil.readAllStandardError()), "");
    QCOMPARE(QString::fromUtf8(outil.readAllStandardOutput()), "echo\nÉcume\nEdgar\n4\nok\n");
    QCOMPARE(Bac::valeur("SELECT count(*) FROM Genre"), 4);
}

QTEST_GUILESS_MAIN(tst_schema)
#include "tst_schema.moc"
