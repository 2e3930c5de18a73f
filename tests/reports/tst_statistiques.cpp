#include "acts/Historique.h"
#include "core/Error.h"
#include "db/Base.h"
#include "reports/Statistiques.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QRegularExpression>
#include <QTest>

namespace {

constexpr auto Tete
    = R"(<HTML><HEAD><title>Bulleo V1.2, Statistiques</title></HEAD><body bgcolor='#6699CC' background=''>
<table width='100%' border='0' cellpadding='0' cellspacing='0' ><tr bgcolor='#3399CC' valign='top' align='center'><td>
<table width='100%' border='0' cellpadding='0' cellspacing='0' ><tr bgcolor='#FFFFCC'><td><div align='center'><b><font color='#000000' size='2' face='Arial, Helvetica, sans-serif'>Statistiques</font></b></div></td></tr></table>
<table width='100%' border='0'><tr><td height='20'>&nbsp;</td></tr></table>
<table width='100%' border='01' cellpadding='0' cellspacing='0' ><tr bgcolor='#006FCC' ><td><div align='center'><b><font color='#FFFFFF' size='3' face='Arial, Helvetica, sans-serif'>    <p>Statistiques ...</p></font></b></div></td></tr></table>
<table width='100%' border='0'><tr>&nbsp;</tr></table>
)";
constexpr auto Rangee
    = R"(<table width='100%' border='0' cellpadding='0' cellspacing='0' bgcolor='%1'><tr> <td width='2%'><div align='left'><b></b></div></td><td width='58%'><b><font color='%2' size='2' face='Arial, Helvetica, sans-serif'>%3</font></b></td><td width='20%'><b><font color='%2' size='2' face='Arial, Helvetica, sans-serif'>%4</font></b></td><td width='20%'><b><font color='%2' size='2' face='Arial, Helvetica, sans-serif'>%5</font></b></td></tr></table>)";

QString rangee(const QStringList &cellules)
{
    QString texte = QString::fromUtf8(Rangee);
    for (int i = 0; i < cellules.size(); ++i)
        texte.replace(QStringLiteral("%%1'").arg(i + 1), cellules[i] + u'\'')
            .replace(QStringLiteral("%%1<").arg(i + 1), cellules[i] + u'<');
    return texte;
}

/// The page by other means: one query for each entry of each section.
QString attendue()
{
    struct Partie
    {
        const char *libelle;
        const char *table;
        const char *cle;
        const char *liens;
        const char *role;
    };
    const Partie parties[] = {{"Nombre De Séries", "Serie", "NSerie", "SerieAlbums", "1=1"},
        {"Nombre De Dessinateurs", "Auteurs", "NAuteur", "AuteursAlbums", "Dessin = -1"},
        {"Nombre De Scénaristes", "Auteurs", "NAuteur", "AuteursAlbums", "Scena = -1"},
        {"Nombre De Genres", "Genre", "NGenre", "GenreAlbums", "1=1"},
        {"Nombre D'Editeurs", "Editeur", "NEdit", "EditeurAlbums", "1=1"},
        {"Nombre De Collections", "Coll", "NColl", "CollAlbums", "1=1"}};
    const double total = Bac::valeur("SELECT count(*) FROM Album WHERE Num > 0").toDouble();
    QStringList sections;
    for (const Partie &p : parties) {
        const auto sql = [&](const char *motif) {
            return QString::fromLatin1(motif)
                .replace(QLatin1String("TABLE"), QLatin1String(p.table))
                .replace(QLatin1String("CLE"), QLatin1String(p.cle))
                .replace(QLatin1String("LIENS"), QLatin1String(p.liens))
                .replace(QLatin1String("ROLE"), QLatin1String(p.role));
        };
        const QString nombre
            = Bac::valeur(sql("SELECT count(*) FROM TABLE WHERE CLE > 0 AND ROLE")).toString();
        QStringList rangees{rangee(
            {"#330099", "#66CCFF", QString::fromUtf8(p.libelle) + " : " + nombre, "Nombre d'Albums", " /%"})};
        Base base;
        for (auto rs = base.OpenRecordset(sql("SELECT CLE, Nom FROM TABLE WHERE ROLE ORDER BY Nom"));
             !rs.AtEnd(); rs.MoveNext()) {
            const int albums
                = Bac::valeur(sql("SELECT count(*) FROM LIENS WHERE CLE = ? AND ROLE"), {rs.Fields(0)})
                      .toInt();
            rangees << rangee({rangees.size() % 2 == 1 ? "#CCCCCC" : "#FFFFFF", "0",
                rs.Fields(1).toString().replace(u'&', "&amp;").replace(u'"', "&quot;"),
                QString::number(albums),
                QString::number(albums * 100 / total, 'f', 2).replace(u'.', u',') + " %  "});
        }
        sections << rangees.join(u'\n');
    }
    return QString::fromUtf8(Tete) + sections.join("\n</table></table><p></p>\n")
        + "\n</td></tr></table></HTML>\n";
}

}

class tst_statistiques : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laPageEstCelleQuOnAttend()
    {
        const Bac bac(QStringLiteral(EXEMPLE));
        const QString chemin = Statistiques::Calculer();
        QCOMPARE(chemin, bac.chemin("Stats/Statistiques.htm"));
        const QByteArray octets = Bac::lire(chemin);
        QVERIFY(octets.startsWith("\xEF\xBB\xBF"));
        const QStringList lues = QString::fromUtf8(octets.mid(3)).split(u'\n');
        const QStringList voulues = attendue().split(u'\n');
        for (qsizetype i = 0; i < std::min(lues.size(), voulues.size()); ++i)
            QCOMPARE(lues[i], voulues[i]);
        QCOMPARE(lues.size(), voulues.size());
        // Ended on the way, the page that was there stays.
        QVERIFY(Statistiques::Calculer([](int) { return false; }).isEmpty());
        QCOMPARE(Bac::lire(chemin), octets);
    }

    void lesLiensPerdusSontOtes()
    {
        Bac bac(QStringLiteral(EXEMPLE));
        Statistiques::Nettoyer();
        const QStringList avant = Bac::toutLire();
        for (const char *lien : {"AuteursAlbums(NAuteur", "CollAlbums(NColl", "EditeurAlbums(NEdit",
                 "GenreAlbums(NGenre", "SerieAlbums(NSerie"})
            Bac::executer(QStringLiteral("INSERT INTO %1, NAlbum) VALUES (99999, 1), (1, 99999), (NULL, 1)")
                              .arg(QLatin1String(lien)));
        const QStringList perdus = Bac::toutLire();
        Historique histoire(bac.annonces);
        QCOMPARE(Statistiques::Nettoyer(), 15);
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(histoire.aAnnuler().endsWith(": 15"));
        QCOMPARE(Statistiques::Nettoyer(), 0); // which is no step
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), perdus);
        QVERIFY(!histoire.peutAnnuler());
    }

    void desNomsHostilesRestentDuTexte()
    {
        const Bac bac;
        Bac::executer(QStringLiteral("INSERT INTO Serie(NSerie, Nom) VALUES (0, "
                                     "'<script>alert(1)</script>'), (2, 'a & \"b\" ''c''')"));
        const QString page = QString::fromUtf8(Statistiques::Page());
        QVERIFY(!page.contains("<script") && page.contains("&lt;script&gt;"));
        QVERIFY(page.contains("a &amp; &quot;b&quot; 'c'"));
        // An entry without a number is listed, not counted; of an empty collection none has a share.
        QVERIFY(page.contains("ries : 1<") && !page.contains(" %  <"));
        QCOMPARE(page.count("<font "), 2 + 3 * (6 + 2));
        QCOMPARE(page.count("<td"), page.count("</td>"));
    }

    void unDossierQuiEstUnFichierEstDit()
    {
        const Bac bac;
        Bac::ecrire(bac.chemin("Stats"), "un fichier");
        QVERIFY(refus([] { Statistiques::Calculer(); }));
        QCOMPARE(Bac::lire(bac.chemin("Stats")), QByteArray("un fichier"));
    }
};

QTEST_GUILESS_MAIN(tst_statistiques)
#include "tst_statistiques.moc"
