#include "core/Traduction.h"
#include "support/Seance.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

/// Lists into files, and charts that lead to their albums.
class tst_impression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laListeAfficheeVaDansUnFichier();
    void lApercuSOuvre();
    void unePartMontreSesAlbums();
};

namespace {

constexpr auto Ici = "Impression";

void ouvrir(const Seance &)
{
    Seance::cliquer("Menu(3)");
    QTRY_VERIFY(Seance::fenetre(Ici) && Seance::trouver<QTableWidget>("Exemple", Ici)->rowCount() > 0);
}

qsizetype lignes(const QByteArray &octets)
{
    return octets.count('\n');
}

}

void tst_impression::laListeAfficheeVaDansUnFichier()
{
    Seance s;
    s.demarrer();
    auto *liste = Seance::trouver<QAbstractItemView>("Liste");
    Seance::ecrire("Filtre", QStringLiteral("bécassine"), "Frmmain");
    const int montres = liste->model()->rowCount();
    QVERIFY(montres > 2);
    ouvrir(s);
    Seance::cliquer("Portee(1)", Ici);
    Seance::cliquer("Aucune", Ici);
    QVERIFY(!Seance::trouver<QAbstractButton>("Csv", Ici)->isEnabled());
    Seance::trouver<QAbstractButton>("Colonnes(0)", Ici)->click();
    Seance::trouver<QAbstractButton>("Colonnes(2)", Ici)->click();
    QCOMPARE(Seance::trouver<QTableWidget>("Exemple", Ici)->columnCount(), 2);

    for (const auto &[bouton, nom, debut] :
        {std::tuple("Csv", "l.csv", "\xEF\xBB\xBFTitre Album,Titre S"), {"Html", "l.html", "<!DOCTYPE html>"},
            {"Texte", "l.txt", "Liste des Albums"}, {"Pdf", "l", "%PDF"}}) {
        const QString chemin = s.bac.chemin(QLatin1String(nom));
        s.boites.fichiers.enqueue(chemin);
        Seance::cliquer(bouton, Ici);
        const bool sansSuffixe = qstrcmp(nom, "l") == 0;
        QVERIFY2(Bac::lire(sansSuffixe ? chemin + QStringLiteral(".pdf") : chemin).startsWith(debut), bouton);
    }
    QCOMPARE(lignes(Bac::lire(s.bac.chemin(QStringLiteral("l.csv")))), montres + 1);
    QVERIFY(Seance::trouver<QLabel>("Message", Ici)->text().contains(QStringLiteral("l.pdf")));

    // The choice of columns stays, for this kind of sheet; another kind offers its own.
    Seance::cliquer("Quit", Ici);
    Seance::cliquer("Tris(7)");
    ouvrir(s);
    QTRY_VERIFY(Seance::trouver<QAbstractButton>("Portee(1)", Ici)->text().contains(texte(Txt::Editeurs)));
    QVERIFY(Seance::trouver<QTableWidget>("Exemple", Ici)->columnCount() > 2);
    QVERIFY(!Seance::trouver<QAbstractButton>("TriImp(0)", Ici)->isEnabled());
    Seance::cliquer("Portee(0)", Ici);
    QCOMPARE(Seance::trouver<QTableWidget>("Exemple", Ici)->columnCount(), 2);
    Seance::cliquer("Portee(2)", Ici);
    QCOMPARE(Seance::trouver<QTableWidget>("Exemple", Ici)->item(0, 1)->text(),
        liste->currentIndex().data().toString());
    QVERIFY(s.boites.textes.isEmpty());
}

void tst_impression::lApercuSOuvre()
{
    Seance s;
    s.demarrer();
    ouvrir(s);
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
    Seance::cliquer("Apercu", Ici);
    QVERIFY(vu);
}

void tst_impression::unePartMontreSesAlbums()
{
    Seance s;
    s.demarrer();
    auto *liste = Seance::trouver<QAbstractItemView>("Liste");
    const int tous = liste->model()->rowCount();
    const QString debut = liste->currentIndex().data().toString();
    Seance::cliquer("Menu(0)");
    Seance::cliquer("Outils(0)", "Splash");
    QTRY_VERIFY(Seance::fenetre("Stats"));
    auto *onglets = Seance::trouver<QTabWidget>("Onglets", "Stats");
    onglets->setCurrentIndex(1);
    auto *genres = Seance::trouver<QWidget>("Graphique(0)", "Stats");
    QTRY_VERIFY(!genres->accessibleName().isEmpty());
    QTest::keyClick(genres, Qt::Key_Down);
    QTest::keyClick(genres, Qt::Key_Return);
    const int albums = Bac::valeur(QStringLiteral("SELECT count(*) FROM GenreAlbums GROUP BY NGenre"
                                                  " ORDER BY 1 DESC LIMIT 1"))
                           .toInt();
    QCOMPARE(liste->model()->rowCount(), albums);
    auto *selection = Seance::trouver<QAbstractButton>("Selection");
    QVERIFY(selection->isVisible());
    // The narrowing holds while the list is refilled, and goes with a click, or for an entry that it hides.
    Bac::agir(QStringLiteral("UPDATE LAlbums SET TAlbum = 'Ailleurs' WHERE NAlbum = 1"));
    QTest::qWait(50);
    QCOMPARE(liste->model()->rowCount(), albums);
    Seance::cliquer("Selection");
    QCOMPARE(liste->model()->rowCount(), tous);
    QVERIFY(!selection->isVisible());
}

int main(int argc, char *argv[])
{
    return jouer<tst_impression>(argc, argv);
}

#include "tst_impression.moc"
