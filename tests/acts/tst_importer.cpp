#include "acts/Historique.h"
#include "acts/Importer.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QDir>
#include <QImage>
#include <QTest>

using namespace Importer;

namespace {

const QString Separe = QStringLiteral("Titre;N°;Série;Broché;Prix;Photo\n");

/// Writes a file into the sandbox and imports it by what its columns are called.
Rapport importer(
    const Bac &bac, const QString &texte, Doublons doublons = Doublons::Sauter, const Avance &avance = {})
{
    const QString chemin = bac.chemin("albums.csv");
    Bac::ecrire(chemin, texte.toUtf8());
    return ImporterAlbums(chemin, Proposer(Lire(chemin).entete), doublons, avance);
}

QString unePhoto(const Bac &bac, const QString &nom)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString chemin = bac.chemin(nom);
    image.save(chemin);
    return chemin;
}

}

class tst_importer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesColonnesSeDevinent_data()
    {
        // champs: number of the field of each column
        const Colonnes<QString, QString> cas;
        cas("arguments de la creation",
            "titre|tome|serie|dateparu|editeur|broche|couleur|integrale|genre|dessin|color|scena|histoire|"
            "photo1|photo2|prix",
            "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15");
        cas("liste du programme",
            "Titre Album|N° Album|Titre Série|Qualité|Date Parution|Série Limit.|Cartonnée", "0 1 2 - 3 - -");
        cas("fr", "SÉRIE|Nº|TITRE|Scénariste|Dessinateur|Coloriste|Éditeur|Prix d'achat|Résumé",
            "2 1 0 11 9 10 4 15 12");
        cas("en", "Series|Volume|Title|Writer|Artist|Publisher|Year|Price|Cover", "2 1 0 11 9 4 3 15 13");
        cas("de", "Serie|Band|Titel|Zeichner|Verlag|Erscheinungsdatum|Preis", "2 1 0 9 4 3 15");
        cas("es", "Serie|Número|Título|Guionista|Dibujante|Editorial|Precio", "2 1 0 11 9 4 15");
        cas("it", "Titolo serie|Numero|Titolo|Sceneggiatore|Editore|Prezzo|Trama", "2 1 0 11 4 15 12");
        cas("nl", "Reeks|Deel|Titel|Tekenaar|Uitgever|Prijs|Samenvatting", "2 1 0 9 4 15 12");
        cas("un champ n'a qu'une colonne", "Titre|Titre|Tome|Numéro||Rien", "0 - 1 - - -");
    }

    void lesColonnesSeDevinent()
    {
        const auto [entete, voulus] = essai<QString, QString>();
        const Bac bac;
        const Correspondance trouvee = Proposer(entete.split(u'|'));
        QStringList champs(entete.split(u'|').size(), "-");
        for (std::size_t champ = 0; champ < trouvee.size(); ++champ) {
            if (trouvee[champ] >= 0)
                champs[trouvee[champ]] = QString::number(champ);
        }
        QCOMPARE(champs.join(u' '), voulus);
    }

    void unFichierSeLitCommeIlEstEcrit_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::newRow("virgule") << QByteArray("Titre,Résumé\n\"L'été, \"\"vrai\"\"\",\"un\r\ndeux\"\n,\n");
        QTest::newRow("point-virgule, marque")
            << QByteArray("\xEF\xBB\xBFTitre;Résumé\r\n\"L'été, \"\"vrai\"\"\";\"un\ndeux\"\r\n;\r\n");
        QTest::newRow("tabulation") << QByteArray("Titre\tRésumé\n\" L'été,  \"\"vrai\"\"\"\t\"un\ndeux\"");
        QTest::newRow("Windows-1252")
            << QByteArray("Titre;R\xE9sum\xE9\n\"L'\xE9t\xE9, \"\"vrai\"\"\";\"un\ndeux\"\n");
        QTest::newRow("separateur cite")
            << QByteArray("\"Titre\";Résumé;\"a,b,c,d\"\n\"L'été, \"\"vrai\"\"\";\"un\ndeux\"");
    }

    void unFichierSeLitCommeIlEstEcrit()
    {
        QFETCH(QByteArray, octets);
        const Bac bac;
        const QString chemin = bac.chemin("albums.csv");
        Bac::ecrire(chemin, octets);
        const Apercu apercu = Lire(chemin);
        QCOMPARE(apercu.entete.mid(0, 2), QStringList({"Titre", "Résumé"}));
        QCOMPARE(apercu.nombre, 1);
        QCOMPARE(ImporterAlbums(chemin, Proposer(apercu.entete), Doublons::Sauter).crees.size(), 1);
        QCOMPARE(Bac::valeur("SELECT TAlbum FROM LAlbums"), "L'été, \"vrai\"");
        QCOMPARE(Bac::valeur("SELECT Histoire FROM Album"), "un\ndeux");
    }

    void uneRangeeFautiveEstRefusee_data()
    {
        // lu: tome, paperback and price; nothing when refused
        const Colonnes<QString, QString> ligne;
        const auto cas = [&](const char *rangee, const char *lu) { ligne(rangee, rangee, lu); };
        cas("a;12;;oui;12,50;p.jpg", "12 -1 12.5");
        cas("a;;;;;", "0 0 0.0");
        cas("a;007;;Si;1 234,50 €;", "7 -1 1234.5");
        cas("a;999;;nein;1,234.50;", "999 0 1234.5");
        cas("a;0;;-1;12.5 EUR;", "0 -1 12.5");
        cas("a;0;;FAUX;1.234.567;", "0 0 1234567.0");
        cas("a;1000;;;;", "");
        cas("a;-1;;;;", "");
        cas("a;1.5;;;;", "");
        cas("a;un;;;;", "");
        cas("a;1;;peut-être;;", "");
        cas("a;1;;;douze;", "");
        cas("a;1;;;1,2.3,4;", "");
        cas(";1;;oui;;", "");
        // a file that is no picture
        cas(qPrintable("a;1;;;;" + QCoreApplication::applicationFilePath()), "");
    }

    void uneRangeeFautiveEstRefusee()
    {
        const auto [rangee, lu] = essai<QString, QString>();
        const Bac bac;
        const Rapport rapport = importer(bac, Separe + "bon;1;;;;\n" + rangee + "\n\nbon;2;;;;");
        QCOMPARE(rapport.crees, lu.isEmpty() ? QList<int>({2, 5}) : QList<int>({2, 3, 5}));
        QCOMPARE(rapport.refus.size(), lu.isEmpty() ? 1 : 0);
        if (lu.isEmpty())
            QVERIFY(rapport.refus[0].ligne == 3 && !rapport.refus[0].raison.isEmpty());
        else
            QCOMPARE(
                Bac::valeur("SELECT NAlbum || ' ' || Broche || ' ' || PrixA FROM Album WHERE Num = 2"), lu);
    }

    void toutVientEnUneEtape()
    {
        Bac bac;
        Historique histoire(bac.annonces);
        const QStringList avant = Bac::toutLire();
        const QString photo = unePhoto(bac, "recto.png");
        const Rapport rapport
            = importer(bac, Separe + "a;1;Zig;;;nue.jpg\nb;2;Zig;;;" + photo + "\nc;x;Zig;;;\n");
        QCOMPARE(rapport.crees, QList<int>({2, 3}));
        QCOMPARE(Bac::valeur("SELECT group_concat(Photo1) FROM LAlbums"), "nue.jpg,recto.png");
        QVERIFY(QFile::exists(bac.chemin("images/recto.png")));
        QCOMPARE(Bac::valeur("SELECT group_concat(NumeroAlbum2) FROM SerieAlbums"), "B,C");
        QVERIFY(histoire.aAnnuler().contains("albums.csv"));
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(!histoire.peutAnnuler());
    }

    void lesDoublonsSontSautesOuPris()
    {
        const Bac bac;
        const QString longue = QString(60, u'é');
        const QString albums = Separe + longue + ";1;Zig;;;\nCote;2;;;;\n";
        QCOMPARE(importer(bac, albums).crees.size(), 2);
        // Case and blanks do not tell two albums apart; an accent, a tome and a series do.
        const QString autres = albums.toUpper().replace("ZIG", " zIG ").section('\n', 1)
            + "coté;2;;;;\ncote;3;;;;\ncote;2;Zig;;;\ncote;2;zig;;;\n";
        const Rapport sautes = importer(bac, Separe + autres);
        QCOMPARE(sautes.sautes, QList<int>({2, 3, 7}));
        QCOMPARE(sautes.crees, QList<int>({4, 5, 6}));
        QCOMPARE(importer(bac, Separe + autres, Doublons::Prendre).crees.size(), 6);
        QCOMPARE(Bac::valeur("SELECT count(*) FROM Serie"), 1);
    }

    void uneAnnulationNeLaissePasDeTrace_data()
    {
        QTest::addColumn<bool>("parErreur");
        QTest::newRow("annulee") << false;
        QTest::newRow("image impossible a copier") << true;
    }

    void uneAnnulationNeLaissePasDeTrace()
    {
        QFETCH(bool, parErreur);
        const Bac bac;
        Bac::executer("INSERT INTO Genre VALUES (1, 'un')");
        const Historique histoire(Annonces::courant());
        const QString photo = unePhoto(bac, "recto.png");
        const QString autre = unePhoto(bac, "autre.png");
        unePhoto(bac, "images/autre.png");
        const QStringList avant = Bac::toutLire();
        const QStringList images = QDir(bac.chemin("images")).entryList();
        int derniere = -1;
        const auto importation = [&] {
            const Rapport rapport
                = importer(bac, Separe + "a;1;Zig;;;" + photo + "\nb;2;Zig;;;" + autre + "\nc;3;;;;\n",
                    Doublons::Sauter, [&](int pourcent) {
                        if (parErreur && pourcent >= 66)
                            throw Error("plein", {});
                        return std::exchange(derniere, pourcent) < 33;
                    });
            QVERIFY(rapport.annule && rapport.crees.isEmpty());
        };
        QCOMPARE(refus(importation).has_value(), parErreur);
        QCOMPARE(derniere, parErreur ? 33 : 66);
        QCOMPARE(Bac::toutLire(), avant);
        QCOMPARE(QDir(bac.chemin("images")).entryList(), images);
        QVERIFY(!histoire.peutAnnuler());
    }
};

QTEST_GUILESS_MAIN(tst_importer)
#include "tst_importer.moc"
