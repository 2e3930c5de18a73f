#include "model/ListeEntrees.h"
#include "support/DesEntrees.h"

#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

using General::Tri;

class tst_listeentrees : public QObject
{
    Q_OBJECT

private:
    ListeEntrees m_modele;

    QString visibles() const
    {
        QStringList ids;
        for (const int id : m_modele.visibles())
            ids << QString::number(id);
        return ids.join(u' ');
    }

private Q_SLOTS:
    void init()
    {
        m_modele.filtrer({});
        m_modele.restreindre({});
        m_modele.remplir(Tri::Albums, desEntrees({"Écume", "Edgar", "L'été d'Edgar", "Mœurs"}));
    }

    void filtreEtRestrictionSeCroisent()
    {
        m_modele.filtrer(" EDGAR ");
        QCOMPARE(visibles(), "2 3");
        m_modele.restreindre({99, 4, 3});
        QCOMPARE(visibles(), "3");
        QVERIFY(!m_modele.indexDe(2).isValid());
        QCOMPARE(m_modele.indexDe(3).row(), 0);
        QCOMPARE(m_modele.id(m_modele.index(0)), 3);
        QCOMPARE(m_modele.indexDe(3).data(Qt::UserRole), "N 3");
        m_modele.filtrer("  ");
        QCOMPARE(visibles(), "3 4");
        m_modele.filtrer("oeu");
        QCOMPARE(visibles(), "4");
        m_modele.filtrer("zzz");
        QCOMPARE(m_modele.rowCount(), 0);
        m_modele.restreindre({});
        m_modele.filtrer("ecu");
        QCOMPARE(visibles(), "1");
        // Other entries come in under the same filter, by their own texts.
        m_modele.remplir(Tri::Series, desEntrees({"Zut", "Reculer", "a", "b"}));
        QCOMPARE(visibles(), "2");
        m_modele.filtrer({});
        QCOMPARE(visibles(), "1 2 3 4");
    }

    void uneLigneNeuveAttendSonNom()
    {
        QSignalSpy demandes(&m_modele, &ListeEntrees::renommageDemande);
        m_modele.filtrer("edgar");
        const QModelIndex neuve = m_modele.ouvrirNeuve();
        QCOMPARE(m_modele.ouvrirNeuve(), neuve);
        QCOMPARE(m_modele.rowCount(), 3);
        QVERIFY(neuve.row() == 2 && m_modele.id(neuve) == 0 && neuve.data().toString().isEmpty());
        QCOMPARE(visibles(), "2 3");
        QVERIFY(m_modele.setData(neuve, "Zut", Qt::EditRole));
        QCOMPARE(demandes.takeFirst()[1], 0);
        m_modele.fermerNeuve();
        QCOMPARE(m_modele.rowCount(), 2);
        m_modele.ouvrirNeuve();
        init();
        QCOMPARE(m_modele.rowCount(), 4);
    }

    /// An edited label is a wish: the line changes when the collection does.
    void unLibelleChangeEstUnVoeu()
    {
        QSignalSpy demandes(&m_modele, &ListeEntrees::renommageDemande);
        const QModelIndex ecume = m_modele.indexDe(1);
        QVERIFY(!m_modele.setData(ecume, "Écume", Qt::EditRole));
        QVERIFY(m_modele.setData(ecume, "Mousse", Qt::EditRole));
        QCOMPARE(demandes.size(), 1);
        QCOMPARE(demandes[0][2], "Mousse");
        QCOMPARE(ecume.data(), "Écume");
    }

    void seulUnAlbumPreteEstMarque()
    {
        const QIcon simple(QPixmap(1, 1));
        const QIcon pretee(QPixmap(2, 2));
        const auto marque = [&](int id) {
            return m_modele.indexDe(id).data(Qt::DecorationRole).value<QIcon>().cacheKey()
                == pretee.cacheKey();
        };
        m_modele.poserIcones(simple, pretee);
        m_modele.poserPretes({2, 3});
        m_modele.filtrer("edgar"); // the number counts, not the line
        QVERIFY(marque(2) && marque(3));
        m_modele.filtrer({});
        QVERIFY(!marque(1) && marque(2) && !m_modele.indexDe(99).isValid());
        m_modele.remplir(Tri::Series, desEntrees({"a", "b"}));
        QVERIFY(!marque(2));
    }
};

QTEST_MAIN(tst_listeentrees)
#include "tst_listeentrees.moc"
