#include "core/Images.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QBuffer>
#include <QDir>
#include <QTest>
#include <QtEndian>

namespace {

QByteArray image(const QSize &taille, const char *format)
{
    QImage dessin(taille, QImage::Format_RGB32);
    for (int y = 0; y < taille.height(); ++y)
        for (int x = 0; x < taille.width(); ++x)
            dessin.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x * y) % 256));
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    dessin.save(&tampon, format);
    return octets;
}

/// The same picture with a header that claims another size.
QByteArray pretendre(QByteArray octets, qint32 cote)
{
    if (octets.startsWith("BM")) {
        qToLittleEndian(cote, octets.data() + 18);
        qToLittleEndian(cote, octets.data() + 22);
    } else {
        qToBigEndian(cote, octets.data() + 16);
        qToBigEndian(cote, octets.data() + 20);
        // The header's checksum, so that the size is believed.
        quint32 crc = 0xFFFFFFFF;
        for (int i = 12; i < 29; ++i) {
            crc ^= quint8(octets[i]);
            for (int bit = 0; bit < 8; ++bit)
                crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320 : 0);
        }
        qToBigEndian(~crc, octets.data() + 29);
    }
    return octets;
}

}

class tst_images : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneImageEstTrouvee()
    {
        const Bac bac;
        QDir(bac.chemin()).mkdir("Scans");
        for (const char *fichier :
            {"images/a.jpg", "images/deux.jpg", "image/deux.jpg", "image/b.jpg", "Scans/c.jpg"})
            Bac::ecrire(bac.chemin(fichier), "x");
        for (const auto &[nom, trouve] : QList<std::pair<QString, QString>>{{"deux.jpg", "images/deux.jpg"},
                 {"b.jpg", "image/b.jpg"}, {" A.JPG ", "images/a.jpg"}, {"image\\deux.jpg", "image/deux.jpg"},
                 {"scans\\c.jpg", "Scans/c.jpg"}, {bac.chemin("Scans/c.jpg"), "Scans/c.jpg"},
                 {"/nulle/part/a.jpg", "images/a.jpg"}, {"C:\\BD\\images\\b.jpg", "image/b.jpg"},
                 {"\\\\serveur\\BD\\b.jpg", "image/b.jpg"}, {"z.jpg", ""}, {" ", ""},
                 {QString(855, u'.'), ""}})
            QCOMPARE(Images::Trouver(nom), trouve.isEmpty() ? QString() : bac.chemin(trouve));
    }

    void uneCopiePrendUnNomLibre()
    {
        const Bac bac;
        const QTemporaryDir source;
        for (const QString motif : {"été%1.jpg", "a.b%1.png", "scan%1", "100%%1.jpg"}) {
            for (const QString rang : {"", " (2)", " (3)"}) {
                const QString nom = QString(motif).replace("%1", "");
                const QString attendu = QString(motif).replace("%1", rang);
                Bac::ecrire(source.filePath(nom), rang.toUtf8());
                QCOMPARE(Images::Copier(source.filePath(nom)), attendu);
                QCOMPARE(Bac::lire(bac.chemin("images/" + attendu)), rang.toUtf8());
            }
        }
    }

    void leMemeContenuNEstPasRecopie()
    {
        const Bac bac;
        const QTemporaryDir source;
        const QString nouvelle = source.filePath("A.jpg");
        Bac::ecrire(bac.chemin("images/a.jpg"), "un");
        Bac::ecrire(bac.chemin("images/A (2).jpg"), "deux");
        Bac::ecrire(nouvelle, "deux");
        QCOMPARE(Images::Copier(nouvelle), "A (2).jpg");
        Bac::ecrire(nouvelle, "un");
        QCOMPARE(Images::Copier(nouvelle), "a.jpg");
        QCOMPARE(Images::Copier(bac.chemin("images/a.jpg")), "a.jpg");
        QVERIFY(refus([&] { Images::Copier(bac.chemin("absente.jpg")); }).has_value());
        QCOMPARE(QDir(bac.chemin("images")).entryList(QDir::Files).size(), 2);
        // A folder that was brought along may hold nothing but the collection.
        QVERIFY(QDir(bac.chemin("images")).removeRecursively());
        Images::Copier(nouvelle);
        QCOMPARE(Bac::lire(bac.chemin("images/A.jpg")), "un");
    }

    void uneImageAbimeeEstNulle_data()
    {
        QTest::addColumn<QByteArray>("octets");
        const QByteArray bmp = image({60, 60}, "BMP");
        const QByteArray png = image({60, 60}, "PNG");
        QTest::newRow("vide") << QByteArray();
        QTest::newRow("texte") << QByteArray("Ceci n'est pas une image.").repeated(99);
        QTest::newRow("BMP, en-tete seul") << bmp.left(54);
        QTest::newRow("PNG coupee") << png.left(png.size() / 2);
        QTest::newRow("JPG, en-tete seul") << image({60, 60}, "JPG").left(200);
        QTest::newRow("BMP qui se dit immense") << pretendre(bmp, 30'000);
        QTest::newRow("PNG qui se dit immense") << pretendre(png, 30'000);
        QTest::newRow("BMP qui se dit sans fin") << pretendre(bmp, 0x7FFFFFFF);
        QTest::newRow("PNG qui se dit grande") << pretendre(png, 10'000);
    }

    void uneImageAbimeeEstNulle()
    {
        QFETCH(QByteArray, octets);
        const Bac bac;
        Bac::ecrire(bac.chemin("images/a.jpg"), octets);
        QVERIFY(Images::Decoder(bac.chemin("images/a.jpg"), {100, 100}).isNull());
        QVERIFY(Images::Decoder(bac.chemin("images/absente.jpg"), {100, 100}).isNull());
    }

    /// A page of 21 by 29.7 cm at 600 points an inch is far below the limit of pixels.
    void unePageNumeriseeEnFinSeDecode()
    {
        const Bac bac;
        QImage page(4960, 7016, QImage::Format_RGB32);
        page.fill(Qt::white);
        QVERIFY(qint64(page.width()) * page.height() < Images::PixelsMax);
        QVERIFY(page.save(bac.chemin("images/page.bmp")));
        QCOMPARE(Images::Decoder(bac.chemin("images/page.bmp"), {496, 702}).size(), QSize(496, 702));
    }
};

QTEST_GUILESS_MAIN(tst_images)
#include "tst_images.moc"
