#include "acts/Saisie.h"
#include "core/Error.h"
#include "db/Base.h"
#include "db/Module2.h"
#include "db/files/FichierNeuf.h"
#include "entry/Catalogue.h"
#include "support/Bac.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>

namespace {

Album saisie(
    const QString &titre, const QString &tome = {}, const QString &prix = {}, const QString &photo = {})
{
    return {
        {Rubrique::Titre, titre}, {Rubrique::Tome, tome}, {Rubrique::Prix, prix}, {Rubrique::Photo1, photo}};
}

QString catalogue(const Bac &bac)
{
    return bac.chemin("BDbase.bd");
}

QString outil()
{
    return QCoreApplication::applicationDirPath() + "/bulleo-catalogue";
}

}

class tst_saisie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laSaisieDitCeQuElleRefuse()
    {
        const Bac bac;
        const QString titre = QString(300, u'é') + "😀";
        const auto refusee = [&](const Album &album, Rubrique rubrique) {
            const auto refus = Saisie::Verifier(album);
            return refus && refus->rubrique == rubrique;
        };
        for (const char *tome : {"abc", "-1", "1234"})
            QVERIFY2(refusee(saisie(titre, tome), Rubrique::Tome), tome);
        QVERIFY(refusee(saisie(titre, "", "douze"), Rubrique::Prix));
        QVERIFY(refusee(saisie(titre, "", "", QCoreApplication::applicationFilePath()), Rubrique::Photo1));
        QVERIFY(refusee(saisie(" "), Rubrique::Titre));
        for (const char *prix : {"12,50", "12.50", ""}) {
            QVERIFY2(!Saisie::Verifier(saisie(titre, "", prix)), prix);
            const int num = Saisie::CreerAlbum(saisie(titre, "", prix));
            QCOMPARE(Bac::valeur("SELECT TAlbum FROM LAlbums WHERE NAlbum = ?", {num}), QString(50, u'é'));
            QCOMPARE(
                Bac::valeur("SELECT PrixA FROM Album WHERE Num = ?", {num}).toDouble(), *prix ? 12.5 : 0.0);
        }
    }

    void lesImagesEntrentDansLaCollection()
    {
        const Bac bac;
        const QTemporaryDir ailleurs;
        QImage image(8, 8, QImage::Format_RGB32);
        for (const int teinte : {1, 2}) {
            image.fill(QColor(teinte * 90, 0, 0));
            QVERIFY(image.save(ailleurs.filePath("recto.png")));
            Saisie::CreerAlbum(saisie("a", "1", "", ailleurs.filePath("recto.png")));
        }
        QCOMPARE(Bac::valeur("SELECT Photo1 FROM LAlbums WHERE NAlbum = 1").toString(), "recto.png");
        QCOMPARE(Bac::valeur("SELECT Photo1 FROM LAlbums WHERE NAlbum = 2").toString(), "recto (2).png");
        QVERIFY(QFile::exists(bac.chemin("images/recto (2).png")));
    }

    void leProchainTomeSuitLePlusHaut()
    {
        const Bac bac;
        Album textes = saisie("a", "7");
        textes[Rubrique::Serie] = "Zig";
        Saisie::CreerAlbum(textes);
        QCOMPARE(Saisie::ProchainTome(" zig "), 8);
        QVERIFY(!Saisie::ProchainTome("Zag"));
        Bac::executer(
            "INSERT INTO Auteurs(NAuteur, Nom, Prenom) VALUES (9, 'Töpffer', 'Rodolphe'), (8, 'Cham', ' ')");
        QCOMPARE(Saisie::LireChoix()[Rubrique::Color], QStringList({"Cham", "Töpffer, Rodolphe"}));
        QCOMPARE(Saisie::LireChoix()[Rubrique::Serie], QStringList("Zig"));
    }

    void laDateSeComposeDesPartiesDonnees()
    {
        const Bac bac;
        QCOMPARE(Saisie::ComposerDate(1, 11, 1931), "01 novembre 1931");
        QCOMPARE(Saisie::ComposerDate(0, 5, 1931), "mai 1931");
        QCOMPARE(Saisie::ComposerDate(4, 0, 1931), "1931");
        QCOMPARE(Saisie::ComposerDate(0, 0, 0), "");
    }

    void leCodageRendLeTexteEtSonOrdre()
    {
        for (const QString texte : {"", "L'Œuvre d'été à Saint-Étienne", "Bulle 😀 中"}) {
            const auto code = Module2::Coder(texte);
            QVERIFY(code && (texte.isEmpty() || *code != texte));
            QCOMPARE(*Module2::Decoder(*code), texte);
        }
        QVERIFY(*Module2::Coder("Abc") < *Module2::Coder("Abd"));
        QVERIFY(!Module2::Coder("deux\nlignes"));
        QVERIFY(!Module2::Decoder("jamais codé"));
    }

    void leCatalogueSeLit()
    {
        const Bac bac;
        QFile::remove(catalogue(bac));
        FichierNeuf::CreerCatalogue(catalogue(bac));
        {
            Base base(catalogue(bac), Entete::Nature::Catalogue);
            const auto ajouter = [&](int numero, const QString &titre, int tome, const QString &serie,
                                     const QString &carton) {
                base.Execute(
                    "INSERT INTO BD(Numero, Titre, Tome, Serie, Couleur, Carton) VALUES (?, ?, ?, ?, ?, ?)",
                    {numero, *Module2::Coder(titre), tome, *Module2::Coder(serie), true,
                        *Module2::Coder(carton)});
            };
            ajouter(5, " L'Été ", 7, "Zig", "cartonné");
            ajouter(6, "Avant", 0, "Abc", "broché");
            base.Execute("INSERT INTO BD(Numero, Titre, Serie) VALUES (7, 'en clair', 'x')");
        }
        const Catalogue::Liste liste = Catalogue::LireAlbums();
        QCOMPARE(liste.illisibles, 1);
        QCOMPARE(Catalogue::Libelle(liste.albums.texte(0)), "L'Été  (N° 7)");
        QCOMPARE(Catalogue::PartieDe(liste.albums.texte(0), Catalogue::Partie::Serie), "Zig");
        QCOMPARE(liste.albums.id(1), 6);
        const auto reference = Catalogue::LireReference(5);
        QCOMPARE(reference->carton, "cartonné");
        QVERIFY(reference->album[Rubrique::Couleur] == "1" && reference->album[Rubrique::Integrale] == "0"
            && !reference->album.a(Rubrique::Genre));
        QVERIFY(!Catalogue::LireReference(7) && !Catalogue::LireReference(99));
    }

    void unCatalogueFautifEstDit()
    {
        const Bac bac;
        QVERIFY(QFile::remove(catalogue(bac)));
        QVERIFY_EXCEPTION_THROWN(Catalogue::LireAlbums(), Error);
        for (const QByteArray &octets : {QByteArray(), QByteArray("texte"), Bac::lire(bac.collection())}) {
            Bac::ecrire(catalogue(bac), octets);
            QVERIFY_EXCEPTION_THROWN(Catalogue::LireAlbums(), Error);
            QCOMPARE(Bac::lire(catalogue(bac)), octets);
        }
        QFile::remove(catalogue(bac));
        FichierNeuf::CreerCatalogue(catalogue(bac));
        Base(catalogue(bac), Entete::Nature::Catalogue)
            .Execute("INSERT INTO BD(Numero, Titre) VALUES (1, 'en clair')");
        QVERIFY_EXCEPTION_THROWN(Catalogue::LireAlbums(), Error);
    }

    void lOutilFaitLeCatalogue()
    {
        const Bac bac;
        const QString source = bac.chemin("source.csv");
        Bac::ecrire(source,
            "Numero,Titre,Tome,Serie,Dateparu,Genre,Dessin,Scena,Editeur,Couleur,Integrale,Carton\n"
            "1,\"L'un, \"\"vrai\"\"\",2,Zig,1931,,,,,1,0,\"cartonné\"\n"
            "1,Double,2,Zig,,,,,,1,0,\n"
            "3,Sans tome,,Zig,,,,,,0,1,\n"
            "x,Faux,2,Zig,,,,,,1,0,\n"
            "4,Faux,2,Zig,,,,,,oui,0,\n"
            "5,Court\n");
        const QByteArray avant = Bac::lire(catalogue(bac));
        QProcess faire;
        faire.start(outil(), {"--strict", source, catalogue(bac)});
        QVERIFY(faire.waitForFinished());
        QVERIFY(faire.exitCode() != 0);
        QVERIFY(faire.readAllStandardError().contains("ligne 3"));
        QCOMPARE(Bac::lire(catalogue(bac)), avant);

        faire.start(outil(), {source, catalogue(bac)});
        QVERIFY(faire.waitForFinished());
        QCOMPARE(faire.exitCode(), 0);
        const QByteArray dit = faire.readAllStandardError();
        for (const char *ligne : {"ligne 3", "ligne 5", "ligne 6", "ligne 7"})
            QVERIFY2(dit.contains(ligne), dit.constData());
        QCOMPARE(Catalogue::LireAlbums().albums.size(), 2);
        QCOMPARE(Catalogue::LireReference(1)->album[Rubrique::Titre], "L'un, \"vrai\"");
        QVERIFY(!QFile::exists(catalogue(bac) + ".neuf"));
    }
};

QTEST_GUILESS_MAIN(tst_saisie)
#include "tst_saisie.moc"
