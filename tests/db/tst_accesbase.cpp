#include "db/AccesBase.h"
#include "db/Base.h"
#include "support/Bac.h"

#include <QTest>

using namespace AccesBase;

class tst_accesbase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        EnregistrerOuSupprimer("auteurs", "NAuteur", 1, {2, "Culliford"}, {}, Role::Dessin);
        QCOMPARE(Bac::valeur("SELECT group_concat(Nom || Dessin || Scena || Color) FROM"
                             " (SELECT * FROM Auteurs ORDER BY NAuteur)"),
            "Franquin0-1-1,Culliford-100");
    }
};

QTEST_GUILESS_MAIN(tst_accesbase)
#include "tst_accesbase.moc"
