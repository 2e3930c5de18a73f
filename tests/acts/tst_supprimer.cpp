#include "acts/Historique.h"
#include "acts/Restes.h"
#include "acts/Supprimer.h"
#include "support/Apres.h"
#include "support/Autre.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QFile>
#include <QTest>

using General::Entree;
using General::Tri;

namespace {

/// The sample collection. Number 1 is in every table; album 1 stands in two series and two collections, and
/// author 1 has the three trades.
struct Exemple
{
    Exemple()
    {
        QFile::remove(bac.collection());
        if (!QFile::copy(QStringLiteral(EXEMPLE "/bd.mdb"), bac.collection()))
            qFatal("%s", qPrintable(bac.collection()));
        Bac::executer("INSERT INTO CollAlbums VALUES (1, 1), (2, 1)");
        Bac::executer("INSERT INTO SerieAlbums(NSerie, NAlbum) VALUES (2, 1)");
        Bac::executer("UPDATE Auteurs SET Color = -1 WHERE NAuteur = 1");
    }
    Bac bac;
};

}

class tst_supprimer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void seulesSesLignesPartent_data()
    {
        const Colonnes<int, QString> cas;
        cas("album", 0,
            "Album.Num LAlbums.NAlbum AuteursAlbums.NAlbum CollAlbums.NAlbum "
            "EditeurAlbums.NAlbum GenreAlbums.NAlbum PaysAlbum.NAlbum SerieAlbums.NAlbum");
        cas("série", 1, "Serie.NSerie");
        for (int metier = 0; metier < 3; ++metier)
            QTest::addRow("métier %d", metier) << 2 + metier << QString();
        cas("ex-libris", 5, "ExLibris.NExLibris");
        cas("presse", 6, "PresseBD.NPressBD");
        cas("éditeur", 7, "Editeur.NEdit");
        cas("collection", 8, "Coll.NColl");
    }

    void seulesSesLignesPartent()
    {
        const auto [tri, lignes] = essai<int, QString>();
        Exemple exemple;
        QStringList reference;
        for (const QString &ligne : lignes.split(u' ', Qt::SkipEmptyParts))
            reference << "DELETE FROM " + ligne.section(u'.', 0, 0) + " WHERE " + ligne.section(u'.', 1)
                    + " = 1";
        if (reference.isEmpty())
            reference << QStringLiteral("UPDATE Auteurs SET %1 = 0 WHERE NAuteur = 1")
                             .arg(QStringList{"Dessin", "Scena", "Color"}.at(tri - 2));
        const QStringList avant = Bac::toutLire();
        const QStringList attendu = apres(reference);
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(attendu != avant);

        Historique histoire(exemple.bac.annonces);
        const Entree entree{General::TriDe(tri), 1};
        const QString nom = General::LireTexte(entree.tri, 1);
        Supprimer::SupprimerEntree(entree);
        QCOMPARE(Bac::toutLire(), attendu);
        QVERIFY2(histoire.aAnnuler().contains(nom), qPrintable(histoire.aAnnuler()));
        // What is gone already is no error and no step.
        Supprimer::SupprimerEntree(entree);
        Supprimer::SupprimerEntree({entree.tri, 9999});
        QCOMPARE(Bac::toutLire(), attendu);
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(!histoire.peutAnnuler());
    }

    void rienNEstSupprimeAMoitie()
    {
        Exemple exemple;
        Historique histoire(exemple.bac.annonces);
        const QStringList avant = Bac::toutLire();
        for (const char *obstacle : {"BEGIN EXCLUSIVE", "BEGIN; SELECT * FROM Album"}) {
            {
                Autre autre(exemple.bac.collection());
                autre.executer(obstacle);
                QVERIFY2(refus([] { Supprimer::SupprimerEntree({Tri::Albums, 1}); }).has_value(), obstacle);
            }
            QCOMPARE(Bac::toutLire(), avant);
            QVERIFY2(!histoire.peutAnnuler(), obstacle);
        }
        Supprimer::SupprimerEntree({Tri::Albums, 1});
        QVERIFY(Bac::toutLire() != avant && histoire.peutAnnuler());
    }

    void laQuestionDitCeQuiReste()
    {
        const Exemple exemple;
        const auto dit = [](Tri tri, const QString &nombre) {
            const QString suites = Supprimer::Suites({tri, 2});
            QVERIFY2(suites.contains(nombre) && suites.contains("album"), qPrintable(suites));
        };
        dit(Tri::Series, Bac::valeur("SELECT count(*) FROM SerieAlbums WHERE NSerie = 2").toString());
        dit(Tri::Editeurs, Bac::valeur("SELECT count(*) FROM EditeurAlbums WHERE NEdit = 2").toString());
        Bac::executer("UPDATE Album SET NPret = (SELECT min(NPret) FROM Pret WHERE NPret > 0) WHERE Num = 2");
        dit(Tri::Albums,
            Bac::valeur("SELECT Nom FROM Pret WHERE NPret > 0 ORDER BY NPret").toString().trimmed());
        Bac::executer("UPDATE Album SET NPret = 0");
        Bac::executer("DELETE FROM SerieAlbums");
        for (const Tri tri : {Tri::Albums, Tri::Series, Tri::ExLibris, Tri::Presse})
            QVERIFY(Supprimer::Suites({tri, 2}).isEmpty());
    }

    /// What cut-off creations left is found and taken away, and nothing else.
    void lesRestesSOtent()
    {
        Exemple exemple;
        Restes::Oter();
        QVERIFY(!Restes::YEnA());
        const QStringList avant = Bac::toutLire();
        for (const char *reste :
            {"INSERT INTO Album (Num, NAlbum) VALUES (90000, 1)", "INSERT INTO GenreAlbums VALUES (1, 90000)",
                "INSERT INTO CotesAlbum VALUES (90001, 'a', 'b')",
                "INSERT INTO SerieAlbums SELECT * FROM SerieAlbums WHERE rowid = 1",
                "INSERT INTO AuteursAlbums SELECT * FROM AuteursAlbums WHERE rowid = 1"}) {
            Bac::executer(reste);
            QVERIFY2(Restes::YEnA(), reste);
            const QStringList encombree = Bac::toutLire();
            Historique histoire(exemple.bac.annonces);
            QCOMPARE(Restes::Oter(), 1);
            QCOMPARE(Bac::toutLire(), avant);
            histoire.annuler();
            QCOMPARE(Bac::toutLire(), encombree);
            histoire.refaire();
        }
    }
};

QTEST_GUILESS_MAIN(tst_supprimer)
#include "tst_supprimer.moc"
