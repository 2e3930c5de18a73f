#include "browse/Frmmain.h"
#include "core/Fonds.h"
#include "core/ui/Habillage.h"
#include "core/ui/Theme.h"
#include "db/schema/Tables.h"
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

/// The launcher's buttons, the forms of appearance, the help, and how an empty collection begins.
class tst_lanceur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueBouton_data();
    void chaqueBouton();
    void lesCopiesEtLesListes();
    void laPoliceVautPourListesEtFiches();
    void uneTextureSeChoisitEtSAjoute();
    void f1OuvreLaPageDeLaForme();
    void uneCollectionVideMeneAuPremierAlbum();

public Q_SLOTS:
    void noter(const QUrl &url) { m_urls << url; }

private:
    QList<QUrl> m_urls;
};

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

void tst_lanceur::chaqueBouton_data()
{
    QTest::addColumn<QByteArray>("groupe");
    QTest::addColumn<QByteArray>("forme");
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

void tst_lanceur::chaqueBouton()
{
    QFETCH(QByteArray, groupe);
    QFETCH(QByteArray, forme);
    Seance s;
    s.demarrer();
    ouvrir(groupe, QTest::currentDataTag(), forme);
    // Escape closes it again, and nothing was said.
    QTest::keyClick(Seance::fenetre(forme), Qt::Key_Escape);
    QTRY_VERIFY(!Seance::fenetre(forme)->isVisible());
    QCOMPARE(s.boites.textes, QStringList());
}

void tst_lanceur::lesCopiesEtLesListes()
{
    Seance s;
    s.demarrer();
    Seance::cliquer("Menu(0)");
    const QString copie = s.bac.chemin(QStringLiteral("copie.mdb"));
    s.boites.fichiers.enqueue(copie);
    Seance::cliquer("Menu(3)", Lanceur);
    Seance::cliquer("Outils(4)", Lanceur);
    QCOMPARE(Bac::sansCompteurs(copie), Bac::sansCompteurs(s.bac.collection()));
    QCOMPARE(s.boites.textes.takeLast(), texte(Txt::SauvegardeEffectuee));
    for (int tri = 6; tri >= 0; --tri) {
        Seance::cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(tri)), Lanceur);
        QCOMPARE(s.bac.reglages.entier(Cle::Tris), tri);
        QCOMPARE(Seance::texteDe("TitreListe"), texte(General::GenreDe(General::TriDe(tri)).titre));
    }
    // The maker's site, once there is one: the group shows, and the button opens it.
    QVERIFY(!Seance::trouver<QWidget>("Menu(4)", Lanceur)->isVisible());
    s.bac.reglages.ecrire(Cle::Site, QStringLiteral("http://127.0.0.1/bulleo"));
    QEvent langue(QEvent::LanguageChange);
    QApplication::sendEvent(Seance::fenetre(Lanceur), &langue);
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "noter");
    Seance::cliquer("Menu(4)", Lanceur);
    Seance::cliquer("Liens", Lanceur);
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QCOMPARE(m_urls, QList<QUrl>{QUrl("http://127.0.0.1/bulleo")});
}

void tst_lanceur::laPoliceVautPourListesEtFiches()
{
    Seance s;
    s.bac.reglages.ecrire(Cle::FontBold, QStringLiteral("True"));
    s.bac.reglages.ecrire(Cle::FontSize, QStringLiteral("13"));
    s.demarrer();
    ouvrir("Menu(2)", "Interf(0)", "Polices");
    // Neither another program's word for bold, nor a size that the list does not have.
    QVERIFY(!Seance::trouver<QCheckBox>("Options(0)", "Polices")->isChecked());
    auto *tailles = Seance::trouver<QTreeWidget>("Taille", "Polices");
    for (int i = 0; i < tailles->topLevelItemCount(); ++i)
        QVERIFY(!tailles->topLevelItem(i)->font(0).bold());
    QCOMPARE(Seance::trouver<QLabel>("TExemple", "Polices")->font().pointSizeF(), 13.0);

    tailles->setCurrentItem(ligneDe("Taille", QStringLiteral("16"), "Polices"));
    Seance::trouver<QCheckBox>("Options(1)", "Polices")->click();
    QTimer::singleShot(0, this, [] {
        auto *dialogue = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        dialogue->setCurrentColor(QColor(10, 20, 200));
        dialogue->accept();
    });
    Seance::cliquer("Couleur", "Polices");
    const QFont exemple = Seance::trouver<QLabel>("TExemple", "Polices")->font();
    QVERIFY(exemple.italic() && exemple.pointSizeF() == 16);
    QVERIFY(!Seance::trouver<QWidget>("Liste")->font().italic());
    Seance::cliquer("Valider", "Polices");
    QCOMPARE(s.bac.reglages.nombre(Cle::FontSize), 16.0);
    QVERIFY(s.bac.reglages.booleen(Cle::FontItalic));
    QCOMPARE(s.bac.reglages.entier(Cle::Forecolor), 10 | 20 << 8 | 200 << 16);
    for (const char *nom : {"Liste", "Scena"}) {
        QVERIFY2(Seance::trouver<QWidget>(nom)->font().italic(), nom);
        QCOMPARE(Seance::trouver<QWidget>(nom)->palette().color(QPalette::Text), QColor(10, 20, 200));
    }
    // Dark windows at once, and the theme's own colour again.
    Seance::trouver<QComboBox>("Theme", "Polices")->setCurrentIndex(2);
    Seance::cliquer("SansCouleur", "Polices");
    Seance::cliquer("Valider", "Polices");
    QVERIFY(Theme::EstSombre(QApplication::palette()));
    QCOMPARE(s.bac.reglages.entier(Cle::Forecolor), 0);
    // With no colour of its own, the list takes that of the windows.
    QVERIFY(!Seance::trouver<QWidget>("Liste")->testAttribute(Qt::WA_SetPalette));
    s.bac.reglages.ecrire(Cle::Theme, 1);
    Habillage::Relire();
    QVERIFY(!Theme::EstSombre(QApplication::palette()));
}

void tst_lanceur::uneTextureSeChoisitEtSAjoute()
{
    Seance s;
    s.demarrer();
    const QString fond = s.bac.chemin(QStringLiteral("Fond Ecran/"));
    QVERIFY(Fonds::Textures().size() >= 6);
    ouvrir("Menu(2)", "Interf(1)", "Textures");
    auto *liste = Seance::trouver<QListWidget>("ListeFond", "Textures");
    QCOMPARE(liste->count(), Fonds::Textures().size() + 1);
    liste->setCurrentItem(liste->findItems(QStringLiteral("Lin"), Qt::MatchExactly).value(0));
    QVERIFY(liste->currentItem()->font().bold());
    QVERIFY(s.bac.reglages.texte(Cle::FondScreen).isEmpty());
    Seance::cliquer("Valider", "Textures");
    QCOMPARE(s.bac.reglages.texte(Cle::FondScreen), fond + QStringLiteral("Lin.jpg"));

    // One's own, with dots in its name and under one that exists; and a file that is no picture.
    QImage(20, 20, QImage::Format_RGB32).save(s.bac.chemin(QStringLiteral("ma.belle.jpg")));
    QImage(20, 20, QImage::Format_RGB32).save(s.bac.chemin(QStringLiteral("Lin.jpg")));
    Bac::ecrire(s.bac.chemin(QStringLiteral("faux.jpg")), "pas une image");
    const int avant = liste->count();
    for (const char *nom : {"ma.belle.jpg", "Lin.jpg", "faux.jpg"}) {
        s.boites.fichiers.enqueue(s.bac.chemin(QLatin1String(nom)));
        Seance::cliquer("TextureSuppl", "Textures");
    }
    QCOMPARE(liste->count(), avant + 2);
    QCOMPARE(liste->item(avant)->text(), QStringLiteral("MA"));
    QVERIFY(QFile::exists(fond + QStringLiteral("Lin (2).jpg")));
    QVERIFY(!Seance::trouver<QLabel>("Message", "Textures")->text().isEmpty());
    Seance::cliquer("Valider", "Textures");
    QCOMPARE(s.bac.reglages.texte(Cle::FondScreen), fond + QStringLiteral("Lin (2).jpg"));
    liste->setCurrentRow(0);
    Seance::cliquer("Valider", "Textures");
    QCOMPARE(Fonds::CheminChoisi(), QString());
}

void tst_lanceur::f1OuvreLaPageDeLaForme()
{
    Seance s;
    s.demarrer();
    m_urls.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "noter");
    QTest::keyClick(Seance::fenetre("Frmmain"), Qt::Key_F1);
    ouvrir("Menu(3)", "Outils(3)", "Pret");
    Seance::fenetre("Pret")->activateWindow();
    QTest::keyClick(Seance::fenetre("Pret"), Qt::Key_F1);
    s.bac.traduction.choisir(QStringLiteral("English.lng"));
    QTest::keyClick(Seance::fenetre("Pret"), Qt::Key_F1);
    Seance::cliquer("Menu(4)");
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QStringList pages;
    for (const QUrl &url : m_urls)
        pages << url.toLocalFile().section(QStringLiteral("/Help/"), 1);
    QCOMPARE(pages, QStringList({"fenetre.htm", "prets.htm", "en/prets.htm", "en/index.htm"}));
}

void tst_lanceur::uneCollectionVideMeneAuPremierAlbum()
{
    Seance s;
    for (const QString &table : Schema::Tables())
        Bac::agir(QStringLiteral("DELETE FROM ") + table);
    s.bureau = std::make_unique<Bureau>(Options());
    s.bureau->demarrer();
    QTRY_VERIFY(
        Seance::trouver<QWidget>("Commencer(0)") && Seance::trouver<QWidget>("Commencer(0)")->isVisible());
    Seance::cliquer("Commencer(0)");
    QTRY_VERIFY(Seance::fenetre("Manuelle") && Seance::fenetre("Manuelle")->isVisible());
    Seance::ecrire("Titre", QStringLiteral("Le tout premier"), "Manuelle");
    Seance::cliquer("BtnCreer", "Manuelle");
    QTRY_COMPARE(Seance::texteDe("TAlbum"), QStringLiteral("Le tout premier"));
}

int main(int argc, char *argv[])
{
    return jouer<tst_lanceur>(argc, argv);
}

#include "tst_lanceur.moc"
