#include "core/Dates.h"
#include "formes/Menus.h"

#include <QClipboard>

/// Loans: from their form, and from the menu of an album.
class tst_emprunteurs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesPretsSeRendentEtSeFont()
    {
        Menus m;
        m.montrer("Gédéon");
        m.ouvrir("Menu(3)", "Outils(3)", "Pret");
        auto *gens = m.trouver<QTreeView>("LPers", "Pret");
        auto *prets = m.trouver<QTreeView>("LPret", "Pret");
        auto *del = m.trouver<QAbstractButton>("Del", "Pret");
        // Asks for it, first in vain.
        const auto supprimer = [&](Txt question, QTreeView *liste, const QString &apres) {
            const QString avant = m.lignes(liste);
            m.boites.reponses << false << true;
            del->click();
            QCOMPARE(m.lignes(liste), avant);
            del->click();
            QTRY_COMPARE(m.lignes(liste), apres);
            const QString posee = m.boites.textes.takeLast();
            QVERIFY2(posee.startsWith(texte(question)), qPrintable(posee));
            // Who still has something is not deleted unawares.
            QCOMPARE(posee != texte(question), question == Txt::RetirerCettePersonne);
        };
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 4");
        QCOMPARE(prets->model()->rowCount(), 7);
        QVERIFY(!del->isEnabled());
        m.cliquerLigne(gens, 2);
        QCOMPARE(m.lignes(prets), "85 110");
        m.cliquerLigne(prets, 0);
        supprimer(Txt::RetirerCePret, prets, "110");
        QCOMPARE(gens->currentIndex().row(), 2);
        m.cliquerLigne(gens, 1);
        supprimer(Txt::RetirerCettePersonne, gens, "3 1 5 4");
        m.cliquer("Tous", "Pret");
        QVERIFY(m.lignes(prets).split(u' ').contains("66"));

        m.cliquer("Preter", "Pret");
        QTRY_VERIFY(m.visible("FrmModif"));
        m.ecrire("Saisie", "Petitjean", "FrmModif");
        QTest::keyClick(m.trouver<QLineEdit>("Saisie", "FrmModif"), Qt::Key_Return);
        QTRY_VERIFY(!m.visible("FrmModif"));
        QCOMPARE(Bac::valeur("SELECT NPret || ' ' || DPret FROM Album WHERE Num = 101").toString(),
            "5 " + Dates::Ecrire(QDate::currentDate()));
        QTRY_VERIFY(m.lignes(prets).split(u' ').contains("101"));
        // To the person chosen; from one to another only when that is agreed to.
        const auto qui = [] { return Bac::valeur("SELECT NPret FROM Album WHERE Num = 101").toInt(); };
        m.boites.textes.clear();
        for (const int emprunteur : {5, 3}) {
            m.cliquerLigne(gens, emprunteur == 5 ? 2 : 0);
            m.boites.reponses << false << true;
            m.cliquer("Preter", "Pret");
            QCOMPARE(qui(), 5);
            m.cliquer("Preter", "Pret");
            QCOMPARE(qui(), emprunteur);
            QVERIFY(!m.visible("FrmModif"));
        }
        QCOMPARE(m.boites.textes.size(), 2);
        QVERIFY2(m.boites.textes[0].contains("Petitjean"), qPrintable(m.boites.textes[0]));
        m.trier(1);
        QVERIFY(!m.trouver<QAbstractButton>("Preter", "Pret")->isEnabled());

        // The menu of an album does the same.
        m.trier(0);
        m.montrer("Gédéon");
        const QString autres = " copier supprime crea Payss quitter";
        QCOMPARE(m.touche(), "LL modifie rendre" + autres);
        m.prendre("copier");
        QCOMPARE(QApplication::clipboard()->text(), "Gédéon");
        m.touche();
        m.prendre("rendre");
        QCOMPARE(Bac::valeur("SELECT NPret FROM Album WHERE Num = 101"), 0);
        QTRY_COMPARE(m.touche(), "LL modifie preter" + autres);
        m.prendre("preter");
        QTRY_VERIFY(m.visible("FrmModif"));
    }

    void lesEmprunteursSeTiennentAJour()
    {
        Menus m;
        m.ouvrir("Menu(3)", "Outils(3)", "Pret");
        auto *gens = m.trouver<QTreeView>("LPers", "Pret");
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 4");
        const auto saisir = [](const QString &texte, Qt::Key fin) {
            auto *editeur = qobject_cast<QLineEdit *>(QApplication::focusWidget());
            QVERIFY(editeur);
            editeur->clear();
            Gestes::taper(editeur, texte);
            QTest::keyClick(editeur, fin);
        };
        const auto lire = [](int id) {
            return Bac::valeur(QStringLiteral("SELECT Nom || '/' || Prenom || '/' || Tel FROM Pret"
                                              " WHERE NPret = %1")
                                   .arg(id))
                .toString();
        };
        // A second one of that name; what is typed goes from cell to cell.
        m.cliquer("AjouterPersonne", "Pret");
        saisir("Petitjean", Qt::Key_Tab);
        QTRY_VERIFY(lire(6).startsWith("Petitjean/"));
        saisir("Jeanne", Qt::Key_Tab);
        saisir("06  12", Qt::Key_Return);
        QTRY_COMPARE(lire(6), "Petitjean/Jeanne/06 12");
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 6 4");
        // Renamed, he stays the one chosen; a name that is emptied comes back.
        const QString avant = lire(6);
        QCOMPARE(gens->currentIndex().row(), 4);
        gens->setCurrentIndex(gens->currentIndex().siblingAtColumn(0));
        for (const auto &[nom, apres] : {std::pair(" ", avant), {"Zut", QString("Zut/Jeanne/06 12")}}) {
            QTest::keyClick(gens, Qt::Key_F2);
            saisir(nom, Qt::Key_Return);
            QTRY_VERIFY(gens->hasFocus());
            QTRY_COMPARE(gens->currentIndex().data().toString(), apres.section('/', 0, 0));
            QTRY_COMPARE(lire(6), apres);
        }
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 4 6");
        QCOMPARE(gens->currentIndex().row(), 5);
        // One that was given no name was never there.
        m.cliquer("AjouterPersonne", "Pret");
        saisir("Nul", Qt::Key_Escape);
        QTRY_COMPARE(gens->model()->rowCount(), 6);
        // Days are numbers: 9 before 10, none before all.
        auto *prets = m.trouver<QTreeView>("LPret", "Pret");
        m.cliquer("Tous", "Pret");
        prets->sortByColumn(1, Qt::AscendingOrder);
        int jours = -1;
        for (int ligne = 0; ligne < prets->model()->rowCount(); ++ligne) {
            const int ceux = prets->model()->index(ligne, 1).data().toString().section(' ', 0, 0).toInt();
            QVERIFY(ceux >= jours);
            jours = ceux;
        }
        QVERIFY(jours > 9);
    }
};

JOUER(tst_emprunteurs)
#include "tst_emprunteurs.moc"
