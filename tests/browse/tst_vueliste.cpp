#include "browse/VueListe.h"
#include "support/DesEntrees.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using General::Entree;
using General::Tri;

class tst_vueliste : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<VueListe> m_vue;
    std::unique_ptr<QSignalSpy> m_choisies;

    void cliquer(int id)
    {
        const QPoint la = m_vue->visualRect(m_vue->modele().indexDe(id)).center();
        QTest::mouseClick(m_vue->viewport(), Qt::LeftButton, {}, la);
    }
    /// The line that edits a label; nothing when none does.
    QLineEdit *saisie() const { return m_vue->findChild<QLineEdit *>(); }
    void nommer(const QString &texte, Qt::Key fin)
    {
        saisie()->setText(texte);
        QTest::keyClick(saisie(), fin);
        QTRY_VERIFY(!saisie());
    }
    /// The entries announced since it was last asked, once the event loop is empty.
    QList<int> annoncees()
    {
        QCoreApplication::processEvents();
        QList<int> ids;
        while (!m_choisies->isEmpty())
            ids << m_choisies->takeFirst()[0].value<Entree>().id;
        return ids;
    }

private Q_SLOTS:
    void init()
    {
        m_vue = std::make_unique<VueListe>("Liste");
        m_choisies = std::make_unique<QSignalSpy>(m_vue.get(), &VueListe::entreeChoisie);
        m_vue->remplir(Tri::Series, desEntrees({"un", "deux", "trois", "quatre"}));
        m_vue->resize(200, 300);
        m_vue->show();
        m_vue->activateWindow();
        m_vue->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_vue.get()));
        annoncees(); // the focus makes the first line current
    }

    void marcherNAnnonceQueLArrivee()
    {
        m_vue->choisir(1);
        QCOMPARE(annoncees(), QList<int>());
        QTest::keyClick(m_vue.get(), Qt::Key_Down);
        QTest::keyClick(m_vue.get(), Qt::Key_Down);
        QCOMPARE(annoncees(), QList<int>{3});
        // The sheet may be that of another list by now.
        cliquer(3);
        QCOMPARE(annoncees(), QList<int>{3});
    }

    void laSelectionRevientAvecSaLigne()
    {
        m_vue->choisir(2);
        m_vue->filtrer("tr");
        QCOMPARE(m_vue->choisie(), 0);
        m_vue->filtrer({});
        QCOMPARE(m_vue->choisie(), 2);
        m_vue->restreindre({1, 3});
        QCOMPARE(m_vue->choisie(), 0);
        // One that is hidden is still the one, whatever is filled in meanwhile.
        m_vue->remplir(Tri::Series, desEntrees({"un", "deux bis", "trois"}));
        m_vue->restreindre({});
        QCOMPARE(m_vue->choisie(), 2);
        QCOMPARE(annoncees(), QList<int>());
    }

    /// Nobody takes the place of one that is gone, unless he is shown, too.
    void celleQuiEstPartieLaisseSaPlace()
    {
        QSignalSpy suppressions(m_vue.get(), &VueListe::suppressionDemandee);
        m_vue->choisir(2);
        m_vue->remplir(Tri::Series, desEntrees({"un", "", "trois", "quatre"}));
        QVERIFY(m_vue->choisie() == 0 && m_vue->remplacante() == 3);
        QTest::keyClick(m_vue.get(), Qt::Key_F2);
        QTest::keyClick(m_vue.get(), Qt::Key_Delete);
        QVERIFY(!saisie() && suppressions.isEmpty());
        m_vue->remplir(Tri::Series, desEntrees({"un", "deux", "trois", "quatre"}));
        QCOMPARE(m_vue->choisie(), 2);
        m_vue->choisir(4);
        m_vue->remplir(Tri::Series, desEntrees({"un", "", "trois"}));
        QVERIFY(m_vue->choisie() == 0 && m_vue->remplacante() == 3);
        m_vue->remplir(Tri::Editeurs, desEntrees({"un", "deux", "trois", "quatre"}));
        QVERIFY(m_vue->choisie() == 0 && m_vue->remplacante() == 0);
        QCOMPARE(annoncees(), QList<int>());
    }

    void celleQuiChangeDePlaceResteEnVue()
    {
        QStringList noms;
        for (int i = 0; i < 200; ++i)
            noms << "nom";
        m_vue->remplir(Tri::Series, desEntrees(QStringList{"un"} + noms));
        m_vue->choisir(1);
        Entrees entrees;
        for (int i = 2; i <= 201; ++i)
            entrees.ajouter(i, "nom");
        entrees.ajouter(1, "zut");
        m_vue->remplir(Tri::Series, std::move(entrees));
        QCOMPARE(m_vue->choisie(), 1);
        QVERIFY(m_vue->viewport()->rect().contains(m_vue->visualRect(m_vue->currentIndex())));
    }

    void unNomSeDonneSurPlace()
    {
        QSignalSpy demandes(&m_vue->modele(), &ListeEntrees::renommageDemande);
        m_vue->choisir(2);
        QTest::keyClick(m_vue.get(), Qt::Key_F2);
        nommer("deux bis", Qt::Key_Return);
        QVERIFY(demandes.takeFirst()[1] == 2 && !m_vue->renommer(9) && m_vue->renommer(3));
        nommer("perdu", Qt::Key_Escape);
        QVERIFY(demandes.isEmpty());
        m_vue->choisir(2);
        for (const Qt::Key fin : {Qt::Key_Escape, Qt::Key_Return}) {
            m_vue->ajouter();
            QCOMPARE(m_vue->modele().rowCount(), 5);
            nommer("neuf", fin);
            QTRY_COMPARE(m_vue->modele().rowCount(), 4);
            QCOMPARE(m_vue->choisie(), 2);
            QCOMPARE(demandes.size(), fin == Qt::Key_Return ? 1 : 0);
        }
        QCOMPARE(demandes.takeFirst()[1], 0);
    }

    void lesCommandesPortentSurLaLigne()
    {
        QSignalSpy suppressions(m_vue.get(), &VueListe::suppressionDemandee);
        QSignalSpy menus(m_vue.get(), &VueListe::menuDemande);
        m_vue->setCurrentIndex({});
        QTest::keyClick(m_vue.get(), Qt::Key_Delete);
        QVERIFY(suppressions.isEmpty());
        m_vue->choisir(2);
        QTest::keyClick(m_vue.get(), Qt::Key_Delete);
        QVERIFY(suppressions.takeFirst()[0].value<Entree>() == (Entree{Tri::Series, 2}));
        const auto demander = [&](QContextMenuEvent::Reason raison, QPoint la) {
            QContextMenuEvent demande(raison, la, m_vue->mapToGlobal(la));
            QApplication::sendEvent(m_vue->viewport(), &demande);
            return menus.takeFirst()[0].value<Entree>().id;
        };
        QCOMPARE(demander(QContextMenuEvent::Keyboard, {}), 2);
        QCOMPARE(
            demander(QContextMenuEvent::Mouse, m_vue->visualRect(m_vue->modele().indexDe(3)).center()), 3);
        QCOMPARE(demander(QContextMenuEvent::Mouse, m_vue->viewport()->rect().bottomLeft()), 0);
    }
};

QTEST_MAIN(tst_vueliste)
#include "tst_vueliste.moc"
