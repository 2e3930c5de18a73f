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
        // Dark windows at once, and the theme's own colour again.
        trouver<QComboBox>("Theme", "Polices")->setCurrentIndex(2);
        cliquer("SansCouleur", "Polices");
        cliquer("Valider", "Polices");
        QVERIFY(Theme::EstSombre(QApplication::palette()));
        QCOMPARE(s.bac.reglages.entier(Cle::Forecolor), 0);
        s.bac.reglages.ecrire(Cle::Theme, 1);
        Habillage::Relire(); // for those that follow
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
