#include "model/General.h"
#include "support/Seance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QTextEdit>

using namespace General;

/// Takes web addresses in the desktop's place.
class Adresses : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void prendre(const QUrl &url) { prises << url.toString(); }

public:
    QStringList prises;
};

class tst_parcours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lePremierDemarrageMontreLeLanceur();
    void chaqueTriALaListeQuIlAnnonce();
    void unClicMontreLaFiche();
    void laLangueChangePartout();
    void quitterDemandeEtRange();
    void uneBaseEtrangereEstDite();
    void laCopieSeFaitDuLanceur();
    void creerALaMainPuisDuCatalogue();
    void chaqueGenreASaFiche();
    void chaqueControleAUnNom();
};

void tst_parcours::lePremierDemarrageMontreLeLanceur()
{
    {
        Seance s(false);
        s.demarrer();
        QTRY_VERIFY(Seance::fenetre("Splash") && Seance::fenetre("Splash")->isVisible());
        QVERIFY(Seance::trouver<QWidget>("Frames(0)", "Splash")->isVisible());
        auto *boite = Seance::trouver<QCheckBox>("SphashAuto", "Splash");
        QVERIFY(!boite->isChecked());
        QCOMPARE(s.bac.reglages.nombre(Cle::FirstTime), 1.0);
        boite->click();
        QVERIFY(s.bac.reglages.booleen(Cle::SplashAuto));

        Seance::cliquer("Menu(1)", "Splash");
        Seance::cliquer("Tris(3)", "Splash");
        QCOMPARE(s.bac.reglages.entier(Cle::Tris), 3);
        QCOMPARE(Seance::texteDe("TitreListe"), texte(Txt::ListeDesScenaristes));
        Seance::cliquer("Quit", "Splash");
        QVERIFY(!Seance::fenetre("Splash")->isVisible());
    }
    Seance plusTard;
    plusTard.demarrer();
    QTest::qWait(0);
    QVERIFY(!Seance::fenetre("Splash"));
}

void tst_parcours::chaqueTriALaListeQuIlAnnonce()
{
    Seance s;
    s.demarrer();
    for (int i = 0; i < NombreDeTris; ++i) {
        Seance::cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(i)));
        auto *liste = Seance::trouver<QAbstractItemView>("Liste");
        const Genre &genre = GenreDe(TriDe(i));
        QVERIFY(liste->model()->rowCount() > 0);
        QCOMPARE(Seance::texteDe("TitreListe"), texte(genre.titre));
        QCOMPARE(Seance::texteDe("Nombre"),
            texte(genre.prefixe) + u' ' + QString::number(liste->model()->rowCount()));
        QCOMPARE(s.bac.reglages.entier(Cle::Tris), i);
        QVERIFY(liste->currentIndex().data(Qt::UserRole).toString().startsWith(QLatin1String("N ")));
        // Entries that have albums show them below; the others fold the pane away.
        const bool avecAlbums = i != 0 && i != 5 && i != 6;
        QCOMPARE(Seance::trouver<QAbstractItemView>("LFilms")->isVisible(), avecAlbums);
    }
}

void tst_parcours::unClicMontreLaFiche()
{
    Seance s;
    s.demarrer();
    Seance::choisir(QStringLiteral("Bécassine en apprentissage"));
    QTRY_COMPARE(Seance::texteDe("TAlbum"), QStringLiteral("Bécassine en apprentissage"));
    QCOMPARE(Seance::texteDe("Scena"), QStringLiteral("Caumery"));
    QCOMPARE(Seance::texteDe("ISBN").size(), 855);
    // The neighbour in the series is one click away, and the list follows.
    const QString suivant = Seance::trouver<QAbstractButton>("AlbumSuivant")->text();
    Seance::cliquer("AlbumSuivant");
    QTRY_VERIFY(Seance::texteDe("TAlbum") != QStringLiteral("Bécassine en apprentissage"));
    QVERIFY(Seance::texteDe("TAlbum").startsWith(suivant.left(10)));
    QCOMPARE(Seance::trouver<QAbstractItemView>("Liste")->currentIndex().data().toString(),
        Seance::texteDe("TAlbum"));

    // Arrow keys walk the list and the sheet follows.
    auto *liste = Seance::trouver<QAbstractItemView>("Liste");
    QTest::keyClick(liste, Qt::Key_Down);
    QTRY_COMPARE(Seance::texteDe("TAlbum"), liste->currentIndex().data().toString());

    // An album of a series, from the lower list, leaves the main list as it is.
    Seance::cliquer("Tris(1)");
    auto *albums = Seance::trouver<QAbstractItemView>("LFilms");
    QTest::mouseClick(
        albums->viewport(), Qt::LeftButton, {}, albums->visualRect(albums->model()->index(1, 0)).center());
    QTRY_COMPARE(Seance::texteDe("TAlbum"), albums->model()->index(1, 0).data().toString());
    QCOMPARE(Seance::texteDe("TitreListe"), texte(Txt::ListeDesSeries));
}

void tst_parcours::laLangueChangePartout()
{
    Seance s;
    s.demarrer();
    auto *menu = Seance::trouver<QMenu>("", "Frmmain");
    QVERIFY(menu);
    Q_EMIT menu->aboutToShow();
    auto *anglais = menu->findChild<QAction *>(QStringLiteral("English.lng"));
    QVERIFY(anglais);
    anglais->trigger();
    QCOMPARE(Bac::lire(s.bac.chemin(QStringLiteral("defaut.lng"))),
        Bac::lire(s.bac.chemin(QStringLiteral("langues/English.lng"))));
    QTRY_VERIFY(Seance::texteDe("TitreListe") != QStringLiteral("Liste des Albums"));
    QCOMPARE(Seance::texteDe("TitreListe"), texte(Txt::ListeDesAlbums));
    QCOMPARE(Seance::trouver<QAbstractButton>("Langues")->text(), QStringLiteral("English"));
}

void tst_parcours::quitterDemandeEtRange()
{
    Seance s;
    s.demarrer();
    const QString brouillon = s.bac.chemin(QStringLiteral("temp.bmp"));
    Bac::ecrire(brouillon, "x");
    QWidget *fenetre = Seance::fenetre("Frmmain");
    fenetre->resize(1000, 640);
    Seance::cliquer("Menu(7)");
    QCOMPARE(s.boites.textes, QStringList{QStringLiteral("Voulez vous quitter Bulleo V1.2 ?")});
    QVERIFY(fenetre->isVisible() && QFileInfo::exists(brouillon));
    s.boites.reponses << true;
    fenetre->close();
    QVERIFY(!fenetre->isVisible() && !QFileInfo::exists(brouillon));
    QCOMPARE(s.bac.reglages.nombre(Cle::Width), 1000.0);

    // The next start has that size, within the screen.
    s.bureau = std::make_unique<Bureau>(Options());
    s.bureau->demarrer();
    QTRY_COMPARE(Seance::fenetre("Frmmain")->height(),
        std::min(640, QGuiApplication::primaryScreen()->availableSize().height()));
}

void tst_parcours::uneBaseEtrangereEstDite()
{
    Seance s;
    Bac::ecrire(s.bac.collection(), "ceci n'est pas une base");
    s.demarrer();
    QTRY_COMPARE(s.boites.textes.size(), 1);
    QVERIFY(s.boites.textes[0].startsWith(texte(Txt::UneErreurEstSurvenue)));
    QVERIFY(s.boites.textes[0].contains(s.bac.collection()));
    QVERIFY(Seance::fenetre("Frmmain")->isVisible());
    QCOMPARE(Bac::lire(s.bac.collection()), QByteArray("ceci n'est pas une base"));
}

void tst_parcours::laCopieSeFaitDuLanceur()
{
    Seance s;
    s.demarrer();
    Seance::cliquer("Menu(0)");
    Seance::cliquer("Menu(3)", "Splash");
    const QString copie = s.bac.chemin(QStringLiteral("copie.mdb"));
    s.boites.fichiers << QString() << s.bac.collection() << copie;
    Seance::cliquer("Outils(4)", "Splash");
    QVERIFY(s.boites.textes.isEmpty());
    Seance::cliquer("Outils(4)", "Splash");
    QCOMPARE(s.boites.textes.takeFirst(),
        QStringLiteral("Vous ne devriez pas sauvegarder avec ce nom (bd.mdb) !!!"));
    Seance::cliquer("Outils(4)", "Splash");
    QCOMPARE(s.boites.textes.takeFirst(), texte(Txt::SauvegardeEffectuee));
    QCOMPARE(Bac::sansCompteurs(copie), Bac::sansCompteurs(s.bac.collection()));
}

void tst_parcours::creerALaMainPuisDuCatalogue()
{
    Seance s;
    s.demarrer();
    auto *liste = Seance::trouver<QAbstractItemView>("Liste");
    const int avant = liste->model()->rowCount();
    Seance::cliquer("Menu(1)");
    QTRY_VERIFY(Seance::trouver<QComboBox>("Serie", "Manuelle")->count() > 10);
    Seance::cliquer("BtnCreer", "Manuelle");
    QVERIFY(!Seance::trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());

    // By keyboard alone: what is typed stays, a known series proposes its next tome.
    Seance::ecrire("Titre", QStringLiteral("L'Œuvre d'été"), "Manuelle");
    QVERIFY(Seance::trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());
    Seance::ecrire("Serie", QStringLiteral("bécassine"), "Manuelle");
    QCOMPARE(Seance::trouver<QLineEdit>("Tome", "Manuelle")->text(), QStringLiteral("26"));
    Seance::ecrire("PrixA", QStringLiteral("12,50"), "Manuelle");
    QTest::keyClick(Seance::trouver<QLineEdit>("PrixA", "Manuelle"), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(s.boites.textes, QStringList{texte(Txt::CreationEffectuee)});
    QTRY_COMPARE(Seance::texteDe("TAlbum"), QStringLiteral("L'Œuvre d'été"));
    QCOMPARE(Seance::texteDe("Serie"), QStringLiteral("Bécassine"));
    QCOMPARE(Seance::texteDe("PrixA"), QStringLiteral("12,50 €"));
    QCOMPARE(liste->model()->rowCount(), avant + 1);
    QCOMPARE(liste->currentIndex().data().toString(), QStringLiteral("L'Œuvre d'été"));
    QVERIFY(Seance::trouver<QLineEdit>("Titre", "Manuelle")->text().isEmpty());

    Seance::cliquer("Menu(0)");
    Seance::cliquer("Creation(1)", "Splash");
    auto *catalogue = Seance::trouver<QAbstractItemView>("LAlbum", "Facile");
    QTRY_VERIFY(catalogue->model()->rowCount() > 300);
    Seance::ecrire("Filtre", QStringLiteral("ETOILE MYSTERIEUSE"), "Facile");
    QCOMPARE(catalogue->model()->rowCount(), 1);
    QVERIFY(catalogue->model()->index(0, 0).data(Qt::UserRole).toString().startsWith(u'A'));
    catalogue->setCurrentIndex(catalogue->model()->index(0, 0));
    Seance::cliquer("Sel", "Facile");
    QCOMPARE(Seance::trouver<QLineEdit>("Tome", "Facile")->text(), QStringLiteral("010"));
    QVERIFY(Seance::trouver<QCheckBox>("Carton", "Facile")->isChecked());
    Seance::cliquer("BtnCreer", "Facile");
    QTRY_COMPARE(Seance::texteDe("Serie"), QStringLiteral("Tintin"));
    QCOMPARE(Seance::texteDe("NumBD"), QStringLiteral("10"));
}

void tst_parcours::chaqueGenreASaFiche()
{
    struct Fiche
    {
        int tri;
        const char *nom, *titre;
    };
    Seance s;
    s.demarrer();
    for (const Fiche &fiche :
        {Fiche{1, "FicheSerie", "Nom"}, {3, "FicheAuteur", "Nom"}, {5, "FicheExLibris", "DescriptionX"},
            {6, "FichePresse", "NomP"}, {7, "FicheEditeur", "NomE"}, {8, "FicheColl", "NomC"}}) {
        Seance::cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(fiche.tri)));
        auto *forme = Seance::trouver<QWidget>(fiche.nom);
        QVERIFY2(forme && forme->isVisible(), fiche.nom);
        const QString ligne = Seance::trouver<QAbstractItemView>("Liste")->currentIndex().data().toString();
        QVERIFY(ligne.startsWith(forme->findChild<QLabel *>(QLatin1String(fiche.titre))->text()));
    }
    // The trade of the list is the title, the two others are boxes.
    Seance::cliquer("Tris(4)");
    QCOMPARE(Seance::texteDe("Metier"), texte(Txt::Coloriste));
    QCOMPARE(Seance::trouver<QCheckBox>("M_tiers(0)")->text(), texte(Txt::Dessinateur));

    // Only web and mail addresses open, and a refusal is told.
    Adresses ouvertes;
    QDesktopServices::setUrlHandler(QStringLiteral("http"), &ouvertes, "prendre");
    auto *lien = Seance::trouver<QWidget>("FicheAuteur")->findChild<QLabel *>(QStringLiteral("Liens(0)"));
    for (const char *adresse : {"a.fr:8080/x", "javascript:alert(1)", "file:///etc/passwd"}) {
        lien->setText(QLatin1String(adresse));
        QTest::keyClick(lien, Qt::Key_Return, Qt::ControlModifier);
    }
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QCOMPARE(ouvertes.prises, QStringList(QStringLiteral("http://a.fr:8080/x")));
    QTRY_COMPARE(s.boites.textes.size(), 2);
}

void tst_parcours::chaqueControleAUnNom()
{
    Seance s;
    s.demarrer();
    Seance::cliquer("Menu(0)");
    Seance::cliquer("Creation(0)", "Splash");
    Seance::cliquer("Creation(1)", "Splash");
    QTRY_VERIFY(Seance::trouver<QWidget>("FicheAlbum"));
    for (const char *forme : {"Frmmain", "Splash", "Manuelle", "Facile"}) {
        const auto controles = Seance::fenetre(forme)->findChildren<QWidget *>();
        for (const QWidget *controle : controles) {
            // What a list box or a tab bar is made of is Qt's own.
            bool deLaForme = !QByteArray(controle->metaObject()->className()).startsWith("QTab")
                && !controle->objectName().startsWith(QLatin1String("qt_"));
            for (const QObject *parent = controle->parent(); parent; parent = parent->parent())
                deLaForme = deLaForme && !parent->inherits("QComboBox");
            const bool actif = controle->focusPolicy() != Qt::NoFocus && !controle->inherits("QScrollBar");
            if (!deLaForme || !actif)
                continue;
            QVERIFY2(!controle->objectName().isEmpty(), controle->metaObject()->className());
            QVERIFY2(!controle->accessibleName().isEmpty() || !controle->isVisible(),
                qPrintable(controle->objectName()));
        }
    }
}

int main(int argc, char *argv[])
{
    return jouer<tst_parcours>(argc, argv);
}

#include "tst_parcours.moc"
