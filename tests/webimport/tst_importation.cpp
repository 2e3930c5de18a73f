#include "catalogue/ServeurCatalogue.h"
#include "core/Error.h"
#include "support/Bac.h"
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
    QStringList images() const { return QDir(bac.chemin(QStringLiteral("images"))).entryList(QDir::Files); }

    Bac bac;
    ServeurCatalogue serveur;
    QString raison;
};

class tst_importation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unePageDonneChampsEtImages();
    void uneImageManquanteNEmpecheRien_data();
    void uneImageManquanteNEmpecheRien();
    void unServeurHostileNObtientRien_data();
    void unServeurHostileNObtientRien();
    void uneImageUtiliseeNEstPasRemplacee();
    void uneImportationSArrete();
};

void tst_importation::unePageDonneChampsEtImages()
{
    Visite v;
    for (const char *page : {"cosinus", "renvoi", "grosse"}) {
        const auto lue = v.importer(QLatin1String(page));
        QVERIFY2(lue, qPrintable(v.raison));
        QVERIFY(lue->complet && lue->album[Rubrique::Couleur] == "1" && lue->album[Rubrique::Broche] == "0");
        QCOMPARE(lue->page.titre, QStringLiteral("l'idée fixe du savant cosinus"));
        QCOMPARE(lue->album[Rubrique::Photo1], QStringLiteral("l'idée fixe du savant cosinus_1.jpg"));
        QCOMPARE(lue->album[Rubrique::Photo2], QStringLiteral("l'idée fixe du savant cosinus_2.jpg"));
    }
    QCOMPARE(QImage(v.bac.chemin(QStringLiteral("images/l'idée fixe du savant cosinus_1.jpg"))).size(),
        QSize(300, 400));
    QCOMPARE(QImage(v.bac.chemin(QStringLiteral("temp2.jpg"))).size(), QSize(150, 200));
    QVERIFY(QFile::exists(v.bac.chemin(QStringLiteral("temp.txt"))));
    const auto broche = v.importer(QStringLiteral("fenouillard"));
    QVERIFY(broche && broche->album[Rubrique::Broche] == "1" && broche->album[Rubrique::Couleur] == "2");
}

void tst_importation::uneImageManquanteNEmpecheRien_data()
{
    QTest::addColumn<bool>("complet");
    QTest::addColumn<QStringList>("images");
    QTest::newRow("sansimage") << true << QStringList();
    QTest::newRow("fausseimage") << true << QStringList();
    QTest::newRow("evasion") << true << QStringList({"___.._evasion_1.jpg", "___.._evasion_2.jpg"});
    QTest::newRow("ouverte") << false << QStringList();
    QTest::newRow("cher") << false << QStringList();
    QTest::newRow("occidentale") << true
                                 << QStringList({QStringLiteral("été à orléans, œuvre_1.jpg"),
                                        QStringLiteral("été à orléans, œuvre_2.jpg")});
}

void tst_importation::uneImageManquanteNEmpecheRien()
{
    QFETCH(bool, complet);
    QFETCH(QStringList, images);
    Visite v;
    const auto lue = v.importer(QLatin1String(QTest::currentDataTag()));
    QVERIFY(lue);
    QCOMPARE(lue->complet, complet);
    QCOMPARE(QStringList({lue->album[Rubrique::Photo1], lue->album[Rubrique::Photo2]})
                 .filter(QRegularExpression(QStringLiteral("."))),
        images);
    QCOMPARE(v.images(), images);
}

void tst_importation::unServeurHostileNObtientRien_data()
{
    QTest::addColumn<QString>("page");
    for (const char *page : {"boucle", "fichier", "sansfin", "enorme", "inconnue"})
        QTest::newRow(page) << QString::fromLatin1(page);
}

void tst_importation::unServeurHostileNObtientRien()
{
    QFETCH(QString, page);
    Visite v;
    QVERIFY(!v.importer(page));
    QVERIFY(!v.raison.isEmpty());
    QVERIFY(!QFile::exists(v.bac.chemin(QStringLiteral("temp.txt"))));
    Telechargement telechargement;
    QSignalSpy echec(&telechargement, &Telechargement::echoue);
    telechargement.commencer(QUrl(QStringLiteral("file:///etc/hostname")));
    QTRY_COMPARE(echec.size(), 1);
}

void tst_importation::uneImageUtiliseeNEstPasRemplacee()
{
    const Bac bac;
    QImage noire(20, 30, QImage::Format_RGB32);
    noire.fill(Qt::black);
    QVERIFY(noire.save(bac.chemin(QStringLiteral("essai.jpg"))));
    const QByteArray octets = Bac::lire(bac.chemin(QStringLiteral("essai.jpg")));
    const QString titre = QStringLiteral("a/b\\c:d*?");
    QCOMPARE(Couvertures::Garder(octets, titre, Rang::Premiere), QStringLiteral("a_b_c_d___1.jpg"));
    QCOMPARE(Couvertures::Garder(octets, titre, Rang::Premiere), QStringLiteral("a_b_c_d___1.jpg"));
    Bac::executer(QStringLiteral("INSERT INTO LAlbums(NAlbum, Photo1) VALUES (1, 'a_b_c_d___1.jpg')"));
    QCOMPARE(Couvertures::Garder(octets, titre, Rang::Premiere), QStringLiteral("a_b_c_d___1 (2).jpg"));
    QVERIFY(Couvertures::Garder("<html>", titre, Rang::Seconde).isEmpty());
    QVERIFY(!QFile::exists(bac.chemin(QStringLiteral("images/a_b_c_d___2.jpg"))));
    QCOMPARE(Couvertures::Adresse(QStringLiteral("hote.fr/"), QStringLiteral("/x_cg"), Rang::Seconde),
        QUrl(QStringLiteral("http://hote.fr/img/couvpage/x_pg.jpg")));
}

void tst_importation::uneImportationSArrete()
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
    QVERIFY(v.importer(QStringLiteral("cosinus")));
}

QTEST_GUILESS_MAIN(tst_importation)
#include "tst_importation.moc"
