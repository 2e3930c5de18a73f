#include "support/Bac.h"

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
    void unBooleenSeLitEnPlusieursMots()
    {
        for (const QString mot : {"Vrai", "True", "-1", "1", "Faux", "False", "0"}) {
            const Magasin magasin("Settings/SplashAuto", mot);
            QSettings(magasin.fichier, QSettings::IniFormat).setValue("Color/FontBold", mot);
            Reglages r(magasin.fichier);
            r.avertir = [](const QString &mots) { QFAIL(qPrintable(mots)); };
            QCOMPARE(r.booleen(Cle::SplashAuto), !QStringList({"Faux", "False", "0"}).contains(mot));
            QCOMPARE(r.booleen(Cle::FontBold), mot == "Vrai");
        }
    }

    void uneValeurIllisibleDonneLeDefautEtUnAvis()
    {
        const Magasin vide("Autre/Cle", "");
        const Reglages defauts(vide.fichier);
        const auto essayer = [](const QString &nom, const QString &valeur, const auto &lire) {
            const Magasin magasin(nom, valeur);
            Reglages r(magasin.fichier);
            QStringList avis;
            r.avertir = [&](const QString &mots) { avis << mots; };
            for (int i = 0; i < 3; ++i)
                lire(r);
            QCOMPARE(avis.size(), 1);
            QVERIFY2(avis[0].contains(nom) && avis[0].contains(valeur), qPrintable(avis[0]));
        };
        essayer("Color/Forecolor", "99999999999",
            [&](auto &r) { QCOMPARE(r.entier(Cle::Forecolor), defauts.entier(Cle::Forecolor)); });
        for (const char *valeur : {"10 points", "nan"})
            essayer("Color/FontSize", valeur,
                [&](auto &r) { QCOMPARE(r.nombre(Cle::FontSize), defauts.nombre(Cle::FontSize)); });
        essayer("Settings/Loop", "peut-être",
            [&](auto &r) { QCOMPARE(r.booleen(Cle::Loop), defauts.booleen(Cle::Loop)); });
    }

    /// A comma that stands in the file as somebody wrote it there.
    void uneVirguleEcriteALaMainEstUneDecimale()
    {
        const QTemporaryDir dossier;
        const QString fichier = dossier.filePath("reglages.ini");
        Bac::ecrire(fichier, "[Color]\nFontSize=10,5\n");
        QCOMPARE(Reglages(fichier).nombre(Cle::FontSize), 10.5);
    }

    void unIniNApporteQueLesClesConnues()
    {
        Bac bac;
        bac.reglages.ecrire(Cle::Tris, 3);
        Bac::ecrire(bac.chemin("vieux.ini"),
            "; Tris=9\r\nTris=8\r\n[settings]\r\nFONDSCREEN = C:\\\xC9t\xE9\\\x9Cuvre.jpg \r\nInconnu=1\r\n"
            "[Color]\r\nFontBold=Vrai\r\nTris=7\r\n=rien\r\nsans egal\r\n[Redimension]\r\nWidth=800=600\r\n");
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
        Bac::ecrire(bac.chemin("autre.ini"), "[Settings]\nTris=6\n");
        QCOMPARE(bac.reglages.importerIni(bac.chemin("autre.ini")), 1);
        // Of several files each is seen once, whatever came between.
        QCOMPARE(bac.reglages.importerIni(ini), 0);
        QCOMPARE(bac.reglages.entier(Cle::Tris), 6);
    }
};

QTEST_GUILESS_MAIN(tst_reglages)
#include "tst_reglages.moc"
