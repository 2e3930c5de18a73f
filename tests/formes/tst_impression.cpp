#include "core/Traduction.h"
#include "support/Seance.h"

#include <QAbstractButton>
#include <QDialog>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

namespace {

constexpr auto Ici = "Impression";

void afficher()
{
    Seance::cliquer("Menu(3)");
    QTRY_VERIFY(Seance::fenetre(Ici) && Seance::trouver<QTableWidget>("Exemple", Ici)->rowCount() > 0);
}

qsizetype lignes(const QByteArray &octets)
{
    return octets.count('\n');
}

}

/// Lists into files, and charts that lead to their albums.
class tst_impression : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void laListeAfficheeVaDansUnFichier()
    {
        Ouverte s;
        auto *liste = trouver<QAbstractItemView>("Liste");
        const int tous = liste->model()->rowCount();
        ecrire("Filtre", "bécassine", "Frmmain");
        const int montres = liste->model()->rowCount();
        QVERIFY(texteDe("Nombre").endsWith(QString("%1 / %2").arg(montres).arg(tous)));
        afficher();
        cliquer("Portee(1)", Ici);
        cliquer("Aucune", Ici);
        QVERIFY(!trouver<QAbstractButton>("Csv", Ici)->isEnabled());
        trouver<QAbstractButton>("Colonnes(0)", Ici)->click();
        trouver<QAbstractButton>("Colonnes(2)", Ici)->click();
        QCOMPARE(trouver<QTableWidget>("Exemple", Ici)->columnCount(), 2);

        for (const auto &[bouton, nom, debut] :
            {std::tuple("Csv", "l.csv", "\xEF\xBB\xBFTitre Album,Titre S"),
                {"Html", "l.html", "<!DOCTYPE html>"}, {"Texte", "l.txt", "Liste des Albums"},
                {"Pdf", "l", "%PDF"}}) {
            const QString chemin = s.bac.chemin(QLatin1String(nom));
            s.boites.fichiers.enqueue(chemin);
            cliquer(bouton, Ici);
            const bool sansSuffixe = qstrcmp(nom, "l") == 0;
            QVERIFY2(
                Bac::lire(sansSuffixe ? chemin + QStringLiteral(".pdf") : chemin).startsWith(debut), bouton);
        }
        QCOMPARE(lignes(Bac::lire(s.bac.chemin("l.csv"))), montres + 1);
        QVERIFY(trouver<QLabel>("Message", Ici)->text().contains("l.pdf"));

        // The choice of columns stays, for this kind of sheet; another kind offers its own.
        cliquer("Quit", Ici);
        cliquer("Tris(7)");
        afficher();
        QTRY_VERIFY(trouver<QAbstractButton>("Portee(1)", Ici)->text().contains(texte(Txt::Editeurs)));
        QVERIFY(trouver<QTableWidget>("Exemple", Ici)->columnCount() > 2);
        QVERIFY(!trouver<QAbstractButton>("TriImp(0)", Ici)->isEnabled());
        cliquer("Portee(0)", Ici);
        QCOMPARE(trouver<QTableWidget>("Exemple", Ici)->columnCount(), 2);
        cliquer("Portee(2)", Ici);
        QCOMPARE(trouver<QTableWidget>("Exemple", Ici)->item(0, 1)->text(),
            liste->currentIndex().data().toString());
        QVERIFY(s.boites.textes.isEmpty());
    }

    void lApercuSOuvre()
    {
        Ouverte s;
        afficher();
        bool vu = false;
        QTimer guetteur;
        connect(&guetteur, &QTimer::timeout, this, [&] {
            auto *dialogue = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialogue)
                return;
            vu = vu || dialogue->objectName() == QLatin1String("DialogueApercu");
            dialogue->reject();
        });
        guetteur.start(100);
        cliquer("Apercu", Ici);
        QVERIFY(vu);
    }

    void unePartMontreSesAlbums()
    {
        Ouverte s;
        auto *liste = trouver<QAbstractItemView>("Liste");
        const int tous = liste->model()->rowCount();
        ouvrir("Menu(3)", "Outils(0)", "Stats");
        QTRY_COMPARE(trouver<QLabel>("Total(0)", "Stats")->text(), QString::number(tous));
        QVERIFY(!trouver<QWidget>("Ensemble", "Stats")->accessibleName().isEmpty());
        trouver<QTabWidget>("Onglets", "Stats")->setCurrentIndex(2);
        auto *genres = trouver<QWidget>("Graphique(0)", "Stats");
        QTRY_VERIFY(!genres->accessibleName().isEmpty());
        QTest::keyClick(genres, Qt::Key_Down);
        QTest::keyClick(genres, Qt::Key_Return);
        const int albums = Bac::valeur(QStringLiteral("SELECT count(*) FROM GenreAlbums GROUP BY NGenre"
                                                      " ORDER BY 1 DESC LIMIT 1"))
                               .toInt();
        QCOMPARE(liste->model()->rowCount(), albums);
        auto *selection = trouver<QAbstractButton>("Selection");
        QVERIFY(selection->isVisible());
        const QString nomme = selection->text();
        Q_EMIT s.demandes().langue("English.lng");
        QTRY_VERIFY(selection->text() != nomme);
        // The narrowing holds while the list is refilled, and goes with a click, or for an entry that it hides.
        QSignalSpy remplie(liste->model(), &QAbstractItemModel::modelReset);
        Bac::agir("UPDATE LAlbums SET TAlbum = 'Ailleurs' WHERE NAlbum = 1");
        QVERIFY(!remplie.isEmpty() || remplie.wait());
        QCOMPARE(liste->model()->rowCount(), albums);
        cliquer("Selection");
        QCOMPARE(liste->model()->rowCount(), tous);
        QVERIFY(!selection->isVisible());
    }
};

JOUER(tst_impression)
#include "tst_impression.moc"
