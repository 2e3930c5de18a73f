#include "catalogue/ServeurCatalogue.h"
#include "support/Seance.h"

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>

namespace {

struct Import : Seance
{
    explicit Import(bool navigateur = false)
    {
        qputenv("BULLEO_GREFFONS", navigateur ? GREFFONS : "/nulle/part");
        bac.reglages.ecrire(Cle::HoteBDNet, serveur.adresse());
        bac.reglages.ecrire(Cle::AccueilBDNet, serveur.adresse(QStringLiteral("/")));
        demarrer();
        ouvrir("Menu(0)", "Creation(2)", "BDNet");
    }
    static QString champ(const char *nom) { return trouver<QLineEdit>(nom, "BDNet")->text(); }
    static QString refus() { return trouver<QLabel>("Refus", "BDNet")->text(); }
    static bool visible(const char *nom) { return trouver<QWidget>(nom, "BDNet")->isVisible(); }
    void poserAdresse(const QString &page)
    {
        auto *adresse = trouver<QLineEdit>("Adresse", "BDNet");
        adresse->setText(serveur.adresse(page));
        QTest::keyClick(adresse, Qt::Key_Return);
    }

    ServeurCatalogue serveur;
};

/// From the home page to the album and its cover.
void parcourir(bool navigateur)
{
    Import s(navigateur);
    QTRY_COMPARE(Import::visible("Notice"), !navigateur);
    if (navigateur) {
        // The home page is there before one goes on from it.
        const auto titre
            = [] { return Seance::trouver<QWidget>("WebBrowser1", "BDNet")->property("title").toString(); };
        QTRY_COMPARE_WITH_TIMEOUT(titre(), "BDNet", 20'000);
        QCOMPARE(Import::champ("Adresse"), s.serveur.adresse(QStringLiteral("/")));
        for (const char *adresse :
            {"file:///etc/hostname", "javascript:document.title='x'", "chrome://version"}) {
            Seance::trouver<QLineEdit>("Adresse", "BDNet")->setText(adresse);
            QTest::keyClick(Seance::trouver<QLineEdit>("Adresse", "BDNet"), Qt::Key_Return);
            QVERIFY2(!Import::refus().isEmpty(), adresse);
        }
    }
    QVERIFY(!Import::visible("Analyse"));
    s.poserAdresse("/catalogue_detail_cosinus.html");
    if (navigateur) {
        QTRY_VERIFY(Import::visible("Analyse"));
        QTRY_VERIFY_WITH_TIMEOUT(Seance::trouver<QWidget>("Navigation(0)", "BDNet")->isEnabled(), 20'000);
        Seance::cliquer("Analyse", "BDNet");
    }
    QTRY_VERIFY_WITH_TIMEOUT(Import::visible("BtnCreer"), 20'000);
    QCOMPARE(Seance::fenetre("BDNet")->windowTitle(), "terminé ...");
    QCOMPARE(Import::champ("Dataa(3)").trimmed(), "le savant cosinus");
    QVERIFY(Seance::trouver<QCheckBox>("InfoSupp(1)", "BDNet")->isChecked());
    // What the user corrects is what is created.
    Seance::trouver<QLineEdit>("Dataa(0)", "BDNet")->setText("L'Idée fixe");
    Seance::trouver<QLineEdit>("Dataa(1)", "BDNet")->setText("premier");
    Seance::cliquer("BtnCreer", "BDNet");
    QVERIFY(!Import::refus().isEmpty() && s.boites.textes.isEmpty());
    Seance::trouver<QLineEdit>("Dataa(1)", "BDNet")->setText("9");
    Seance::cliquer("BtnCreer", "BDNet");
    QCOMPARE(s.boites.textes, QStringList(texte(Txt::CreationEffectuee)));
    QVERIFY(!Import::visible("BtnCreer"));
    QTRY_COMPARE(Seance::texteDe("TAlbum"), "L'Idée fixe");
    QTRY_COMPARE(Seance::trouver<QWidget>("Photo1")->toolTip(), "l'idée fixe du savant cosinus_1.jpg");
}

}

/// The import by its form: with the browser where its plug-in was built, by the address alone where not.
class tst_bdnet : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void uneFicheDevientUnAlbumParSonAdresse() { parcourir(false); }

    void ceQuiNEstPasUneFicheNeSAnalysePas()
    {
        Import s;
        for (const char *adresse : {"/", "/catalogue_serie.html"}) {
            s.poserAdresse(QString::fromLatin1(adresse));
            QVERIFY(!Import::visible("Analyse"));
        }
        s.poserAdresse("/catalogue_detail_ouverte.html");
        QTRY_VERIFY_WITH_TIMEOUT(Import::visible("BtnCreer"), 20'000);
        QVERIFY(fenetre("BDNet")->windowTitle().endsWith("erreur ..."));
        QVERIFY(!fenetre("BDNet")->windowTitle().contains("terminé"));
        QCOMPARE(Import::champ("Dataa(3)"), "essais ");
        cliquer("REvenir", "BDNet");
        QVERIFY(!Import::visible("BtnCreer") && Import::visible("Analyse"));
    }

    void uneFicheCorrigeeNeSePerdPas()
    {
        Import s;
        const auto corriger = [&] {
            s.poserAdresse("/catalogue_detail_cosinus.html");
            QTRY_VERIFY_WITH_TIMEOUT(Import::visible("BtnCreer"), 20'000);
            QVERIFY(!trouver<QCheckBox>("InfoSupp(2)", "BDNet")->isChecked());
            trouver<QCheckBox>("InfoSupp(2)", "BDNet")->click();
            ecrire("Dataa(0)", "Corrigé", "BDNet");
        };
        corriger();
        cliquer("Quit", "BDNet");
        QVERIFY(Gestes::visible("BDNet") && s.boites.textes.size() == 1);
        s.boites.reponses << true;
        cliquer("Quit", "BDNet");
        QVERIFY(!Gestes::visible("BDNet"));
        ouvrir("Menu(0)", "Creation(2)", "BDNet");
        QVERIFY(Import::visible("BtnCreer"));
        QCOMPARE(Import::champ("Dataa(0)"), "Corrigé");
        cliquer("REvenir", "BDNet");
        QVERIFY(Import::visible("BtnCreer"));
        s.boites.reponses << true;
        cliquer("REvenir", "BDNet");
        QVERIFY(!Import::visible("BtnCreer"));
        corriger();
    }

    void sansAdresseOnLaDonneIci()
    {
        Import s;
        cliquer("Quit", "BDNet");
        s.bac.reglages.ecrire(Cle::HoteBDNet, QString());
        ouvrir("Menu(0)", "Creation(2)", "BDNet");
        QVERIFY(!trouver<QLabel>("Notice", "BDNet")->text().contains(s.bac.reglages.fichier()));
        auto *enregistrer = trouver<QWidget>("Enregistrer", "BDNet");
        QVERIFY(Import::visible("Hote") && !enregistrer->isEnabled());
        ecrire("Hote", "file:///etc", "BDNet");
        cliquer("Enregistrer", "BDNet");
        QVERIFY(!Import::refus().isEmpty() && s.bac.reglages.texte(Cle::HoteBDNet).isEmpty());
        trouver<QLineEdit>("Hote", "BDNet")->clear();
        ecrire("Hote", s.serveur.adresse().mid(7), "BDNet");
        QTest::keyClick(trouver<QLineEdit>("Hote", "BDNet"), Qt::Key_Return);
        QTRY_COMPARE(s.bac.reglages.texte(Cle::HoteBDNet), s.serveur.adresse().mid(7));
        QVERIFY(Import::refus().isEmpty() && !enregistrer->isEnabled());
        // At once: the cover comes from there.
        s.poserAdresse("/catalogue_detail_cosinus.html");
        QTRY_VERIFY_WITH_TIMEOUT(Import::visible("BtnCreer"), 20'000);
        QVERIFY(!trouver<QWidget>("Photo1", "BDNet")->toolTip().isEmpty());
    }

    void unServeurLentSeQuitte()
    {
        Import s;
        s.poserAdresse("/catalogue_detail_sansfin.html");
        QTRY_VERIFY(Import::visible("Annuler") && Import::visible("Progression"));
        QVERIFY(!trouver<QWidget>("Adresse", "BDNet")->isEnabled());
        cliquer("Annuler", "BDNet");
        QTRY_VERIFY(!Import::visible("Progression"));
        QVERIFY(trouver<QWidget>("Adresse", "BDNet")->isEnabled() && Import::refus().isEmpty());
        s.poserAdresse("/catalogue_detail_absente.html");
        QTRY_VERIFY(!Import::refus().isEmpty());
    }

    void uneFicheDevientUnAlbumParLeNavigateur()
    {
        if (!QFile::exists(QStringLiteral(GREFFONS "/bulleo_web.so")))
            QSKIP("the browser's plug-in was not built: its package is missing");
        parcourir(true);
    }
};

JOUER(tst_bdnet)
#include "tst_bdnet.moc"
