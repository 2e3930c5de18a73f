#include "db/Base.h"
#include "db/Journal.h"
#include "db/Transaction.h"
#include "support/Bac.h"
#include "support/Ecoute.h"
#include "support/Refus.h"

#include <QTest>

class tst_journal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueEcritureEstNoteeEtAnnonceeUneFois();
    void uneAnnulationNEffaceQueSaPart_data();
    void uneAnnulationNEffaceQueSaPart();
    void uneInstructionRefuseeNeLaissePasDeTrace_data();
    void uneInstructionRefuseeNeLaissePasDeTrace();
    void annulerEtRefaireRendentLigneParLigne_data();
    void annulerEtRefaireRendentLigneParLigne();
    void annulerRefuseUneLigneChangeeDepuis_data();
    void annulerRefuseUneLigneChangeeDepuis();
};

namespace {

/// One line for each notes change: what was done, where, and the values.
QStringList enTexte(const Changements &changements)
{
    const auto valeurs = [](const Changement::Ligne &ligne) {
        QStringList textes;
        for (const QVariant &v : ligne)
            textes << (v.isValid() ? v.toString() : QStringLiteral("nul"));
        return u'(' + textes.join(u',') + u')';
    };
    QStringList lignes;
    for (const Changement &c : changements)
        lignes << QStringLiteral("%1 %2 ").arg(c.table).arg(c.cle) + (c.avant ? valeurs(*c.avant) : QString())
                + u'>' + (c.apres ? valeurs(*c.apres) : QString());
    return lignes;
}

/// Two albums of one series with their links, whose row numbers have a hole.
void remplir()
{
    const Base base;
    base.Execute("INSERT INTO Serie (NSerie, Nom) VALUES (1, 'Écume')");
    base.Execute("INSERT INTO Album (Num, NAlbum, PrixA, ISSN) VALUES (1, 5, 12, ''), (2, 7, 9.95, NULL)");
    base.Execute("INSERT INTO LAlbums (NAlbum, TAlbum) VALUES (1, 'L''un'), (2, 'L''autre')");
    base.Execute("INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 9), (1, 1), (1, 2)");
    base.Execute("DELETE FROM SerieAlbums WHERE NAlbum = 9");
    base.Execute("INSERT INTO CotesAlbum VALUES (1, '2026-01', '12'), (1, '2026-01', '12'), (2, '', NULL)");
    base.Execute("INSERT INTO AuteursAlbums VALUES (3, 1, true, true, false)");
}

Changements derniere(Ecoute &ecoute)
{
    return ecoute.annonces().empty() ? Changements() : ecoute.annonces().back();
}

}

void tst_journal::chaqueEcritureEstNoteeEtAnnonceeUneFois()
{
    Bac bac;
    Ecoute ecoute(bac.annonces);
    {
        const Base base;
        base.Execute("INSERT INTO Pret VALUES (4, 'Écume', NULL, '')");
        Bac::executer("UPDATE Pret SET Tel = '01' WHERE NPret = 4");
        QCOMPARE(ecoute.annonces().size(), 0U);
        base.Execute("UPDATE Pret SET NPret = 5");
        base.Execute("DELETE FROM Pret");
        base.Execute("UPDATE Pret SET Tel = '02'");
    }
    QCOMPARE(ecoute.annonces().size(), 1U);
    QCOMPARE(enTexte(derniere(ecoute)),
        QStringList({"Pret 4 >(4,Écume,nul,)", "Pret 4 (4,Écume,nul,)>(4,Écume,nul,01)",
            "Pret 4 (4,Écume,nul,01)>", "Pret 5 >(5,Écume,nul,01)", "Pret 5 (5,Écume,nul,01)>"}));
}

void tst_journal::uneAnnulationNEffaceQueSaPart_data()
{
    QTest::addColumn<bool>("externe");
    QTest::addColumn<bool>("interne");
    QTest::addColumn<QString>("reste");
    QTest::newRow("les deux valent") << true << true << "0,1,2,3,4";
    QTest::newRow("l'interne est defaite") << true << false << "0,1,3,4";
    QTest::newRow("l'externe defait l'interne") << false << true << "0,4";
    QTest::newRow("les deux sont defaites") << false << false << "0,4";
}

void tst_journal::uneAnnulationNEffaceQueSaPart()
{
    QFETCH(bool, externe);
    QFETCH(bool, interne);
    QFETCH(QString, reste);
    Bac bac;
    Ecoute ecoute(bac.annonces);
    {
        const Base base;
        const auto inserer = [&](int cle) { base.Execute("INSERT INTO Genre VALUES (?, '')", {cle}); };
        inserer(0);
        {
            Transaction dehors(base);
            inserer(1);
            {
                Transaction dedans(base);
                inserer(2);
                if (interne)
                    dedans.Commit();
            }
            inserer(3);
            if (externe)
                dehors.Commit();
        }
        inserer(4);
    }
    QCOMPARE(Bac::valeur("SELECT group_concat(NGenre) FROM (SELECT NGenre FROM Genre ORDER BY 1)"), reste);
    QStringList notees;
    for (const Changement &c : derniere(ecoute))
        notees << QString::number(c.cle);
    QCOMPARE(notees.join(u','), reste);
}

void tst_journal::uneInstructionRefuseeNeLaissePasDeTrace_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("refus a la deuxieme ligne")
        << "UPDATE Album SET Broche = CASE Num WHEN 2 THEN 1 ELSE -1 END";
    QTest::newRow("texte dans un entier") << "UPDATE SerieAlbums SET NSerie = 'x' WHERE NAlbum = 2";
}

void tst_journal::uneInstructionRefuseeNeLaissePasDeTrace()
{
    QFETCH(QString, sql);
    Bac bac;
    remplir();
    const QStringList avant = Bac::toutLire();
    Ecoute ecoute(bac.annonces);
    ecoute.annonces();
    {
        const Base base;
        base.Execute("INSERT INTO Genre VALUES (1, 'avant')");
        QVERIFY(refus([&] { base.Execute(sql); }).has_value());
        base.Execute("DELETE FROM Genre");
    }
    QCOMPARE(enTexte(derniere(ecoute)), QStringList({"Genre 1 >(1,avant)", "Genre 1 (1,avant)>"}));
    QCOMPARE(Bac::toutLire(), avant);
}

void tst_journal::annulerEtRefaireRendentLigneParLigne_data()
{
    QTest::addColumn<QStringList>("actes");
    QTest::newRow("album nouveau et son lien")
        << QStringList{"INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 3)",
               "INSERT INTO Album (Num, NAlbum, PrixA) VALUES (3, 8, 1)"};
    QTest::newRow("tome change") << QStringList{"UPDATE Album SET NAlbum = 6 WHERE Num = 1"};
    QTest::newRow("tome hors de portee") << QStringList{"UPDATE Album SET NAlbum = 191"};
    QTest::newRow("lien deplace") << QStringList{"UPDATE SerieAlbums SET NAlbum = 2 WHERE NAlbum = 1"};
    QTest::newRow("suppression en cascade") << QStringList{"DELETE FROM SerieAlbums WHERE NAlbum = 1",
        "DELETE FROM CotesAlbum WHERE NAlbum = 1", "DELETE FROM AuteursAlbums",
        "DELETE FROM LAlbums WHERE NAlbum = 1", "DELETE FROM Album WHERE Num = 1"};
    QTest::newRow("numero redonne") << QStringList{
        "DELETE FROM Album WHERE Num = 2", "INSERT INTO Album (Num, NAlbum) VALUES (2, 1)"};
    QTest::newRow("identifiant change")
        << QStringList{"UPDATE Album SET Num = Num + 10", "UPDATE LAlbums SET NAlbum = NAlbum + 10"};
    QTest::newRow("nul et vide") << QStringList{
        "UPDATE Album SET ISSN = iif(ISSN IS NULL, '', NULL)", "UPDATE Serie SET Nom = NULL, Histoire = ''"};
    QTest::newRow("tout") << QStringList{
        "DELETE FROM Album", "DELETE FROM LAlbums", "DELETE FROM SerieAlbums", "DELETE FROM Serie"};
}

void tst_journal::annulerEtRefaireRendentLigneParLigne()
{
    QFETCH(QStringList, actes);
    Bac bac;
    remplir();
    const QStringList avant = Bac::toutLire();
    Ecoute ecoute(bac.annonces);
    {
        const Base base;
        for (const QString &acte : std::as_const(actes))
            QVERIFY(base.Execute(acte) > 0);
    }
    const QStringList apres = Bac::toutLire();
    QVERIFY(apres != avant);
    const Changements notes = derniere(ecoute);
    for (int i = 0; i < 2; ++i) {
        Journal::Annuler(Base(), notes);
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(!derniere(ecoute).empty());
        Journal::Refaire(Base(), notes);
        QCOMPARE(Bac::toutLire(), apres);
    }
    Bac::executer("UPDATE Album SET NAlbum = 3 WHERE Num = 1");
    QCOMPARE(Bac::valeur("SELECT count(*) FROM SerieAlbums JOIN Album ON Num = SerieAlbums.NAlbum"
                         " WHERE Album.NAlbum = 3 AND NumeroAlbum2 <> 'D'"),
        0);
    QCOMPARE(Bac::valeur("PRAGMA integrity_check"), "ok");
}

void tst_journal::annulerRefuseUneLigneChangeeDepuis_data()
{
    QTest::addColumn<QString>("entretemps");
    QTest::newRow("valeur changee") << "UPDATE LAlbums SET Photo1 = 'x.jpg' WHERE NAlbum = 1";
    QTest::newRow("valeur nulle devenue vide") << "UPDATE LAlbums SET Photo2 = '' WHERE NAlbum = 1";
    QTest::newRow("ligne supprimee") << "DELETE FROM LAlbums WHERE NAlbum = 1";
    QTest::newRow("numero repris") << "INSERT INTO LAlbums (NAlbum, TAlbum) VALUES (2, 'Intrus')";
}

/// The refused change is not the last one notes, so that others were taken back before it.
void tst_journal::annulerRefuseUneLigneChangeeDepuis()
{
    QFETCH(QString, entretemps);
    Bac bac;
    remplir();
    Ecoute ecoute(bac.annonces);
    {
        const Base base;
        base.Execute("UPDATE LAlbums SET TAlbum = 'neuf' WHERE NAlbum = 1");
        base.Execute("DELETE FROM LAlbums WHERE NAlbum = 2");
        base.Execute("UPDATE Album SET NAlbum = 9 WHERE Num = 1");
    }
    const Changements notes = derniere(ecoute);
    Bac::executer(entretemps);
    const QStringList avant = Bac::toutLire();
    {
        const Base base;
        QVERIFY(refus([&] { Journal::Annuler(base, notes); }).has_value());
        QCOMPARE(Bac::toutLire(), avant);
        // The rules that keep the tome's key are in force again after the refusal.
        base.Execute("UPDATE Album SET NAlbum = 3 WHERE Num = 1");
    }
    QCOMPARE(Bac::valeur("SELECT NumeroAlbum2 FROM SerieAlbums WHERE NAlbum = 1"), "D");
    QCOMPARE(derniere(ecoute).size(), 2U);
}

QTEST_GUILESS_MAIN(tst_journal)
#include "tst_journal.moc"
