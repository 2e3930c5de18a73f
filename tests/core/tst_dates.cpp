#include "core/Dates.h"
#include "core/Traduction.h"
#include "support/Colonnes.h"

#include <QTest>

class tst_dates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneDateSeLit_data()
    {
        // lue: year-month-day, 0 where nothing is said; empty when it is no date
        const Colonnes<QString, QString> cas;
        const QString dates = QStringLiteral(R"(21 novembre 2026;2026-11-21;2026-11-21
novembre 2026;2026-11-0;2026-11-01
21/11/2026;2026-11-21;2026-11-21
5.3.1925;1925-3-5;1925-03-05
2026;2026-0-0;2026-01-01
2026-11;2026-11-0;2026-11-01
  1er AOUT  2024 ;2024-8-1;2024-08-01
3 févr. 2024;2024-2-3;2024-02-03
29 February 2024;2024-2-29;2024-02-29
21. März 2026;2026-3-21;2026-03-21
21 de enero de 2026;2026-1-21;2026-01-21
agosto de 2026;2026-8-0;2026-08-01
21 maart 2026;2026-3-21;2026-03-21)");
        for (const QString &date : dates.split(u'\n')) {
            const QStringList p = date.split(u';');
            cas(qPrintable(p[0]), p[1], p[2]);
        }
        for (const char *texte : {"", " ", ".", "printemps 1901", "21 brumaire 1799", "31/02/2026",
                 "29 février 2023", "13/2026", "00/2026", "2026-13-01", "0000", "0/5/2026", "21/11/26",
                 "le 21 novembre 2026", "2026?", "12 12 2026", "21 novembre"})
            cas(texte, {}, {});
    }

    void uneDateSeLit()
    {
        const auto [lue, jour] = essai<QString, QString>();
        const QString texte = QString::fromUtf8(QTest::currentDataTag());
        const auto date = Dates::Lire(texte);
        QCOMPARE(
            date ? QStringLiteral("%1-%2-%3").arg(date->annee).arg(date->mois).arg(date->jour) : QString(),
            lue);
        QCOMPARE(Dates::LireJour(texte).value_or(QDate()).toString(Qt::ISODate), jour);
    }

    void uneDateEcriteSeRelit()
    {
        const Traduction francais;
        QCOMPARE(Dates::Ecrire(QDate(2026, 2, 5)), "05 février 2026");
        for (int mois = 1; mois <= 12; ++mois)
            QCOMPARE(Dates::LireJour(Dates::Ecrire({1799, mois, 28})), QDate(1799, mois, 28));
    }
};

QTEST_GUILESS_MAIN(tst_dates)
#include "tst_dates.moc"
