#include "core/Error.h"
#include "core/Images.h"
#include "pictures/Acquereur.h"
#include "pictures/Scan.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QSignalSpy>
#include <QTest>
#include <cmath>

namespace {

/// A picture whose every point says where it stands.
QImage repere(const QSize &taille)
{
    QImage image(taille, QImage::Format_RGB32);
    for (int y = 0; y < taille.height(); ++y) {
        for (int x = 0; x < taille.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x / 256) * 16 + y / 256));
    }
    return image;
}

/// A metafile of one rectangle of 2800 by 1300 on a page twice as wide as high, with the header that says its size.
const QByteArray Metafichier
    = QByteArray::fromHex("d7cdc69a000000000000b80bdc05a00500000000d55c0100090000031d000000"
                          "0000070000000000050000000b0200000000050000000c02dc05b80b0700"
                          "00001b047805540b64006400030000000000");

/// A scanner that does as it is told.
struct Factice : Numeriseur
{
    std::vector<Source> sources() override { return {{"f", "Factice"}}; }
    QImage acquerir(const QString &source, const Avance &avance) override
    {
        if (source == QLatin1String("casse"))
            throw Error("débranché", {});
        for (int i = 0; i < 10'000; ++i) {
            if (!avance(i / 100))
                return {};
            QThread::msleep(1);
        }
        return repere({3, 3});
    }
};

}

class tst_scan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Distances are rounded: a point may come from a neighbour of the one that a plain turn takes, at the edge from none.
    void unQuartDeTourCoucheLImage()
    {
        for (const QSize taille : {QSize(1, 1), QSize(40, 30), QSize(41, 31), QSize(200, 9)}) {
            const QImage source = repere(taille);
            QCOMPARE(Scan::Tourner(source, 0), source);
            for (const bool aGauche : {true, false}) {
                const QImage tournee
                    = Scan::Tourner(source, aGauche ? Scan::QuartDeTour : -Scan::QuartDeTour);
                QCOMPARE(tournee.size(), taille.transposed());
                int ecarts = 0;
                for (int y = 0; y < tournee.height(); ++y) {
                    for (int x = 0; x < tournee.width(); ++x) {
                        const QPoint d(
                            aGauche ? taille.width() - 1 - y : y, aGauche ? x : taille.height() - 1 - x);
                        const QPoint ecart
                            = QPoint(qRed(tournee.pixel(x, y)), qGreen(tournee.pixel(x, y))) - d;
                        ecarts += ecart.manhattanLength() > 2;
                    }
                }
                QVERIFY(ecarts <= taille.width() + taille.height() - 1);
            }
        }
    }

    void unMiroirEchangeLesBords()
    {
        const QImage source = repere({6, 5});
        QCOMPARE(Scan::Miroir(source, Qt::Horizontal).pixel(1, 2), source.pixel(4, 2));
        QCOMPARE(Scan::Miroir(source, Qt::Vertical).pixel(1, 1), source.pixel(1, 3));
    }

    void uneImageSAjusteASonCadre()
    {
        QCOMPARE(Scan::Ajuster({100, 50}, {40, 40}), QRect(0, 10, 40, 20));
        QCOMPARE(Scan::Ajuster({10, 40}, {80, 80}), QRect(30, 0, 20, 80));
    }

    void unMetafichierSeDessine()
    {
        const Bac bac;
        const QString chemin = bac.chemin("dessin.wmf");
        Bac::ecrire(chemin, Metafichier);
        const QImage image = Images::Decoder(chemin, {400, 400});
        QVERIFY(!image.isNull());
        QVERIFY(std::abs(double(image.width()) / image.height() - 2.0) < 0.1);
        for (const int longueur : {4, 22, 30, 44}) {
            Bac::ecrire(chemin, Metafichier.left(longueur) + QByteArray(200, '\xff'));
            Images::Decoder(chemin, {400, 400}); // ends, whatever comes of it
        }
    }

    void unEnregistrementManqueNEcraseRien()
    {
        const Bac bac;
        const QString chemin = bac.chemin("images/a.png");
        Bac::ecrire(chemin, "avant");
        QVERIFY(refus([&] { Scan::Enregistrer(QImage(), chemin); }));
        QCOMPARE(Bac::lire(chemin), QByteArray("avant"));
        QVERIFY(refus([&] { Scan::Enregistrer(repere({2, 2}), bac.chemin("nulle/part.png")); }));
        QVERIFY(refus([&] { Scan::Enregistrer(repere({2, 2}), bac.chemin("images/a.wmf")); }));
        QCOMPARE(Scan::NomPropose("/x/photo.JPG"), "/x/photo.bmp");
        QCOMPARE(Scan::NomPropose("/x/a.b.wmf"), "/x/a.b.bmp");
    }

    void unScannerQuiEchoueOuSArrete()
    {
        Acquereur acquereur(std::make_unique<Factice>());
        QSignalSpy acquises(&acquereur, &Acquereur::acquise);
        QSignalSpy echecs(&acquereur, &Acquereur::echouee);
        QSignalSpy avance(&acquereur, &Acquereur::avance);
        acquereur.acquerir("casse");
        QTRY_COMPARE(echecs.size(), 1);
        QVERIFY(!acquereur.occupe());
        acquereur.acquerir("f");
        QTRY_VERIFY(avance.size() > 5);
        acquereur.annuler();
        QTRY_COMPARE(acquises.size(), 1);
        QVERIFY(acquises.first().first().value<QImage>().isNull() && echecs.size() == 1);
        // One that is left in the middle ends with its form.
        acquereur.acquerir("f");
    }
};

QTEST_GUILESS_MAIN(tst_scan)
#include "tst_scan.moc"
