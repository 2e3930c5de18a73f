#include "acts/Choisir.h"
#include "acts/Creer.h"
#include "core/Dates.h"
#include "db/Base.h"
#include "model/Fiche.h"
#include "support/Bac.h"

#include <QTest>

using AccesBase::Role;

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

Album albumComplet()
{
    return {{Rubrique::Titre, "L'Écume d'été"}, {Rubrique::Tome, "3"}, {Rubrique::Serie, "Zig"},
        {Rubrique::Dateparu, "mai 1931"}, {Rubrique::Editeur, "Plon"}, {Rubrique::Broche, "1"},
        {Rubrique::Couleur, "1"}, {Rubrique::Integrale, "0"}, {Rubrique::Genre, "Humour"},
        {Rubrique::Dessin, "Pinchon"}, {Rubrique::Color, "Gris"}, {Rubrique::Scena, "D'Ivoi"},
        {Rubrique::Histoire, "Un récit."}, {Rubrique::Photo1, "a.jpg"}, {Rubrique::Prix, "12,5"}};
}

}

class tst_creer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lePremierAlbumFaitToutesSesLignes()
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

    /// Whatever can be entered is stored, and its sheet shows it.
    void toutCeQuiEstSaisiSeMontre()
    {
        const Bac bac;
        Album album;
        for (const auto &champ : ChampsDeCreation::Tous) {
            const bool nombre
                = champ.champ->regle != Champs::Regle::Texte && champ.champ->regle != Champs::Regle::Titre;
            album[champ.rubrique] = nombre && !champ.champ->source ? "1" : "Ceci";
        }
        const auto valeurs = Fiche::Lire(Champs::Feuille::Album, Creer::CreerAlbum(album));
        for (const auto &champ : ChampsDeCreation::Tous) {
            const ValeurDeChamp &valeur = valeurs->at(champ.champ->nom);
            const QString texte = album[champ.rubrique];
            QVERIFY2(valeur.affichee == texte || valeur.stockee.toString() == texte
                    || (champ.champ->regle == Champs::Regle::Drapeau && valeur.stockee.toBool()),
                champ.champ->nom);
        }
        // A loan whose date nobody gave begins today.
        album[Rubrique::DatePret].clear();
        Creer::CreerAlbum(album);
        QCOMPARE(Bac::valeur("SELECT DPret FROM Album WHERE Num = 2"), Dates::Ecrire(QDate::currentDate()));
    }

    void lesNomsConnusSontRetrouves()
    {
        const Bac bac;
        Creer::CreerAlbum(albumComplet());
        Album second = albumComplet();
        second[Rubrique::Titre] = QString(60, u'x');
        second[Rubrique::Serie] = QStringLiteral("ZIG");
        second[Rubrique::Editeur] = QStringLiteral("plon");
        second[Rubrique::Scena] = QStringLiteral("d'ivoi");
        second[Rubrique::Couleur] = "2";
        QCOMPARE(Creer::CreerAlbum(second), 2);
        for (const char *table : {"Genre", "Editeur", "Serie"})
            QCOMPARE(lignes(QLatin1String(table)).size(), 1);
        QCOMPARE(lignes("Auteurs").size(), 3);
        QCOMPARE(lignes("SerieAlbums"), QStringList({"1|1|D", "1|2|D"}));
        QCOMPARE(Bac::valeur("SELECT TAlbum FROM LAlbums WHERE NAlbum = 2").toString(), QString(50, u'x'));
        QCOMPARE(Bac::valeur("SELECT Couleur FROM Album WHERE Num = 2").toInt(), 2);
    }

    void leMemeAuteurDeuxFoisNAQuUneLigne()
    {
        const Bac bac;
        Album album = albumComplet();
        album[Rubrique::Scena] = QStringLiteral("pinchon");
        album[Rubrique::Color].clear();
        Creer::CreerAlbum(album);
        QCOMPARE(lignes("AuteursAlbums"), QStringList("1|1|-1|-1|0"));
        QCOMPARE(lignes("Auteurs"), QStringList("1|Pinchon| | | | |0| | | | | |-1|-1|0"));
        QCOMPARE(Bac::valeur("SELECT NScen FROM Album").toInt(), 1);
        QVERIFY(!Bac::valeur("SELECT NColor FROM Album").isValid());
    }

    void unAuteurSEcritNomVirgulePrenom()
    {
        const Bac bac;
        Bac::executer(QStringLiteral(
            "INSERT INTO Auteurs(NAuteur, Nom, Prenom) VALUES (4, 'Töpffer', 'Rodolphe'), (5, 'A, B', ' ')"));
        QCOMPARE(Creer::AjouterAuteur("töpffer, Rodolphe", Role::Dessin, 1), 4);
        QCOMPARE(Creer::AjouterAuteur("A, B", Role::Dessin, 1), 5);
        // Another first name is another author, who has both his names; by the surname alone one is found again.
        QCOMPARE(Creer::AjouterAuteur("Töpffer, Charles", Role::Scena, 1), 6);
        QCOMPARE(lignes("Auteurs").last(), "6|Töpffer|Charles| | | |0| | | | | |0|-1|0");
        QCOMPARE(Creer::AjouterAuteur("Töpffer", Role::Scena, 2), 6);
        // What hangs on a name is none of it, and what has two commas is one name.
        QCOMPARE(Creer::AjouterAuteur("Hergé, ", Role::Dessin, 2), 7);
        QCOMPARE(lignes("Auteurs").last(), "7|Hergé| | | | |0| | | | | |-1|0|0");
        QCOMPARE(Creer::AjouterAuteur(" , ", Role::Dessin, 2), 0);
        Creer::AjouterAuteur("Un, Deux, Trois", Role::Dessin, 2);
        QVERIFY(lignes("Auteurs").last().startsWith("8|Un, Deux, Trois| |"));
    }

    void plusieursNomsFontPlusieursLiens()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Genre VALUES (1, 'Aventure'), (2, 'Humour, noir')");
        Album album = albumComplet();
        album[Rubrique::Genre] = "Humour, aventure, Humour";
        Creer::CreerAlbum(album);
        QCOMPARE(lignes("Genre"), QStringList({"1|Aventure", "2|Humour, noir", "3|Humour"}));
        QCOMPARE(lignes("GenreAlbums"), QStringList({"3|1", "1|1"}));
        QCOMPARE(Bac::valeur("SELECT NGenre FROM Album"), 3);
        // A name that holds a comma is found whole, or stands in quotes.
        album[Rubrique::Genre] = "humour, noir";
        Creer::CreerAlbum(album);
        album[Rubrique::Genre] = "\"Sel, poivre\", Aventure";
        Creer::CreerAlbum(album);
        QCOMPARE(lignes("GenreAlbums").mid(2), QStringList({"2|2", "4|3", "1|3"}));
        QCOMPARE(lignes("Genre").last(), "4|Sel, poivre");
        Choisir::Valider(
            {{General::Tri::Albums, 2}, &Champs::De(Champs::Feuille::Album, "Genre")}, {0, "Mer, Aventure"});
        QCOMPARE(lignes("GenreAlbums"), QStringList({"3|1", "1|1", "4|3", "1|3", "5|2", "1|2"}));
        // What the chooser adds by its button is told apart in the same way, and what is no name is none.
        const Edition genre{{General::Tri::Albums, 2}, &Champs::De(Champs::Feuille::Album, "Genre")};
        QCOMPARE(Choisir::Nouveaux(genre, "mer, Conte, \"Rires, larmes\""),
            QStringList({"Conte", "Rires, larmes"}));
        QCOMPARE(Choisir::Ajouter(genre, "Conte, Fable"), 6);
        QCOMPARE(lignes("Genre").mid(5), QStringList({"6|Conte", "7|Fable"}));
        QCOMPARE(Choisir::Ajouter(genre, " , "), 0);
        QCOMPARE(lignes("Genre").size(), 7);
    }

    void sansNomNiEntreeNiLien()
    {
        const Bac bac;
        Album album;
        album[Rubrique::Titre] = QStringLiteral("Seul");
        album[Rubrique::Serie] = QStringLiteral("  ");
        album[Rubrique::Editeur] = QStringLiteral(" ");
        Creer::CreerAlbum(album);
        for (const char *table : {"Genre", "Editeur", "Serie", "Auteurs", "SerieAlbums", "GenreAlbums",
                 "EditeurAlbums", "AuteursAlbums"})
            QVERIFY2(lignes(QLatin1String(table)).isEmpty(), table);
        QCOMPARE(lignes("Album"),
            QStringList("1|0|NULL|NULL|NULL|NULL|NULL|NULL|5|5| | | | | |0| | |0| |0| |0|0|2|0|0|0|0|0"));
    }

    void unNumeroMortSEfface()
    {
        const Bac bac;
        Creer::CreerAlbum(albumComplet());
        Bac::executer("DELETE FROM Serie");
        const Edition morte
            = Ecrire::EditionDe({General::Tri::Albums, 1}, Champs::De(Champs::Feuille::Album, "Serie"));
        QVERIFY(Choisir::TientUnDisparu(morte) && Choisir::PeutVider(morte));
        Choisir::Valider(morte, {});
        QCOMPARE(
            Bac::valeur("SELECT NumSerie || '/' || (SELECT count(*) FROM SerieAlbums) FROM Album"), "0/0");
    }

    /// A new entry has a number that nothing bears, nor refers to.
    void unNumeroNeufNHeriteDeRien()
    {
        Bac bac;
        for (const char *sql : {"INSERT INTO CotesAlbum VALUES (4, '2024', '60')",
                 "INSERT INTO InterMetier VALUES (1, 7, 8)", "INSERT INTO LAlbums (NAlbum) VALUES (5)",
                 "INSERT INTO Album (Num, NumSerie, NPret, NColor) VALUES (1, 40, 30, 20)",
                 "INSERT INTO EditeurAlbums VALUES (50, 1)",
                 "INSERT INTO Serie (NSerie, NGenre) VALUES (2, 60)"})
            Bac::executer(sql);
        QCOMPARE(Creer::CreerAlbum(albumComplet()), 6);
        QCOMPARE(lignes("SerieAlbums"), QStringList("41|6|D"));
        QCOMPARE(lignes("EditeurAlbums").last() + ' ' + lignes("GenreAlbums").last(), "51|6 61|6");
        QCOMPARE(Bac::valeur("SELECT min(NAuteur) FROM Auteurs"), 21);
        QCOMPARE(Creer::CreerEntree(Especes::Emprunteur, "Voisin"), 31);
        QCOMPARE(Creer::CreerEntree(Especes::Intervenant, "Luc , Lettre"), 8);
        QCOMPARE(Creer::CreerEntree(Especes::Activite, "Lettrage"), 9);
        // What is deleted in between keeps its number to itself.
        Bac::executer("DELETE FROM Pret");
        QCOMPARE(Creer::CreerEntree(Especes::Emprunteur, "Voisine"), 32);
    }
};

QTEST_GUILESS_MAIN(tst_creer)
#include "tst_creer.moc"
