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

class tst_saisie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laSaisieDitCeQuElleRefuse_data();
    void laSaisieDitCeQuElleRefuse();
    void lesImagesEntrentDansLaCollection();
    void leProchainTomeSuitLePlusHaut();
    void laDateSeComposeDesPartiesDonnees();
    void leCodageRendLeTexteEtSonOrdre_data();
    void leCodageRendLeTexteEtSonOrdre();
    void leCatalogueSeLit();
    void unCatalogueFautifEstDit();
    void lOutilFaitLeCatalogue();
};

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

void tst_saisie::laSaisieDitCeQuElleRefuse_data()
{
    QTest::addColumn<QString>("tome");
    QTest::addColumn<QString>("prix");
    QTest::addColumn<QString>("photo");
    QTest::addColumn<int>("rubrique"); // -1 when all is well
    const auto cas = [](const char *tome, const char *prix, const char *photo, int rubrique) {
        QTest::addRow("« %s » « %s » « %s »", tome, prix, photo)
            << QString(tome) << QString(prix) << QString(photo) << rubrique;
    };
    cas("", "", "", -1);
    cas("abc", "", "", int(Rubrique::Tome));
    cas("-1", "", "", int(Rubrique::Tome));
    cas("1234", "", "", int(Rubrique::Tome));
    cas("", "12,50", "", -1);
    cas("", "12.50", "", -1);
    cas("", "douze", "", int(Rubrique::Prix));
    cas("", "", qPrintable(QCoreApplication::applicationFilePath()), int(Rubrique::Photo1));
}

void tst_saisie::laSaisieDitCeQuElleRefuse()
{
    QFETCH(QString, tome);
    QFETCH(QString, prix);
    QFETCH(QString, photo);
    QFETCH(int, rubrique);
    const Bac bac;
    const Album textes = saisie(QString(300, u'é') + "😀", tome, prix, photo);
    const auto refus = Saisie::Verifier(textes);
    QCOMPARE(refus ? int(refus->rubrique) : -1, rubrique);
    if (refus)
        return;
    const int num = Saisie::CreerAlbum(textes);
    QCOMPARE(Bac::valeur("SELECT TAlbum FROM LAlbums WHERE NAlbum = ?", {num}).toString(), QString(50, u'é'));
    QCOMPARE(Bac::valeur("SELECT PrixA FROM Album").toDouble(), prix.isEmpty() ? 0.0 : 12.5);
    QVERIFY(Saisie::Verifier(saisie(" "))->rubrique == Rubrique::Titre);
}

void tst_saisie::lesImagesEntrentDansLaCollection()
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

void tst_saisie::leProchainTomeSuitLePlusHaut()
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

void tst_saisie::laDateSeComposeDesPartiesDonnees()
{
    const Bac bac;
    QCOMPARE(Saisie::ComposerDate(1, 11, 1931), "01 novembre 1931");
    QCOMPARE(Saisie::ComposerDate(0, 5, 1931), "mai 1931");
    QCOMPARE(Saisie::ComposerDate(4, 0, 1931), "1931");
    QCOMPARE(Saisie::ComposerDate(0, 0, 0), "");
}

void tst_saisie::leCodageRendLeTexteEtSonOrdre_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("vide") << "";
    QTest::newRow("accents") << "L'Œuvre d'été à Saint-Étienne";
    QTest::newRow("hors du plan") << "Bulle 😀 中";
}

void tst_saisie::leCodageRendLeTexteEtSonOrdre()
{
    QFETCH(QString, texte);
    const auto code = Module2::Coder(texte);
    QVERIFY(code && (texte.isEmpty() || *code != texte));
    QCOMPARE(*Module2::Decoder(*code), texte);
    QVERIFY(*Module2::Coder("Abc") < *Module2::Coder("Abd"));
    QVERIFY(!Module2::Coder("deux\nlignes"));
    QVERIFY(!Module2::Decoder("jamais codé"));
}

void tst_saisie::leCatalogueSeLit()
{
    const Bac bac;
    QFile::remove(catalogue(bac));
    FichierNeuf::CreerCatalogue(catalogue(bac));
    {
        Base base(catalogue(bac), Entete::Nature::Catalogue);
        const auto ajouter
            = [&](int numero, const QString &titre, int tome, const QString &serie, const QString &carton) {
                  base.Execute(
                      "INSERT INTO BD(Numero, Titre, Tome, Serie, Couleur, Carton) VALUES (?, ?, ?, ?, ?, ?)",
                      {numero, *Module2::Coder(titre), tome, *Module2::Coder(serie), true,
                          *Module2::Coder(carton)});
              };
        ajouter(5, " L'Été ", 7, "Zig", QStringLiteral("cartonné"));
        ajouter(6, "Avant", 0, "Abc", QStringLiteral("broché"));
        base.Execute("INSERT INTO BD(Numero, Titre, Serie) VALUES (7, 'en clair', 'x')");
    }
    const Catalogue::Liste liste = Catalogue::LireAlbums();
    QCOMPARE(liste.illisibles, 1);
    QCOMPARE(liste.albums.texte(0), "L'Été  (N° 7)");
    QCOMPARE(liste.albums.id(1), 6);
    const auto reference = Catalogue::LireReference(5);
    QCOMPARE(reference->carton, QStringLiteral("cartonné"));
    QVERIFY(reference->album[Rubrique::Couleur] == "1" && reference->album[Rubrique::Integrale] == "0"
        && !reference->album.a(Rubrique::Genre));
    QVERIFY(!Catalogue::LireReference(7) && !Catalogue::LireReference(99));
}

void tst_saisie::unCatalogueFautifEstDit()
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

void tst_saisie::lOutilFaitLeCatalogue()
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

QTEST_GUILESS_MAIN(tst_saisie)
#include "tst_saisie.moc"
