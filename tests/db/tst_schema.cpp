#include "acts/Historique.h"
#include "db/Comparaison.h"
#include "db/files/MiseANiveau.h"
#include "db/files/Remplacement.h"
#include "db/files/Sauvegardes.h"
#include "db/schema/Version.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QTest>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

namespace {

QStringList colonne(const QString &sql, const QVariantList &valeurs = {})
{
    Base base;
    QStringList textes;
    for (auto rs = base.OpenRecordset(sql, valeurs); !rs.AtEnd(); rs.MoveNext())
        textes << rs.Fields(0).toString();
    return textes;
}

QString cle(int album)
{
    return Bac::valeur("SELECT NumeroAlbum2 FROM SerieAlbums WHERE NAlbum = ?", {album}).toString();
}

/// Puts an empty collection of a former schema in place, with albums as one of its time would have.
void poserAncienne(const Bac &bac, const QString &schema, int inscrite)
{
    QVERIFY(QFile::remove(bac.collection()));
    const QString instructions = QString::fromUtf8(Bac::lire(QStringLiteral(SCHEMAS "/") + schema + ".sql"));
    QVERIFY(!instructions.isEmpty());
    Autre(bac.collection())
        .executer(QStringLiteral("BEGIN; PRAGMA application_id=%1; PRAGMA user_version=%2;%3; COMMIT")
                      .arg(unsigned(Entete::Nature::Collection))
                      .arg(Version::Composer(Comparaison::version(), inscrite))
                      .arg(instructions));
}

/// One album for each tome, whose number is 10 + its rank, with a link; and a link without an album.
void remplir(const QList<int> &tomes)
{
    Base base;
    for (int i = 0; i < tomes.size(); ++i) {
        base.Execute("INSERT INTO Album (Num, NAlbum) VALUES (?, ?)", {10 + i, tomes[i]});
        base.Execute("INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, ?)", {10 + i});
    }
    base.Execute("INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 99)");
}

/// All that the file says of its tables, fields, indexes and rules.
QStringList forme()
{
    return colonne(
               "SELECT t.name || '.' || group_concat(c.name || ' ' || c.type || ' ' || c.\"notnull\" || ' '"
               " || coalesce(c.dflt_value, '-') || ' ' || c.pk || ' ' || c.hidden)"
               " FROM sqlite_schema t JOIN pragma_table_xinfo(t.name) c WHERE t.type = 'table'"
               " GROUP BY t.name ORDER BY t.name")
        + colonne("SELECT sql FROM sqlite_schema WHERE type <> 'table' ORDER BY name");
}

}

class tst_schema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueAncienSchemaDevientCeluiDAujourdhui_data()
    {
        // abimer: what a start that was cut off may have left
        const Colonnes<QString, int, QString> cas;
        cas("le premier", "premier", 0, "");
        cas("sans regles", "palier-1", 1, "DROP TRIGGER CleTomeLien; DROP INDEX IndexGenreNom;");
        cas("les regles sans un champ", "palier-1", 1,
            "ALTER TABLE Album DROP COLUMN Coffret; CREATE INDEX autre ON Genre(Nom); DROP INDEX autre;");
        cas("une regle d'un autre texte", "palier-1", 1,
            "DROP TRIGGER CleTomeAlbum; CREATE TRIGGER CleTomeAlbum AFTER"
            " UPDATE ON Album BEGIN SELECT 1; END;"
            "DROP INDEX IndexGenreNom; CREATE INDEX IndexGenreNom ON Pays(Nom);");
    }

    void chaqueAncienSchemaDevientCeluiDAujourdhui()
    {
        const auto [schema, inscrite, abimer] = essai<QString, int, QString>();
        Bac bac;
        const QStringList attendue = forme();
        poserAncienne(bac, schema, inscrite);
        if (!abimer.isEmpty())
            Autre(bac.collection()).executer(abimer);
        remplir({0, 1, 190, 191});
        const bool premier = schema == "premier";
        if (!premier)
            Bac::executer("UPDATE SerieAlbums SET NumeroAlbum2 = 'ancienne' WHERE NAlbum = 99");
        Ecoute ecoute(bac.annonces);

        MiseANiveau::Executer();
        const QByteArray aJour = Bac::lire(bac.collection());
        MiseANiveau::Executer();
        QVERIFY(Bac::lire(bac.collection()) == aJour);
        QCOMPARE(ecoute.annonces().size(), 0U);
        QCOMPARE(forme(), attendue);
        QCOMPARE(Bac::valeur("PRAGMA user_version"),
            Version::Composer(Comparaison::version(), Version::DernierPalier));
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Album WHERE Coffret=false"), 4);
        QCOMPARE(QStringList({cle(10), cle(11), cle(12), cle(13), cle(99)}),
            QStringList({"A", "B", "ÿ", "", premier ? "" : "ancienne"}));
        QCOMPARE(Bac::valeur("PRAGMA integrity_check"), "ok");
        // What stood there before is kept.
        QCOMPARE(Sauvegardes::Lister().size(), 1);
        QCOMPARE(Sauvegardes::Lister().first().albums, 4);

        Bac::executer("UPDATE Album SET NAlbum = 2 WHERE Num = 13");
        QCOMPARE(cle(13), "C");
        // Rows of before can be taken away and come back.
        Historique histoire(bac.annonces);
        const QStringList avant = Bac::toutLire();
        Bac::agir("DELETE FROM Album");
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
    }

    /// A backup of each, and the blank file of a former version, are looked at by what they should hold.
    void uneAncienneSauvegardeEstReprise()
    {
        for (const bool vierge : {false, true}) {
            for (const auto &[schema, inscrite] : {std::pair("premier", 0), {"palier-1", 1}}) {
                const Bac ancien;
                poserAncienne(ancien, schema, inscrite);
                if (!vierge)
                    remplir({3});
                const Bac bac;
                const QStringList attendue = forme();
                const auto examen = Remplacement::Examiner(ancien.collection());
                QCOMPARE(examen.etat, vierge ? Remplacement::Etat::Vierge : Remplacement::Etat::Saine);
                const QByteArray avant = Bac::lire(ancien.collection());
                QCOMPARE(Remplacement::Restaurer(ancien.collection()), "");
                QVERIFY(Bac::lire(ancien.collection()) == avant);
                QCOMPARE(forme(), attendue);
                QCOMPARE(Bac::valeur("SELECT group_concat(Coffret) FROM Album"),
                    vierge ? QVariant() : QVariant("0"));
            }
        }
    }

    void uneBaseDUnePlusRecenteNEstPasTouchee()
    {
        const Bac bac;
        // An order of names that is not ours either: it must not be mended on the way.
        Bac::executer(
            QStringLiteral("PRAGMA user_version=%1").arg(Version::Composer(7, Version::DernierPalier + 1)));
        const QByteArray avant = Bac::lire(bac.collection());
        QCOMPARE(refus([] { Base(); }), Error::Sorte::PlusRecente);
        MiseANiveau::Executer();
        const Bac autre;
        QCOMPARE(Remplacement::Examiner(bac.collection()).etat, Remplacement::Etat::PlusRecente);
        QVERIFY(!Remplacement::Restaurer(bac.collection()).isEmpty());
        QVERIFY(Bac::lire(bac.collection()) == avant);
    }

    void laCleSuitLeTome()
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
        for (const auto &[sql, attendue] :
            {std::pair("INSERT INTO Album (Num, NAlbum) VALUES (10, 2), (11, 6)", "C"),
                {"UPDATE Album SET NAlbum = 0 WHERE Num = 10", "A"},
                {"UPDATE Album SET NAlbum = 999 WHERE Num = 10", "A"}}) {
            Bac::executer(sql);
            QCOMPARE(cle(10), attendue);
        }
        Bac::executer("UPDATE SerieAlbums SET NAlbum = 11 WHERE NAlbum = 10");
        QCOMPARE(cle(11), "G");
        Bac::executer("INSERT INTO SerieAlbums VALUES (2, 11, 'faux')");
        QCOMPARE(colonne("SELECT NumeroAlbum2 FROM SerieAlbums"), QStringList({"G", "G"}));
    }

    /// An index's name is taken by a table: the step is taken back whole, and runs once nothing is in its way.
    void unPalierManqueEstReprisEtRefait()
    {
        const Bac bac;
        const QStringList attendue = forme();
        poserAncienne(bac, "premier", 0);
        const QStringList avant = forme();
        Bac::executer("CREATE TABLE IndexCotesAlbumNAlbumMoisCotes (a)");
        QVERIFY(refus([] { MiseANiveau::Executer(); }).has_value());
        Bac::executer("DROP TABLE IndexCotesAlbumNAlbumMoisCotes");
        QCOMPARE(forme(), avant);
        MiseANiveau::Executer();
        QCOMPARE(forme(), attendue);

        QVERIFY(QFile::remove(bac.collection()));
        MiseANiveau::Executer();
        QVERIFY(!QFile::exists(bac.collection()));
    }

    /// Another tool knows nothing of our order of names until it loads the extension.
    void lExtensionSertLesAutresOutils()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Genre VALUES (1, 'Edgar'), (2, 'Écume'), (3, 'echo')");
        SQLite::Database outil(bac.collection().toStdString(), SQLite::OPEN_READWRITE);
        const char *noms = "SELECT group_concat(Nom, ' ') FROM (SELECT Nom FROM Genre ORDER BY Nom)";
        QVERIFY(outil.tryExec(noms) != SQLITE_OK);
        outil.loadExtension((QCoreApplication::applicationDirPath() + "/francais").toUtf8(), nullptr);
        outil.exec("INSERT INTO Genre VALUES (4, 'Écho')");
        QCOMPARE(QString(outil.execAndGet(noms).getText()), "echo Écho Écume Edgar");
        QCOMPARE(outil.execAndGet("SELECT NGenre FROM Genre WHERE Nom = 'ÉCHO'").getInt(), 4);
        QCOMPARE(outil.execAndGet("PRAGMA integrity_check").getString(), "ok");
    }
};

QTEST_GUILESS_MAIN(tst_schema)
#include "tst_schema.moc"
