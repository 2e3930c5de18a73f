#include "acts/Renommer.h"
#include "core/Error.h"
#include "db/Base.h"
#include "model/General.h"
#include "support/Bac.h"
#include "support/Colonnes.h"

#include <QFile>
#include <QTest>

using namespace General;

namespace {

QStringList textes(const Entrees &entrees)
{
    QStringList lignes;
    for (int i = 0; i < entrees.size(); ++i)
        lignes << QStringLiteral("%1:%2").arg(entrees.id(i)).arg(entrees.texte(i));
    return lignes;
}

/// Two series albums, three authors, press items with and without a number.
void peupler()
{
    for (const char *sql :
        {"LAlbums(NAlbum, TAlbum) VALUES (1, 'Edgar'), (2, 'Écume'), (3, 'Echo'), (4, NULL)",
            "Album(Num, NAlbum, NPret, PrixA) VALUES (1, 12, 0, 10.5), (2, 2, 3, NULL), (3, 1, 0, 2),"
            " (4, 0, NULL, 0)",
            "Serie(NSerie, Nom) VALUES (1, 'Zig')",
            "SerieAlbums(NSerie, NAlbum) VALUES (1, 1), (1, 2), (1, 3), (1, 99)",
            "Auteurs(NAuteur, Nom, Prenom, Dessin, Scena, Color) VALUES (1, 'Töpffer', ' Rodolphe ', -1, -1, "
            "0),"
            " (2, 'Cham', '  ', -1, 0, 0), (3, 'Zed', NULL, 0, 0, -1)",
            "AuteursAlbums(NAuteur, NAlbum, Dessin, Scena, Color) VALUES (1, 2, -1, 0, 0), (1, 1, -1, -1, 0)",
            "PresseBD(NPressBD, Nom, NPresseBD, NEdit) VALUES (1, 'Le Rire', 12, 7), (2, 'Fillette', NULL, "
            "7)",
            "Editeur(NEdit, Nom) VALUES (7, 'Plon')", "EditeurAlbums(NEdit, NAlbum) VALUES (7, 3), (7, 1)",
            "ExLibris(NExLibris, Nom) VALUES (1, 'La noce')", "Coll(NColl, Nom) VALUES (1, 'Jabot')"})
        Bac::executer(QStringLiteral("INSERT INTO ") + sql);
}

}

class tst_general : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesListesVontDansLOrdreAvecLeTexteDeLeurGenre()
    {
        const Bac bac;
        peupler();
        QCOMPARE(textes(LireListe(Tri::Albums)), QStringList({"4:", "3:Echo", "2:Écume", "1:Edgar"}));
        QCOMPARE(textes(LireListe(Tri::Dessinateurs)), QStringList({"2:Cham", "1:Töpffer, Rodolphe"}));
        QCOMPARE(textes(LireListe(Tri::Scenaristes)), QStringList({"1:Töpffer, Rodolphe"}));
        QCOMPARE(textes(LireListe(Tri::Coloristes)), QStringList({"3:Zed"}));
        QCOMPARE(textes(LireListe(Tri::Presse)), QStringList({"2:Fillette - ", "1:Le Rire - 12"}));
        QCOMPARE(textes(LirePresse(7)), QStringList({"1:Le Rire - 12", "2:Fillette - "}));
        QCOMPARE(LirePretes(), std::vector<int>{2});
        QCOMPARE(LireTotaux().albums, 4);
        QCOMPARE(LireTotaux().valeur, 12.5);
        qint64 annonce = 0;
        LireListe(Tri::Albums, [&](qint64 faites, qint64 total) { annonce = faites * 100 / total; });
        QCOMPARE(annonce, 100);
    }

    void lesAlbumsDUneEntree()
    {
        const Bac bac;
        peupler();
        // In tome order; the link of an album that is gone shows nothing.
        QCOMPARE(textes(LireAlbums(Tri::Series, 1)), QStringList({"3:Echo", "2:Écume", "1:Edgar"}));
        QCOMPARE(textes(LireAlbums(Tri::Dessinateurs, 1)), QStringList({"2:Écume", "1:Edgar"}));
        QCOMPARE(textes(LireAlbums(Tri::Scenaristes, 1)), QStringList({"1:Edgar"}));
        QCOMPARE(textes(LireAlbums(Tri::Editeurs, 7)), QStringList({"3:Echo", "1:Edgar"}));
        QVERIFY(LireAlbums(Tri::ExLibris, 1).empty());
    }

    void renommerEcritCeQueLeLibelleDit_data()
    {
        const Colonnes<int, QString, QString> cas;
        const QString long60(60, u'x');
        cas("titre", 0, "  L'Été ", "1:L'Été");
        cas("titre long", 0, long60, "1:" + long60.left(50));
        cas("blanc", 0, "   ", "1:Edgar");
        cas("série", 1, "Zag, le puce", "1:Zag, le puce");
        cas("auteur", 2, "Doré, Gustave", "1:Doré, Gustave");
        cas("auteur, deux virgules", 3, "Doré, G., fils", "1:Doré, G., fils");
        cas("presse", 6, "Le Rire - 13", "1:Le Rire - 13");
        cas("presse sans numéro", 6, "Le Rire bleu", "1:Le Rire bleu - 12");
        cas("collection", 8, "L'Art", "1:L'Art");
        cas("presse, numéro devant", 6, "3 - Cri-Cri", "1:Cri-Cri - 3");
        cas("presse, numéro vide", 6, "Pilou - ", "1:Pilou - 12");
    }

    void renommerEcritCeQueLeLibelleDit()
    {
        const auto [tri, libelle, attendu] = essai<int, QString, QString>();
        const Bac bac;
        peupler();
        const int id = attendu.section(u':', 0, 0).toInt();
        const Renommer::Renommage fait = Renommer::RenommerEntree({TriDe(tri), id}, libelle);
        QCOMPARE(fait == Renommer::Renommage::Coupe, libelle.size() == 60);
        QCOMPARE(QStringLiteral("%1:%2").arg(id).arg(LireTexte(TriDe(tri), id)), attendu);
    }

    void ajouterNeDoubleRien_data()
    {
        const Colonnes<int, QString, QString, int, bool> cas;
        cas("blanc", 1, "  \t ", "0:", 0, false);
        cas("album", 0, "Echo", "0:", 0, false);
        cas("série connue", 1, " ZIG ", "1:Zig", 0, false);
        cas("série", 1, "L'été", "2:L'été", 1, true);
        cas("ex-libris en double", 5, "La noce", "2:La noce", 1, true);
        cas("presse", 6, "Le Rire - 13", "3:Le Rire - 13", 1, true);
        cas("auteur d'un autre métier", 4, "TÖPFFER,rodolphe", "1:Töpffer, Rodolphe", 0, true);
        cas("auteur du métier", 2, "Töpffer, Rodolphe", "1:Töpffer, Rodolphe", 0, false);
        cas("auteur sans prénom", 3, "Cham", "2:Cham", 0, true);
        cas("auteur au prénom nul", 3, "Zed", "3:Zed", 0, true);
        cas("homonyme", 3, "Töpffer, Charles", "4:Töpffer, Charles", 1, true);
        cas("nom seul d'un autre", 3, "Töpffer", "4:Töpffer", 1, true);
        cas("virgule sans nom", 2, ", Paul", "4:Paul", 1, true);
    }

    void ajouterNeDoubleRien()
    {
        const auto [tri, libelle, attendu, lignes, nouveau] = essai<int, QString, QString, int, bool>();
        const Bac bac;
        peupler();
        const qsizetype avant = Bac::toutLire().size();
        const Renommer::Ajout ajout = Renommer::AjouterEntree(TriDe(tri), libelle);
        QCOMPARE(QStringLiteral("%1:%2").arg(ajout.id).arg(LireTexte(TriDe(tri), ajout.id)), attendu);
        QCOMPARE(ajout.nouveau, nouveau);
        QCOMPARE(Bac::toutLire().size(), avant + lignes);
        QCOMPARE(LireListe(TriDe(tri)).rang(ajout.id) >= 0, ajout.id > 0);
        if (tri == 5 || ajout.id == 0)
            return;
        // The same once more is there already.
        QCOMPARE(Renommer::AjouterEntree(TriDe(tri), libelle).id, ajout.id);
        QCOMPARE(Bac::toutLire().size(), avant + lignes);
    }

    void unChoixMontreLaValeurCourante()
    {
        const Bac bac;
        peupler();
        const Choix scenaristes = LireChoix(Sources::Scenariste, "töpffer, rodolphe");
        QCOMPARE(textes(scenaristes.entrees), QStringList({"1:Töpffer, Rodolphe"}));
        QCOMPARE(scenaristes.choisie, 0);
        QCOMPARE(LireChoix(Sources::Dessinateur, QString(855, u'.')).choisie, -1);
        QCOMPARE(LireChoix(Sources::Editeur, {}).entrees.size(), 1);
    }

    void laCopieRefuseLaBaseSousTousSesNoms()
    {
        const Bac bac;
        peupler();
        const QString copie = bac.chemin("copie.mdb");
        QVERIFY(QFile::link(bac.collection(), bac.chemin("lien")));
        for (const char *nom : {"bd.mdb", "./BD.MDB", "lien"})
            QCOMPARE(VerifierCopie(bac.chemin(nom)), "bd.mdb");
        QCOMPARE(VerifierCopie(bac.chemin("bdbase.BD")), "BDbase.bd");
        QCOMPARE(VerifierCopie(copie), QString());

        Bac::ecrire(copie, "ancienne");
        CopierBase(copie);
        const QStringList ici = Bac::toutLire();
        const Bac la;
        QVERIFY(QFile::remove(la.collection()) && QFile::rename(copie, la.collection()));
        QCOMPARE(Bac::toutLire(), ici);
        QVERIFY_EXCEPTION_THROWN(CopierBase(bac.chemin("absent/copie.mdb")), Error);
    }
};

QTEST_GUILESS_MAIN(tst_general)
#include "tst_general.moc"
