#include "core/Csv.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QTest>

class tst_csv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unFichierDonneSesRangees_data()
    {
        const Colonnes<QByteArray, QString> cas;
        cas("fins de ligne, marque", "\xEF\xBB\xBFTitre,Tome\r\na,1\r\nb,2", "2:a|1 3:b|2");
        cas("texte sur deux lignes", "Titre,Tome\n\"a\nb\",1\nc,2\n", "3:a\nb|1 4:c|2");
        cas("cellules qui manquent", "Titre,Tome\na\n,2,3\n", "2:a| 3:|2");
        cas("UTF-16",
            QByteArray("\xFF\xFET\0i\0t\0r\0e\0,\0T\0o\0m\0e\0\n\0\xE9\0,\0"
                       "1\0",
                30),
            "2:é|1");
        cas("UTF-16 sans marque",
            QByteArray("\0T\0i\0t\0r\0e\0,\0T\0o\0m\0e\0\n\0\xE9\0,\0"
                       "1",
                28),
            "2:é|1");
        cas("signe de commande",
            "Titre,Tome\na\x0B"
            "b,1\n",
            "2:a\x0B"
            "b|1");
        cas("ligne blanche", "Titre,Tome\n\na,1\n", "3:a|1");
    }

    void unFichierDonneSesRangees()
    {
        const auto [octets, attendu] = essai<QByteArray, QString>();
        const Bac bac;
        Bac::ecrire(bac.chemin("a.csv"), octets);
        QStringList lues;
        Csv::Lire(bac.chemin("a.csv"), [&](const Csv::Rangee &r) {
            lues << QStringLiteral("%1:%2|%3").arg(QString::number(r.ligne), r["Titre"], r["Tome"]);
        });
        QCOMPARE(lues.join(u' '), attendu);
    }

    void unFichierFautifEstRefuse()
    {
        const Bac bac;
        const auto lire = [&] { Csv::Lire(bac.chemin("a.csv"), [](const Csv::Rangee &) {}); };
        QVERIFY(refus(lire).has_value());
        for (const char *octets : {"Titre\n\"a\nb\n", "Titre\na\"b\n", "Titre\n\"a\"b\n"}) {
            Bac::ecrire(bac.chemin("a.csv"), octets);
            QVERIFY2(refus(lire).has_value(), octets);
        }
        // A picture
        Bac::ecrire(bac.chemin("a.csv"), QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16));
        QVERIFY(refus(lire).has_value());
        QVERIFY(refus([&] { Csv::Separateur(bac.chemin("a.csv")); }).has_value());
    }
};

QTEST_GUILESS_MAIN(tst_csv)
#include "tst_csv.moc"
