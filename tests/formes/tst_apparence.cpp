#include "core/Fonds.h"
#include "core/ui/Habillage.h"
#include "core/ui/Theme.h"
#include "support/Seance.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QImage>
#include <QListWidget>
#include <QTimer>
#include <QTreeWidget>

/// Fonts, colours and backgrounds: what is applied shows on the open forms and stays, what is not applied does neither.
class tst_apparence : public QObject, private Gestes
{
    Q_OBJECT

private:
    static QFont exemple() { return trouver<QLabel>("TExemple", "Polices")->font(); }
    static void prendreTaille(const QString &taille)
    {
        auto *tailles = trouver<QTreeWidget>("Taille", "Polices");
        tailles->setCurrentItem(tailles->findItems(taille, Qt::MatchExactly).value(0));
    }
    /// The desk behind the sheets, without them.
    static QImage bureau()
    {
        auto *fond = trouver<QWidget>("Fond");
        QImage image(fond->size(), QImage::Format_RGB32);
        fond->render(&image, {}, {}, QWidget::RenderFlags());
        return image;
    }
    static int nuances(const QImage &image)
    {
        int clair = 0;
        int sombre = 255;
        for (int x = 0; x < image.width(); ++x) {
            clair = std::max(clair, image.pixelColor(x, 20).lightness());
            sombre = std::min(sombre, image.pixelColor(x, 20).lightness());
        }
        return clair - sombre;
    }
    /// Answers the colour dialog that the button opens.
    void choisirCouleur(const QColor &couleur, bool prise)
    {
        QTimer::singleShot(0, this, [couleur, prise] {
            auto *dialogue = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            dialogue->setCurrentColor(couleur);
            prise ? dialogue->accept() : dialogue->reject();
        });
        cliquer("Couleur", "Polices");
    }

private Q_SLOTS:
    void laPoliceVautPourListesEtFiches()
    {
        Ouverte s;
        const QFont avant = trouver<QWidget>("Liste")->font();
        const auto changer = [this] {
            ouvrir("Menu(2)", "Interf(0)", "Polices");
            prendreTaille("16");
            trouver<QCheckBox>("Options(1)", "Polices")->click();
            QVERIFY(exemple().italic() && exemple().pointSizeF() == 16);
            choisirCouleur(QColor(10, 20, 200), true);
            choisirCouleur(Qt::red, false);
        };
        changer();
        QTest::keyClick(fenetre("Polices"), Qt::Key_Escape);
        QTRY_VERIFY(!visible("Polices"));
        QCOMPARE(trouver<QWidget>("Liste")->font(), avant);
        QVERIFY(!s.bac.reglages.booleen(Cle::FontItalic));
        QCOMPARE(s.bac.reglages.entier(Cle::Forecolor), 0);

        changer();
        cliquer("Valider", "Polices");
        QCOMPARE(s.bac.reglages.nombre(Cle::FontSize), 16.0);
        QVERIFY(s.bac.reglages.booleen(Cle::FontItalic));
        QCOMPARE(s.bac.reglages.entier(Cle::Forecolor), 10 | 20 << 8 | 200 << 16);
        for (const char *nom : {"Liste", "Scena"}) {
            QVERIFY2(trouver<QWidget>(nom)->font().italic(), nom);
            QCOMPARE(trouver<QWidget>(nom)->palette().color(QPalette::Text), QColor(10, 20, 200));
        }
        // The theme's own colour again; then dark windows at once, and nothing of the page behind.
        cliquer("SansCouleur", "Polices");
        cliquer("Valider", "Polices");
        QCOMPARE(s.bac.reglages.entier(Cle::Forecolor), 0);
        prendreTaille("20");
        Q_EMIT s.demandes().forme(Forme::Nom::Apparence);
        QVERIFY(!visible("Polices"));
        trouver<QComboBox>("Theme", "Apparence")->setCurrentIndex(2);
        cliquer("Valider", "Apparence");
        QVERIFY(Theme::EstSombre(QApplication::palette()));
        QCOMPARE(s.bac.reglages.nombre(Cle::FontSize), 16.0);
        s.bac.reglages.ecrire(Cle::Theme, 1);
        Habillage::Relire(); // for those that follow
        // A size that somebody wrote by hand can be read, and changed back.
        for (const auto &[ecrite, prise] : {std::pair(QString("300"), 28.0), {"0", 6.0}, {"10,5", 10.5}}) {
            s.bac.reglages.ecrire(Cle::FontSize, ecrite);
            QCOMPARE(Theme::PoliceChoisie().pointSizeF(), prise);
        }
    }

    void uneTextureVaSousLesFormes()
    {
        using enum Forme::Nom;
        Ouverte s;
        for (const auto &[nom, forme] :
            {std::pair(Manuelle, "Manuelle"), {Facile, "Facile"}, {BDNet, "BDNet"}, {Pret, "Pret"},
                {Recherche, "Recherche"}, {Stats, "Stats"}, {Impression, "Impression"}}) {
            QImage coins[2];
            for (const int texture : {0, 1}) {
                s.bac.reglages.ecrire(Cle::Splash, texture);
                Q_EMIT s.demandes().forme(nom);
                QTRY_VERIFY(visible(forme));
                coins[texture] = fenetre(forme)->grab({0, 0, 12, 12}).toImage();
                fenetre(forme)->hide();
            }
            QVERIFY2(coins[0] != coins[1], forme);
        }
    }

    void uneTextureSeChoisitEtSAjoute()
    {
        Ouverte s;
        const QString fond = s.bac.chemin("Fond Ecran/");
        const QImage nu = bureau();
        ouvrir("Menu(2)", "Interf(1)", "Textures");
        auto *liste = trouver<QListWidget>("ListeFond", "Textures");
        QCOMPARE(liste->count(), Fonds::Textures().size() + 1);
        liste->setCurrentItem(liste->findItems("Lin", Qt::MatchExactly).value(0));
        QVERIFY(liste->currentItem()->font().bold());
        QVERIFY(s.bac.reglages.texte(Cle::FondScreen).isEmpty());
        cliquer("Valider", "Textures");
        QCOMPARE(s.bac.reglages.texte(Cle::FondScreen), fond + "Lin.jpg");
        QVERIFY(bureau() != nu);
        s.bac.reglages.ecrire(Cle::Theme, 2); // in the dark it is seen, too
        Habillage::Relire();
        QVERIFY2(nuances(bureau()) > 5, qPrintable(QString::number(nuances(bureau()))));
        s.bac.reglages.ecrire(Cle::Theme, 1);
        Habillage::Relire();
        // The folder was moved, and the name written in other letters.
        s.bac.reglages.ecrire(Cle::FondScreen, QString("/ailleurs/Fond Ecran/LIN.JPG"));
        s.bac.reglages.ecrire(Cle::RepFondScreen, QString("/ailleurs/Fond Ecran"));
        QCOMPARE(Fonds::CheminChoisi(), fond + "Lin.jpg");

        // One's own, with dots in its name and under one that exists; and a file that is no picture.
        for (const char *nom : {"ma.belle.jpg", "Lin.jpg"})
            QImage(20, 20, QImage::Format_RGB32).save(s.bac.chemin(nom));
        Bac::ecrire(s.bac.chemin("faux.jpg"), "pas une image");
        const int avant = liste->count();
        for (const char *nom : {"ma.belle.jpg", "Lin.jpg", "faux.jpg"}) {
            s.boites.fichiers << s.bac.chemin(nom);
            cliquer("TextureSuppl", "Textures");
        }
        QCOMPARE(liste->count(), avant + 2);
        QVERIFY(QFile::exists(fond + "Lin (2).jpg"));
        QVERIFY(!trouver<QLabel>("Message", "Textures")->text().isEmpty());
        cliquer("Valider", "Textures");
        QCOMPARE(s.bac.reglages.texte(Cle::FondScreen), fond + "Lin (2).jpg");
        liste->setCurrentRow(0);
        cliquer("Valider", "Textures");
        QCOMPARE(Fonds::CheminChoisi(), QString());
        QCOMPARE(bureau(), nu);
    }
};

JOUER(tst_apparence)
#include "tst_apparence.moc"
