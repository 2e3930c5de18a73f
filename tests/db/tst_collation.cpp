#include "db/Base.h"
#include "support/Bac.h"
#include "support/Colonnes.h"

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

    void lEgaliteIgnoreLaCasseMaisPasLesAccents_data()
    {
        colonnes<QString, QString, bool>();
        const auto cas = [](const char *nom, const QString &cherche, const char *garde, bool egal) {
            QTest::newRow(nom) << cherche << QString(garde) << egal;
        };
        cas("casse", "ASTÉRIX", "Astérix", true);
        cas("accent", "cote", "coté", false);
        cas("ligature", "oeuvre", "œuvre", false);
        cas("accent compose", "cote\u0301", "coté", true);
        cas("blanc au bout", "Lou ", "Lou", false);
        cas("apostrophe", "LAmi", "L'ami", false);
        cas("vide et blanc", "", " ", false);
    }

    void lEgaliteIgnoreLaCasseMaisPasLesAccents()
    {
        const auto [cherche, garde, egal] = essai<QString, QString, bool>();
        const Bac bac;
        Bac::executer("INSERT INTO Auteurs (NAuteur, Nom) VALUES (1, ?)", {garde});
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Auteurs WHERE Nom = ?", {cherche}), int(egal));
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Auteurs WHERE +Nom = ?", {cherche}), int(egal));
    }
};

QTEST_GUILESS_MAIN(tst_collation)
#include "tst_collation.moc"
