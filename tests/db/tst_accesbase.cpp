#include "db/AccesBase.h"
#include "db/Base.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
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
        Bac::executer("DELETE FROM Metier WHERE NMetier = 8");
        QCOMPARE(NouvelIdentifiant("Metier", "NMetier"), 4);
        Bac::executer("DELETE FROM Metier WHERE NMetier > 0");
        QCOMPARE(NouvelIdentifiant("Metier", "NMetier"), 1);
    }

    void uneImageVaDansSonChamp_data()
    {
        colonnes<Rang, Sorte, QString>();
        QTest::newRow("premiere image") << Rang::Premiere << Sorte::Image << "l'été.jpg|p2|d1|d2";
        QTest::newRow("seconde image") << Rang::Seconde << Sorte::Image << "p1|l'été.jpg|d1|d2";
        QTest::newRow("premiere dedicace") << Rang::Premiere << Sorte::Dedicace << "p1|p2|l'été.jpg|d2";
        QTest::newRow("seconde dedicace") << Rang::Seconde << Sorte::Dedicace << "p1|p2|d1|l'été.jpg";
    }

    void uneImageVaDansSonChamp()
    {
        const auto [rang, sorte, attendu] = essai<Rang, Sorte, QString>();
        const Bac bac;
        Bac::executer("INSERT INTO LAlbums (NAlbum, Photo1, Photo2, dedi1, dedi2)"
                      " VALUES (1, 'p1', 'p2', 'd1', 'd2'), (2, 'p1', 'p2', 'd1', 'd2')");
        EcrireImage("LAlbums", rang, "NAlbum", 2, "l'été.jpg", sorte);
        const QString ligne
            = "SELECT Photo1 || '|' || Photo2 || '|' || dedi1 || '|' || dedi2 FROM LAlbums WHERE NAlbum = ?";
        QCOMPARE(Bac::valeur(ligne, {2}), attendu);
        QCOMPARE(Bac::valeur(ligne, {1}), "p1|p2|d1|d2");
        EcrireImage("LAlbums", rang, "NAlbum", 7, "x.jpg", sorte);
        QCOMPARE(Bac::valeur("SELECT count(*) FROM LAlbums"), 2);
    }

    void chercherRendLeChampOuCreeLaFiche()
    {
        const Bac bac;
        const Entree creee = ChercherOuCreer("Genre", "NGenre", 1, {0, "L'humour"});
        QCOMPARE(creee.identifiant, 1);
        const Entree trouvee = ChercherOuCreer("Genre", "NGenre", 1, {1, "autre"});
        QCOMPARE(trouvee.identifiant, 1);
        QCOMPARE(trouvee.valeur, "L'humour");
        const Entree seconde = ChercherOuCreer("Genre", "NGenre", 1, {12, "Western"});
        QCOMPARE(seconde.identifiant, 2);
        QCOMPARE(LireNoms("Genre"), QStringList({"L'humour", "Western"}));
    }

    void enregistrerRenommeCreeOuSupprime()
    {
        const Bac bac;
        QCOMPARE(EnregistrerOuSupprimer("Pays", "NPays", 1, {0, "Côte d'Ivoire"}), 1);
        QCOMPARE(EnregistrerOuSupprimer("Pays", "NPays", 1, {0, "Suisse"}, 40), 40);
        QCOMPARE(EnregistrerOuSupprimer("Pays", "NPays", 1, {40, "Belgique"}, 12), 40);
        QCOMPARE(LireNoms("Pays"), QStringList({"Belgique", "Côte d'Ivoire"}));
        QCOMPARE(EnregistrerOuSupprimer("Pays", "NPays", 1, {1, ""}), 1);
        QCOMPARE(LireNoms("Pays"), QStringList({"Belgique"}));
    }

    void unRolePoseGardeLesAutres()
    {
        const Bac bac;
        Bac::executer(
            "INSERT INTO Auteurs (NAuteur, Nom, Color) VALUES (1, 'Franquin', true), (2, 'Peyo', false)");
        PoserRole(1, Role::Scena);
        PoserRole(9, Role::Scena);
        EnregistrerOuSupprimer("auteurs", "NAuteur", 1, {2, "Culliford"}, {}, Role::Dessin);
        EnregistrerOuSupprimer("Editeur", "NEdit", 1, {0, "Dupuis"}, {}, Role::Dessin);
        QCOMPARE(
            Bac::valeur("SELECT group_concat(Nom || Dessin || Scena || Color) FROM (SELECT * FROM Auteurs "
                        "ORDER BY NAuteur)"),
            "Franquin0-1-1,Culliford-100");
    }

    void oterUnRoleGardeLesAutres_data()
    {
        colonnes<Role, QString>();
        QTest::newRow("dessin") << Role::Dessin << "1:0,-1,0 2:0,-1,-1 4:-1,0,0";
        QTest::newRow("scenario") << Role::Scena << "1:-1,0,0 2:0,0,-1 3:-1,0,0 4:-1,0,0";
        QTest::newRow("couleur") << Role::Color << "1:-1,-1,0 2:0,-1,0 3:-1,0,0 4:-1,0,0";
    }

    /// The fourth author is of another album.
    void oterUnRoleGardeLesAutres()
    {
        const auto [role, reste] = essai<Role, QString>();
        const Bac bac;
        Bac::executer("INSERT INTO AuteursAlbums VALUES (1, 7, true, true, false), (2, 7, false, true, true),"
                      " (3, 7, true, false, false), (4, 8, true, false, false)");
        OterRole(7, role);
        QCOMPARE(
            Bac::valeur("SELECT group_concat(NAuteur || ':' || Dessin || ',' || Scena || ',' || Color, ' ')"
                        " FROM (SELECT * FROM AuteursAlbums ORDER BY NAuteur)"),
            reste);
    }

    void oterUnRoleIgnoreLesErreurs()
    {
        Bac bac;
        Bac::executer(
            "INSERT INTO AuteursAlbums VALUES (1, 7, true, false, false), (2, 7, true, false, false)");
        Bac::executer("CREATE TRIGGER Refus BEFORE DELETE ON AuteursAlbums WHEN OLD.NAuteur = 2"
                      " BEGIN SELECT raise(ABORT, 'non'); END");
        Ecoute ecoute(bac.annonces);
        const auto annonces = ecoute.annonces().size();
        OterRole(7, Role::Dessin);
        QCOMPARE(Bac::valeur("SELECT count(*) FROM AuteursAlbums WHERE Dessin=true"), 2);
        QCOMPARE(ecoute.annonces().size(), annonces);

        QVERIFY(QFile::remove(bac.collection()));
        OterRole(7, Role::Dessin);
        QVERIFY(!QFile::exists(bac.collection()));
    }
};

QTEST_GUILESS_MAIN(tst_accesbase)
#include "tst_accesbase.moc"
