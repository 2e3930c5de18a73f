#include "core/Error.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"
#include "webimport/AnalyserPage.h"

#include <QTest>
#include <ctime>

using AnalysePage::Page;

using Valeur = QString Page::*;

class tst_analyse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueRegleCoupeSaValeur_data()
    {
        const Colonnes<QString, Valeur, QString> ligne;
        const auto cas = [&](Valeur valeur, const char *lignes, const char *attendue) {
            ligne(lignes, lignes, valeur, attendue);
        };
        cas(&Page::titre, "<td><H2> <b>Le Sapeur</b> Camember </h2>", "le sapeur camember");
        cas(&Page::titre, "<h2>Premier</h2>\n<h2>Second</h2>", "premier");
        cas(&Page::titre, "<h2> </h2>\n<h2>Second</h2>", "second");
        cas(&Page::serie, "<h1>Série&nbsp;Les Voyageurs (tome 3)</span>", "les voyageurs ");
        cas(&Page::tome, "<h1>Série&nbsp;Les Voyageurs (tome 3)</span>", "3");
        cas(&Page::serie, "<H1>SÉRIE&NBSP;<a href=\"x\">Bécassine</a></span>", "bécassine");
        cas(&Page::prix, "<b>Prix public : </span>12,50 &euro;</b>", "12,50");
        cas(&Page::prixFrancs, "<b>Prix public : </span>12,50 &euro;</b>", "81.994625");
        cas(&Page::prixFrancs, "prix public : </span>10.00&euro;", "65.5957");
        cas(&Page::date, "<p><span>Paru le : </span>01 novembre 1899<span>x</span>", "01 novembre 1899x");
        cas(&Page::date, "<p><span>Parution : </span>mai 1900</span>", "mai 1900");
        cas(&Page::dessinateurs, "<span>Dessinateur : </span><a>Pinchon</a>", "");
        cas(&Page::dessinateurs, "<span>Dessinateur : </span> parution <a>Pinchon</a>", "pinchon");
        cas(&Page::dessinateurs, "Dessinateurs : </span><a>Pinchon</a><a>Autre</a>", "pinchon");
        cas(&Page::dessinateurs, "Dessinateurs : </span><a>A</a>\nDessinateurs : </span><a>B</a>", "a, b");
        cas(&Page::scenariste, "Scénaristes : <a>Caumery</a>, <a>Rivière</a>", "caumery");
        cas(&Page::scenariste, "Scénariste : <a>Caumery</a>", "caumery");
        cas(&Page::genre, "Genre : <a href=\"?g=1\">Humour</a>", "humour");
        cas(&Page::editeur, "Editeur :\r\n<a href=\"e\" >Armand Colin</a>", "armand colin");
        cas(&Page::publicVise, "Public :\r<a href=\"p\" >Tous</a>", "tous");
        cas(&Page::description, "<SPAN class=\"infoliste\">ALBUM Broché en Couleur</span>",
            "Broché en Couleur");
        cas(&Page::finition, "<span class=\"infoliste\">Album en couleur</span>", "Album en couleur");
        cas(&Page::finition, "<span class=\"infoliste\">Album cartonnée</span>", "Album en couleur");
        cas(&Page::finition, "<span class=\"infoliste\">Album cartonné</span>", "");
        cas(&Page::couverture, "<img src=\"/img/couvpage/12/AB_cg.JPG\">", "/12/ab_cg");
    }

    void chaqueRegleCoupeSaValeur()
    {
        const auto [lignes, valeur, attendue] = essai<QString, Valeur, QString>();
        Page page;
        // A price line is an audience line, too, and wants one below it.
        AnalysePage::AnalyserPage(lignes.toUtf8() + "\n.", page);
        QCOMPARE(page.*valeur, attendue);
    }

    void ceQuiManqueLaisseVideOuFinit_data()
    {
        const Colonnes<QString, bool, Valeur, QString> cas;
        cas("entière", "cosinus", false, &Page::prix, "12,50");
        cas("Windows-1252", "occidentale", false, &Page::titre, "été à orléans, œuvre");
        cas("balise ouverte", "ouverte", true, &Page::serie, "essais ");
        cas("prix en mots", "cher", true, &Page::editeur, "armand colin");
        cas("dernière ligne", "derniere-ligne", true, &Page::editeur, {});
        cas("deux dessinateurs", "deux-dessinateurs", false, &Page::dessinateurs, "a, b");
    }

    void ceQuiManqueLaisseVideOuFinit()
    {
        const auto [fichier, finit, valeur, attendue] = essai<QString, bool, Valeur, QString>();
        Page page;
        const QByteArray octets = Bac::lire(QStringLiteral(PAGES "/%1.html").arg(fichier));
        QVERIFY(!octets.isEmpty());
        QCOMPARE(refus([&] { AnalysePage::AnalyserPage(octets, page); }).has_value(), finit);
        QCOMPARE(page.*valeur, attendue);
    }

    /// "Prix public : </span>" is an audience line, too: the line below it is read for the audience and seen by no
    /// other rule.
    void laLigneSuivanteEstConsommee()
    {
        Page page;
        AnalysePage::AnalyserPage(
            "prix public : </span>5&euro;\n<h2>Avalé</h2><a >Tous</a>\n<h2>Vu</h2>", page);
        QCOMPARE(page.publicVise, "tous");
        QCOMPARE(page.titre, "vu");
        // A price line without its end ends the analysis.
        Page sans;
        QVERIFY(refus([&] { AnalysePage::AnalyserPage("prix public : </span>5", sans); }));
    }

    void laCouvertureEstAnnonceeAvecLeTitreDuMoment()
    {
        QStringList annonces;
        Page page;
        AnalysePage::AnalyserPage("/img/couvpage/a_cg.jpg\n<h2>Titre</h2>\n/img/couvpage/b_cg.jpg", page,
            [&](const QString &morceau, const QString &titre) { annonces << morceau + u'|' + titre; });
        QCOMPARE(annonces, QStringList(QStringLiteral("/a_cg|")));
        QCOMPARE(
            AnalysePage::NettoyerTitre(" ils ont travaillé sur la série bd&nbsp;le&nbsp;titre "), "le titre");
    }

    void uneBaliseOuverteFinitParUneErreur()
    {
        QString texte = QStringLiteral("a<b>c<d>e");
        AnalysePage::OterBalises(texte);
        QCOMPARE(texte, "ace");
        texte = QStringLiteral("a>b<c");
        QVERIFY(refus([&] { AnalysePage::OterBalises(texte); }));
        // A target that holds something is never touched.
        QString pleine = QStringLiteral("déjà <là");
        AnalysePage::ExtraireEntre("x", "xyz", pleine, {});
        QCOMPARE(pleine, "déjà <là");
        QString reste;
        AnalysePage::ExtraireEntre("X", "a x y ", reste, {});
        QCOMPARE(reste, "y");
    }

    void uneGrossePageSeLitVite()
    {
        // The machine may be busy with other things: only our own time counts.
        const std::clock_t debut = std::clock();
        Page page;
        AnalysePage::AnalyserPage("<h2>" + QByteArray("<p>").repeated(2 << 20) + "Fin</h2>", page);
        AnalysePage::AnalyserPage(QByteArray("dessinateurs : </span>a</a>\n").repeated(100'000), page);
        QCOMPARE(page.titre, "fin");
        const double secondes = double(std::clock() - debut) / CLOCKS_PER_SEC;
        QVERIFY2(secondes < 5, qPrintable(QString::number(secondes)));
    }
};

QTEST_GUILESS_MAIN(tst_analyse)
#include "tst_analyse.moc"
