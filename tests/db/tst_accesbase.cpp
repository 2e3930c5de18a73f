#include "db/AccesBase.h"
#include "db/Base.h"
#include "support/Bac.h"
#include "support/Ecoute.h"

#include <QTest>

using namespace AccesBase;

class tst_accesbase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lIdentifiantNouveauSuitLePlusGrand()
    {
        const Bac bac;
        QCOMPARE(NouvelIdentifiant("MEtier", "NMEtier"), 1);
        Bac::executer("INSERT INTO Metier VALUES (0, 'sans'), (3, 'Lettreur'), (8, 'Encreur')");
        QCOMPARE(NouvelIdentifiant("Metier", "NMetier"), 9);
        Bac::executer("DELETE FROM Metier WHERE NMetier > 0");
        QCOMPARE(NouvelIdentifiant("Metier", "NMetier"), 1);
    }

    void uneImageVaDansSonChamp()
    {
        const Bac bac;
        Bac::executer("INSERT INTO LAlbums (NAlbum, Photo1, Photo2, dedi1, dedi2)"
                      " VALUES (1, 'p1', 'p2', 'd1', 'd2'), (2, 'p1', 'p2', 'd1', 'd2')");
        const auto ligne = [](int album) {
            return Bac::valeur("SELECT Photo1 || '|' || Photo2 || '|' || dedi1 || '|' || dedi2 FROM LAlbums"
                               " WHERE NAlbum = ?",
                {album});
        };
        QStringList attendue{"p1", "p2", "d1", "d2"};
        for (int i = 0; i < 4; ++i) {
            EcrireImage("LAlbums", Rang(i % 2), "NAlbum", 2, "l'été.jpg", Sorte(i / 2));
            attendue[i] = "l'été.jpg";
            QCOMPARE(ligne(2), attendue.join(u'|'));
        }
        QCOMPARE(ligne(1), "p1|p2|d1|d2");
        EcrireImage("LAlbums", Rang::Seconde, "NAlbum", 7, "x.jpg", Sorte::Image);
        QCOMPARE(Bac::valeur("SELECT count(*) FROM LAlbums"), 2);
    }

    void uneEntreeSeTrouveSeCreeSeRenommeEtSeSupprime()
    {
        const Bac bac;
        QCOMPARE(ChercherOuCreer("Pays", "NPays", 1, {0, "L'Inde"}).identifiant, 1);
        QCOMPARE(ChercherOuCreer("Pays", "NPays", 1, {1, "autre"}).valeur, "L'Inde");
        QCOMPARE(ChercherOuCreer("Pays", "NPays", 1, {12, "Chine"}).identifiant, 2);
        QCOMPARE(EnregistrerOuSupprimer("Pays", "NPays", 1, {0, "Suisse"}, 40), 40);
        QCOMPARE(EnregistrerOuSupprimer("Pays", "NPays", 1, {40, "Belgique"}, 12), 40);
        EnregistrerOuSupprimer("Pays", "NPays", 1, {1, ""});
        QCOMPARE(LireNoms("Pays"), QStringList({"Belgique", "Chine"}));
    }

    void unRolePoseGardeLesAutres()
    {
        const Bac bac;
        Bac::executer(
            "INSERT INTO Auteurs (NAuteur, Nom, Color) VALUES (1, 'Franquin', true), (2, 'Peyo', false)");
        PoserRole(1, Role::Scena);
        PoserRole(9, Role::Scena);
        EnregistrerOuSupprimer("auteurs", "NAuteur", 1, {2, "Culliford"}, {}, Role::Dessin);
        QCOMPARE(Bac::valeur("SELECT group_concat(Nom || Dessin || Scena || Color) FROM"
                             " (SELECT * FROM Auteurs ORDER BY NAuteur)"),
            "Franquin0-1-1,Culliford-100");
    }

    /// The fourth author is of another album; on errors nothing happens, and nothing is said.
    void oterUnRoleGardeLesAutres()
    {
        Bac bac;
        Bac::executer("INSERT INTO AuteursAlbums VALUES (1, 7, true, true, false), (2, 7, false, true, true),"
                      " (3, 7, true, false, false), (4, 8, true, false, false)");
        const auto roles = [] {
            return Bac::valeur(
                "SELECT group_concat(NAuteur || ':' || Dessin || ',' || Scena || ',' || Color, ' ')"
                " FROM (SELECT * FROM AuteursAlbums ORDER BY NAuteur)");
        };
        OterRole(7, Role::Dessin);
        QCOMPARE(roles(), "1:0,-1,0 2:0,-1,-1 4:-1,0,0");
        OterRole(7, Role::Color);
        QCOMPARE(roles(), "1:0,-1,0 2:0,-1,0 4:-1,0,0");
        Bac::executer("CREATE TRIGGER Refus BEFORE DELETE ON AuteursAlbums WHEN OLD.NAuteur = 2"
                      " BEGIN SELECT raise(ABORT, 'non'); END");
        Ecoute ecoute(bac.annonces);
        OterRole(7, Role::Scena);
        QCOMPARE(roles(), "1:0,-1,0 2:0,-1,0 4:-1,0,0");
        QVERIFY(ecoute.annonces().empty());
        QVERIFY(QFile::remove(bac.collection()));
        OterRole(7, Role::Dessin);
        QVERIFY(!QFile::exists(bac.collection()));
    }
};

QTEST_GUILESS_MAIN(tst_accesbase)
#include "tst_accesbase.moc"
