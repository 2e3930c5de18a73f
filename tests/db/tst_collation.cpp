#include "db/Base.h"
#include "support/Bac.h"

#include <QTest>

class tst_collation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Each group sorts as one: accents and case decide only between otherwise equal texts.
    void lesNomsSeSuiventCommeDansUnDictionnaire()
    {
        const Bac bac;
        const QStringList ordre{"", " ", "1984", "Cote", "Coté", "Côte", "Côté", "Cotes", "echo", "Écume",
            "Edgar", "oeuf", "œuf", "oeufs", "Zèbre", "zebres"};
        Base base;
        for (int i = 0; i < ordre.size(); ++i)
            base.Execute("INSERT INTO Serie (NSerie, Nom) VALUES (?, ?)", {100 - i, ordre[i]});
        for (const QString sql :
            {"SELECT * From Serie order by Nom asc", "SELECT Nom FROM Serie ORDER BY Nom"}) {
            QStringList noms;
            for (auto rs = base.OpenRecordset(sql); !rs.AtEnd(); rs.MoveNext())
                noms << rs.Fields("Nom").toString();
            QCOMPARE(noms, ordre);
        }
    }

    void lEgaliteIgnoreLaCasseMaisPasLesAccents()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Auteurs (NAuteur, Nom) VALUES (1, 'Astérix'), (2, 'coté'), (3, 'œuvre'),"
                      " (4, 'Lou'), (5, 'L''ami'), (6, ' ')");
        for (const auto &[cherche, nombre] : QList<std::pair<QString, int>>{{"ASTÉRIX", 1}, {"cote", 0},
                 {"oeuvre", 0}, {"cote\u0301", 1}, {"Lou ", 0}, {"LAmi", 0}, {"", 0}}) {
            QCOMPARE(Bac::valeur("SELECT count(*) FROM Auteurs WHERE Nom = ?", {cherche}), nombre);
            QCOMPARE(Bac::valeur("SELECT count(*) FROM Auteurs WHERE +Nom = ?", {cherche}), nombre);
        }
    }
};

QTEST_GUILESS_MAIN(tst_collation)
#include "tst_collation.moc"
