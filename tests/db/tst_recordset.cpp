#include "acts/Acte.h"
#include "db/Base.h"
#include "db/Transaction.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QTest>

namespace {

void remplirGenres(int nombre)
{
    for (int i = 1; i <= nombre; ++i)
        Bac::executer(
            "INSERT INTO Genre VALUES (?, ?)", {i, QStringLiteral("a%1").arg(i, 2, 10, QChar(u'0'))});
}

}

class tst_recordset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Renaming while walking in name order moves every row ahead of the walk; each must be met once.
    void unParcoursSurvitASesPropresEcritures()
    {
        const Bac bac;
        Base base;
        remplirGenres(20);
        int vus = 0;
        for (auto rs = base.edit("Genre", "order by Nom asc"); !rs.AtEnd(); rs.MoveNext()) {
            QVERIFY(++vus <= 20);
            rs.Edit();
            rs.SetField("Nom", QStringLiteral("z%1").arg(vus));
            rs.Update();
        }
        QCOMPARE(vus, 20);
    }

    /// Each row met is deleted through the walk, and the one after it behind its back.
    void unParcoursSurvitASesSuppressions()
    {
        const Bac bac;
        Base base;
        remplirGenres(9);
        QVariantList vus;
        for (auto rs = base.edit("Genre", "order by Nom asc"); !rs.AtEnd(); rs.MoveNext()) {
            vus << rs.Fields(0);
            rs.Delete();
            QVERIFY(refus([&] { rs.Fields(0); }).has_value());
            Bac::executer("DELETE FROM Genre WHERE NGenre = ?", {vus.last().toInt() + 1});
        }
        QCOMPARE(vus, QVariantList({1, 3, 5, 7, 9}));
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Genre"), 0);
    }

    void unParcoursSurvitAUneAnnulation()
    {
        const Bac bac;
        Base base;
        remplirGenres(3);
        const auto noms = [&](auto rs) {
            QStringList noms;
            for (; !rs.AtEnd(); rs.MoveNext()) {
                noms << rs.Fields("nom").toString();
                const Transaction transaction(base);
                base.Execute("UPDATE Genre SET Nom = 'perdu'");
            }
            return noms;
        };
        const QStringList attendus{"a01", "a02", "a03"};
        QCOMPARE(noms(base.edit("Genre", "order by NGenre")), attendus);
        QCOMPARE(noms(base.read("SELECT Nom FROM Genre ORDER BY NGenre")), attendus);
    }

    void lAjoutEtLEditionLaissentLeurSignet()
    {
        const Bac bac;
        Base base;
        remplirGenres(2);
        auto rs = base.edit("Genre");
        rs.AddNew();
        rs.SetField(0, 7);
        rs.SetField("NOM", "Humour");
        rs.Update();
        QCOMPARE(rs.Fields("Nom"), "a01");
        rs.SetBookmark(rs.LastModified());
        QCOMPARE(rs.Fields("Nom"), "Humour");
        rs.Edit();
        rs.SetField(1, "Essai");
        rs.SetField("nom", "Western");
        rs.Update();
        QCOMPARE(rs.LastModified(), 7);
        QCOMPARE(rs.Fields(1), "Western");
        QCOMPARE(rs.RecordCount(), 3);
    }

    void leNombreDeLignesEstEntierDesDeuxSortes()
    {
        const Bac bac;
        Base base;
        for (const int nombre : {0, 5}) {
            remplirGenres(nombre);
            const auto compter = [nombre](auto rs) {
                QCOMPARE(rs.RecordCount(), nombre);
                for (int i = 0; i < nombre; ++i, rs.MoveNext())
                    QCOMPARE(rs.RecordCount(), nombre);
                QVERIFY(rs.AtEnd());
                rs.MoveFirst();
                QCOMPARE(rs.AtEnd(), nombre == 0);
            };
            compter(base.edit("Genre", "order by Nom asc "));
            compter(base.OpenRecordset("SELECT Nom FROM Genre ;"));
        }
    }

    void apresLaFinIlNYAPlusDeLigne()
    {
        const Bac bac;
        Base base;
        auto vide = base.edit("Serie");
        QVERIFY(refus([&] { vide.Fields("Nom"); }).has_value());
        QVERIFY(refus([&] { vide.Edit(); }).has_value());
        QVERIFY(refus([&] { base.read("SELECT Nom FROM Serie").Fields("Nom"); }).has_value());
        remplirGenres(1);
        auto rs = base.edit("Genre");
        rs.MoveNext();
        QVERIFY(rs.AtEnd());
        QVERIFY(refus([&] { rs.Fields("Nom"); }).has_value());
        QVERIFY(refus([&] { rs.Delete(); }).has_value());
        QVERIFY(refus([&] { base.read("SELECT Nom FROM Genre").Fields("Prenom"); }).has_value());
    }

    void uneEditionSansChangementNEcritRien_data()
    {
        colonnes<QString, QVariant>();
        QTest::newRow("texte") << "ISBN" << QVariant("L'été");
        QTest::newRow("texte vide") << "ISSN" << QVariant("");
        QTest::newRow("nul") << "DA" << QVariant();
        QTest::newRow("entier") << "NAlbum" << QVariant(12);
        QTest::newRow("montant au-dela des decimales") << "PrixA" << QVariant(12.340049);
        QTest::newRow("booleen") << "Broche" << QVariant(true);
    }

    void uneEditionSansChangementNEcritRien()
    {
        const auto [champ, valeur] = essai<QString, QVariant>();
        Bac bac;
        Bac::executer(
            "INSERT INTO Album (Num, NAlbum, ISBN, ISSN, PrixA, Broche) VALUES (1, 12, ?, '', 12.34, true)",
            {"L'été"});
        Ecoute ecoute(bac.annonces);
        const auto annonces = ecoute.annonces().size();
        const QByteArray avant = Bac::lire(bac.collection());
        {
            Acte acte("rien");
            auto rs = acte.base().edit("Album", "Num = ?", {1});
            rs.Edit();
            rs.SetField(champ, valeur);
            rs.Update();
            acte.valider();
        }
        QVERIFY(Bac::lire(bac.collection()) == avant);
        QCOMPARE(ecoute.annonces().size(), annonces);
    }

    void uneValeurImpossibleEstRefusee_data()
    {
        colonnes<QString, QVariant>();
        QTest::newRow("texte dans un entier") << "NAlbum" << QVariant("douze");
        QTest::newRow("blanc dans un entier") << "NAlbum" << QVariant(" ");
        QTest::newRow("fraction dans un entier") << "NAlbum" << QVariant(1.5);
        QTest::newRow("texte dans un montant") << "PrixA" << QVariant("12,50");
        QTest::newRow("un dans un booleen") << "Broche" << QVariant(1);
        QTest::newRow("nul dans un booleen") << "Broche" << QVariant();
        QTest::newRow("identifiant deja pris") << "Num" << QVariant(2);
    }

    void uneValeurImpossibleEstRefusee()
    {
        const auto [champ, valeur] = essai<QString, QVariant>();
        const Bac bac;
        Bac::executer("INSERT INTO Album (Num, NAlbum, PrixA) VALUES (1, 12, 3.5), (2, 13, 3.5)");
        const QByteArray avant = Bac::lire(bac.collection());
        {
            auto rs = Base().edit("Album", "Num = 1");
            rs.Edit();
            rs.SetField("Commentaire", "avec");
            rs.SetField(champ, valeur);
            QVERIFY(refus([&] { rs.Update(); }) == Error::Sorte::Autre);
        }
        QVERIFY(Bac::lire(bac.collection()) == avant);
    }

    void uneValeurRevientCommeElleDoit_data()
    {
        colonnes<QString, QVariant, QVariant>();
        const auto tel = [](const char *nom, const QVariant &v) { QTest::newRow(nom) << "TAlbum" << v << v; };
        tel("nul", QVariant());
        tel("texte vide", "");
        tel("apostrophes et accents", "L'Écume d'été ''");
        tel("marques et mots", "\"Lou\" ?1 :a; true -- DROP TABLE Genre;");
        tel("hors du plan de base", "œ € 😀 日本");
        tel("long", QString(200'000, u'é'));
        const auto montant = [](const char *nom, double a, double b) {
            QTest::newRow(nom) << "PrixA" << QVariant(a) << QVariant(b);
        };
        montant("somme inexacte", 0.1 + 0.2, 0.3);
        montant("negatif", -12.34567, -12.3457);
        montant("infime", 0.00004, 0.0);
        montant("le plus grand", 900719925474.0991, 900719925474.0991);
        QTest::newRow("vrai") << "Broche" << QVariant(true) << QVariant(-1);
        QTest::newRow("faux") << "Broche" << QVariant(false) << QVariant(0);
    }

    void uneValeurRevientCommeElleDoit()
    {
        const auto [champ, donne, garde] = essai<QString, QVariant, QVariant>();
        const Bac bac;
        const QString table = champ == "TAlbum" ? "LAlbums" : "Album";
        {
            auto rs = Base().edit(table);
            rs.AddNew();
            rs.SetField(champ, donne);
            rs.Update();
        }
        const QVariant lu
            = Bac::valeur("SELECT " + champ + " FROM " + table + " WHERE " + champ + " IS ?", {donne});
        QVERIFY2(lu == garde && lu.isValid() == garde.isValid(), qPrintable(lu.toString()));
    }

    void leTexteDUneRequeteEstMisEnForme_data()
    {
        colonnes<QString, int>();
        QTest::newRow("vrai") << "Scena=true" << 1;
        QTest::newRow("faux, casse melee, fin") << "Scena = False ; " << 2;
        QTest::newRow("mot dans un texte") << "Nom = 'true'" << 2;
        QTest::newRow("mot apres apostrophe doublee") << "Nom <> 'l''a true' and Dessin=TRUE;;" << 1;
        QTest::newRow("point-virgule dans un texte") << "Nom = 'fin; '" << 1;
    }

    void leTexteDUneRequeteEstMisEnForme()
    {
        const auto [condition, attendu] = essai<QString, int>();
        const Bac bac;
        Base base;
        Bac::executer(
            "INSERT INTO Auteurs (NAuteur, Nom, Scena, Dessin)"
            " VALUES (1, 'true', true, false), (2, 'true', false, true), (3, 'fin; ', false, false)");
        QCOMPARE(int(base.edit("Auteurs", condition).RecordCount()), attendu);
        QCOMPARE(Bac::valeur("SELECT count(*) From Auteurs where " + condition).toInt(), attendu);
    }

    void uneLigneSupprimeeEntreTempsRefuseLEdition()
    {
        const Bac bac;
        Base base;
        remplirGenres(2);
        auto rs = base.edit("Genre");
        rs.Edit();
        rs.SetField("Nom", "Fantôme");
        Bac::executer("DELETE FROM Genre WHERE NGenre = 1");
        QVERIFY(refus([&] { rs.Update(); }).has_value());
        rs.MoveNext();
        QCOMPARE(rs.Fields("Nom"), "a02");
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Genre"), 1);
    }

    /// The engine keeps its statements: those of before must not read the table of after.
    void uneTableQuiChangeEstRelue()
    {
        const Bac bac;
        Base base;
        base.Execute("INSERT INTO Genre VALUES (1, 'a')");
        const auto lire = [&](const QString &champ) {
            const auto rs = base.OpenRecordset("SELECT * From Genre");
            return rs.Fields(champ).toString();
        };
        QCOMPARE(lire("Nom"), "a");
        {
            const Transaction reprise(base);
            base.Execute("ALTER TABLE Genre ADD COLUMN Neuf TEXT DEFAULT 'n'");
            QCOMPARE(lire("Neuf"), "n");
        }
        QVERIFY(refus([&] { lire("Neuf"); }).has_value());
    }
};

QTEST_GUILESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
