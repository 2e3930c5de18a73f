#include "core/Traduction.h"
#include "db/schema/Tables.h"
#include "support/Adresses.h"
#include "support/Seance.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QScreen>
#include <QWindow>

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
            // Over the main window, within the screen with its frame, and not just where the launcher is.
            const QWidget *neuve = fenetre(forme)->window();
            const int bas = neuve->screen()->availableGeometry().bottom();
            QTRY_VERIFY2(neuve->frameGeometry().bottom() <= bas, forme);
            QVERIFY(neuve->pos() != fenetre("Splash")->pos());
            QCOMPARE(neuve->windowHandle()->transientParent(), fenetre("Frmmain")->windowHandle());
            // Escape closes it again, and nothing was said.
            QTest::keyClick(fenetre(forme), Qt::Key_Escape);
            QTRY_VERIFY2(!visible(forme), forme);
            QCOMPARE(s.boites.textes, QStringList());
        }
    }

    void lesFlechesMenentLaPage()
    {
        const Ouverte s;
        const auto montree = [] {
            for (const char *page : {"Frames(0)", "Frames(1)", "Frames(2)", "Frames(3)", "Frames(4)"}) {
                if (trouver<QWidget>(page, "Splash")->isVisible())
                    return QLatin1String(page);
            }
            return QLatin1String();
        };
        cliquer("Menu(0)");
        QTRY_VERIFY(visible("Splash"));
        QVERIFY(QTest::qWaitForWindowActive(fenetre("Splash")));
        const auto *commentaire = trouver<QLabel>("Commentaire", "Splash");
        QCOMPARE(montree(), QLatin1String("Frames(1)"));
        QTRY_COMPARE(commentaire->text(), texte(Txt::ModifiezLesCriteres));
        for (const auto &[touche, page] : {std::pair(Qt::Key_Down, "Frames(2)"), {Qt::Key_Down, "Frames(3)"},
                 {Qt::Key_Down, "Frames(3)"}, {Qt::Key_Up, "Frames(2)"}}) {
            QTest::keyClick(fenetre("Splash")->focusWidget(), touche);
            QCOMPARE(montree(), QLatin1String(page));
        }
        QVERIFY(commentaire->text().startsWith(texte(Txt::SelectionnezLAffichage)));
        QVERIFY(!trouver<QAbstractButton>("Quit", "Splash")->text().isEmpty());
    }

    void lesToucheOuvrentLesFormes()
    {
        const Ouverte s;
        commander(Qt::Key_L);
        QTRY_VERIFY(visible("Pret"));
        // Enter presses what has the keyboard in the main window, too.
        trouver<QWidget>("Menu(0)")->setFocus();
        QTest::keyClick(trouver<QWidget>("Menu(0)"), Qt::Key_Return);
        QTRY_VERIFY(visible("Splash"));
        QVERIFY(trouver<QWidget>("Menu(1)")->toolTip().endsWith("(Ctrl+N)"));
        QVERIFY(trouver<QWidget>("Tris(8)")->toolTip().endsWith("(Ctrl+9)"));
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
        Seance s(false);
        for (const QString &table : Schema::Tables())
            Bac::agir("DELETE FROM " + table);
        s.bureau = std::make_unique<Bureau>(Options());
        s.bureau->demarrer();
        QTRY_VERIFY(trouver<QWidget>("Commencer(0)") && trouver<QWidget>("Commencer(0)")->isVisible());
        // The welcome stands alone; the launcher comes by its button.
        QTRY_COMPARE(s.bac.reglages.nombre(Cle::FirstTime), 1.0);
        QVERIFY(!visible("Splash"));
        const QWidget *principale = fenetre("Frmmain");
        QTRY_VERIFY(
            principale->frameGeometry().bottom() <= principale->screen()->availableGeometry().bottom());
        // What comes by hand can be begun where it is missing.
        cliquer("Tris(5)");
        auto *liste = trouver<QAbstractItemView>("Liste");
        QTRY_VERIFY(trouver<QWidget>("Ajouter")->isVisible());
        QContextMenuEvent demande(QContextMenuEvent::Mouse, {5, 5}, liste->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(trouver<QWidget>("Ajouter")->parentWidget(), &demande);
        QTRY_VERIFY(visible("Pop"));
        QVERIFY(s.bac.reglages.booleen(Cle::MenuVu) && !trouver<QWidget>("Anim")->isVisible());
        fenetre("Pop")->hide();
        cliquer("Ajouter");
        QTRY_VERIFY(liste->findChild<QLineEdit *>());
        QTest::keyClick(liste->findChild<QLineEdit *>(), Qt::Key_Escape);
        cliquer("Tris(0)");
        cliquer("Commencer(0)");
        QTRY_VERIFY(visible("Manuelle"));
        ecrire("Titre", "Le tout premier", "Manuelle");
        cliquer("BtnCreer", "Manuelle");
        QTRY_COMPARE(texteDe("TAlbum"), "Le tout premier");
    }
};

JOUER(tst_lanceur)
#include "tst_lanceur.moc"
