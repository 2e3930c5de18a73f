#include "core/ui/Suivi.h"
#include "support/EcrivainJet.h"
#include "support/Seance.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>

/// Backups put back, old collections taken up, damaged ones met at the start, albums from a file.
class tst_archives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneSauvegardeSeReprend();
    void unFichierDAlbumsEntre();
    void unLongTravailNeLaissePasPasserLeClavier();
    void uneAncienneBaseSeReprendAuDepart();
    void uneAncienneBaseAbimeeResteLa();
    void uneBaseAbimeeRendLaDerniereSauvegarde();
};

namespace {

constexpr auto Ici = "Restauration";

QString message()
{
    return Seance::trouver<QLabel>("Message", Ici)->text();
}

/// The program as it starts on a file that was put in the place of its collection.
void demarrerSur(Seance &s, const QByteArray &octets)
{
    Bac::ecrire(s.bac.collection(), octets);
    s.bureau = std::make_unique<Bureau>(Options());
    s.bureau->demarrer();
}

}

void tst_archives::uneSauvegardeSeReprend()
{
    Seance s;
    s.demarrer();
    const QStringList avant = Bac::toutLire();
    Bac::agir(QStringLiteral("UPDATE LAlbums SET TAlbum = 'Changé' WHERE NAlbum = 1"));
    QTest::qWait(50);
    Seance::cliquer("Menu(0)");
    Seance::cliquer("Outils(5)", "Splash");
    QTRY_VERIFY(Seance::fenetre(Ici));
    auto *liste = Seance::trouver<QTreeWidget>("Sauvegardes", Ici);
    QTRY_COMPARE(liste->topLevelItemCount(), 1);
    Seance::cliquer("Valider", Ici);
    QVERIFY(Bac::toutLire() != avant);
    s.boites.reponses.enqueue(true);
    Seance::cliquer("Valider", Ici);
    QCOMPARE(Bac::toutLire(), avant);
    QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
    QTRY_COMPARE(liste->topLevelItemCount(), 2);
    auto *albums = Seance::trouver<QAbstractItemView>("Liste");
    QTRY_COMPARE(albums->model()
                     ->match(albums->model()->index(0, 0), Qt::DisplayRole, QStringLiteral("Changé"))
                     .size(),
        0);
    QVERIFY(!Seance::trouver<QWidget>("Defaire")->isEnabled());

    Bac::ecrire(s.bac.chemin(QStringLiteral("autre.mdb")), "un texte");
    s.boites.fichiers.enqueue(s.bac.chemin(QStringLiteral("autre.mdb")));
    Seance::cliquer("Choisir", Ici);
    QCOMPARE(liste->topLevelItemCount(), 2);
    QVERIFY(Seance::trouver<QLabel>("Message", Ici)->text().contains(QStringLiteral("Bulleo")));
}

void tst_archives::unFichierDAlbumsEntre()
{
    Seance s;
    s.demarrer();
    const QString csv = s.bac.chemin(QStringLiteral("albums.csv"));
    Bac::ecrire(csv,
        "Titre;Tome;S\xC3\xA9rie\nUn \xC3\xA9"
        "chappé;1;Neuve\nDeux;x;Neuve\nTrois;3;Neuve\n");
    Q_EMIT s.demandes().fichier(csv);
    QTRY_VERIFY(Seance::fenetre("Import"));
    QTRY_COMPARE(
        Seance::trouver<QComboBox>("Correspondance(2)", "Import")->currentText(), QStringLiteral("Série"));
    Seance::cliquer("Valider", "Import");
    QCOMPARE(
        Bac::valeur(QStringLiteral("SELECT count(*) FROM SerieAlbums NATURAL JOIN Serie WHERE Nom = 'Neuve'"))
            .toInt(),
        2);
    QTRY_VERIFY(Seance::trouver<QWidget>("Defaire")->isEnabled());
    Seance::cliquer("Defaire");
    QCOMPARE(Bac::valeur(QStringLiteral("SELECT count(*) FROM Serie WHERE Nom = 'Neuve'")).toInt(), 0);
}

void tst_archives::unLongTravailNeLaissePasPasserLeClavier()
{
    Seance s;
    s.demarrer();
    const auto titre = [] {
        return Bac::valeur(QStringLiteral("SELECT TAlbum FROM LAlbums WHERE NAlbum = 1")).toString();
    };
    Bac::agir(QStringLiteral("UPDATE LAlbums SET TAlbum = 'Changé' WHERE NAlbum = 1"));
    QTRY_VERIFY(Seance::trouver<QWidget>("Defaire")->isEnabled());
    Seance::fenetre("Frmmain")->activateWindow();
    QTRY_VERIFY(Seance::fenetre("Frmmain")->isActiveWindow());
    {
        QProgressBar barre(Seance::fenetre("Frmmain"));
        QPushButton annuler(Seance::fenetre("Frmmain"));
        Suivi suivi(&barre, &annuler);
        QTest::keyClick(Seance::fenetre("Frmmain"), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(suivi.avancer(50));
        QCOMPARE(titre(), QStringLiteral("Changé"));
    }
    QTest::keyClick(Seance::fenetre("Frmmain"), Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(titre() != QStringLiteral("Changé"));
}

void tst_archives::uneAncienneBaseSeReprendAuDepart()
{
    constexpr int Albums = 40;
    Seance s;
    const QByteArray ancienne = EcrivainJet::UneCollection(Albums);
    demarrerSur(s, ancienne);
    QTRY_VERIFY(Seance::fenetre(Ici) && Seance::trouver<QAbstractButton>("Valider", Ici)->isEnabled());
    Seance::cliquer("Valider", Ici);
    QCOMPARE(Bac::lire(s.bac.collection()), ancienne);
    s.boites.reponses.enqueue(true);
    Seance::cliquer("Valider", Ici);
    QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
    QTRY_COMPARE(Seance::trouver<QAbstractItemView>("Liste")->model()->rowCount(), Albums);
    QTRY_VERIFY(!Seance::texteDe("TAlbum").isEmpty());
    QCOMPARE(Bac::lire(s.bac.chemin(QStringLiteral("bd-ancien.mdb"))), ancienne);
    const QString rapport = Seance::trouver<QPlainTextEdit>("Rapport", Ici)->toPlainText();
    QVERIFY2(rapport.contains(QStringLiteral("LAlbums : %1").arg(Albums)), qPrintable(rapport));
}

void tst_archives::uneAncienneBaseAbimeeResteLa()
{
    Seance s;
    const QByteArray coupee = EcrivainJet::UneCollection(40).chopped(5000);
    demarrerSur(s, coupee);
    QTRY_VERIFY(Seance::fenetre(Ici) && Seance::trouver<QAbstractButton>("Valider", Ici)->isEnabled());
    const QStringList avant = QDir(s.bac.chemin()).entryList(QDir::AllEntries | QDir::Hidden);
    s.boites.reponses.enqueue(true);
    Seance::cliquer("Valider", Ici);
    QVERIFY2(message().contains(QStringLiteral("abîmée")), qPrintable(message()));
    QCOMPARE(Bac::lire(s.bac.collection()), coupee);
    QCOMPARE(QDir(s.bac.chemin()).entryList(QDir::AllEntries | QDir::Hidden), avant);
}

void tst_archives::uneBaseAbimeeRendLaDerniereSauvegarde()
{
    Seance s;
    const QByteArray saine = Bac::lire(s.bac.collection());
    QByteArray abimee = saine;
    abimee.replace(8192, saine.size() - 8192, QByteArray(saine.size() - 8192, 'x'));
    QVERIFY(QDir(s.bac.chemin()).mkdir(QStringLiteral("sauvegardes")));
    Bac::ecrire(s.bac.chemin(QStringLiteral("sauvegardes/bd 2026-01-02 03-04-05.bd")), saine);
    Bac::ecrire(s.bac.chemin(QStringLiteral("sauvegardes/bd 2026-01-03 03-04-05.bd")), abimee);
    // The lock of a process that is no more.
    Bac::ecrire(s.bac.chemin(QStringLiteral(".bulleo.lock")), "999999999\nbulleo\n");
    QVERIFY(s.bac.dossier.verrouiller() && s.bac.dossier.finBrutale());
    s.boites.reponses.enqueue(true);
    demarrerSur(s, abimee);
    QTRY_VERIFY(!Seance::texteDe("TAlbum").isEmpty());
    QVERIFY2(
        s.boites.textes.first().contains(QStringLiteral("02/01/2026")), qPrintable(s.boites.textes.first()));
    QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
    QCOMPARE(QDir(s.bac.chemin()).entryList({QStringLiteral("bd abîmée*")}).size(), 1);
}

int main(int argc, char *argv[])
{
    return jouer<tst_archives>(argc, argv);
}

#include "tst_archives.moc"
