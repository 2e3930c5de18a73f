#include "acts/Creer.h"
#include "core/Csv.h"
#include "core/Traduction.h"
#include "model/ChargerAlbums.h"
#include "reports/MiseEnPage.h"
#include "reports/Repartition.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>
#include <set>

using namespace General;
using namespace Listage;

namespace {

std::vector<QStringList> rangees(const Tableau &tableau)
{
    std::vector<QStringList> lues;
    tableau.parcourir([&](const QStringList &cellules) {
        lues.push_back(cellules);
        return true;
    });
    return lues;
}

QStringList premiere(const Tableau &tableau)
{
    QStringList noms;
    for (const QStringList &rangee : rangees(tableau))
        noms << rangee.first();
    return noms;
}

int creer(const char *titre, const char *serie = "", int tome = 0, const char *paru = "")
{
    return Creer::CreerAlbum(
        {{Rubrique::Titre, QString::fromUtf8(titre)}, {Rubrique::Serie, QString::fromUtf8(serie)},
            {Rubrique::Tome, QString::number(tome)}, {Rubrique::Dateparu, QString::fromUtf8(paru)}});
}

/// What the sheet shows for a field, in the words of a list.
QString surLaFiche(const Colonne &colonne, const Valeurs &valeurs)
{
    const auto &valeur = valeurs.at(QLatin1String(colonne.champ->nom));
    if (colonne.contraire)
        return texte(valeur.stockee.toBool() ? Txt::Non : Txt::Oui);
    bool note = false;
    const int grade = valeur.affichee.toInt(&note);
    if (colonne.champ->vue != Champs::Vue::Etoiles || !note)
        return valeur.affichee;
    return grade > 0 ? Fiche::MotDeLaNote(grade) : QString();
}

}

class tst_listage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueColonneDitCeQueDitLaFiche()
    {
        const Bac bac(QStringLiteral(EXEMPLE));
        // A summary that only the list row has.
        Bac::executer("UPDATE Album SET Histoire = ' ' WHERE Num = 1");
        Bac::executer("UPDATE LAlbums SET Histoire = 'La copie' WHERE NAlbum = 1");
        for (int i = 0; i < NombreDeTris; ++i) {
            const Tri tri = TriDe(i);
            const auto colonnes = ColonnesDe(tri);
            const auto lues = rangees(DesEntrees(tri, colonnes));
            const Entrees liste = LireListe(tri);
            QCOMPARE(static_cast<int>(lues.size()), liste.size());
            QVERIFY(!lues.empty());
            for (int rang = 0; rang < liste.size(); ++rang) {
                const auto valeurs = tri == Tri::Albums
                    ? ChargerAlbums::AfficherAlbum(liste.id(rang))->valeurs
                    : Fiche::Lire(ListeDe(tri).feuille, liste.id(rang));
                for (std::size_t c = 0; c < colonnes.size(); ++c)
                    QCOMPARE(lues[static_cast<std::size_t>(rang)][static_cast<qsizetype>(c)],
                        surLaFiche(colonnes[c], *valeurs));
            }
        }
    }

    void lOrdreEtLaSelection()
    {
        const Bac bac;
        const int zebre = creer("Le Zèbre", "Bêtes", 10);
        creer("L'Âne", "Bêtes", 2);
        const int seul = creer("Bateau");
        const int ecume = creer("Écume", "Algues", 1);
        const auto colonnes = ColonnesDe(Tri::Albums);
        QCOMPARE(premiere(DesEntrees(Tri::Albums, colonnes)),
            QStringList({"Bateau", "Écume", "L'Âne", "Le Zèbre"}));
        QCOMPARE(premiere(DesEntrees(Tri::Albums, colonnes, Ordre::Series)),
            QStringList({"Écume", "L'Âne", "Le Zèbre", "Bateau"}));
        const Tableau trois
            = DesEntrees(Tri::Albums, colonnes, Ordre::Series, std::vector<int>{zebre, seul, ecume});
        QCOMPARE(trois.lignes, 3);
        QCOMPARE(premiere(trois), QStringList({"Écume", "Le Zèbre", "Bateau"}));
        QCOMPARE(trois.totaux(), QStringList({"Nombre total d'Album(s) : 3", "Nombre total de Séries : 2"}));
    }

    void unNomHostileResteDuTexte()
    {
        const Bac bac;
        const QStringList titres{"<script>alert('&')</script>", "Dit « \"Oui\" », d'abord; puis non",
            "Une ligne,\nune autre", "=1+1 été 漫画"};
        for (const QString &titre : titres)
            Bac::executer("UPDATE LAlbums SET TAlbum = ? WHERE NAlbum = ?", {titre, creer("x", "Série")});
        const Tableau liste = DesEntrees(Tri::Albums, ColonnesDe(Tri::Albums));

        const QString csv = bac.chemin("l.csv");
        QVERIFY(Sorties::EcrireCsv(csv, liste));
        const QByteArray octets = Bac::lire(csv);
        QVERIFY(octets.startsWith("\xEF\xBB\xBF"
                                  "Titre Album,"));
        QVERIFY(octets.endsWith("\r\n"));
        QStringList relus;
        Csv::Lire(csv, [&](const Csv::Rangee &r) {
            QCOMPARE(r.cellules.size(), static_cast<qsizetype>(liste.tetes.size()));
            relus << r["Titre Album"];
        });
        QCOMPARE(relus, premiere(liste));

        const QString html = bac.chemin("l.html");
        QVERIFY(Sorties::EcrireHtml(html, liste));
        const QString page = QString::fromUtf8(Bac::lire(html));
        for (const QString &titre : titres)
            QVERIFY2(relus.contains(titre) && page.contains(titre.toHtmlEscaped()), qPrintable(titre));
        QVERIFY(!page.contains("<script"));
        QCOMPARE(page.count(QRegularExpression("<td[ >]")), 4 * static_cast<qsizetype>(liste.tetes.size()));

        const QString txt = bac.chemin("l.txt");
        QVERIFY(Sorties::EcrireTexte(txt, liste));
        const QStringList lignes = QString::fromUtf8(Bac::lire(txt)).split(u'\n');
        const qsizetype place = lignes[3].indexOf("Titre Série");
        QCOMPARE(lignes.filter("Série  ").size(), 5);
        for (const QString &ligne : lignes.filter(QRegularExpression(" {2}Série  ")))
            QCOMPARE(ligne.indexOf("Série  "), place);
    }

    void unePageSuitLAutre()
    {
        const Bac bac(QStringLiteral(EXEMPLE));
        Bac::executer(QStringLiteral("UPDATE LAlbums SET TAlbum = ? WHERE NAlbum = 1"),
            {QStringLiteral("mot ").repeated(4000)});
        const QString chemin = bac.chemin("l.pdf");
        const Tableau liste = DesEntrees(Tri::Albums, ColonnesDe(Tri::Albums));
        QVERIFY(MiseEnPage::EcrirePdf(chemin, liste, {}));
        const QByteArray pdf = Bac::lire(chemin);
        QVERIFY(pdf.startsWith("%PDF") && pdf.trimmed().endsWith("%%EOF"));
        // The one long title alone is set over many pages, instead of running off the first.
        const int pages = static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page "));
        QVERIFY2(pages > 10, qPrintable(QString::number(pages)));
    }

    void ceQuiEchoueNeLaisseRien()
    {
        const Bac bac;
        Bac::executer(
            QStringLiteral("INSERT INTO LAlbums(NAlbum, TAlbum) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL"
                           " SELECT i + 1 FROM n WHERE i < 1100) SELECT i, 'Un' FROM n"));
        const Tableau liste = DesEntrees(Tri::Albums, ColonnesDe(Tri::Albums));
        const QString ancien = bac.chemin("ancien");
        Bac::ecrire(ancien, "ce qui y est");
        for (const auto &ecrire :
            {Sorties::EcrireHtml, Sorties::EcrireTexte, Sorties::EcrireCsv, MiseEnPage::EcrirePdf}) {
            QVERIFY(!ecrire(ancien, liste, [](int) { return false; }));
            QCOMPARE(Bac::lire(ancien), QByteArray("ce qui y est"));
            QVERIFY(refus([&] { ecrire(bac.chemin("pas la/l"), liste, {}); }));
        }
        QCOMPARE(QDir(bac.chemin()).entryList({"ancien*"}), QStringList("ancien"));
    }

    void laFicheEntiere()
    {
        const Bac bac(QStringLiteral(EXEMPLE));
        const int num = Bac::valeur("SELECT NAlbum FROM CotesAlbum").toInt();
        const Tableau fiche = DeLaFiche({Tri::Albums, num});
        QCOMPARE(fiche.titre, LireTexte(Tri::Albums, num));
        QStringList valeurs;
        for (const QStringList &rangee : rangees(fiche))
            valeurs << rangee[1];
        QVERIFY(valeurs.contains(fiche.titre));
        QVERIFY(
            valeurs.contains(Bac::valeur("SELECT Cotes FROM CotesAlbum WHERE NAlbum = ?", {num}).toString()));
        QVERIFY(rangees(DeLaFiche({Tri::Series, 9999})).empty());
        // A grade is its word; none is no line.
        const auto rang = [num](Txt libelle) {
            const auto lignes = rangees(DeLaFiche({Tri::Albums, num}));
            const auto ligne = std::find_if(
                lignes.begin(), lignes.end(), [&](const QStringList &l) { return l[0] == texte(libelle); });
            return ligne == lignes.end() ? QString() : ligne->at(1);
        };
        for (const auto &[note, mot] : {std::pair(4, Fiche::MotDeLaNote(4)), {0, QString()}}) {
            Bac::executer("UPDATE Album SET EtatBD = ? WHERE Num = ?", {note, num});
            QCOMPARE(rang(Txt::EtatDeLaBD), mot);
        }
    }

    void lesGraphiques()
    {
        const Bac bac(QStringLiteral(EXEMPLE));
        const int albums = Bac::valeur("SELECT count(*) FROM Album WHERE Num > 0").toInt();
        for (int i = 0; i < Repartition::NombreDeSujets; ++i) {
            const auto g = Repartition::Lire(static_cast<Repartition::Sujet>(i));
            std::set<int> tous;
            for (const auto &part : g.parts)
                tous.insert(part.albums.begin(), part.albums.end());
            QCOMPARE(static_cast<int>(tous.size()), albums);
        }
        const auto editeurs = Repartition::Lire(Repartition::Sujet::Editeurs).parts;
        const int noms = Bac::valeur("SELECT count(DISTINCT NEdit) FROM EditeurAlbums").toInt();
        QCOMPARE(editeurs[15].libelle, QStringLiteral("Autres (%1)").arg(noms - 15));
        QCOMPARE(editeurs.size(), 16u);
    }

    void lesDatesEtLesCotes()
    {
        const Bac bac;
        const int un = creer("Un", "", 0, "mai 1931");
        creer("Deux", "", 0, "1958");
        creer("Trois", "", 0, "vers la fin du siècle");
        Bac::executer(QStringLiteral("UPDATE Album SET DA = '12/03/2001' WHERE Num = ?"), {un});
        const auto decennies = Repartition::Lire(Repartition::Sujet::Decennies).parts;
        QStringList libelles;
        for (const auto &part : decennies)
            libelles << QStringLiteral("%1 %2").arg(part.libelle).arg(part.valeurs[0]);
        QCOMPARE(libelles, QStringList({"1930-1939 1", "1940-1949 0", "1950-1959 1", "Inconnu 1"}));
        QVERIFY(decennies.back().inconnue);

        for (const auto &[mois, cote] :
            {std::pair("mars 2010", "40"), {"janvier 2015", "60,50 €"}, {"un jour", "99"}})
            Bac::executer(QStringLiteral("INSERT INTO CotesAlbum VALUES(?, ?, ?)"),
                {un, QString::fromUtf8(mois), QString::fromUtf8(cote)});
        const auto valeurs = Repartition::Lire(Repartition::Sujet::Valeurs).parts;
        QCOMPARE(valeurs[0].libelle, "2001");
        QCOMPARE(valeurs[0].valeurs[1], 60.5);
        const auto croissance = Repartition::Lire(Repartition::Sujet::Croissance).parts;
        QCOMPARE(croissance[0].valeurs, (std::vector<double>{1, 1}));
    }
};

QTEST_MAIN(tst_listage)
#include "tst_listage.moc"
