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

/// The same BMP with a header that claims another size.
QByteArray pretendre(QByteArray octets, qint32 cote)
{
    qToLittleEndian(cote, octets.data() + 18);
    qToLittleEndian(cote, octets.data() + 22);
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
        for (const QString motif : {"été%1.jpg", "scan%1", "100%%1.jpg"}) {
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

    void uneImageAbimeeEstNulle()
    {
        const Bac bac;
        const QByteArray bmp = image({60, 60}, "BMP");
        const QByteArray png = image({60, 60}, "PNG");
        for (const QByteArray &octets : {QByteArray(), bmp.left(54), png.left(png.size() / 2),
                 image({60, 60}, "JPG").left(200), pretendre(bmp, 30'000), pretendre(bmp, 0x7FFFFFFF)}) {
            Bac::ecrire(bac.chemin("images/a.jpg"), octets);
            QVERIFY2(
                Images::Decoder(bac.chemin("images/a.jpg"), {100, 100}).isNull(), octets.left(60).toHex());
        }
    }

    void unNomDeFichierSeLitCommeIlEst()
    {
        const QString long_ = QString(110, QChar(0x30C6));
        for (const QString &texte : {long_, QString(400, u'é'), u'a' + QString("😀").repeated(150)}) {
            const QString nom = Images::NomDeFichier(texte);
            QVERIFY(texte.startsWith(nom) && nom.size() > 40);
            QVERIFY(nom.toUtf8().size() <= Images::OctetsDuNom && nom.isValidUtf16());
        }
        // A letter and its accent are one character.
        QCOMPARE(Images::NomDeFichier(QString(Images::OctetsDuNom - 1, u'x') + u'e' + QChar(0x301)),
            QString(Images::OctetsDuNom - 1, u'x'));
        for (const QChar signe : QStringView(u"\u202E\u2066\u200F\u061C\u2028\u2029\x7F\x1B\n"))
            QCOMPARE(Images::NomDeFichier(u'a' + QString(signe) + ".gpj"), "a_.gpj");
        QCOMPARE(Images::NomDeFichier("שלום 👩‍🎨"), "שלום 👩‍🎨");

        const Bac bac;
        const QTemporaryDir source;
        const QString attachee = source.filePath(QString("a") + QChar(0x202E) + "gpj.png");
        for (int rang = 1; rang < 3; ++rang) {
            Bac::ecrire(attachee, QByteArray::number(rang));
            QCOMPARE(Images::Copier(attachee), rang == 1 ? "a_gpj.png" : "a_gpj (2).png");
            const QString longue = source.filePath(QString(80, QChar(0x30C6)) + ".png");
            Bac::ecrire(longue, QByteArray::number(rang));
            QCOMPARE(Bac::lire(bac.chemin("images/" + Images::Copier(longue))), QByteArray::number(rang));
        }
    }

    /// A page of 21 by 29.7 cm at 600 points an inch is far below the limit of pixels.
    void unePageNumeriseeEnFinSeDecode()
    {
        const Bac bac;
        QImage page(4960, 7016, QImage::Format_RGB32);
        page.fill(Qt::white);
        QVERIFY(page.save(bac.chemin("images/page.bmp")));
        QCOMPARE(Images::Decoder(bac.chemin("images/page.bmp"), {496, 702}).size(), QSize(496, 702));
    }
};

QTEST_GUILESS_MAIN(tst_images)
#include "tst_images.moc"
