#include "core/Traduction.h"
#include "db/schema/Tables.h"
#include "support/Adresses.h"
#include "support/Seance.h"

/// The launcher's buttons, the help, and how an empty collection begins.
class tst_lanceur : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueBoutonOuvreSaForme()
    {
        Ouverte s;
        for (const auto &[groupe, bouton, forme] : {std::tuple("Menu(0)", "Creation(0)", "Manuelle"),
                 {"Menu(0)", "Creation(1)", "Facile"}, {"Menu(0)", "Creation(2)", "BDNet"},
                 {"Menu(0)", "Creation(3)", "Import"}, {"Menu(2)", "Interf(0)", "Polices"},
                 {"Menu(2)", "Interf(1)", "Textures"}, {"Menu(3)", "Outils(0)", "Stats"},
                 {"Menu(3)", "Outils(1)", "Impression"}, {"Menu(3)", "Outils(2)", "Acquisition"},
                 {"Menu(3)", "Outils(3)", "Pret"}, {"Menu(3)", "Outils(5)", "Restauration"}}) {
            ouvrir(groupe, bouton, forme);
            // Escape closes it again, and nothing was said.
            QTest::keyClick(fenetre(forme), Qt::Key_Escape);
            QTRY_VERIFY2(!visible(forme), forme);
            QCOMPARE(s.boites.textes, QStringList());
        }
    }

    void f1OuvreLaPageDeLaForme()
    {
        Ouverte s;
        const Adresses ouvertes;
        QTest::keyClick(fenetre("Frmmain"), Qt::Key_F1);
        ouvrir("Menu(3)", "Outils(3)", "Pret");
        fenetre("Pret")->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fenetre("Pret")));
        QTest::keyClick(fenetre("Pret"), Qt::Key_F1);
        s.bac.traduction.choisir("English.lng");
        QTest::keyClick(fenetre("Pret"), Qt::Key_F1);
        cliquer("Menu(4)");
        QStringList pages;
        for (const QString &url : ouvertes.prises)
            pages << url.section("/Help/", 1);
        QCOMPARE(pages, QStringList({"fenetre.htm", "prets.htm", "en/prets.htm", "en/index.htm"}));
    }

    void uneCollectionVideMeneAuPremierAlbum()
    {
        Seance s;
        for (const QString &table : Schema::Tables())
            Bac::agir("DELETE FROM " + table);
        s.bureau = std::make_unique<Bureau>(Options());
        s.bureau->demarrer();
        QTRY_VERIFY(trouver<QWidget>("Commencer(0)") && trouver<QWidget>("Commencer(0)")->isVisible());
        cliquer("Commencer(0)");
        QTRY_VERIFY(visible("Manuelle"));
        ecrire("Titre", "Le tout premier", "Manuelle");
        cliquer("BtnCreer", "Manuelle");
        QTRY_COMPARE(texteDe("TAlbum"), "Le tout premier");
    }
};

JOUER(tst_lanceur)
#include "tst_lanceur.moc"
