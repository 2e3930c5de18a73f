#include "core/Error.h"
#include "db/Base.h"
#include "support/Bac.h"

#include <QTest>

class tst_recordset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unParcoursSurvitASesPropresEcritures();
};

/// Renaming while walking in name order moves every row ahead of the walk; each must be met once.
void tst_recordset::unParcoursSurvitASesPropresEcritures()
{
    const Bac bac;
    const Base base;
    for (int i = 1; i <= 20; ++i)
        Bac::executer(QStringLiteral("INSERT INTO Genre VALUES (?, ?)"), {i, QStringLiteral("a%1").arg(i)});
    int vus = 0;
    for (auto rs = base.OpenRecordset(QStringLiteral("SELECT * From Genre order by Nom asc")); !rs.AtEnd();
         rs.MoveNext()) {
        QVERIFY(++vus <= 20);
        rs.Edit();
        rs.SetField(QStringLiteral("Nom"), QStringLiteral("z%1").arg(vus));
        rs.Update();
    }
    QCOMPARE(vus, 20);
}

QTEST_GUILESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
