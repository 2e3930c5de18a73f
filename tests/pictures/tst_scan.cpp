#include "core/Error.h"
#include "core/Images.h"
#include "pictures/Acquereur.h"
#include "pictures/Scan.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QDataStream>
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

/// The colour that a point of the result comes from, by distance and angle; white from outside.
QRgb attendue(const QImage &source, const QSize &destination, double angle, int xd, int yd)
{
    const int u = xd - destination.width() / 2;
    const int v = yd - destination.height() / 2;
    const double r = std::nearbyint(std::sqrt(double(u) * u + double(v) * v));
    const double a = std::atan2(v, u) + angle;
    const int xs = source.width() / 2 + static_cast<int>(std::nearbyint(r * std::cos(a)));
    const int ys = source.height() / 2 + static_cast<int>(std::nearbyint(r * std::sin(a)));
    return source.rect().contains(xs, ys) ? source.pixel(xs, ys) : qRgb(255, 255, 255);
}

/// A metafile of one rectangle, twice as wide as high, with the header that says its size.
QByteArray metafichier()
{
    QByteArray octets;
    QDataStream flux(&octets, QIODevice::WriteOnly);
    flux.setByteOrder(QDataStream::LittleEndian);
    flux << quint32(0x9AC6CDD7) << quint16(0) << qint16(0) << qint16(0) << qint16(3000) << qint16(1500)
         << quint16(1440) << quint32(0);
    quint16 somme = 0;
    for (int i = 0; i < octets.size(); i += 2)
        somme ^= static_cast<quint16>(quint8(octets[i]) | quint8(octets[i + 1]) << 8);
    flux << somme << quint16(1) << quint16(9) << quint16(0x300) << quint32(9 + 5 + 5 + 7 + 3) << quint16(0)
         << quint32(7) << quint16(0);
    flux << quint32(5) << quint16(0x020B) << qint16(0) << qint16(0); // origin
    flux << quint32(5) << quint16(0x020C) << qint16(1500) << qint16(3000); // extent
    flux << quint32(7) << quint16(0x041B) << qint16(1400) << qint16(2900) << qint16(100) << qint16(100);
    flux << quint32(3) << quint16(0);
    return octets;
}

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
    void unTourSuitSaFormule()
    {
        for (const QSize taille : {QSize(1, 1), QSize(2, 2), QSize(7, 7), QSize(40, 30), QSize(41, 30),
                 QSize(40, 31), QSize(31, 77), QSize(200, 9)}) {
            const QImage source = repere(taille);
            QCOMPARE(Scan::Tourner(source, 0), source);
            for (const double angle : {Scan::QuartDeTour, -Scan::QuartDeTour}) {
                int pauses = 0;
                const QImage tournee = Scan::Tourner(source, angle, [&] { ++pauses; });
                QCOMPARE(tournee.size(), taille.transposed());
                QVERIFY(pauses > 0);
                int fautes = 0;
                for (int y = 0; y < tournee.height(); ++y) {
                    for (int x = 0; x < tournee.width(); ++x)
                        fautes += tournee.pixel(x, y) != attendue(source, tournee.size(), angle, x, y);
                }
                QCOMPARE(fautes, 0);
            }
        }
        // To the left: what was at the right is on top.
        QVERIFY(qRed(Scan::Tourner(repere({40, 30}), Scan::QuartDeTour).pixel(15, 2)) > 20);
    }

    void unMiroirEchangeLesBords()
    {
        const QImage source = repere({6, 5});
        const QImage h = Scan::Miroir(source, Qt::Horizontal);
        const QImage v = Scan::Miroir(source, Qt::Vertical);
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 6; ++x) {
                QCOMPARE(h.pixel(x, y), source.pixel(5 - x, y));
                QCOMPARE(v.pixel(x, y), source.pixel(x, 4 - y));
            }
        }
    }

    void uneImageSAjusteASonCadre()
    {
        QCOMPARE(Scan::Ajuster({100, 50}, {40, 40}), QRect(0, 10, 40, 20));
        QCOMPARE(Scan::Ajuster({10, 40}, {80, 80}), QRect(30, 0, 20, 80));
    }

    void uneMauvaiseImageNEstPasUneImage()
    {
        const Bac bac;
        const QString chemin = bac.chemin("essai.bmp");
        QVERIFY(Scan::Ouvrir(bac.chemin("images")).isNull());
        QVERIFY(Scan::Ouvrir(bac.chemin("absente.bmp")).isNull());
        Scan::Enregistrer(repere({20, 10}), chemin);
        QCOMPARE(Scan::Ouvrir(chemin), repere({20, 10}));
        Bac::ecrire(chemin, "pas une image");
        QVERIFY(Scan::Ouvrir(chemin).isNull());
    }

    void unMetafichierSeDessine()
    {
        const Bac bac;
        const QString chemin = bac.chemin("dessin.wmf");
        const QByteArray wmf = metafichier();
        Bac::ecrire(chemin, wmf);
        const QImage image = Images::Decoder(chemin, {400, 400});
        QVERIFY(!image.isNull());
        QVERIFY(std::abs(double(image.width()) / image.height() - 2.0) < 0.1);
        for (const int longueur : {4, 22, 30, 44}) {
            Bac::ecrire(chemin, wmf.left(longueur) + QByteArray(200, '\xff'));
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
        QCOMPARE(Scan::NomPropose("/x/a.png"), "/x/a.png");
        QCOMPARE(Scan::ParLeBrouillon(repere({5, 4})), repere({5, 4}));
        QVERIFY(QFile::exists(bac.chemin("temp.bmp")));
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
