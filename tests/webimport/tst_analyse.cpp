#include "core/Error.h"
#include "support/Bac.h"
#include "support/Refus.h"
#include "webimport/AnalyserPage.h"

#include <QElapsedTimer>
#include <QTest>

using AnalysePage::Page;

class tst_analyse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueRegleCoupeSaValeur_data();
    void chaqueRegleCoupeSaValeur();
    void ceQuiManqueLaisseVideOuFinit_data();
    void ceQuiManqueLaisseVideOuFinit();
    void laLigneSuivanteEstConsommee();
    void laCouvertureEstAnnonceeAvecLeTitreDuMoment();
    void uneBaliseOuverteFinitParUneErreur();
    void uneGrossePageSeLitVite();
};

namespace {

QString valeur(const Page &page, const QString &nom)
{
    const QHash<QString, QString> valeurs{
        {QStringLiteral("titre"), page.titre},
        {QStringLiteral("serie"), page.serie},
        {QStringLiteral("tome"), page.tome},
        {QStringLiteral("prix"), page.prix},
        {QStringLiteral("francs"), page.prixFrancs},
        {QStringLiteral("date"), page.date},
        {QStringLiteral("dessin"), page.dessinateurs},
        {QStringLiteral("scena"), page.scenariste},
        {QStringLiteral("genre"), page.genre},
        {QStringLiteral("editeur"), page.editeur},
        {QStringLiteral("public"), page.publicVise},
        {QStringLiteral("description"), page.description},
        {QStringLiteral("finition"), page.finition},
        {QStringLiteral("couverture"), page.couverture},
    };
    return valeurs.value(nom);
}

}

void tst_analyse::chaqueRegleCoupeSaValeur_data()
{
    QTest::addColumn<QString>("lignes");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("attendue");
    const auto cas = [](const char *nom, const char *lignes, const char *attendue) {
        QTest::addRow("%s: %s", nom, lignes)
            << QString::fromUtf8(lignes) << QString::fromUtf8(nom) << QString::fromUtf8(attendue);
    };
    cas("titre", "<td><H2> <b>Le Sapeur</b> Camember </h2>", "le sapeur camember");
    cas("titre", "<h2>Premier</h2>\n<h2>Second</h2>", "premier");
    cas("titre", "<h2> </h2>\n<h2>Second</h2>", "second");
    cas("serie", "<h1>Série&nbsp;Les Voyageurs (tome 3)</span>", "les voyageurs ");
    cas("tome", "<h1>Série&nbsp;Les Voyageurs (tome 3)</span>", "3");
    cas("serie", "<H1>SÉRIE&NBSP;<a href=\"x\">Bécassine</a></span>", "bécassine");
    cas("prix", "<b>Prix public : </span>12,50 &euro;</b>", "12,50");
    cas("francs", "<b>Prix public : </span>12,50 &euro;</b>", "81.994625");
    cas("francs", "prix public : </span>10.00&euro;", "65.5957");
    cas("date", "<p><span>Paru le : </span>01 novembre 1899<span>x</span>", "01 novembre 1899x");
    cas("date", "<p><span>Parution : </span>mai 1900</span>", "mai 1900");
    cas("dessin", "<span>Dessinateur : </span><a>Pinchon</a>", "");
    cas("dessin", "<span>Dessinateur : </span> parution <a>Pinchon</a>", "pinchon");
    cas("dessin", "Dessinateurs : </span><a>Pinchon</a><a>Autre</a>", "pinchon");
    cas("dessin", "Dessinateurs : </span><a>A</a>\nDessinateurs : </span><a>B</a>", "a, b");
    cas("scena", "Scénaristes : <a>Caumery</a>, <a>Rivière</a>", "caumery");
    cas("scena", "Scénariste : <a>Caumery</a>", "caumery");
    cas("genre", "Genre : <a href=\"?g=1\">Humour</a>", "humour");
    cas("editeur", "Editeur :\r\n<a href=\"e\" >Armand Colin</a>", "armand colin");
    cas("public", "Public :\r<a href=\"p\" >Tous</a>", "tous");
    cas("description", "<SPAN class=\"infoliste\">ALBUM Broché en Couleur</span>", "Broché en Couleur");
    cas("finition", "<span class=\"infoliste\">Album en couleur</span>", "Album en couleur");
    cas("finition", "<span class=\"infoliste\">Album cartonnée</span>", "Album en couleur");
    cas("finition", "<span class=\"infoliste\">Album cartonné</span>", "");
    cas("couverture", "<img src=\"/img/couvpage/12/AB_cg.JPG\">", "/12/ab_cg");
}

void tst_analyse::chaqueRegleCoupeSaValeur()
{
    QFETCH(QString, lignes);
    QFETCH(QString, nom);
    QFETCH(QString, attendue);
    Page page;
    // A price line is an audience line, too, and wants one below it.
    AnalysePage::AnalyserPage(lignes.toUtf8() + "\n.", page);
    QCOMPARE(valeur(page, nom), attendue);
}

void tst_analyse::ceQuiManqueLaisseVideOuFinit_data()
{
    QTest::addColumn<QString>("fichier");
    QTest::addColumn<bool>("finit");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("attendue");
    QTest::newRow("entière") << "cosinus" << false << "prix"
                             << "12,50";
    QTest::newRow("Windows-1252") << "occidentale" << false << "titre"
                                  << QStringLiteral("été à orléans, œuvre");
    QTest::newRow("balise ouverte") << "ouverte" << true << "serie" << QStringLiteral("essais ");
    QTest::newRow("prix en mots") << "cher" << true << "editeur" << QStringLiteral("armand colin");
    QTest::newRow("dernière ligne") << "derniere-ligne" << true << "editeur" << QString();
    QTest::newRow("deux dessinateurs") << "deux-dessinateurs" << false << "dessin" << QStringLiteral("a, b");
}

void tst_analyse::ceQuiManqueLaisseVideOuFinit()
{
    QFETCH(QString, fichier);
    QFETCH(bool, finit);
    QFETCH(QString, nom);
    QFETCH(QString, attendue);
    Page page;
    const QByteArray octets = Bac::lire(QStringLiteral(PAGES "/%1.html").arg(fichier));
    QVERIFY(!octets.isEmpty());
    QCOMPARE(refus([&] { AnalysePage::AnalyserPage(octets, page); }).has_value(), finit);
    QCOMPARE(valeur(page, nom), attendue);
}

/// "Prix public : </span>" is an audience line, too: the line below it is read for the audience and seen by no
/// other rule.
void tst_analyse::laLigneSuivanteEstConsommee()
{
    Page page;
    AnalysePage::AnalyserPage("prix public : </span>5&euro;\n<h2>Avalé</h2><a >Tous</a>\n<h2>Vu</h2>", page);
    QCOMPARE(page.publicVise, QStringLiteral("tous"));
    QCOMPARE(page.titre, QStringLiteral("vu"));
    // A price line without its end ends the analysis.
    Page sans;
    QVERIFY(refus([&] { AnalysePage::AnalyserPage("prix public : </span>5", sans); }));
}

void tst_analyse::laCouvertureEstAnnonceeAvecLeTitreDuMoment()
{
    QStringList annonces;
    Page page;
    AnalysePage::AnalyserPage("/img/couvpage/a_cg.jpg\n<h2>Titre</h2>\n/img/couvpage/b_cg.jpg", page,
        [&](const QString &morceau, const QString &titre) { annonces << morceau + u'|' + titre; });
    QCOMPARE(annonces, QStringList(QStringLiteral("/a_cg|")));
    QCOMPARE(
        AnalysePage::NettoyerTitre(QStringLiteral(" ils ont travaillé sur la série bd&nbsp;le&nbsp;titre ")),
        QStringLiteral("le titre"));
}

void tst_analyse::uneBaliseOuverteFinitParUneErreur()
{
    QString texte = QStringLiteral("a<b>c<d>e");
    AnalysePage::OterBalises(texte);
    QCOMPARE(texte, QStringLiteral("ace"));
    texte = QStringLiteral("a>b<c");
    QVERIFY(refus([&] { AnalysePage::OterBalises(texte); }));
    // A target that holds something is never touched.
    QString pleine = QStringLiteral("déjà <là");
    AnalysePage::ExtraireEntre(QStringLiteral("x"), QStringLiteral("xyz"), pleine, {});
    QCOMPARE(pleine, QStringLiteral("déjà <là"));
    QString reste;
    AnalysePage::ExtraireEntre(QStringLiteral("X"), QStringLiteral("a x y "), reste, {});
    QCOMPARE(reste, QStringLiteral("y"));
}

void tst_analyse::uneGrossePageSeLitVite()
{
    QElapsedTimer chrono;
    chrono.start();
    Page page;
    AnalysePage::AnalyserPage("<h2>" + QByteArray("<p>").repeated(2 << 20) + "Fin</h2>", page);
    AnalysePage::AnalyserPage(QByteArray("dessinateurs : </span>a</a>\n").repeated(100'000), page);
    QCOMPARE(page.titre, QStringLiteral("fin"));
    QVERIFY2(chrono.elapsed() < 5000, qPrintable(QString::number(chrono.elapsed())));
}

QTEST_GUILESS_MAIN(tst_analyse)
#include "tst_analyse.moc"
