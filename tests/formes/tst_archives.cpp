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
        QVERIFY(QDir(s.bac.chemin()).mkdir("sauvegardes"));
        Bac::ecrire(s.bac.chemin("sauvegardes/bd 2026-01-02 03-04-05.bd"), "abîmée");
        Bac::agir("UPDATE LAlbums SET TAlbum = 'Changé' WHERE NAlbum = 1");
        auto *albums = trouver<QAbstractItemView>("Liste")->model();
        const auto changes = [&] { return albums->match(albums->index(0, 0), 0, "Changé").size(); };
        QTRY_COMPARE(changes(), 1);
        ouvrir("Menu(3)", "Outils(5)", Ici);
        auto *liste = trouver<QTreeWidget>("Sauvegardes", Ici);
        // The newest first, and chosen; the one that cannot be read is told apart.
        QTRY_COMPARE(liste->topLevelItemCount(), 2);
        QVERIFY(liste->topLevelItem(1)->text(3).contains("2026-01-02"));
        QCOMPARE(liste->currentItem(), liste->topLevelItem(0));
        liste->setCurrentItem(liste->topLevelItem(1));
        QVERIFY(!trouver<QWidget>("Valider", Ici)->isEnabled() && !message().isEmpty());
        liste->setCurrentItem(liste->topLevelItem(0));
        cliquer("Valider", Ici);
        QVERIFY(Bac::toutLire() != avant);
        s.boites.reponses << true;
        cliquer("Valider", Ici);
        QCOMPARE(Bac::toutLire(), avant);
        QCOMPARE(s.boites.textes.last(), texte(Txt::RestaurationEffectuee));
        QTRY_COMPARE(liste->topLevelItemCount(), 3);
        const QString date = liste->topLevelItem(0)->text(0);
        Q_EMIT s.demandes().langue("English.lng");
        QTRY_VERIFY(liste->topLevelItem(0)->text(0) != date);
        Q_EMIT s.demandes().langue(QString::fromUtf8("Français.lng"));
        QTRY_COMPARE(liste->topLevelItem(0)->text(0), date);
        QTRY_COMPARE(changes(), 0);
        QVERIFY(!trouver<QWidget>("Defaire")->isEnabled());

        // Damaged since it was listed, and one that is none.
        Bac::ecrire(liste->topLevelItem(0)->data(0, Qt::UserRole).toString(), "plus rien");
        s.boites.reponses << true;
        cliquer("Valider", Ici);
        QVERIFY2(!message().isEmpty() && s.boites.textes.last().contains("album"), qPrintable(message()));
        Bac::ecrire(s.bac.chemin("autre.mdb"), "un texte");
        s.boites.fichiers << s.bac.chemin("autre.mdb");
        cliquer("Choisir", Ici);
        QCOMPARE(liste->topLevelItemCount(), 3);
        QVERIFY2(message().contains("Bulleo"), qPrintable(message()));
        QCOMPARE(Bac::toutLire(), avant);
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
        {
            QProgressBar barre(fenetre("Frmmain"));
            QPushButton annuler(fenetre("Frmmain"));
            Suivi suivi(&barre, &annuler);
            commander(Qt::Key_Z);
            QVERIFY(suivi.avancer(50));
            QCOMPARE(titre(), "Changé");
        }
        commander(Qt::Key_Z);
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

    /// With none but a damaged backup, with a sound one that is declined, and with one that is taken.
    void uneBaseAbimeeRendLaDerniereSauvegarde()
    {
        for (const int cas : {1, 2, 3}) {
            Seance s;
            const QByteArray saine = Bac::lire(s.bac.collection());
            QByteArray abimee = saine;
            abimee.replace(8192, saine.size() - 8192, QByteArray(saine.size() - 8192, 'x'));
            QVERIFY(QDir(s.bac.chemin()).mkdir("sauvegardes"));
            Bac::ecrire(s.bac.chemin("sauvegardes/bd 2026-01-03 03-04-05.bd"), abimee);
            if (cas > 1)
                Bac::ecrire(s.bac.chemin("sauvegardes/bd 2026-01-02 03-04-05.bd"), saine);
            // The lock of a process that is no more.
            Bac::ecrire(s.bac.chemin(".bulleo.lock"), "999999999\nbulleo\n");
            QVERIFY(s.bac.dossier.verrouiller() && s.bac.dossier.finBrutale());
            s.boites.reponses << (cas == 3);
            demarrerSur(s, abimee);
            QTRY_VERIFY(!s.boites.textes.isEmpty());
            const QString dit = s.boites.textes.first();
            QVERIFY2(dit.contains(cas > 1 ? "02/01/2026" : "aucune sauvegarde"), qPrintable(dit));
            if (cas == 3)
                QTRY_VERIFY(!texteDe("TAlbum").isEmpty());
            QCOMPARE(Bac::lire(s.bac.collection()) == abimee, cas < 3);
            QCOMPARE(QDir(s.bac.chemin()).entryList({"bd abîmée*"}).size(), cas == 3 ? 1 : 0);
        }
    }
};

JOUER(tst_archives)
#include "tst_archives.moc"
