#include "catalogue/ServeurCatalogue.h"
#include "core/Error.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "webimport/Importation.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using Couvertures::Rang;

/// A visit to the catalogue on the loopback, with limits that a test can wait for.
struct Visite
{
    Visite() { bac.reglages.ecrire(Cle::HoteBDNet, serveur.adresse().mid(7)); }

    /// The result of a page's import; nothing when the page itself could not be had.
    std::optional<Importation::Resultat> importer(const QString &nom)
    {
        Importation importation({1500, 8 << 20, 5}, nullptr);
        std::optional<Importation::Resultat> resultat;
        QObject::connect(&importation, &Importation::finie, &importation,
            [&](const Importation::Resultat &r) { resultat = r; });
        QSignalSpy echecs(&importation, &Importation::echouee);
        importation.commencer(QUrl(serveur.adresse(QStringLiteral("/catalogue_detail_%1.html").arg(nom))));
        const bool venue = QTest::qWaitFor([&] { return resultat || !echecs.isEmpty(); }, 20'000);
        Q_ASSERT(venue);
        raison = echecs.isEmpty() ? QString() : echecs.first().first().toString();
        return resultat;
    }
    QStringList images() const { return QDir(bac.chemin("images")).entryList(QDir::Files); }

    Bac bac;
    ServeurCatalogue serveur;
    QString raison;
};

class tst_importation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unePageDonneChampsEtImages()
    {
        Visite v;
        for (const char *page : {"cosinus", "renvoi", "grosse"}) {
            const auto lue = v.importer(QLatin1String(page));
            QVERIFY2(lue, qPrintable(v.raison));
            QVERIFY(
                lue->complet && lue->album[Rubrique::Couleur] == "1" && lue->album[Rubrique::Broche] == "0");
            QCOMPARE(lue->page.titre, "l'idée fixe du savant cosinus");
            QCOMPARE(lue->album[Rubrique::Photo1], "l'idée fixe du savant cosinus_1.jpg");
            QCOMPARE(lue->album[Rubrique::Photo2], "l'idée fixe du savant cosinus_2.jpg");
        }
        QCOMPARE(QImage(v.bac.chemin("images/l'idée fixe du savant cosinus_1.jpg")).size(), QSize(300, 400));
        QCOMPARE(QImage(v.bac.chemin("temp2.jpg")).size(), QSize(150, 200));
        QVERIFY(QFile::exists(v.bac.chemin("temp.txt")));
        const auto broche = v.importer(QStringLiteral("fenouillard"));
        QVERIFY(broche && broche->album[Rubrique::Broche] == "1" && broche->album[Rubrique::Couleur] == "2");
    }

    void uneImageManquanteNEmpecheRien_data()
    {
        const Colonnes<bool, QStringList> cas;
        cas("sansimage", true, {});
        cas("fausseimage", true, {});
        cas("evasion", true, QStringList({"___.._evasion_1.jpg", "___.._evasion_2.jpg"}));
        cas("ouverte", false, {});
        cas("cher", false, {});
        cas("occidentale", true, QStringList({"été à orléans, œuvre_1.jpg", "été à orléans, œuvre_2.jpg"}));
    }

    void uneImageManquanteNEmpecheRien()
    {
        const auto [complet, images] = essai<bool, QStringList>();
        Visite v;
        const auto lue = v.importer(QLatin1String(QTest::currentDataTag()));
        QVERIFY(lue);
        QCOMPARE(lue->complet, complet);
        QCOMPARE(QStringList({lue->album[Rubrique::Photo1], lue->album[Rubrique::Photo2]})
                     .filter(QRegularExpression(".")),
            images);
        QCOMPARE(v.images(), images);
    }

    void unServeurHostileNObtientRien_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *page : {"boucle", "fichier", "sansfin", "enorme", "inconnue"})
            QTest::newRow(page) << QString::fromLatin1(page);
    }

    void unServeurHostileNObtientRien()
    {
        QFETCH(QString, page);
        Visite v;
        QVERIFY(!v.importer(page));
        QVERIFY(!v.raison.isEmpty());
        QVERIFY(!QFile::exists(v.bac.chemin("temp.txt")));
        Telechargement telechargement;
        QSignalSpy echec(&telechargement, &Telechargement::echoue);
        telechargement.commencer(QUrl(QStringLiteral("file:///etc/hostname")));
        QTRY_COMPARE(echec.size(), 1);
    }

    void uneImageUtiliseeNEstPasRemplacee()
    {
        const Bac bac;
        QImage noire(20, 30, QImage::Format_RGB32);
        noire.fill(Qt::black);
        QVERIFY(noire.save(bac.chemin("essai.jpg")));
        const QByteArray octets = Bac::lire(bac.chemin("essai.jpg"));
        const QString titre = QStringLiteral("a/b\\c:d*?");
        QCOMPARE(Couvertures::Garder(octets, titre, Rang::Premiere), "a_b_c_d___1.jpg");
        QCOMPARE(Couvertures::Garder(octets, titre, Rang::Premiere), "a_b_c_d___1.jpg");
        Bac::executer("INSERT INTO LAlbums(NAlbum, Photo1) VALUES (1, 'a_b_c_d___1.jpg')");
        QCOMPARE(Couvertures::Garder(octets, titre, Rang::Premiere), "a_b_c_d___1 (2).jpg");
        QVERIFY(Couvertures::Garder("<html>", titre, Rang::Seconde).isEmpty());
        QVERIFY(!QFile::exists(bac.chemin("images/a_b_c_d___2.jpg")));
        QCOMPARE(Couvertures::Adresse("hote.fr/", "/x_cg", Rang::Seconde),
            QUrl(QStringLiteral("http://hote.fr/img/couvpage/x_pg.jpg")));
    }

    void uneCouverturePerdueEstDite()
    {
        Visite v;
        // A title of a hundred and ten signs of three bytes each.
        QImage noire(20, 30, QImage::Format_RGB32);
        noire.fill(Qt::black);
        QVERIFY(noire.save(v.bac.chemin("essai.jpg")));
        const QString nom = Couvertures::Garder(
            Bac::lire(v.bac.chemin("essai.jpg")), QString(110, QChar(0x30C6)), Rang::Premiere);
        QVERIFY(nom.endsWith("_1.jpg") && v.images().contains(nom));
        // A file stands where the folder should.
        QVERIFY(QDir(v.bac.chemin("images")).removeRecursively());
        Bac::ecrire(v.bac.chemin("images"), "x");
        const auto lue = v.importer("cosinus");
        QVERIFY(lue && lue->complet && !lue->sansImage.isEmpty());
        QVERIFY(!lue->album.a(Rubrique::Photo1));
    }

    void uneImportationSArrete()
    {
        Visite v;
        Importation importation;
        QSignalSpy echecs(&importation, &Importation::echouee);
        QSignalSpy avance(&importation, &Importation::avance);
        importation.commencer(QUrl(v.serveur.adresse(QStringLiteral("/catalogue_detail_sansfin.html"))));
        QTRY_VERIFY(!avance.isEmpty());
        importation.annuler();
        QTRY_COMPARE(echecs.size(), 1);
        QVERIFY(echecs.first().first().toString().isEmpty() && !importation.enCours());
        QVERIFY(v.importer("cosinus"));
    }
};

QTEST_GUILESS_MAIN(tst_importation)
#include "tst_importation.moc"
