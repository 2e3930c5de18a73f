#include "core/Images.h"
#include "core/ui/CadreImage.h"
#include "core/ui/ChoisirImage.h"
#include "support/Seance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QStandardPaths>
#include <QTimer>

namespace {

QLineEdit *ligne(const char *nom, const char *forme = "Manuelle")
{
    auto *choix = qobject_cast<QComboBox *>(Seance::trouver<QWidget>(nom, forme));
    return choix ? choix->lineEdit() : Seance::trouver<QLineEdit>(nom, forme);
}

/// Begins anew in a field of `Manuelle`.
void retaper(const char *nom, const QString &texte)
{
    ligne(nom)->clear();
    Seance::ecrire(nom, texte, "Manuelle");
}

void presser(const char *nom, Qt::Key touche)
{
    QTest::keyClick(Seance::trouver<QWidget>(nom, "Manuelle"), touche);
}

/// The program with the form of creation by hand, open.
struct Saisissante : Ouverte
{
    Saisissante()
    {
        cliquer("Menu(1)");
        montree();
    }
    static void montree()
    {
        QTRY_VERIFY(visible("Manuelle"));
        QTRY_VERIFY(trouver<QComboBox>("Serie", "Manuelle")->count() > 10);
        fenetre("Manuelle")->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fenetre("Manuelle")));
    }
    static bool aRien() { return !trouver<QWidget>("Vider", "Manuelle")->isEnabled(); }
};

}

/// What the creation forms do with what is being entered.
class tst_creation : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void uneSaisieFermeeRevient()
    {
        Saisissante s;
        QVERIFY(s.aRien());
        fenetre("Manuelle")->close();
        QVERIFY(!visible("Manuelle") && s.boites.textes.isEmpty());
        cliquer("Menu(1)");
        s.montree();
        ecrire("Titre", "L'Œuvre", "Manuelle");
        presser("Titre", Qt::Key_Escape);
        QCOMPARE(s.boites.textes.size(), 1);
        QVERIFY(visible("Manuelle"));
        s.boites.reponses << true;
        presser("Titre", Qt::Key_Escape);
        QVERIFY(!visible("Manuelle"));
        cliquer("Menu(1)");
        s.montree();
        QCOMPARE(ligne("Titre")->text(), "L'Œuvre");
        s.boites.reponses << true;
        cliquer("Vider", "Manuelle");
        QVERIFY(ligne("Titre")->text().isEmpty() && s.aRien());
        s.boites.textes.clear();
        fenetre("Manuelle")->close();
        QVERIFY(!visible("Manuelle") && s.boites.textes.isEmpty());
    }

    void unTomeProposeVaAvecSaSerie()
    {
        Saisissante s;
        ecrire("Serie", "bécassine", "Manuelle");
        QCOMPARE(ligne("Tome")->text(), "26");
        ecrire("Serie", " au zoo", "Manuelle");
        QCOMPARE(ligne("Serie")->text(), "bécassine au zoo");
        QCOMPARE(ligne("Tome")->text(), "");
        retaper("Serie", "Bécassine");
        QCOMPARE(ligne("Tome")->text(), "26");
        ligne("Serie")->clear();
        QVERIFY(s.aRien());
        ecrire("Tome", "3", "Manuelle");
        retaper("Serie", "Bécassine");
        ligne("Serie")->clear();
        QCOMPARE(ligne("Tome")->text(), "3");
    }

    void uneSeuleCorrespondanceSeComplete()
    {
        Saisissante s;
        const auto montre = [] {
            return QStringList{ligne("Serie")->text(), ligne("Serie")->selectedText()};
        };
        auto *offres = trouver<QComboBox>("Serie", "Manuelle")->completer()->popup();
        ecrire("Serie", "BECA", "Manuelle");
        QCOMPARE(montre(), QStringList({"Bécassine", "ssine"}));
        QVERIFY(!offres->isVisible());
        for (const Qt::Key touche : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Escape}) {
            presser("Serie", touche);
            QCOMPARE(montre(), QStringList({"BECA", ""}));
            QVERIFY(visible("Manuelle") && s.boites.textes.isEmpty());
            ecrire("Serie", "s", "Manuelle");
            QCOMPARE(montre(), QStringList({"Bécassine", "sine"}));
            retaper("Serie", "BECA");
        }
        // Typed on, it is a name of its own; what stands there when the line is left is taken.
        ecrire("Serie", "rd", "Manuelle");
        QCOMPARE(montre(), QStringList({"BECArd", ""}));
        retaper("Serie", "BECA");
        presser("Serie", Qt::Key_Tab);
        QCOMPARE(ligne("Serie")->text(), "Bécassine");
        QCOMPARE(ligne("Tome")->text(), "26");
        // In the middle of a name, and of several: the list below shows them.
        for (const char *texte : {"cassin", "b"}) {
            retaper("Serie", texte);
            QCOMPARE(ligne("Serie")->text(), texte);
            QVERIFY2(offres->isVisible(), texte);
            offres->hide();
        }
    }

    void uneImageSeRetire()
    {
        Saisissante s;
        const QString image = s.bac.chemin("a.png");
        QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(image));
        const QString texte = s.bac.chemin("a.txt");
        Bac::ecrire(texte, "rien");
        auto *cadre = trouver<CadreImage>("Photo1", "Manuelle");
        auto *croix = cadre->findChild<QAbstractButton *>("Croix");
        const auto refus = [] { return trouver<QLabel>("Refus", "Manuelle")->text(); };
        s.boites.fichiers << texte << image << image << image;
        cliquer("ImageRecto", "Manuelle");
        QVERIFY(!cadre->aUneImage() && !refus().isEmpty());
        cliquer("ImageRecto", "Manuelle");
        QVERIFY(cadre->aUneImage() && refus().isEmpty() && croix->isVisible());
        // A file that is none leaves the one before.
        QMimeData depot;
        depot.setUrls({QUrl::fromLocalFile(texte)});
        QDragEnterEvent entree({5, 5}, Qt::CopyAction, &depot, Qt::LeftButton, {});
        QApplication::sendEvent(cadre, &entree);
        QDropEvent lacher({5, 5}, Qt::CopyAction, &depot, Qt::LeftButton, {});
        QApplication::sendEvent(cadre, &lacher);
        QVERIFY(cadre->aUneImage() && !refus().isEmpty());
        cadre->setFocus();
        QTest::keyClick(cadre, Qt::Key_Delete);
        QVERIFY(!cadre->aUneImage() && !croix->isVisible() && refus().isEmpty() && s.aRien());
        cliquer("ImageRecto", "Manuelle");
        QTest::mouseClick(croix, Qt::LeftButton);
        QVERIFY(!cadre->aUneImage());
        cliquer("ImageRecto", "Manuelle");
        cadre->actions().first()->trigger();
        QVERIFY(!cadre->aUneImage());
        QCOMPARE(s.boites.fichiers.size(), 0);
    }

    void lesImagesSeCherchentLaOuEllesSont()
    {
        const Bac bac;
        QStandardPaths::setTestModeEnabled(true);
        const QString siennes = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
        QVERIFY(QDir().mkpath(siennes));
        QCOMPARE(DossierDImages(), siennes);
        Reglages::courant().ecrire(Cle::DossierImages, bac.chemin("images"));
        QCOMPARE(DossierDImages(), bac.chemin("images"));
        Reglages::courant().ecrire(Cle::DossierImages, bac.chemin("disparu"));
        QCOMPARE(DossierDImages(), siennes);
        QStandardPaths::setTestModeEnabled(false);
        for (const QString &extension : Images::Extensions()) {
            QVERIFY(FiltreDImages().contains("*." + extension));
            QVERIFY(Images::EstUneImage("a." + extension));
        }
        QVERIFY(FiltreDImages().contains("*.gif"));
    }

    void uneReferenceRemplaceLAutre()
    {
        Ouverte s;
        ouvrir("Menu(0)", "Creation(1)", "Facile");
        auto *catalogue = trouver<QAbstractItemView>("LAlbum", "Facile");
        QTRY_VERIFY(catalogue->model()->rowCount() > 300);
        const auto trouvees = [&](const QString &filtre) {
            ligne("Filtre", "Facile")->clear();
            ecrire("Filtre", filtre, "Facile");
            return catalogue->model()->rowCount();
        };
        const auto prendre = [&](int rang) {
            catalogue->setCurrentIndex(catalogue->model()->index(rang, 0));
            cliquer("Sel", "Facile");
        };
        const auto tient = [](const char *nom) {
            const auto *boite = trouver<QCheckBox>(nom, "Facile");
            return boite ? boite->isChecked() : trouver<CadreImage>(nom, "Facile")->aUneImage();
        };
        for (const char *texte : {"herge", "l'association", "tintin", "satrapi"})
            QVERIFY2(trouvees(texte) > 1 && catalogue->model()->rowCount() < 300, texte);
        QCOMPARE(trouvees("cigares du pharaon"), 1);
        QCOMPARE(catalogue->model()->index(0, 0).data(), "Les Cigares du pharaon  (N° 4)");
        const QString image = s.bac.chemin("a.png");
        QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(image));
        s.boites.fichiers << image << image;
        cliquer("ImageRecto", "Facile");
        prendre(0);
        QVERIFY(tient("Photo1") && tient("Carton"));
        QVERIFY(trouvees("persepolis") > 1);
        prendre(0);
        QVERIFY(!tient("Photo1") && !tient("Carton"));
        QCOMPARE(trouvees("cigares du pharaon"), 1);
        prendre(0);
        cliquer("ImageRecto", "Facile");
        s.boites.reponses << true;
        cliquer("Vider", "Facile");
        QVERIFY(!tient("Photo1") && !tient("Carton"));
        // Of an entry that was only picked nobody is asked.
        prendre(0);
        s.boites.textes.clear();
        fenetre("Facile")->close();
        QVERIFY(!visible("Facile") && s.boites.textes.isEmpty());
        Q_EMIT s.demandes().langue("Deutsch.lng");
        QCOMPARE(catalogue->model()->index(0, 0).data(), "Les Cigares du pharaon  (Nr. 4)");
    }

    /// The last one: the program is left.
    void quitterDitCeQuiSePerd()
    {
        Saisissante s;
        ecrire("Titre", "L'Œuvre", "Manuelle");
        fenetre("Frmmain")->close();
        QVERIFY(s.boites.textes.takeFirst().contains(texte(Txt::CreationManuelleDUnAlbum)));
        QVERIFY(visible("Frmmain") && visible("Manuelle"));
        // Told of it, one goes; no form stays behind without the main window.
        s.boites.reponses << true;
        QTimer::singleShot(0, fenetre("Frmmain"), &QWidget::close);
        QTimer::singleShot(10'000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(s.boites.textes.size(), 1);
    }
};

JOUER(tst_creation)
#include "tst_creation.moc"
