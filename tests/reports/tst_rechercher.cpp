#include "reports/Rechercher.h"
#include "support/Bac.h"

#include <QTest>

using namespace General;

class tst_rechercher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Number 0 is the entry that stands for none; Cham has two trades, Flandrin all but the writer's.
    void chaqueTexteTrouveCeQuiLePorte()
    {
        const Bac bac;
        Bac::executer("INSERT INTO LAlbums(NAlbum, TAlbum) VALUES (0, 'Bécassine nulle'), (1, 'Bécassine'),"
                      " (2, 'Becassine au bain'), (3, 'L''écume à 100 %'), (4, 'a_b*c'),"
                      " (5, '🎉 Bécassine'), (6, NULL)");
        for (const char *table :
            {"Serie(NSerie", "ExLibris(NExLibris", "PresseBD(NPressBD", "Editeur(NEdit", "Coll(NColl"})
            Bac::executer(
                QStringLiteral("INSERT INTO %1, Nom) VALUES (0, 'Flandrin'), (1, 'Flandrin')").arg(table));
        Bac::executer("INSERT INTO Auteurs(NAuteur, Nom, Prenom, Dessin, Scena, Color) VALUES"
                      " (0, 'Flandrin', NULL, -1, -1, -1), (1, 'Flandrin', 'Cham', -1, 0, -1),"
                      " (3, 'Cham', 'Flandrin', -1, -1, 0)");
        const auto cas = [](int tri, const QString &cherche, const char *partout, const char *debut) {
            for (const auto &[mode, attendus] :
                {std::pair(Rechercher::Mode::Partout, partout), {Rechercher::Mode::Debut, debut}}) {
                const Entrees trouvees = Rechercher::Chercher(TriDe(tri), cherche, mode);
                QStringList numeros;
                for (int i = 0; i < trouvees.size(); ++i)
                    numeros << QString::number(trouvees.id(i));
                QVERIFY2(numeros.join(u' ') == attendus,
                    qPrintable(QString("%1 %2: ").arg(tri).arg(cherche.left(20)) + numeros.join(u' ')));
            }
        };
        cas(0, {}, "6 5 4 1 2 3", "6 5 4 1 2 3");
        cas(0, "BÉCASSINE", "5 1", "1");
        cas(0, "becassine", "2", "2");
        cas(0, "%", "3", "");
        cas(0, "*", "4", "");
        cas(0, "L'", "3", "3");
        cas(0, "🎉", "5", "5");
        cas(0, QString(10'000, u'b'), "", "");
        for (int tri = 1; tri < NombreDeTris; ++tri) {
            const char *flandrin = tri == 3 ? "" : "1";
            cas(tri, "flan", flandrin, flandrin);
            cas(tri, "DRIN", flandrin, "");
        }
        for (const char *cherche : {"", "cham"})
            cas(3, cherche, "3", "3");
        // Of one name, they are told apart as in their lists.
        Bac::executer(
            "INSERT INTO PresseBD(NPressBD, Nom, NPresseBD) VALUES (2, 'Le Mousse', 7), (3, 'Le Mousse', 8)");
        for (const auto &[tri, texte] : {std::pair(Tri::Presse, "mousse"), {Tri::Dessinateurs, ""}}) {
            const Entrees trouvees = Rechercher::Chercher(tri, texte, Rechercher::Mode::Partout);
            QCOMPARE(trouvees.size(), 2);
            for (int i = 0; i < trouvees.size(); ++i)
                QCOMPARE(trouvees.texte(i), LireTexte(tri, trouvees.id(i)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_rechercher)
#include "tst_rechercher.moc"
