#include "acts/Creer.h"
#include "db/Base.h"
#include "support/Bac.h"

#include <QTest>

using AccesBase::Role;

class tst_creer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lePremierAlbumFaitToutesSesLignes();
    void lesNomsConnusSontRetrouves();
    void leMemeAuteurDeuxFoisNAQuUneLigne();
    void unAuteurSEcritNomVirgulePrenom();
    void sansNomNiEntreeNiLien();
    void leNumeroRedonneNHeriteDeRien();
};

namespace {

/// All rows of a table, as text, in the order of their making.
QStringList lignes(const QString &table)
{
    Base base;
    QStringList resultat;
    const auto forme
        = base.OpenRecordset(QStringLiteral("SELECT count(*) FROM pragma_table_info(?)"), {table});
    const int colonnes = forme.Fields(0).toInt();
    for (auto rs = base.OpenRecordset(QStringLiteral("SELECT * From ") + table); !rs.AtEnd(); rs.MoveNext()) {
        QStringList cellules;
        for (int i = 0; i < colonnes; ++i)
            cellules << (rs.Fields(i).isValid() ? rs.Fields(i).toString() : QStringLiteral("NULL"));
        resultat << cellules.join(u'|');
    }
    return resultat;
}

Creer::Album albumComplet()
{
    return {QStringLiteral("L'Écume d'été"), 3, QStringLiteral("Zig"), QStringLiteral("mai 1931"),
        QStringLiteral("Plon"), true, true, false, QStringLiteral("Humour"), QStringLiteral("Pinchon"),
        QStringLiteral("Gris"), QStringLiteral("D'Ivoi"), QStringLiteral("Un récit."),
        QStringLiteral("a.jpg"), QString(), 12.5};
}

}

void tst_creer::lePremierAlbumFaitToutesSesLignes()
{
    const Bac bac;
    QCOMPARE(Creer::CreerAlbum(albumComplet()), 1);
    QCOMPARE(lignes("Album"),
        QStringList("1|3|1|1|1|1|2|3|5|5| | | |Un récit.| |0| |mai 1931|0| |0| |12.5|-1|1|0|0|0|0|0"));
    QCOMPARE(lignes("LAlbums"), QStringList("1|L'Écume d'été|a.jpg| |Un récit.| | |NULL|NULL|NULL"));
    QCOMPARE(lignes("Genre"), QStringList("1|Humour"));
    QCOMPARE(lignes("Editeur"), QStringList("1|Plon| | | | |0| | | | "));
    QCOMPARE(lignes("Serie"), QStringList("1|Zig|1|1|5|5|5|5| | | | | | "));
    QCOMPARE(lignes("Auteurs"),
        QStringList({"1|Pinchon| | | | |0| | | | | |-1|0|0", "2|D'Ivoi| | | | |0| | | | | |0|-1|0",
            "3|Gris| | | | |0| | | | | |0|0|-1"}));
    QCOMPARE(lignes("AuteursAlbums"), QStringList({"1|1|-1|0|0", "2|1|0|-1|0", "3|1|0|0|-1"}));
    QCOMPARE(lignes("SerieAlbums"), QStringList("1|1|D"));
    QCOMPARE(lignes("GenreAlbums") + lignes("EditeurAlbums"), QStringList({"1|1", "1|1"}));
    QVERIFY(lignes("CollAlbums").isEmpty() && lignes("PaysAlbum").isEmpty());
}

void tst_creer::lesNomsConnusSontRetrouves()
{
    const Bac bac;
    Creer::CreerAlbum(albumComplet());
    Creer::Album second = albumComplet();
    second.titre = QString(60, u'x');
    second.serie = QStringLiteral("ZIG");
    second.editeur = QStringLiteral("plon");
    second.scena = QStringLiteral("d'ivoi");
    second.couleur = false;
    QCOMPARE(Creer::CreerAlbum(second), 2);
    for (const char *table : {"Genre", "Editeur", "Serie"})
        QCOMPARE(lignes(QLatin1String(table)).size(), 1);
    QCOMPARE(lignes("Auteurs").size(), 3);
    QCOMPARE(lignes("SerieAlbums"), QStringList({"1|1|D", "1|2|D"}));
    QCOMPARE(Bac::valeur(QStringLiteral("SELECT TAlbum FROM LAlbums WHERE NAlbum = 2")).toString(),
        QString(50, u'x'));
    QCOMPARE(Bac::valeur(QStringLiteral("SELECT Couleur FROM Album WHERE Num = 2")).toInt(), 2);
}

void tst_creer::leMemeAuteurDeuxFoisNAQuUneLigne()
{
    const Bac bac;
    Creer::Album album = albumComplet();
    album.scena = QStringLiteral("pinchon");
    album.color.clear();
    Creer::CreerAlbum(album);
    QCOMPARE(lignes("AuteursAlbums"), QStringList("1|1|-1|-1|0"));
    QCOMPARE(lignes("Auteurs"), QStringList("1|Pinchon| | | | |0| | | | | |-1|-1|0"));
    QCOMPARE(Bac::valeur(QStringLiteral("SELECT NScen FROM Album")).toInt(), 1);
    QVERIFY(!Bac::valeur(QStringLiteral("SELECT NColor FROM Album")).isValid());
}

void tst_creer::unAuteurSEcritNomVirgulePrenom()
{
    const Bac bac;
    Bac::executer(QStringLiteral(
        "INSERT INTO Auteurs(NAuteur, Nom, Prenom) VALUES (4, 'Töpffer', 'Rodolphe'), (5, 'A, B', ' ')"));
    QCOMPARE(Creer::AjouterAuteur(QStringLiteral("töpffer, Rodolphe"), Role::Dessin, 1), 4);
    QCOMPARE(Creer::AjouterAuteur(QStringLiteral("A, B"), Role::Dessin, 1), 5);
    // Another first name is another author, and a text is never split to make one.
    QCOMPARE(Creer::AjouterAuteur(QStringLiteral("Töpffer, Charles"), Role::Scena, 1), 6);
    QCOMPARE(lignes("Auteurs").last(), QStringLiteral("6|Töpffer, Charles| | | | |0| | | | | |0|-1|0"));
}

void tst_creer::sansNomNiEntreeNiLien()
{
    const Bac bac;
    Creer::Album album;
    album.titre = QStringLiteral("Seul");
    album.serie = QStringLiteral("  ");
    album.editeur = QStringLiteral(" ");
    Creer::CreerAlbum(album);
    for (const char *table : {"Genre", "Editeur", "Serie", "Auteurs", "SerieAlbums", "GenreAlbums",
             "EditeurAlbums", "AuteursAlbums"})
        QVERIFY2(lignes(QLatin1String(table)).isEmpty(), table);
    QCOMPARE(lignes("Album"),
        QStringList("1|0|NULL|NULL|NULL|NULL|NULL|NULL|5|5| | | | | |0| | |0| |0| |0|0|2|0|0|0|0|0"));
}

void tst_creer::leNumeroRedonneNHeriteDeRien()
{
    const Bac bac;
    Bac::executer(QStringLiteral("INSERT INTO CotesAlbum VALUES (1, '2024', '60'), (2, '2024', '7')"));
    Bac::executer(QStringLiteral("INSERT INTO InterMetier VALUES (1, 1, 1)"));
    Creer::CreerAlbum(albumComplet());
    QCOMPARE(lignes("CotesAlbum"), QStringList("2|2024|7"));
    QVERIFY(lignes("InterMetier").isEmpty());
}

QTEST_GUILESS_MAIN(tst_creer)
#include "tst_creer.moc"
