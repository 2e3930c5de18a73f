#include "acts/Historique.h"
#include "core/Error.h"
#include "db/Base.h"
#include "reports/Statistiques.h"
#include "support/Bac.h"
#include "support/Refus.h"

#include <QRegularExpression>
#include <QTest>

namespace {

QStringList cellules(const QString &page)
{
    static const QRegularExpression cellule("<font[^>]*>([^<]*)</font>");
    QStringList textes;
    for (auto i = cellule.globalMatch(page); i.hasNext();)
        textes << i.next().captured(1);
    return textes;
}

/// The cells of the page by other means: one query for each entry of each section.
QStringList attendues()
{
    const double total = Bac::valeur("SELECT count(*) FROM Album WHERE Num > 0").toDouble();
    QStringList textes{"Statistiques"};
    for (const auto &[libelle, table, cle, liens, role] :
        {std::tuple("Nombre De Séries", "Serie", "NSerie", "SerieAlbums", "1=1"),
            {"Nombre De Dessinateurs", "Auteurs", "NAuteur", "AuteursAlbums", "Dessin = -1"},
            {"Nombre De Scénaristes", "Auteurs", "NAuteur", "AuteursAlbums", "Scena = -1"},
            {"Nombre De Genres", "Genre", "NGenre", "GenreAlbums", "1=1"},
            {"Nombre D'Editeurs", "Editeur", "NEdit", "EditeurAlbums", "1=1"},
            {"Nombre De Collections", "Coll", "NColl", "CollAlbums", "1=1"}}) {
        const QString parmi = QString(" FROM %1 WHERE %2").arg(table, role);
        const QString dAlbums = QString("SELECT count(*) FROM %1 WHERE %2 = ? AND %3").arg(liens, cle, role);
        const int nombre = Bac::valeur(QString("SELECT count(*)%1 AND %2 > 0").arg(parmi, cle)).toInt();
        textes << QString("%1 : %2").arg(libelle).arg(nombre) << "Nombre d'Albums"
               << " /%";
        Base base;
        for (auto rs = base.OpenRecordset(QString("SELECT %1, Nom%2 ORDER BY Nom").arg(cle, parmi));
             !rs.AtEnd(); rs.MoveNext()) {
            const int albums = Bac::valeur(dAlbums, {rs.Fields(0)}).toInt();
            textes << rs.Fields(1).toString().replace(u'&', "&amp;").replace(u'"', "&quot;")
                   << QString::number(albums)
                   << QString::number(albums * 100 / total, 'f', 2).replace(u'.', u',') + " %  ";
        }
    }
    return textes;
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
        QCOMPARE(cellules(QString::fromUtf8(octets)), attendues());
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
