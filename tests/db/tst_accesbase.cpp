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
        Bac::executer("INSERT INTO LAlbums (NAlbum, TAlbum) VALUES (1, ''), (2, '')");
        for (int i = 0; i < 4; ++i)
            EcrireImage("LAlbums", Rang(i % 2), "NAlbum", 2, QStringLiteral("l'été %1").arg(i), Sorte(i / 2));
        QCOMPARE(Bac::valeur("SELECT group_concat(Photo1 || Photo2 || dedi1 || dedi2) FROM LAlbums"),
            "l'été 0l'été 1l'été 2l'été 3");
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
        QCOMPARE(EnregistrerOuSupprimer("auteurs", "NAuteur", 1, {0, "Cham"}, {}, Role::Scena), 1);
        QCOMPARE(Bac::valeur("SELECT Nom || Dessin || Scena FROM Auteurs"), "Cham0-1");
    }
};

QTEST_GUILESS_MAIN(tst_accesbase)
#include "tst_accesbase.moc"
