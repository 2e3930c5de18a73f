#include "browse/Frmmain.h"
#include "core/Fonds.h"
#include "core/ui/Habillage.h"
#include "core/ui/Theme.h"
#include "db/schema/Tables.h"
#include "support/Colonnes.h"
#include "support/Seance.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDesktopServices>
#include <QImage>
#include <QListWidget>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr auto Lanceur = "Splash";

QTreeWidgetItem *ligneDe(const char *liste, const QString &texte, const char *forme)
{
    return Seance::trouver<QTreeWidget>(liste, forme)->findItems(texte, Qt::MatchExactly).value(0);
}

void ouvrir(const char *groupe, const char *bouton, const char *forme)
{
    Seance::cliquer("Menu(0)");
    Seance::cliquer(groupe, Lanceur);
    Seance::cliquer(bouton, Lanceur);
    QTRY_VERIFY(Seance::fenetre(forme) && Seance::fenetre(forme)->isVisible());
    QTest::qWait(30);
}

}

/// The launcher's buttons, the forms of appearance, the help, and how an empty collection begins.
class tst_lanceur : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueBouton_data()
    {
        colonnes<QByteArray, QByteArray>();
        const auto bouton = [](const char *nom, const char *groupe, const char *forme) {
            QTest::newRow(nom) << QByteArray(groupe) << QByteArray(forme);
        };
        bouton("Creation(0)", "Menu(0)", "Manuelle");
        bouton("Creation(1)", "Menu(0)", "Facile");
        bouton("Creation(2)", "Menu(0)", "BDNet");
        bouton("Creation(3)", "Menu(0)", "Import");
        bouton("Interf(0)", "Menu(2)", "Polices");
        bouton("Interf(1)", "Menu(2)", "Textures");
        bouton("Outils(0)", "Menu(3)", "Stats");
        bouton("Outils(1)", "Menu(3)", "Impression");
        bouton("Outils(2)", "Menu(3)", "Acquisition");
        bouton("Outils(3)", "Menu(3)", "Pret");
        bouton("Outils(5)", "Menu(3)", "Restauration");
    }

    void chaqueBouton()
    {
        const auto [groupe, forme] = essai<QByteArray, QByteArray>();
        Ouverte s;
        ouvrir(groupe, QTest::currentDataTag(), forme);
        // Escape closes it again, and nothing was said.
        QTest::keyClick(fenetre(forme), Qt::Key_Escape);
        QTRY_VERIFY(!fenetre(forme)->isVisible());
        QCOMPARE(s.boites.textes, QStringList());
    }

    void lesCopiesEtLesListes()
    {
        Ouverte s;
        cliquer("Menu(0)");
        const QString copie = s.bac.chemin("copie.mdb");
        s.boites.fichiers.enqueue(copie);
        cliquer("Menu(3)", Lanceur);
        cliquer("Outils(4)", Lanceur);
        QCOMPARE(Bac::sansCompteurs(copie), Bac::sansCompteurs(s.bac.collection()));
        QCOMPARE(s.boites.textes.takeLast(), texte(Txt::SauvegardeEffectuee));
        for (int tri = 6; tri >= 0; --tri) {
            cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(tri)), Lanceur);
            QCOMPARE(s.bac.reglages.entier(Cle::Tris), tri);
            QCOMPARE(texteDe("TitreListe"), texte(General::GenreDe(General::TriDe(tri)).titre));
        }
        // The maker's site, once there is one: the group shows, and the button opens it.
        QVERIFY(!trouver<QWidget>("Menu(4)", Lanceur)->isVisible());
        s.bac.reglages.ecrire(Cle::Site, "http://127.0.0.1/bulleo");
        QEvent langue(QEvent::LanguageChange);
        QApplication::sendEvent(fenetre(Lanceur), &langue);
        QDesktopServices::setUrlHandler("http", this, "noter");
        cliquer("Menu(4)", Lanceur);
        cliquer("Liens", Lanceur);
        QDesktopServices::unsetUrlHandler("http");
        QCOMPARE(m_urls, QList<QUrl>{QUrl("http://127.0.0.1/bulleo")});
    }

    void laPoliceVautPourListesEtFiches()
    {
        Seance s;
        s.bac.reglages.ecrire(Cle::FontBold, "True");
        s.bac.reglages.ecrire(Cle::FontSize, "13");
        s.demarrer();
        ouvrir("Menu(2)", "Interf(0)", "Polices");
        // Neither another program's word for bold, nor a size that the list does not have.
        QVERIFY(!trouver<QCheckBox>("Options(0)", "Polices")->isChecked());
        auto *tailles = trouver<QTreeWidget>("Taille", "Polices");
        for (int i = 0; i < tailles->topLevelItemCount(); ++i)
            QVERIFY(!tailles->topLevelItem(i)->font(0).bold());
        QCOMPARE(trouver<QLabel>("TExemple", "Polices")->font().pointSizeF(), 13.0);

        tailles->setCurrentItem(ligneDe("Taille", "16", "Polices"));
        trouver<QCheckBox>("Options(1)", "Polices")->click();
        QTimer::singleShot(0, this, [] {
            auto *dialogue = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            dialogue->setCurrentColor(QColor(10, 20, 200));
            dialogue->accept();
        });
        cliquer("Couleur", "Polices");
        const QFont exemple = trouver<QLabel>("TExemple", "Polices")->font();
        QVERIFY(exemple.italic() && exemple.pointSizeF() == 16);
        QVERIFY(!trouver<QWidget>("Liste")->font().italic());
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
        // With no colour of its own, the list takes that of the windows.
        QVERIFY(!trouver<QWidget>("Liste")->testAttribute(Qt::WA_SetPalette));
        s.bac.reglages.ecrire(Cle::Theme, 1);
        Habillage::Relire();
        QVERIFY(!Theme::EstSombre(QApplication::palette()));
    }

    void uneTextureSeChoisitEtSAjoute()
    {
        Ouverte s;
        const QString fond = s.bac.chemin("Fond Ecran/");
        QVERIFY(Fonds::Textures().size() >= 6);
        ouvrir("Menu(2)", "Interf(1)", "Textures");
        auto *liste = trouver<QListWidget>("ListeFond", "Textures");
        QCOMPARE(liste->count(), Fonds::Textures().size() + 1);
        liste->setCurrentItem(liste->findItems("Lin", Qt::MatchExactly).value(0));
        QVERIFY(liste->currentItem()->font().bold());
        QVERIFY(s.bac.reglages.texte(Cle::FondScreen).isEmpty());
        cliquer("Valider", "Textures");
        QCOMPARE(s.bac.reglages.texte(Cle::FondScreen), fond + QStringLiteral("Lin.jpg"));

        // One's own, with dots in its name and under one that exists; and a file that is no picture.
        QImage(20, 20, QImage::Format_RGB32).save(s.bac.chemin("ma.belle.jpg"));
        QImage(20, 20, QImage::Format_RGB32).save(s.bac.chemin("Lin.jpg"));
        Bac::ecrire(s.bac.chemin("faux.jpg"), "pas une image");
        const int avant = liste->count();
        for (const char *nom : {"ma.belle.jpg", "Lin.jpg", "faux.jpg"}) {
            s.boites.fichiers.enqueue(s.bac.chemin(QLatin1String(nom)));
            cliquer("TextureSuppl", "Textures");
        }
        QCOMPARE(liste->count(), avant + 2);
        QCOMPARE(liste->item(avant)->text(), "MA");
        QVERIFY(QFile::exists(fond + QStringLiteral("Lin (2).jpg")));
        QVERIFY(!trouver<QLabel>("Message", "Textures")->text().isEmpty());
        cliquer("Valider", "Textures");
        QCOMPARE(s.bac.reglages.texte(Cle::FondScreen), fond + QStringLiteral("Lin (2).jpg"));
        liste->setCurrentRow(0);
        cliquer("Valider", "Textures");
        QCOMPARE(Fonds::CheminChoisi(), QString());
    }

    void f1OuvreLaPageDeLaForme()
    {
        Ouverte s;
        m_urls.clear();
        QDesktopServices::setUrlHandler("file", this, "noter");
        QTest::keyClick(fenetre("Frmmain"), Qt::Key_F1);
        ouvrir("Menu(3)", "Outils(3)", "Pret");
        fenetre("Pret")->activateWindow();
        QTest::keyClick(fenetre("Pret"), Qt::Key_F1);
        s.bac.traduction.choisir("English.lng");
        QTest::keyClick(fenetre("Pret"), Qt::Key_F1);
        cliquer("Menu(4)");
        QDesktopServices::unsetUrlHandler("file");
        QStringList pages;
        for (const QUrl &url : m_urls)
            pages << url.toLocalFile().section("/Help/", 1);
        QCOMPARE(pages, QStringList({"fenetre.htm", "prets.htm", "en/prets.htm", "en/index.htm"}));
    }

    void uneCollectionVideMeneAuPremierAlbum()
    {
        Seance s;
        for (const QString &table : Schema::Tables())
            Bac::agir(QStringLiteral("DELETE FROM ") + table);
        s.bureau = std::make_unique<Bureau>(Options());
        s.bureau->demarrer();
        QTRY_VERIFY(trouver<QWidget>("Commencer(0)") && trouver<QWidget>("Commencer(0)")->isVisible());
        cliquer("Commencer(0)");
        QTRY_VERIFY(fenetre("Manuelle") && fenetre("Manuelle")->isVisible());
        ecrire("Titre", "Le tout premier", "Manuelle");
        cliquer("BtnCreer", "Manuelle");
        QTRY_COMPARE(texteDe("TAlbum"), "Le tout premier");
    }

public Q_SLOTS:
    void noter(const QUrl &url) { m_urls << url; }

private:
    QList<QUrl> m_urls;
};

JOUER(tst_lanceur)
#include "tst_lanceur.moc"
