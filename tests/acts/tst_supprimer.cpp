#include "acts/Historique.h"
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
};

QTEST_GUILESS_MAIN(tst_supprimer)
#include "tst_supprimer.moc"
