#include "acts/Historique.h"
#include "acts/Supprimer.h"
#include "reports/Statistiques.h"
#include "support/Bac.h"

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

}

class tst_statistiques : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laPageEstCelleQuOnAttend()
    {
        const Bac bac;
        for (const char *sql : {"INSERT INTO Album (Num) VALUES (1), (2), (3)",
                 "INSERT INTO LAlbums (NAlbum) VALUES (1), (2), (3)",
                 "INSERT INTO Serie (NSerie, Nom) VALUES (0, '<script>'), (1, 'Zut & \"a\"'), (2, 'Écu')",
                 "INSERT INTO SerieAlbums (NSerie, NAlbum) VALUES (1, 1), (1, 2), (2, 3)",
                 "INSERT INTO Auteurs (NAuteur, Nom, Dessin) VALUES (1, 'Cham', -1)",
                 "INSERT INTO Auteurs (NAuteur, Nom, Scena) VALUES (2, 'Sand', -1)",
                 "INSERT INTO AuteursAlbums VALUES (1, 1, -1, 0, 0), (2, 1, 0, -1, 0), (2, 2, 0, -1, 0)",
                 "INSERT INTO Genre VALUES (1, 'Mer')",
                 "INSERT INTO GenreAlbums VALUES (1, 1), (1, 2), (1, 3)",
                 "INSERT INTO Editeur (NEdit, Nom) VALUES (1, 'Aubert')",
                 "INSERT INTO EditeurAlbums VALUES (1, 2)",
                 "INSERT INTO Coll (NColl, Nom) VALUES (1, 'Jabot')", "INSERT INTO CollAlbums VALUES (1, 3)"})
            Bac::executer(sql);
        const QString chemin = Statistiques::Calculer();
        QCOMPARE(chemin, bac.chemin("Stats/Statistiques.htm"));
        const QByteArray octets = Bac::lire(chemin);
        QVERIFY(octets.startsWith("\xEF\xBB\xBF") && !octets.contains("<script"));
        // An entry without a number is listed, not counted.
        const QString page = cellules(QString::fromUtf8(octets)).join(u'|').remove("Nombre d'Albums| /%|");
        QCOMPARE(page,
            "Statistiques|Nombre De Séries : 2|&lt;script&gt;|0|0,00 %  |Écu|1|33,33 %  |"
            "Zut &amp; &quot;a&quot;|2|66,67 %  |Nombre De Dessinateurs : 1|Cham|1|33,33 %  |"
            "Nombre De Scénaristes : 1|Sand|2|66,67 %  |Nombre De Genres : 1|Mer|3|100,00 %  |"
            "Nombre D'Editeurs : 1|Aubert|1|33,33 %  |Nombre De Collections : 1|Jabot|1|33,33 %  ");
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

    /// What a deletion leaves hanging and the cleaning takes comes back with what was deleted.
    void uneSuppressionNettoyeeSeReprend()
    {
        Bac bac(QStringLiteral(EXEMPLE));
        Statistiques::Nettoyer();
        const QStringList avant = Bac::toutLire();
        Historique histoire(bac.annonces);
        Supprimer::SupprimerEntree({General::Tri::Series, 2});
        QVERIFY(Statistiques::Nettoyer() > 1);
        histoire.annuler();
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
    }
};

QTEST_GUILESS_MAIN(tst_statistiques)
#include "tst_statistiques.moc"
