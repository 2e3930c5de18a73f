#include "core/Texte.h"

#include <QTest>

class tst_texte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void seulsLesBlancsEtLesPointillesSontVides_data();
    void seulsLesBlancsEtLesPointillesSontVides();
    void lesOctetsSontUtf8Sinon1252_data();
    void lesOctetsSontUtf8Sinon1252();
    void unPrenomBlancNeLaissePasDeVirgule();
};

void tst_texte::seulsLesBlancsEtLesPointillesSontVides_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("vide");
    QTest::newRow("rien") << "" << true;
    QTest::newRow("blancs") << " \t\n" << true;
    QTest::newRow("pointilles") << QString(855, u'.') << true;
    QTest::newRow("un point de moins") << QString(854, u'.') << false;
    QTest::newRow("trois points") << "..." << false;
    QTest::newRow("zero") << "0" << false;
}

void tst_texte::seulsLesBlancsEtLesPointillesSontVides()
{
    QFETCH(QString, texte);
    QTEST(Texte::EstVide(texte), "vide");
}

void tst_texte::lesOctetsSontUtf8Sinon1252_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<QString>("texte");
    QTest::newRow("vide") << QByteArray() << "";
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA9\xF0\x9F\x98\x80") << QStringLiteral("é😀");
    QTest::newRow("marque") << QByteArray("\xEF\xBB\xBF\xC3\xA9") << "é";
    QTest::newRow("1252") << QByteArray("\x80\x8C\x9C\x9F\x92\xE9\xFF") << "€ŒœŸ’éÿ";
    QTest::newRow("UTF-8 coupe au bout") << QByteArray("\xC3\xA9\xC3") << "Ã©Ã";
    QTest::newRow("forme trop longue") << QByteArray("\xC0\xAF") << "À¯";
}

void tst_texte::lesOctetsSontUtf8Sinon1252()
{
    QFETCH(QByteArray, octets);
    QTEST(Texte::Decoder(octets), "texte");
}

void tst_texte::unPrenomBlancNeLaissePasDeVirgule()
{
    QCOMPARE(Texte::NomPrenom("Hergé", " "), "Hergé");
    QCOMPARE(Texte::NomPrenom("Töpffer", " Rodolphe "), "Töpffer, Rodolphe");
}

QTEST_APPLESS_MAIN(tst_texte)
#include "tst_texte.moc"
