#include "acts/Historique.h"
#include "support/Bac.h"
#include "support/Ecoute.h"
#include "support/Etapes.h"
#include "support/Refus.h"

#include <QDir>
#include <QTest>

namespace {

/// One line for each noted change: what was done, where, and which fields of an edited row.
QStringList enTexte(const Changements &changements)
{
    QStringList lignes;
    for (const Changement &c : changements) {
        const bool edition = c.sorte == Changement::Sorte::Edition;
        lignes << QStringLiteral("%1 %2 ").arg(c.table).arg(c.cle) + QString("?+/-").at(int(c.sorte))
                + (edition ? QString::number(c.champs) : QString());
    }
    return lignes;
}

/// Two albums of one series with their links, whose row numbers have a hole.
void remplir()
{
    Base base;
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

class tst_journal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueEcritureEstNoteeEtAnnonceeUneFois()
    {
        Bac bac;
        Ecoute ecoute(bac.annonces);
        Etapes etapes(bac.annonces);
        for (const bool vaut : {false, true}) {
            Acte acte("prêter", {General::Tri::Albums, 3});
            Bac::executer("INSERT INTO Pret VALUES (4, 'Écume', NULL, '')");
            Bac::executer("UPDATE Pret SET Tel = '01' WHERE NPret = 4");
            Bac::agir("UPDATE Pret SET Tel = '01', Nom = 'L''été' WHERE NPret = 4", {}, "dedans");
            for (const char *sql : {"UPDATE Pret SET NPret = 5", "UPDATE Pret SET NPret = NPret",
                     "CREATE TEMP TABLE IF NOT EXISTS ailleurs (a)", "INSERT INTO temp.ailleurs VALUES (1)",
                     "DELETE FROM Pret"})
                Bac::executer(sql);
            QCOMPARE(ecoute.annonces().size(), 0U);
            if (vaut)
                acte.valider();
        }
        QCOMPARE(etapes.faites.size(), 1U);
        QCOMPARE(etapes.faites[0].titre, "prêter");
        QCOMPARE(etapes.faites[0].lieu.id, 3);
        QCOMPARE(ecoute.annonces().size(), 1U);
        QCOMPARE(enTexte(derniere(ecoute)),
            QStringList({"Pret 4 +", "Pret 4 /8", "Pret 4 /2", "Pret 4 -", "Pret 5 +", "Pret 5 -"}));
        // What is written outside of an act is nobody's step.
        Bac::executer("INSERT INTO Genre VALUES (1, 'a')");
        Bac::agir("UPDATE Genre SET Nom = 'A' WHERE NGenre = 2");
        QCOMPARE(ecoute.annonces().size(), 1U);
        QCOMPARE(etapes.faites.size(), 1U);
    }

    void auDelaDeDixMilleLignesSeulesLesTablesSontDites()
    {
        Bac bac;
        Ecoute ecoute(bac.annonces);
        const QString beaucoup = "WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
                                 " INSERT INTO %1 (%2) SELECT i FROM n";
        Acte acte("beaucoup");
        acte.base().Execute(beaucoup.arg("Genre", "NGenre"), {6000});
        acte.base().Execute(beaucoup.arg("Pays", "NPays"), {6000});
        acte.valider();
        QCOMPARE(enTexte(derniere(ecoute)), QStringList({"Genre 0 ?", "Pays 0 ?"}));
    }

    void uneAnnulationNEffaceQueSaPart()
    {
        for (const auto &[externe, interne, reste] : {std::tuple(true, true, "0,1,2,3,4"),
                 {true, false, "0,1,3,4"}, {false, true, "0,4"}, {false, false, "0,4"}}) {
            Bac bac;
            Ecoute ecoute(bac.annonces);
            Acte acte("tout");
            const auto inserer
                = [&](int cle) { acte.base().Execute("INSERT INTO Genre VALUES (?, '')", {cle}); };
            inserer(0);
            {
                Transaction dehors(acte.base());
                inserer(1);
                {
                    Acte dedans("dedans");
                    inserer(2);
                    if (interne)
                        dedans.valider();
                }
                inserer(3);
                if (externe)
                    dehors.Commit();
            }
            inserer(4);
            acte.valider();
            QCOMPARE(
                Bac::valeur("SELECT group_concat(NGenre) FROM (SELECT NGenre FROM Genre ORDER BY 1)"), reste);
            QStringList notees;
            for (const Changement &c : derniere(ecoute))
                notees << QString::number(c.cle);
            QCOMPARE(notees.join(u','), reste);
        }
    }

    void uneInstructionRefuseeNeLaissePasDeTrace()
    {
        Bac bac;
        remplir();
        const QStringList avant = Bac::toutLire();
        Ecoute ecoute(bac.annonces);
        {
            Acte acte("refus");
            acte.base().Execute("INSERT INTO Genre VALUES (1, 'avant')");
            for (const char *sql : {"UPDATE Album SET Broche = CASE Num WHEN 2 THEN 1 ELSE -1 END",
                     "UPDATE SerieAlbums SET NSerie = 'x' WHERE NAlbum = 2"})
                QVERIFY2(refus([&] { acte.base().Execute(sql); }).has_value(), sql);
            acte.base().Execute("DELETE FROM Genre");
            acte.valider();
        }
        QCOMPARE(enTexte(derniere(ecoute)), QStringList({"Genre 1 +", "Genre 1 -"}));
        QCOMPARE(Bac::toutLire(), avant);
    }

    void annulerEtRefaireRendentLigneParLigne_data()
    {
        QTest::addColumn<QStringList>("actes");
        QTest::newRow("deux fois la meme ligne")
            << QStringList{"UPDATE Album SET PrixA = 3, NAlbum = 6 WHERE Num = 2",
                   "UPDATE Album SET PrixA = 3.5, ISBN = 'x'", "UPDATE Album SET NAlbum = 191",
                   "UPDATE SerieAlbums SET NAlbum = 2 WHERE NAlbum = 1"};
        QTest::newRow("numero redonne") << QStringList{
            "DELETE FROM Album WHERE Num = 2", "INSERT INTO Album (Num, NAlbum) VALUES (2, 1)"};
        QTest::newRow("identifiant change")
            << QStringList{"UPDATE Album SET Num = Num + 10", "UPDATE LAlbums SET NAlbum = NAlbum + 10"};
        QTest::newRow("nul et vide") << QStringList{"UPDATE Album SET ISSN = iif(ISSN IS NULL, '', NULL)",
            "UPDATE Serie SET Nom = NULL, Histoire = ''"};
    }

    void annulerEtRefaireRendentLigneParLigne()
    {
        QFETCH(QStringList, actes);
        Bac bac;
        remplir();
        const QStringList avant = Bac::toutLire();
        Ecoute ecoute(bac.annonces);
        Historique histoire(bac.annonces);
        {
            Acte acte("tout");
            for (const QString &sql : std::as_const(actes))
                QVERIFY(acte.base().Execute(sql) > 0);
            acte.valider();
        }
        const QStringList apres = Bac::toutLire();
        QVERIFY(apres != avant);
        const auto annonces = ecoute.annonces().size();
        for (int i = 0; i < 2; ++i) {
            histoire.annuler();
            QCOMPARE(Bac::toutLire(), avant);
            histoire.refaire();
            QCOMPARE(Bac::toutLire(), apres);
        }
        QCOMPARE(ecoute.annonces().size(), annonces + 4);
        QCOMPARE(Bac::valeur("PRAGMA integrity_check"), "ok");
    }

    /// The refused change is not the last one noted, so that others were taken back before it.
    void annulerRefuseUneLigneChangeeDepuis()
    {
        for (const char *entretemps : {"UPDATE LAlbums SET Photo2 = '' WHERE NAlbum = 1",
                 "INSERT INTO LAlbums (NAlbum, TAlbum) VALUES (2, 'Intrus')"}) {
            Bac bac;
            remplir();
            Historique histoire(bac.annonces);
            {
                Acte acte("tout");
                acte.base().Execute("UPDATE LAlbums SET TAlbum = 'neuf' WHERE NAlbum = 1");
                acte.base().Execute("DELETE FROM LAlbums WHERE NAlbum = 2");
                acte.base().Execute("UPDATE Album SET NAlbum = 9 WHERE Num = 1");
                acte.valider();
            }
            Bac::executer(entretemps);
            const QStringList avant = Bac::toutLire();
            QCOMPARE(refus([&] { histoire.annuler(); }), Error::Sorte::Perimee);
            QCOMPARE(Bac::toutLire(), avant);
            // The rules that keep the tome's key are in force again after the refusal.
            Bac::executer("UPDATE Album SET NAlbum = 3 WHERE Num = 1");
            QCOMPARE(Bac::valeur("SELECT NumeroAlbum2 FROM SerieAlbums WHERE NAlbum = 1"), "D");
        }
    }

    /// The same notes on a tape in memory and on one that is nearly all in its file, cut off in places.
    void uneBandeLongueSeLitCommeUneCourte()
    {
        const auto lire = [](const Bande &bande, auto sens) {
            QStringList notes;
            (bande.*sens)([&](const Bande::Note &n) {
                notes << QStringLiteral("%1 %2 %3 ").arg(n.cle).arg(n.avant).arg(n.apres)
                        + QByteArray(n.valeurs.data(), qsizetype(n.valeurs.size()));
            });
            return notes;
        };
        Bande courte;
        Bande longue(100);
        std::vector<std::pair<Bande::Marque, Bande::Marque>> marques;
        for (int i = 0; i < 3000; ++i) {
            const std::string table = "T" + std::to_string(i % 7);
            const std::string valeurs(std::size_t(i % 1500), char('a' + i % 26));
            for (Bande *bande : {&courte, &longue})
                bande->ajouter({Bande::Sorte::Retrait, table, i, quint64(i), quint64(-i), valeurs});
            if (i % 400 == 0)
                marques.emplace_back(courte.fin(), longue.fin());
        }
        QVERIFY(longue.enMemoire() < courte.enMemoire() / 2);
        for (; !marques.empty(); marques.pop_back()) {
            QCOMPARE(longue.notes(), courte.notes());
            QVERIFY(lire(longue, &Bande::parcourir) == lire(courte, &Bande::parcourir));
            QVERIFY(lire(longue, &Bande::remonter) == lire(courte, &Bande::remonter));
            courte.couper(marques.back().first);
            longue.couper(marques.back().second);
            for (Bande *bande : {&courte, &longue})
                bande->ajouter({Bande::Sorte::Ajout, "apres", 1, 0, 2});
        }
        longue.deposer();
        QVERIFY(lire(longue, &Bande::remonter) == lire(courte, &Bande::remonter));
    }

    /// A step of more than sixteen megabytes, first without a place for its file, then with one.
    void unFichierDeBandeImpossibleReprendLActe()
    {
        Bac bac;
        Historique histoire(bac.annonces);
        Etapes etapes(bac.annonces);
        Bac::executer("WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20)"
                      " INSERT INTO Auteurs (NAuteur, Commentaire) SELECT i, hex(zeroblob(500000)) FROM n");
        const QStringList avant = Bac::toutLire();
        const QByteArray ici = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc"); // where nobody can make a file
        QVERIFY(refus([] { Bac::agir("UPDATE Auteurs SET Commentaire = 'x'"); }).has_value());
        QVERIFY(Bac::toutLire() == avant);
        QVERIFY(etapes.faites.empty());
        const QString passage = bac.chemin("passage");
        QDir().mkpath(passage);
        qputenv("TMPDIR", QFile::encodeName(passage));
        Bac::agir("UPDATE Auteurs SET Commentaire = 'x'");
        QVERIFY(etapes.faites.at(0).bande->enMemoire() < Bande::LimiteEnMemoire);
        QVERIFY(QDir(passage).isEmpty()); // so that nothing can be left there
        histoire.annuler();
        QVERIFY(Bac::toutLire() == avant);
        ici.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", ici);
    }
};

QTEST_GUILESS_MAIN(tst_journal)
#include "tst_journal.moc"
