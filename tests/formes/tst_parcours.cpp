#include "model/General.h"
#include "support/Adresses.h"
#include "support/Seance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>

using namespace General;

class tst_parcours : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void lePremierDemarrageMontreLeLanceur()
    {
        {
            Seance s(false);
            s.demarrer();
            QTRY_VERIFY(visible("Splash"));
            auto *boite = trouver<QCheckBox>("SphashAuto", "Splash");
            boite->click();
            QVERIFY(s.bac.reglages.booleen(Cle::SplashAuto));

            cliquer("Menu(1)", "Splash");
            cliquer("Tris(3)", "Splash");
            QCOMPARE(s.bac.reglages.entier(Cle::Tris), 3);
            QCOMPARE(texteDe("TitreListe"), texte(Txt::ListeDesScenaristes));
            cliquer("Quit", "Splash");
            QVERIFY(!visible("Splash"));
        }
        const Ouverte plusTard;
        QCoreApplication::processEvents();
        QVERIFY(!fenetre("Splash"));
    }

    void chaqueTriALaListeQuIlAnnonce()
    {
        Ouverte s;
        for (int i = 0; i < NombreDeTris; ++i) {
            cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(i)));
            auto *liste = trouver<QAbstractItemView>("Liste");
            const Liste &decrite = ListeDe(TriDe(i));
            QVERIFY(liste->model()->rowCount() > 0);
            QCOMPARE(texteDe("TitreListe"), texte(decrite.titre));
            QCOMPARE(texteDe("Nombre"),
                texte(decrite.prefixe) + u' ' + QString::number(liste->model()->rowCount()));
            QCOMPARE(s.bac.reglages.entier(Cle::Tris), i);
            QVERIFY(liste->currentIndex().data(Qt::UserRole).toString().startsWith(QLatin1String("N ")));
            // Entries that have albums show them below; the others fold the pane away.
            const bool avecAlbums = i != 0 && i != 5 && i != 6;
            QCOMPARE(trouver<QAbstractItemView>("LFilms")->isVisible(), avecAlbums);
        }
    }

    void unClicMontreLaFiche()
    {
        Ouverte s;
        choisir("Bécassine en apprentissage");
        QTRY_COMPARE(texteDe("TAlbum"), "Bécassine en apprentissage");
        QCOMPARE(texteDe("Scena"), "Caumery");
        QCOMPARE(texteDe("ISBN").size(), 855);
        // The neighbour in the series is one click away, and the list follows.
        const QString suivant = trouver<QAbstractButton>("AlbumSuivant")->text();
        cliquer("AlbumSuivant");
        QTRY_VERIFY(texteDe("TAlbum") != QStringLiteral("Bécassine en apprentissage"));
        QVERIFY(texteDe("TAlbum").startsWith(suivant.left(10)));
        QCOMPARE(trouver<QAbstractItemView>("Liste")->currentIndex().data().toString(), texteDe("TAlbum"));

        // An album of a series, from the lower list, leaves the main list as it is.
        cliquer("Tris(1)");
        auto *albums = trouver<QAbstractItemView>("LFilms");
        cliquerLigne(albums, albums->model()->index(1, 0));
        QTRY_COMPARE(texteDe("TAlbum"), albums->model()->index(1, 0).data().toString());
        QCOMPARE(texteDe("TitreListe"), texte(Txt::ListeDesSeries));
    }

    void laLangueChangePartout()
    {
        Ouverte s;
        auto *menu = trouver<QMenu>("", "Frmmain");
        Q_EMIT menu->aboutToShow();
        menu->findChild<QAction *>("English.lng")->trigger();
        QCOMPARE(Bac::lire(s.bac.chemin("defaut.lng")), Bac::lire(s.bac.chemin("langues/English.lng")));
        QTRY_VERIFY(texteDe("TitreListe") != QStringLiteral("Liste des Albums"));
        QCOMPARE(texteDe("TitreListe"), texte(Txt::ListeDesAlbums));
        QCOMPARE(trouver<QAbstractButton>("Langues")->text(), "English");
    }

    void quitterDemandeEtRange()
    {
        Ouverte s;
        const QString brouillon = s.bac.chemin("temp.bmp");
        Bac::ecrire(brouillon, "x");
        QWidget *principale = fenetre("Frmmain");
        principale->resize(1000, 640);
        cliquer("Menu(7)");
        QCOMPARE(s.boites.textes, QStringList{QStringLiteral("Voulez vous quitter Bulleo V1.2 ?")});
        QVERIFY(principale->isVisible() && QFileInfo::exists(brouillon));
        s.boites.reponses << true;
        principale->close();
        QVERIFY(!principale->isVisible() && !QFileInfo::exists(brouillon));
        QCOMPARE(s.bac.reglages.nombre(Cle::Width), 1000.0);

        // The next start has that size, within the screen.
        s.bureau = std::make_unique<Bureau>(Options());
        s.bureau->demarrer();
        QTRY_COMPARE(fenetre("Frmmain")->height(),
            std::min(640, QGuiApplication::primaryScreen()->availableSize().height()));
    }

    void uneBaseEtrangereEstDite()
    {
        Seance s;
        Bac::ecrire(s.bac.collection(), "ceci n'est pas une base");
        s.demarrer();
        QTRY_COMPARE(s.boites.textes.size(), 1);
        QVERIFY(s.boites.textes[0].contains(s.bac.collection()));
    }

    void laCopieSeFaitDuLanceur()
    {
        Ouverte s;
        ouvrir("Menu(3)", "Outils(0)", "Stats");
        // A name without a suffix is listed by the restoration all the same.
        const QString copie = s.bac.chemin("copie.21.mdb");
        s.boites.fichiers << QString() << s.bac.collection() << s.bac.chemin("copie.21");
        for (int i = 0; i < 3; ++i)
            cliquer("Outils(4)", "Splash");
        QCOMPARE(s.boites.textes.size(), 2);
        QCOMPARE(s.boites.textes[0], "Vous ne devriez pas sauvegarder avec ce nom (bd.mdb) !!!");
        QVERIFY(s.boites.textes[1].startsWith(texte(Txt::SauvegardeEffectuee)));
        QVERIFY(s.boites.textes[1].contains("images"));
        const QStringList lignes = Bac::toutLire();
        const Bac autre;
        Bac::ecrire(autre.collection(), Bac::lire(copie));
        QCOMPARE(Bac::toutLire(), lignes);
    }

    void creerALaMainPuisDuCatalogue()
    {
        Ouverte s;
        auto *liste = trouver<QAbstractItemView>("Liste");
        const int avant = liste->model()->rowCount();
        cliquer("Menu(1)");
        QTRY_VERIFY(trouver<QComboBox>("Serie", "Manuelle")->count() > 10);
        cliquer("BtnCreer", "Manuelle");
        QVERIFY(!trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());

        // By keyboard alone: what is typed stays, a known series proposes its next tome.
        ecrire("Titre", "L'Œuvre d'été", "Manuelle");
        QVERIFY(trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());
        ecrire("Serie", "bécassine", "Manuelle");
        QCOMPARE(trouver<QLineEdit>("Tome", "Manuelle")->text(), "26");
        ecrire("PrixA", "12,50", "Manuelle");
        QTest::keyClick(trouver<QLineEdit>("PrixA", "Manuelle"), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(s.boites.textes, QStringList{texte(Txt::CreationEffectuee)});
        QTRY_COMPARE(texteDe("TAlbum"), "L'Œuvre d'été");
        QCOMPARE(texteDe("Serie"), "Bécassine");
        QCOMPARE(texteDe("PrixA"), "12,50 €");
        QCOMPARE(liste->model()->rowCount(), avant + 1);
        QCOMPARE(liste->currentIndex().data().toString(), "L'Œuvre d'été");
        QVERIFY(trouver<QLineEdit>("Titre", "Manuelle")->text().isEmpty());

        ouvrir("Menu(0)", "Creation(1)", "Facile");
        auto *catalogue = trouver<QAbstractItemView>("LAlbum", "Facile");
        QTRY_VERIFY(catalogue->model()->rowCount() > 300);
        ecrire("Filtre", "ETOILE MYSTERIEUSE", "Facile");
        QCOMPARE(catalogue->model()->rowCount(), 1);
        QVERIFY(catalogue->model()->index(0, 0).data(Qt::UserRole).toString().startsWith(u'A'));
        catalogue->setCurrentIndex(catalogue->model()->index(0, 0));
        cliquer("Sel", "Facile");
        QCOMPARE(trouver<QLineEdit>("Tome", "Facile")->text(), "010");
        QVERIFY(trouver<QCheckBox>("Carton", "Facile")->isChecked());
        cliquer("BtnCreer", "Facile");
        QTRY_COMPARE(texteDe("Serie"), "Tintin");
        QCOMPARE(texteDe("NumBD"), "10");
    }

    void unAuteurASesMetiersEtSesAdresses()
    {
        Ouverte s;
        // The trade of the list is the title, the two others are boxes.
        cliquer("Tris(4)");
        QCOMPARE(texteDe("Metier"), texte(Txt::Coloriste));
        QCOMPARE(trouver<QCheckBox>("M_tiers(0)")->text(), texte(Txt::Dessinateur));

        // Only web and mail addresses open, and a refusal is told.
        const Adresses ouvertes;
        auto *lien = trouver<QWidget>("FicheAuteur")->findChild<QLabel *>(QStringLiteral("Liens(0)"));
        for (const char *adresse : {"a.fr:8080/x", "mailto:a@b.fr?attach=/etc/passwd", "javascript:alert(1)",
                 "file:///etc/passwd", "https://a.fr"}) {
            lien->setText(QLatin1String(adresse));
            QTest::keyClick(lien, Qt::Key_Return, Qt::ControlModifier);
        }
        QCOMPARE(ouvertes.prises, QStringList({"http://a.fr:8080/x", "mailto:a@b.fr"}));
        // Nothing here opens the last one: it is said what would.
        QTRY_COMPARE(s.boites.textes.size(), 3);
        QVERIFY(
            s.boites.textes[2].startsWith("Aucun navigateur") && s.boites.textes[2].contains("https://a.fr"));
    }
};

JOUER(tst_parcours)
#include "tst_parcours.moc"
