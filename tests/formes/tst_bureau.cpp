#include "support/Seance.h"

#include <QFile>
#include <QMetaEnum>
#include <QPushButton>
#include <QTreeWidget>

/// What holds the forms together: each wish is answered, each form is owned, and all tool forms have one frame.
class tst_bureau : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueDemandeALaSienneReponse();
    void uneFormeManqueeNeLaissePersonne();
    void leClavierCommenceAuDessusDuPied();
    void entreeEstAuBoutonPuisAuPrincipal();

private:
    /// Wishes for a form as an event does, so that what it throws is told.
    static void demander(Seance &s, Forme::Nom nom)
    {
        QMetaObject::invokeMethod(
            &s.demandes(), [&s, nom] { Q_EMIT s.demandes().forme(nom); }, Qt::QueuedConnection);
    }
    static bool visible(const char *forme)
    {
        return Seance::fenetre(forme) && Seance::fenetre(forme)->isVisible();
    }
};

void tst_bureau::chaqueDemandeALaSienneReponse()
{
    const Demandes personne;
    QVERIFY(personne.malBranchees().contains(QStringLiteral("entree")));
    Seance s;
    s.demarrer();
    QCOMPARE(s.demandes().malBranchees(), QStringList());
    QObject::connect(&s.demandes(), &Demandes::copie, this, [] {});
    QCOMPARE(s.demandes().malBranchees(), QStringList(QStringLiteral("copie")));
}

void tst_bureau::uneFormeManqueeNeLaissePersonne()
{
    Seance s;
    s.demarrer();
    const QString collection = s.bac.collection();
    QVERIFY(QFile::rename(collection, collection + QLatin1Char('-')));
    demander(s, Forme::Nom::Pret);
    QTRY_COMPARE(s.boites.textes.size(), 1);
    QVERIFY(!Seance::fenetre("Pret"));
    QVERIFY(QFile::rename(collection + QLatin1Char('-'), collection));
    // Whoever goes through all forms finds none that is not there.
    Q_EMIT s.demandes().apparence();
    Q_EMIT s.demandes().langue(QStringLiteral("English.lng"));
    demander(s, Forme::Nom::Pret);
    QTRY_VERIFY(visible("Pret"));
    QVERIFY(Seance::trouver<QPushButton>("Preter", "Pret")->isEnabled());
}

void tst_bureau::leClavierCommenceAuDessusDuPied()
{
    Seance s;
    s.demarrer();
    const QMetaEnum noms = QMetaEnum::fromType<Forme::Nom>();
    for (int i = 0; i < noms.keyCount(); ++i) {
        const QByteArray nom = noms.key(i);
        if (nom == "Frmmain" || nom == "Splash" || nom.startsWith("FrmModif"))
            continue;
        demander(s, static_cast<Forme::Nom>(noms.value(i)));
        QTRY_VERIFY2(visible(nom) && Seance::fenetre(nom)->focusWidget(), nom);
        const QString focus = Seance::fenetre(nom)->focusWidget()->objectName();
        QVERIFY2(focus != QLatin1String("Mini") && focus != QLatin1String("Quit"), nom);
    }
}

void tst_bureau::entreeEstAuBoutonPuisAuPrincipal()
{
    Seance s;
    s.demarrer();
    demander(s, Forme::Nom::Polices);
    auto taille = [] { return Seance::trouver<QTreeWidget>("Taille", "Polices"); };
    QTRY_VERIFY(visible("Polices") && taille()->currentItem());
    taille()->setCurrentItem(taille()->findItems(QStringLiteral("18"), Qt::MatchExactly).first());
    taille()->setFocus();
    QTest::keyClick(taille(), Qt::Key_Return);
    QCOMPARE(s.bac.reglages.nombre(Cle::FontSize), 18.0);
    auto *quitter = Seance::trouver<QPushButton>("Quit", "Polices");
    quitter->setFocus();
    QTest::keyClick(quitter, Qt::Key_Enter);
    QVERIFY(!visible("Polices"));

    // In a form with texts Enter is theirs.
    demander(s, Forme::Nom::Manuelle);
    QTRY_VERIFY(visible("Manuelle"));
    auto *titre = Seance::trouver<QWidget>("Titre", "Manuelle");
    QTRY_VERIFY(titre->hasFocus());
    QTest::keyClick(titre, Qt::Key_Return);
    QVERIFY(Seance::trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());
    QTest::keyClick(titre, Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(!Seance::trouver<QLabel>("Refus", "Manuelle")->text().isEmpty());
}

int main(int argc, char *argv[])
{
    return jouer<tst_bureau>(argc, argv);
}

#include "tst_bureau.moc"
