#include "db/schema/Tables.h"
#include "model/ChargerAlbums.h"
#include "model/Fiche.h"
#include "support/Bac.h"

#include <QTest>

using namespace Champs;

class tst_fiche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A misspelt table or column would be found only when its sheet, list or choice is opened.
    void lesDescriptionsNommentCeQuAUnSchema()
    {
        const auto a = [](const char *table, const char *colonne) {
            return Schema::Colonnes(QLatin1String(table)).contains(QLatin1String(colonne));
        };
        for (const Champ &champ : Tous) {
            QVERIFY2(Chercher(champ.feuille, champ.nom) == &champ, champ.nom);
            QVERIFY2(!champ.colonne || a(champ.table, champ.colonne), champ.nom);
        }
        namespace E = Especes;
        for (const E::Espece *e :
            {&E::Album, &E::Serie, &E::Auteur, &E::Editeur, &E::ExLibris, &E::Presse, &E::Coll, &E::Genre,
                &E::Pays, &E::Emprunteur, &E::Librairie, &E::Intervenant, &E::Activite}) {
            QVERIFY2(
                a(e->table, e->cle) && a(e->table, e->nom) && (!e->suite || a(e->table, e->suite)), e->table);
            QVERIFY2(!e->liens || (a(e->liens, e->cle) && a(e->liens, "NAlbum")), e->table);
            for (const E::Rangs &rangs : e->fiche)
                QVERIFY2(a(rangs.table, rangs.cle), rangs.table);
        }
        for (int i = 0; i < 7; ++i)
            QVERIFY(DuNom(static_cast<Feuille>(i)).feuille == static_cast<Feuille>(i));
    }

    void laFicheDitSesListes()
    {
        const Bac bac;
        for (const char *sql : {"Album VALUES (5, 3, 1, 1, 2, 1, 2, 3, 4, 9, '62', 'I', 'S', 'Récit', ' ', "
                                "1, 'DL', 'mars 1931', 2,"
                                " '01 mai 2026', 1, '14/07/2019', 35, -1, 2, 0, 0, -1, 0, -1)",
                 "LAlbums VALUES (5, 'L''Album', 'a.jpg', NULL, 'copie', 'à Luc', 'd.png', 'Paris', '2020', "
                 "'bon')",
                 "Auteurs(NAuteur, Nom, Prenom, Dessin, Scena, Color) VALUES (1, 'Pinchon', 'Joseph', -1, 0, "
                 "0),"
                 " (2, 'Caumery', ' ', 0, -1, 0), (3, 'Gris', 'Jean', -1, 0, 0)",
                 "Genre VALUES (1, 'Humour'), (2, 'Jeunesse')", "GenreAlbums VALUES (2, 5), (1, 5)",
                 "CotesAlbum VALUES (5, '2024', '60'), (5, '2024', '7'), (5, '2023', '50')",
                 "Inter VALUES (1, 'Dupré', 'Marie'), (2, 'Frutiger', NULL)", "Metier VALUES (1, 'Lettrage')",
                 "InterMetier VALUES (5, 1, 1), (5, 2, 9)"})
            Bac::executer(QStringLiteral("INSERT INTO ") + sql);
        const auto fiche = ChargerAlbums::AfficherAlbum(5);
        QVERIFY(fiche);
        const auto dit = [&](const char *champ) { return fiche->valeurs.at(QLatin1String(champ)).affichee; };
        QCOMPARE(dit("Dessin"), "Pinchon, Joseph");
        QCOMPARE(dit("Scena"), "Caumery");
        QCOMPARE(dit("Color"), QString()); // he is no colourist
        QCOMPARE(dit("Genre"), "Humour, Jeunesse");
        QCOMPARE(dit("Hist"), "Récit");
        QCOMPARE(dit("Infos"), QString());
        QCOMPARE(fiche->cotes.size(), 3u);
        QCOMPARE(fiche->cotes[1].cote, "7"); // within a month the higher text first
        QCOMPARE(fiche->intervenants[0].nom, "Marie , Dupré");
        QCOMPARE(fiche->intervenants[1].nom, "Frutiger");
        QCOMPARE(fiche->intervenants[1].activite, QString());
    }

    void laFicheVideNeDitRien()
    {
        const Bac bac;
        QVERIFY(!ChargerAlbums::AfficherAlbum(1));
        Bac::executer("INSERT INTO Album(Num) VALUES (1)");
        const auto fiche = ChargerAlbums::AfficherAlbum(1);
        QVERIFY(fiche);
        for (const Champ &champ : Tous) {
            if (champ.feuille == Feuille::Album && champ.vue != Vue::Case)
                QCOMPARE(fiche->valeurs.at(QLatin1String(champ.nom)).affichee, QString());
        }
        QVERIFY(fiche->cotes.empty() && fiche->intervenants.empty() && fiche->infos.bande.empty());
    }

    void lAlbumDansSaSerie()
    {
        const Bac bac;
        for (const auto &[num, tome] : {std::pair(1, 1), {2, 3}, {3, 3}, {4, 6}, {5, 0}}) {
            Bac::executer(
                QStringLiteral("INSERT INTO Album(Num, NAlbum, NumSerie) VALUES (?, ?, 9)"), {num, tome});
            Bac::executer(QStringLiteral("INSERT INTO LAlbums(NAlbum, TAlbum) VALUES (?, ?)"),
                {num, QStringLiteral("t%1").arg(num)});
            Bac::executer(QStringLiteral("INSERT INTO SerieAlbums(NSerie, NAlbum) VALUES (9, ?)"), {num});
        }
        const InfosAlbum infos = PreparerInfosAlbum::Preparer(2, 9);
        QCOMPARE(infos.tome, 3);
        QCOMPARE(infos.possedes, 5);
        QCOMPARE(infos.manquants, (std::vector<int>{2, 4, 5}));
        QCOMPARE(infos.precedent->titre, "t1");
        QCOMPARE(infos.suivant->num, 3);
        QCOMPARE(infos.bande.size(), 8u); // five albums and three holes
        QVERIFY(!PreparerInfosAlbum::Preparer(5, 9).precedent);
        QCOMPARE(PreparerInfosAlbum::Preparer(1, 0).possedes, 0);
    }
};

QTEST_GUILESS_MAIN(tst_fiche)
#include "tst_fiche.moc"
