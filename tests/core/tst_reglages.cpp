#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QTest>

namespace {

/// A store in which somebody else wrote one value.
struct Magasin
{
    Magasin(const QString &cle, const QVariant &valeur)
    {
        QSettings(fichier, QSettings::IniFormat).setValue(cle, valeur);
    }

    QTemporaryDir dossier;
    QString fichier = dossier.filePath("reglages.ini");
};

}

class tst_reglages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unBooleenSeLitEnPlusieursMots_data()
    {
        colonnes<bool, bool>();
        QTest::newRow("Vrai") << true << true;
        QTest::newRow("True") << true << false;
        QTest::newRow("-1") << true << false;
        QTest::newRow("1") << true << false;
        QTest::newRow("Faux") << false << false;
        QTest::newRow("False") << false << false;
        QTest::newRow("0") << false << false;
    }

    void unBooleenSeLitEnPlusieursMots()
    {
        const auto [ordinaire, gras] = essai<bool, bool>();
        const Magasin magasin("Settings/SplashAuto", QTest::currentDataTag());
        QSettings(magasin.fichier, QSettings::IniFormat).setValue("Color/FontBold", QTest::currentDataTag());
        Reglages r(magasin.fichier);
        r.avertir = [](const QString &mots) { QFAIL(qPrintable(mots)); };
        QCOMPARE(r.booleen(Cle::SplashAuto), ordinaire);
        QCOMPARE(r.booleen(Cle::FontBold), gras);
    }

    void uneValeurIllisibleDonneLeDefautEtUnAvis_data()
    {
        colonnes<Cle, QString>();
        QTest::newRow("Settings/Tris") << Cle::Tris << "beaucoup";
        QTest::newRow("Settings/Loop") << Cle::Loop << "peut-être";
        QTest::newRow("Color/Forecolor") << Cle::Forecolor << "99999999999";
        QTest::newRow("Color/FontSize") << Cle::FontSize << "10 points";
        QTest::newRow("Redimension/Width") << Cle::Width << "nan";
        QTest::newRow("Redimension/Height") << Cle::Height << "inf";
    }

    void uneValeurIllisibleDonneLeDefautEtUnAvis()
    {
        const auto [cle, valeur] = essai<Cle, QString>();
        const QString nom = QTest::currentDataTag();
        const Magasin magasin(nom, valeur);
        const Magasin vide("Autre/Cle", "");
        Reglages r(magasin.fichier);
        const Reglages defauts(vide.fichier);
        QStringList avis;
        r.avertir = [&](const QString &mots) { avis << mots; };
        const auto lire = [cle](const Reglages &source) {
            if (cle == Cle::Loop)
                return double(source.booleen(cle));
            return cle == Cle::Tris || cle == Cle::Apercu || cle == Cle::Forecolor ? source.entier(cle)
                                                                                   : source.nombre(cle);
        };
        for (int i = 0; i < 3; ++i)
            QCOMPARE(lire(r), lire(defauts));
        QCOMPARE(avis.size(), 1);
        QVERIFY2(avis[0].contains(nom) && avis[0].contains(valeur), qPrintable(avis[0]));
    }

    void unIniNApporteQueLesClesConnues()
    {
        Bac bac;
        bac.reglages.ecrire(Cle::Tris, 3);
        Bac::ecrire(bac.chemin("vieux.ini"),
            "; Tris=9\r\nTris=8\r\n[settings]\r\nFONDSCREEN = C:\\\xC9t\xE9\\\x9Cuvre.jpg "
            "\r\nInconnu=1\r\nsans "
            "egal\r\n"
            "[Color]\r\nFontBold=Vrai\r\nTris=7\r\n=rien\r\n[Inconnue]\r\nTris=6\r\n[Redimension]\r\nWidth="
            "800="
            "600\r\n");
        QCOMPARE(bac.reglages.importerIni(bac.chemin("vieux.ini")), 3);
        QCOMPARE(bac.reglages.texte(Cle::FondScreen), "C:\\Été\\œuvre.jpg");
        QVERIFY(bac.reglages.booleen(Cle::FontBold));
        QCOMPARE(bac.reglages.entier(Cle::Tris), 3);
        QCOMPARE(bac.reglages.nombre(Cle::Width), 0.0);
        QVERIFY(!QSettings(bac.chemin("../reglages.ini"), QSettings::IniFormat).contains("settings/Inconnu"));
    }

    void unIniNEstLuQuUneFoisParContenu()
    {
        Bac bac;
        const QString ini = bac.chemin("vieux.ini");
        Bac::ecrire(ini, "[Settings]\nTris=5\n");
        QCOMPARE(bac.reglages.importerIni(ini), 1);
        bac.reglages.ecrire(Cle::Tris, 2);
        QCOMPARE(bac.reglages.importerIni(ini), 0);
        QCOMPARE(bac.reglages.entier(Cle::Tris), 2);
        Bac::ecrire(ini, "[Settings]\nTris=6\n");
        QCOMPARE(bac.reglages.importerIni(ini), 1);
        QCOMPARE(bac.reglages.entier(Cle::Tris), 6);
        QVERIFY(QFile::remove(ini));
        QVERIFY(refus([&] { bac.reglages.importerIni(ini); }).has_value());
    }
};

QTEST_GUILESS_MAIN(tst_reglages)
#include "tst_reglages.moc"
