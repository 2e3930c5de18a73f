#include "db/Base.h"
#include "db/Transaction.h"
#include "support/Bac.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QTest>

class tst_recordset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unParcoursSurvitASesPropresEcritures();
    void unParcoursSurvitASesSuppressions();
    void unParcoursSurvitAUneAnnulation_data();
    void unParcoursSurvitAUneAnnulation();
    void lAjoutNeDeplacePasMaisSonSignetYMene();
    void leNombreDeLignesNeDeplacePas_data();
    void leNombreDeLignesNeDeplacePas();
    void uneTableVideNaPasDeLigne();
    void uneEditionSansChangementNEcritRien_data();
    void uneEditionSansChangementNEcritRien();
    void uneValeurImpossibleEstRefusee_data();
    void uneValeurImpossibleEstRefusee();
    void lesMontantsSontArrondisAQuatreDecimales_data();
    void lesMontantsSontArrondisAQuatreDecimales();
    void unBooleenEstMoinsUnOuZero();
    void unNulNEstPasUnTexteVide();
    void unTexteRevientTelQuel_data();
    void unTexteRevientTelQuel();
    void leTexteDUneRequeteEstMisEnForme_data();
    void leTexteDUneRequeteEstMisEnForme();
    void uneLigneSupprimeeEntreTempsRefuseLEdition();
};

namespace {

void remplirGenres(int nombre)
{
    for (int i = 1; i <= nombre; ++i)
        Bac::executer(
            "INSERT INTO Genre VALUES (?, ?)", {i, QStringLiteral("a%1").arg(i, 2, 10, QChar(u'0'))});
}

}

/// Renaming while walking in name order moves every row ahead of the walk; each must be met once.
void tst_recordset::unParcoursSurvitASesPropresEcritures()
{
    const Bac bac;
    const Base base;
    remplirGenres(20);
    int vus = 0;
    for (auto rs = base.OpenRecordset("SELECT * From Genre order by Nom asc"); !rs.AtEnd(); rs.MoveNext()) {
        QVERIFY(++vus <= 20);
        rs.Edit();
        rs.SetField("Nom", QStringLiteral("z%1").arg(vus));
        rs.Update();
    }
    QCOMPARE(vus, 20);
}

/// Each row met deletes itself and the one after the next, so that two in three are met or passed over.
void tst_recordset::unParcoursSurvitASesSuppressions()
{
    const Bac bac;
    const Base base;
    remplirGenres(9);
    QVariantList vus;
    auto rs = base.OpenRecordset("SELECT * From Genre order by Nom asc");
    for (; !rs.AtEnd(); rs.MoveNext()) {
        const int cle = rs.Fields(0).toInt();
        vus << cle;
        rs.Delete();
        QVERIFY(refus([&] { rs.Fields(0); }));
        Bac::executer("DELETE FROM Genre WHERE NGenre = ?", {cle + 1});
    }
    QCOMPARE(vus, QVariantList({1, 3, 5, 7, 9}));
    QCOMPARE(Bac::valeur("SELECT count(*) FROM Genre"), 0);
    rs.MoveFirst();
    QVERIFY(rs.AtEnd());
}

void tst_recordset::unParcoursSurvitAUneAnnulation_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("modifiable") << "SELECT * From Genre order by NGenre";
    QTest::newRow("en avant") << "SELECT NGenre, Nom FROM Genre ORDER BY NGenre";
}

void tst_recordset::unParcoursSurvitAUneAnnulation()
{
    QFETCH(QString, sql);
    const Bac bac;
    const Base base;
    remplirGenres(5);
    QStringList noms;
    for (auto rs = base.OpenRecordset(sql); !rs.AtEnd(); rs.MoveNext()) {
        noms << rs.Fields("nom").toString();
        const Transaction transaction(base);
        base.Execute("UPDATE Genre SET Nom = 'perdu'");
    }
    QCOMPARE(noms, QStringList({"a01", "a02", "a03", "a04", "a05"}));
}

void tst_recordset::lAjoutNeDeplacePasMaisSonSignetYMene()
{
    const Bac bac;
    const Base base;
    remplirGenres(2);
    auto rs = base.OpenRecordset("SELECT * From Genre");
    rs.AddNew();
    rs.SetField(0, 7);
    rs.SetField("NOM", "Humour");
    rs.Update();
    QCOMPARE(rs.Fields("Nom"), "a01");
    QCOMPARE(rs.RecordCount(), 3);
    rs.SetBookmark(rs.LastModified());
    QCOMPARE(rs.Fields("NGenre"), 7);
    QCOMPARE(rs.Fields("Nom"), "Humour");

    rs.Edit();
    rs.SetField(1, "Essai");
    rs.SetField("nom", "Western");
    rs.Update();
    QCOMPARE(rs.LastModified(), 7);
    QCOMPARE(rs.Fields(1), "Western");
    rs.MoveNext();
    QVERIFY(rs.AtEnd());
}

void tst_recordset::leNombreDeLignesNeDeplacePas_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("nombre");
    QTest::newRow("modifiable") << "SELECT * From Genre where NGenre > ? order by Nom asc " << 3;
    QTest::newRow("en avant") << "SELECT Nom FROM Genre WHERE NGenre > ? ORDER BY Nom ;" << 3;
    QTest::newRow("compte") << "SELECT count(*) From genre where NGenre > ? ;" << 1;
}

void tst_recordset::leNombreDeLignesNeDeplacePas()
{
    QFETCH(QString, sql);
    QFETCH(int, nombre);
    const Bac bac;
    const Base base;
    remplirGenres(5);
    auto rs = base.OpenRecordset(sql, {2});
    int vues = 0;
    for (; !rs.AtEnd(); rs.MoveNext(), ++vues)
        QCOMPARE(rs.RecordCount(), nombre);
    QCOMPARE(vues, nombre);
    rs.MoveFirst();
    QVERIFY(!rs.AtEnd());
}

void tst_recordset::uneTableVideNaPasDeLigne()
{
    const Bac bac;
    const Base base;
    auto rs = base.OpenRecordset("SELECT * From Serie order by Nom asc");
    QVERIFY(rs.AtEnd());
    QCOMPARE(rs.RecordCount(), 0);
    QVERIFY(refus([&] { rs.Fields("Nom"); }));
    QVERIFY(refus([&] { rs.Edit(); }));
    QVERIFY(refus([&] { rs.Delete(); }));
    QVERIFY(base.OpenRecordset("SELECT Nom FROM Serie").AtEnd());
    QVERIFY(!base.OpenRecordset("SELECT max(NSerie) From Serie").Fields(0).isValid());
}

void tst_recordset::uneEditionSansChangementNEcritRien_data()
{
    QTest::addColumn<QString>("champ");
    QTest::addColumn<QVariant>("valeur");
    QTest::newRow("texte") << "ISBN" << QVariant("L'été");
    QTest::newRow("entier") << "NAlbum" << QVariant(12);
    QTest::newRow("entier en nombre") << "NAlbum" << QVariant(12.0);
    QTest::newRow("montant") << "PrixA" << QVariant(12.34);
    QTest::newRow("montant au-dela des decimales") << "PrixA" << QVariant(12.340049);
    QTest::newRow("booleen") << "Broche" << QVariant(true);
    QTest::newRow("booleen en nombre") << "Broche" << QVariant(-1);
    QTest::newRow("nul") << "DA" << QVariant();
    QTest::newRow("texte vide") << "ISSN" << QVariant("");
}

void tst_recordset::uneEditionSansChangementNEcritRien()
{
    QFETCH(QString, champ);
    QFETCH(QVariant, valeur);
    Bac bac;
    Bac::executer(
        "INSERT INTO Album (Num, NAlbum, ISBN, ISSN, PrixA, Broche) VALUES (1, 12, ?, '', 12.34, true)",
        {"L'été"});
    const QByteArray avant = Bac::lire(bac.collection());
    Ecoute ecoute(bac.collectionCourante);
    QCOMPARE(ecoute.annonces().size(), 1U);
    {
        const Base base;
        auto rs = base.OpenRecordset("SELECT * From Album where Num = ?", {1});
        rs.Edit();
        rs.SetField(champ, valeur);
        rs.Update();
        QCOMPARE(rs.LastModified(), 1);
    }
    QVERIFY(Bac::lire(bac.collection()) == avant);
    QCOMPARE(ecoute.annonces().size(), 1U);
}

void tst_recordset::uneValeurImpossibleEstRefusee_data()
{
    QTest::addColumn<QString>("champ");
    QTest::addColumn<QVariant>("valeur");
    QTest::newRow("texte dans un entier") << "NAlbum" << QVariant("douze");
    QTest::newRow("texte vide dans un entier") << "NAlbum" << QVariant("");
    QTest::newRow("blanc dans un entier") << "NAlbum" << QVariant(" ");
    QTest::newRow("fraction dans un entier") << "NAlbum" << QVariant(1.5);
    QTest::newRow("texte dans un montant") << "PrixA" << QVariant("12,50");
    QTest::newRow("un dans un booleen") << "Broche" << QVariant(1);
    QTest::newRow("nul dans un booleen") << "Broche" << QVariant();
    QTest::newRow("mot dans un booleen") << "Broche" << QVariant("Vrai");
    QTest::newRow("octets dans un texte") << "ISBN" << QVariant(QByteArray("\xFF\x00", 2));
    QTest::newRow("identifiant deja pris") << "Num" << QVariant(2);
}

void tst_recordset::uneValeurImpossibleEstRefusee()
{
    QFETCH(QString, champ);
    QFETCH(QVariant, valeur);
    Bac bac;
    Bac::executer("INSERT INTO Album (Num, NAlbum, PrixA) VALUES (1, 12, 3.5), (2, 13, 3.5)");
    Ecoute ecoute(bac.collectionCourante);
    ecoute.annonces();
    const QByteArray avant = Bac::lire(bac.collection());
    {
        const Base base;
        auto rs = base.OpenRecordset("SELECT * From Album where Num = 1");
        rs.Edit();
        rs.SetField("Commentaire", "avec");
        rs.SetField(champ, valeur);
        QVERIFY(refus([&] { rs.Update(); }) == Error::Sorte::Autre);
    }
    QVERIFY(Bac::lire(bac.collection()) == avant);
    QCOMPARE(ecoute.annonces().size(), 1U);
}

void tst_recordset::lesMontantsSontArrondisAQuatreDecimales_data()
{
    QTest::addColumn<double>("donne");
    QTest::addColumn<double>("garde");
    QTest::newRow("somme inexacte") << 0.1 + 0.2 << 0.3;
    QTest::newRow("tiers") << 100.0 / 3 << 33.3333;
    QTest::newRow("vers le haut") << 2.0 / 3 << 0.6667;
    QTest::newRow("negatif") << -12.34567 << -12.3457;
    QTest::newRow("infime") << 0.00004 << 0.0;
    QTest::newRow("le plus grand") << 900719925474.0991 << 900719925474.0991;
    QTest::newRow("entier") << 12.0 << 12.0;
}

void tst_recordset::lesMontantsSontArrondisAQuatreDecimales()
{
    QFETCH(double, donne);
    QFETCH(double, garde);
    const Bac bac;
    Bac::executer("INSERT INTO Album (Num, PrixA) VALUES (1, ?)", {donne});
    const QVariant lu = Bac::valeur("SELECT PrixA FROM Album");
    QCOMPARE(lu.typeId(), int(QMetaType::Double));
    QVERIFY2(lu.toDouble() == garde, qPrintable(QString::number(lu.toDouble(), 'g', 17)));
}

void tst_recordset::unBooleenEstMoinsUnOuZero()
{
    const Bac bac;
    const Base base;
    auto rs = base.OpenRecordset("SELECT * From Auteurs");
    rs.AddNew();
    rs.SetField("NAuteur", 1);
    rs.SetField("Dessin", true);
    rs.SetField("Scena", false);
    rs.Update();
    QCOMPARE(Bac::valeur("SELECT Dessin || ' ' || Scena || ' ' || Color FROM Auteurs"), "-1 0 0");
    QCOMPARE(Bac::valeur("SELECT count(*) FROM Auteurs WHERE Dessin = ?", {true}), 1);
}

void tst_recordset::unNulNEstPasUnTexteVide()
{
    const Bac bac;
    const Base base;
    Bac::executer("INSERT INTO Genre VALUES (1, NULL), (2, '')");
    auto rs = base.OpenRecordset("SELECT * From Genre order by NGenre");
    QVERIFY(!rs.Fields("Nom").isValid());
    rs.Edit();
    rs.SetField("Nom", "");
    rs.Update();
    rs.MoveNext();
    QVERIFY(rs.Fields("Nom").isValid());
    rs.Edit();
    rs.SetField("Nom", QVariant());
    rs.Update();
    QCOMPARE(Bac::valeur("SELECT NGenre FROM Genre WHERE Nom IS NULL"), 2);
    QCOMPARE(Bac::valeur("SELECT NGenre FROM Genre WHERE Nom = ''"), 1);
}

void tst_recordset::unTexteRevientTelQuel_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("apostrophe") << "L'Écume d'été ''";
    QTest::newRow("guillemets") << "\"Tintin\" ?1 :a @b $c";
    QTest::newRow("mots reserves") << "true; false -- DROP TABLE Genre;";
    QTest::newRow("hors du plan de base") << QStringLiteral("œ € 😀 日本");
    QTest::newRow("lignes") << "a\r\nb\tc\n";
    QTest::newRow("blanc") << " ";
    QTest::newRow("long") << QString(200'000, u'é');
}

void tst_recordset::unTexteRevientTelQuel()
{
    QFETCH(QString, texte);
    const Bac bac;
    const Base base;
    auto rs = base.OpenRecordset("SELECT * From Genre");
    rs.AddNew();
    rs.SetField("NGenre", 1);
    rs.SetField("Nom", texte);
    rs.Update();
    auto trouve = base.OpenRecordset("SELECT * From Genre where Nom = ? order by Nom asc", {texte});
    QCOMPARE(trouve.RecordCount(), 1);
    QCOMPARE(trouve.Fields(1), texte);
    const auto octets = trouve.Utf8(1);
    QCOMPARE(QString::fromUtf8(octets.data(), qsizetype(octets.size())), texte);
}

void tst_recordset::leTexteDUneRequeteEstMisEnForme_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<int>("attendu");
    QTest::newRow("vrai") << "Scena=true" << 1;
    QTest::newRow("faux, casse melee; fin") << "Scena = False ; " << 2;
    QTest::newRow("mot dans un texte") << "Nom = 'true'" << 2;
    QTest::newRow("mot apres apostrophe doublee") << "Nom <> 'l''a true' and Dessin=TRUE;;" << 1;
    QTest::newRow("partie d'un mot") << "SurNom = 'untrue' or Nom = 'falseur'" << 0;
    QTest::newRow("point-virgule dans un texte") << "Nom = 'fin; '" << 1;
    QTest::newRow("champ entre guillemets") << "\"Scena\"=true" << 1;
}

void tst_recordset::leTexteDUneRequeteEstMisEnForme()
{
    QFETCH(QString, condition);
    QFETCH(int, attendu);
    const Bac bac;
    const Base base;
    Bac::executer("INSERT INTO Auteurs (NAuteur, Nom, Scena, Dessin)"
                  " VALUES (1, 'true', true, false), (2, 'true', false, true), (3, 'fin; ', false, false)");
    QCOMPARE(base.OpenRecordset("SELECT * From Auteurs where " + condition).RecordCount(), attendu);
    QCOMPARE(Bac::valeur("SELECT count(*) From Auteurs where " + condition), attendu);
}

void tst_recordset::uneLigneSupprimeeEntreTempsRefuseLEdition()
{
    const Bac bac;
    const Base base;
    remplirGenres(2);
    auto rs = base.OpenRecordset("SELECT * From Genre");
    rs.Edit();
    rs.SetField("Nom", "Fantôme");
    Bac::executer("DELETE FROM Genre WHERE NGenre = 1");
    QVERIFY(refus([&] { rs.Update(); }).has_value());
    QCOMPARE(Bac::valeur("SELECT group_concat(Nom) FROM Genre"), "a02");
    rs.MoveNext();
    QCOMPARE(rs.Fields("Nom"), "a02");
}

QTEST_GUILESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
