#include "support/Seance.h"

#include <QFile>
#include <QTreeWidget>

/// What holds the forms together: each wish is answered, each form is owned, and all tool forms have one frame.
class tst_bureau : public QObject, private Gestes
{
    Q_OBJECT

private:
    /// Wishes for a form as an event does, so that what it throws is told.
    static void demander(Seance &s, Forme::Nom nom)
    {
        QMetaObject::invokeMethod(
            &s.demandes(), [&s, nom] { Q_EMIT s.demandes().forme(nom); }, Qt::QueuedConnection);
    }

private Q_SLOTS:
    void chaqueDemandeALaSienneReponse()
    {
        QVERIFY(Demandes().malBranchees().contains("entree"));
        Ouverte s;
        QCOMPARE(s.demandes().malBranchees(), QStringList());
        connect(&s.demandes(), &Demandes::copie, this, [] {});
        QCOMPARE(s.demandes().malBranchees(), QStringList("copie"));
    }

    void uneFormeManqueeNeLaissePersonne()
    {
        Ouverte s;
        const QString collection = s.bac.collection();
        QVERIFY(QFile::rename(collection, collection + '-'));
        demander(s, Forme::Nom::Pret);
        QTRY_COMPARE(s.boites.textes.size(), 1);
        QVERIFY(!fenetre("Pret"));
        QVERIFY(QFile::rename(collection + '-', collection));
        // Whoever goes through all forms finds none that is not there.
        Q_EMIT s.demandes().apparence();
        Q_EMIT s.demandes().langue("English.lng");
        demander(s, Forme::Nom::Pret);
        QTRY_VERIFY(visible("Pret"));
        QVERIFY(trouver<QWidget>("Preter", "Pret")->isEnabled());
    }

    void entreeEstAuBoutonPuisAuPrincipal()
    {
        Ouverte s;
        demander(s, Forme::Nom::Polices);
        auto taille = [] { return trouver<QTreeWidget>("Taille", "Polices"); };
        QTRY_VERIFY(visible("Polices") && taille()->currentItem());
        taille()->setCurrentItem(taille()->findItems("18", Qt::MatchExactly).first());
        taille()->setFocus();
        QTest::keyClick(taille(), Qt::Key_Return);
        QCOMPARE(s.bac.reglages.nombre(Cle::FontSize), 18.0);
        auto *quitter = trouver<QWidget>("Quit", "Polices");
        quitter->setFocus();
        QTest::keyClick(quitter, Qt::Key_Enter);
        QVERIFY(!visible("Polices"));

        // In a form with texts Enter is theirs; Ctrl-Enter is tried where an album is made by hand.
        demander(s, Forme::Nom::Manuelle);
        QTRY_VERIFY(visible("Manuelle"));
        auto *titre = trouver<QWidget>("Titre", "Manuelle");
        QTRY_VERIFY(titre->hasFocus());
        QTest::keyClick(titre, Qt::Key_Return);
        QVERIFY(trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());
    }
};

JOUER(tst_bureau)
#include "tst_bureau.moc"
