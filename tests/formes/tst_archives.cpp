#include "browse/Frmmain.h"
#include "core/ui/Suivi.h"
#include "support/EcrivainJet.h"
#include "support/Seance.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>

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

/// Backups put back, old collections taken up, damaged ones met at the start, albums from a file.
class tst_archives : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void uneSauvegardeSeReprend()
    {
        Ouverte s;
        const QStringList avant = Bac::toutLire();
        Bac::agir("UPDATE LAlbums SET TAlbum = 'Changé' WHERE NAlbum = 1");
        QTest::qWait(50);
        cliquer("Menu(0)");
        cliquer("Outils(5)", "Splash");
        QTRY_VERIFY(fenetre(Ici));
        auto *liste = trouver<QTreeWidget>("Sauvegardes", Ici);
        QTRY_COMPARE(liste->topLevelItemCount(), 1);
        cliquer("Valider", Ici);
        QVERIFY(Bac::toutLire() != avant);
        s.boites.reponses.enqueue(true);
        cliquer("Valider", Ici);
        QCOMPARE(Bac::toutLire(), avant);
        QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
        QTRY_COMPARE(liste->topLevelItemCount(), 2);
        auto *albums = trouver<QAbstractItemView>("Liste");
        QTRY_COMPARE(
            albums->model()->match(albums->model()->index(0, 0), Qt::DisplayRole, "Changé").size(), 0);
        QVERIFY(!trouver<QWidget>("Defaire")->isEnabled());

        Bac::ecrire(s.bac.chemin("autre.mdb"), "un texte");
        s.boites.fichiers.enqueue(s.bac.chemin("autre.mdb"));
        cliquer("Choisir", Ici);
        QCOMPARE(liste->topLevelItemCount(), 2);
        QVERIFY(trouver<QLabel>("Message", Ici)->text().contains("Bulleo"));
    }

    void unFichierDAlbumsEntre()
    {
        Ouverte s;
        const QString csv = s.bac.chemin("albums.csv");
        Bac::ecrire(csv,
            "Titre;Tome;S\xC3\xA9rie\nUn \xC3\xA9"
            "chappé;1;Neuve\nDeux;x;Neuve\nTrois;3;Neuve\n");
        Q_EMIT s.demandes().fichier(csv);
        QTRY_VERIFY(fenetre("Import"));
        QTRY_COMPARE(trouver<QComboBox>("Correspondance(2)", "Import")->currentText(), "Série");
        cliquer("Valider", "Import");
        QCOMPARE(
            Bac::valeur("SELECT count(*) FROM SerieAlbums NATURAL JOIN Serie WHERE Nom = 'Neuve'").toInt(),
            2);
        QTRY_VERIFY(trouver<QWidget>("Defaire")->isEnabled());
        cliquer("Defaire");
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Serie WHERE Nom = 'Neuve'").toInt(), 0);
    }

    void unLongTravailNeLaissePasPasserLeClavier()
    {
        Ouverte s;
        const auto titre
            = [] { return Bac::valeur("SELECT TAlbum FROM LAlbums WHERE NAlbum = 1").toString(); };
        Bac::agir("UPDATE LAlbums SET TAlbum = 'Changé' WHERE NAlbum = 1");
        QTRY_VERIFY(trouver<QWidget>("Defaire")->isEnabled());
        fenetre("Frmmain")->activateWindow();
        QTRY_VERIFY(fenetre("Frmmain")->isActiveWindow());
        {
            QProgressBar barre(fenetre("Frmmain"));
            QPushButton annuler(fenetre("Frmmain"));
            Suivi suivi(&barre, &annuler);
            QTest::keyClick(fenetre("Frmmain"), Qt::Key_Z, Qt::ControlModifier);
            QVERIFY(suivi.avancer(50));
            QCOMPARE(titre(), "Changé");
        }
        QTest::keyClick(fenetre("Frmmain"), Qt::Key_Z, Qt::ControlModifier);
        QTRY_VERIFY(titre() != QStringLiteral("Changé"));
    }

    void uneAncienneBaseSeReprendAuDepart()
    {
        constexpr int Albums = 40;
        Seance s;
        const QByteArray ancienne = EcrivainJet::UneCollection(Albums);
        demarrerSur(s, ancienne);
        QTRY_VERIFY(fenetre(Ici) && trouver<QAbstractButton>("Valider", Ici)->isEnabled());
        cliquer("Valider", Ici);
        QCOMPARE(Bac::lire(s.bac.collection()), ancienne);
        s.boites.reponses.enqueue(true);
        cliquer("Valider", Ici);
        QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
        QTRY_COMPARE(trouver<QAbstractItemView>("Liste")->model()->rowCount(), Albums);
        QTRY_VERIFY(!texteDe("TAlbum").isEmpty());
        QCOMPARE(Bac::lire(s.bac.chemin("bd-ancien.mdb")), ancienne);
        const QString rapport = trouver<QPlainTextEdit>("Rapport", Ici)->toPlainText();
        QVERIFY2(rapport.contains(QStringLiteral("LAlbums : %1").arg(Albums)), qPrintable(rapport));
    }

    void uneAncienneBaseAbimeeResteLa()
    {
        Seance s;
        const QByteArray coupee = EcrivainJet::UneCollection(40).chopped(5000);
        demarrerSur(s, coupee);
        QTRY_VERIFY(fenetre(Ici) && trouver<QAbstractButton>("Valider", Ici)->isEnabled());
        const QStringList avant = QDir(s.bac.chemin()).entryList(QDir::AllEntries | QDir::Hidden);
        s.boites.reponses.enqueue(true);
        cliquer("Valider", Ici);
        QVERIFY2(message().contains("abîmée"), qPrintable(message()));
        QCOMPARE(Bac::lire(s.bac.collection()), coupee);
        QCOMPARE(QDir(s.bac.chemin()).entryList(QDir::AllEntries | QDir::Hidden), avant);
    }

    void uneBaseAbimeeRendLaDerniereSauvegarde()
    {
        Seance s;
        const QByteArray saine = Bac::lire(s.bac.collection());
        QByteArray abimee = saine;
        abimee.replace(8192, saine.size() - 8192, QByteArray(saine.size() - 8192, 'x'));
        QVERIFY(QDir(s.bac.chemin()).mkdir("sauvegardes"));
        Bac::ecrire(s.bac.chemin("sauvegardes/bd 2026-01-02 03-04-05.bd"), saine);
        Bac::ecrire(s.bac.chemin("sauvegardes/bd 2026-01-03 03-04-05.bd"), abimee);
        // The lock of a process that is no more.
        Bac::ecrire(s.bac.chemin(".bulleo.lock"), "999999999\nbulleo\n");
        QVERIFY(s.bac.dossier.verrouiller() && s.bac.dossier.finBrutale());
        s.boites.reponses.enqueue(true);
        demarrerSur(s, abimee);
        QTRY_VERIFY(!texteDe("TAlbum").isEmpty());
        QVERIFY2(s.boites.textes.first().contains("02/01/2026"), qPrintable(s.boites.textes.first()));
        QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
        QCOMPARE(QDir(s.bac.chemin()).entryList({"bd abîmée*"}).size(), 1);
    }
};

JOUER(tst_archives)
#include "tst_archives.moc"
