#include "acts/Historique.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// A collection with three kinds, and the steps done on it since.
struct Etabli
{
    Etabli()
    {
        Bac::executer("INSERT INTO Genre VALUES (1, 'un'), (2, 'deux'), (3, 'trois')");
        histoire = std::make_unique<Historique>(bac.annonces);
    }
    static void nommer(int cle, const QString &nom, const QString &titre = {}, int visite = 0, int lieu = 1)
    {
        Acte acte(titre, {General::Tri::Series, lieu}, visite);
        acte.base().Execute("UPDATE Genre SET Nom = ? WHERE NGenre = ?", {nom, cle});
        acte.valider();
    }
    static QString noms()
    {
        return Bac::valeur("SELECT group_concat(Nom, ' ') FROM (SELECT Nom FROM Genre ORDER BY NGenre)")
            .toString();
    }
    void aller(bool refaire) const { refaire ? histoire->refaire() : histoire->annuler(); }
    QString prochaine(bool refaire) const { return refaire ? histoire->aRefaire() : histoire->aAnnuler(); }

    Bac bac;
    std::unique_ptr<Historique> histoire;
};

}

class tst_historique : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toutSeReprendEtSeRefaitDansLOrdre()
    {
        constexpr int Etapes = 60;
        const Etabli e;
        QStringList etats{Bac::toutLire().join(u'\n')};
        for (int i = 0; i < Etapes; ++i) {
            Acte acte(QStringLiteral("pas %1").arg(i), {General::Tri::Series, i});
            acte.base().Execute("INSERT INTO Metier VALUES (?, 'L''été')", {i});
            acte.valider();
            etats << Bac::toutLire().join(u'\n');
        }
        int lieu = -1;
        QObject::connect(
            e.histoire.get(), &Historique::annulee, [&](const Etape &etape) { lieu = etape.lieu.id; });
        int inscrites = 0;
        QObject::connect(e.histoire.get(), &Historique::inscrite, [&] { ++inscrites; });
        for (int i = Etapes; i-- > 0;) {
            QCOMPARE(e.histoire->aAnnuler(), QStringLiteral("pas %1").arg(i));
            e.histoire->annuler();
            QCOMPARE(Bac::toutLire().join(u'\n'), etats[i]);
            QCOMPARE(lieu, i);
        }
        QVERIFY(!e.histoire->peutAnnuler() && e.histoire->aAnnuler().isEmpty());
        e.histoire->annuler();
        QCOMPARE(Bac::toutLire().join(u'\n'), etats[0]);
        for (int i = 1; i <= Etapes; ++i) {
            e.histoire->refaire();
            QCOMPARE(Bac::toutLire().join(u'\n'), etats[i]);
        }
        QVERIFY(!e.histoire->peutRefaire());
        QCOMPARE(inscrites, 0); // going back and forth makes no steps
    }

    void uneEtapeDontLaLigneAChangeEstAbandonnee_data()
    {
        const Colonnes<bool, QString> cas;
        for (const bool refaire : {false, true}) {
            const char *sens = refaire ? "refaire" : "annuler";
            QTest::addRow("%s, nom change", sens)
                << refaire << "UPDATE Genre SET Nom = 'autre' WHERE NGenre = 2";
            QTest::addRow("%s, ligne disparue", sens) << refaire << "DELETE FROM Genre WHERE NGenre = 2";
        }
    }

    /// The middle one of three steps cannot be taken: it is given up, its neighbours go on.
    void uneEtapeDontLaLigneAChangeEstAbandonnee()
    {
        const auto [refaire, entretemps] = essai<bool, QString>();
        Etabli e;
        Etabli::nommer(1, "A", "a");
        // Two rows in one step: when the second is refused, the first stays as it is.
        Bac::agir("UPDATE Genre SET Nom = Nom || '!' WHERE NGenre IN (2, 3)", {}, "b");
        Etabli::nommer(1, "C", "c");
        for (int i = 0; refaire && i < 3; ++i)
            e.aller(false);
        Autre(e.bac.collection()).executer(entretemps);
        e.aller(refaire);
        QCOMPARE(e.prochaine(refaire), "b");
        const QStringList avant = Bac::toutLire();
        QSignalSpy change(e.histoire.get(), &Historique::change);
        QCOMPARE(refus([&e, refaire = refaire] { e.aller(refaire); }), Error::Sorte::Perimee);
        QCOMPARE(Bac::toutLire(), avant);
        QCOMPARE(e.prochaine(refaire), refaire ? "c" : "a");
        QVERIFY(!change.isEmpty()); // who shows the next step shows another one now
        e.aller(refaire);
        QVERIFY(e.noms().startsWith(refaire ? "C" : "un"));
        QVERIFY(e.prochaine(refaire).isEmpty());
        QVERIFY(!e.prochaine(!refaire).isEmpty());
    }

    void uneBaseTenueGardeLEtape()
    {
        Etabli e;
        Etabli::nommer(1, "A", "a");
        for (const bool refaire : {false, true}) {
            const QString avant = Etabli::noms();
            {
                Autre autre(e.bac.collection());
                autre.executer("BEGIN EXCLUSIVE");
                QCOMPARE(refus([&] { e.aller(refaire); }), Error::Sorte::EnUsage);
                QCOMPARE(e.prochaine(refaire), "a");
                QVERIFY(e.prochaine(!refaire).isEmpty());
            }
            QCOMPARE(Etabli::noms(), avant);
            e.aller(refaire);
            QCOMPARE(Etabli::noms(), refaire ? "A deux trois" : "un deux trois");
        }
        Etabli::nommer(2, "B", "b"); // what is done now is a step again
        QCOMPARE(e.histoire->aAnnuler(), "b");
    }

    void lesEtapesDUneVisiteSeFondent_data()
    {
        const Colonnes<int, QString, int, int> cas;
        cas("meme visite", 7, "t", 1, 1);
        cas("autre visite", 8, "t", 1, 2);
        cas("autre champ", 7, "u", 1, 2);
        cas("autre fiche", 7, "t", 2, 2);
        cas("sans visite", 0, "t", 1, 2);
    }

    void lesEtapesDUneVisiteSeFondent()
    {
        const auto [visite, titre, lieu, etapes] = essai<int, QString, int, int>();
        Etabli e;
        Etabli::nommer(1, "A", "t", visite == 0 ? 0 : 7);
        Etabli::nommer(1, "AB", titre, visite, lieu);
        Etabli::nommer(2, "ABC", titre, visite, lieu);
        const QStringList apres = Bac::toutLire();
        for (int i = 0; i < etapes; ++i) {
            QVERIFY(e.histoire->peutAnnuler());
            e.histoire->annuler();
            if (visite == 0 && i == 0)
                e.histoire->annuler(); // without a visit each is a step of its own
        }
        QCOMPARE(Etabli::noms(), "un deux trois");
        QVERIFY(!e.histoire->peutAnnuler());
        while (e.histoire->peutRefaire())
            e.histoire->refaire();
        QCOMPARE(Bac::toutLire(), apres);
        // What is done after an undo takes the place of what was undone, and is a step of its own.
        while (e.histoire->peutAnnuler())
            e.histoire->annuler();
        Etabli::nommer(3, "Z", titre, visite, lieu);
        QVERIFY(!e.histoire->peutRefaire());
        e.histoire->annuler();
        QCOMPARE(Etabli::noms(), "un deux trois");
        e.histoire->oublier();
        QVERIFY(!e.histoire->peutRefaire());
    }

    void uneVisiteQuiRevientAuDebutNEstPasUneEtape()
    {
        Etabli e;
        Etabli::nommer(2, "avant", "a");
        int inscrites = 0;
        QObject::connect(e.histoire.get(), &Historique::inscrite, [&] { ++inscrites; });
        Etabli::nommer(1, "A", "t", 7);
        Etabli::nommer(1, "AB", "t", 7);
        QCOMPARE(e.histoire->aAnnuler(), "t");
        Etabli::nommer(1, "un", "t", 7);
        QCOMPARE(e.histoire->aAnnuler(), "a");
        QCOMPARE(inscrites, 2);
        e.histoire->annuler();
        QCOMPARE(Etabli::noms(), "un deux trois");
    }
};

QTEST_GUILESS_MAIN(tst_historique)
#include "tst_historique.moc"
