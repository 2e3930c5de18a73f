#include "acts/Historique.h"
#include "acts/Preter.h"
#include "core/Dates.h"
#include "loans/Prets.h"
#include "support/Apres.h"
#include "support/Colonnes.h"

#include <QTest>

namespace {

/// Borrower 9 is gone, album 4 has no list row; 6 and 7 are not lent.
void peupler()
{
    const QDate jour = QDate::currentDate();
    Bac::executer("INSERT INTO Pret(NPret, Nom) VALUES (1, ' Zürcher '), (2, 'Éluard'), (3, 'Elsa')");
    Bac::executer(
        "INSERT INTO Album(Num, NAlbum, NPret, DPret) VALUES (1, 10, 1, ?), (2, 2, 1, 'mai 2020'),"
        " (3, 1, 1, ?), (4, 3, 1, ''), (5, 1, 9, ?), (6, 1, 0, ''), (7, 1, NULL, NULL), (8, 3, 1, NULL)",
        {Dates::Ecrire(jour.addDays(-40)), Dates::Ecrire(jour.addDays(1)), Dates::Ecrire(jour)});
    Bac::executer(
        "INSERT INTO LAlbums(NAlbum, TAlbum) VALUES (1, 'Écume'), (2, 'Zut'), (3, 'Demain'), (5, 'Edgar'),"
        " (6, 'Fin'), (7, 'Fini'), (8, 'Sans date')");
}

QStringList prets(int emprunteur)
{
    QStringList lignes;
    for (const Prets::Pret &pret : Prets::LirePrets(emprunteur))
        lignes << QStringLiteral("%1|%2|%3|%4")
                      .arg(pret.album)
                      .arg(pret.titre, pret.emprunteur)
                      .arg(pret.jours.value_or(-1));
    return lignes;
}

}

class tst_prets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesPretsDUnePersonneEtDeTous()
    {
        const Bac bac;
        peupler();
        const auto gens = Prets::LireEmprunteurs();
        QCOMPARE(gens.size(), 3U);
        QCOMPARE(gens.front().nom, "Zürcher");
        QCOMPARE(Prets::QuiA(1)->id, 1);
        QVERIFY(Prets::QuiA(5)->nom.isEmpty()); // who is gone
        QVERIFY(!Prets::QuiA(6) && !Prets::QuiA(7) && !Prets::QuiA(99));
        QCOMPARE(prets(1),
            QStringList(
                {"3|Demain|Zürcher|-1", "2|Zut|Zürcher|-1", "8|Sans date|Zürcher|-1", "1|Écume|Zürcher|40"}));
        QCOMPARE(prets(2), QStringList());
        QCOMPARE(prets(0),
            QStringList({"3|Demain|Zürcher|-1", "1|Écume|Zürcher|40", "5|Edgar||0", "8|Sans date|Zürcher|-1",
                "2|Zut|Zürcher|-1"}));
    }

    void chaqueActeEtSonRetour_data()
    {
        using Preter::Donnee;
        const Bac bac; // days are written in its language
        const QString jour = Dates::Ecrire(QDate::currentDate());
        const Colonnes<std::function<void()>, QStringList> cas;
        cas("retour", [] { Preter::Rendre(1); }, {"UPDATE Album SET NPret = 0, DPret = '' WHERE Num = 1"});
        cas("personne", [] { Preter::SupprimerEmprunteur(1); }, {"DELETE FROM Pret WHERE NPret = 1"});
        cas("album disparu", [] { Preter::Rendre(99); }, {});
        cas("personne disparue", [] { Preter::SupprimerEmprunteur(9); }, {});
        // The day of a loan is its own, whatever was noted before.
        const QString pret = "UPDATE Album SET NPret = 2, DPret = '%1' WHERE Num = %2";
        cas("pret", [] { Preter::PreterAlbum(7, 2); }, {pret.arg(jour).arg(7)});
        cas("pret d'un album prete", [] { Preter::PreterAlbum(2, 2); }, {pret.arg(jour).arg(2)});
        cas("pret a personne", [] { Preter::PreterAlbum(7, 9); }, {});
        cas("numero", [] { QVERIFY(Preter::EcrireEmprunteur(3, Donnee::Telephone, " 01\n99 ")); },
            {"UPDATE Pret SET Tel = '01 99' WHERE NPret = 3"});
        cas("sans nom", [] { QVERIFY(!Preter::EcrireEmprunteur(3, Donnee::Nom, " \n")); }, {});
        cas("personne a renommer", [] { QVERIFY(Preter::EcrireEmprunteur(9, Donnee::Nom, "Elsa")); }, {});
    }

    void chaqueActeEtSonRetour()
    {
        const auto [acte, reference] = essai<std::function<void()>, QStringList>();
        Bac bac;
        peupler();
        const QStringList avant = Bac::toutLire();
        const QStringList attendu = apres(reference);
        Historique histoire(bac.annonces);
        // Once more is no error, and no further step.
        for (int i = 0; i < 2; ++i) {
            acte();
            QCOMPARE(Bac::toutLire(), attendu);
        }
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(!histoire.peutAnnuler());
    }
};

QTEST_GUILESS_MAIN(tst_prets)
#include "tst_prets.moc"
