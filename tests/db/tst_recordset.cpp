#include "acts/Acte.h"
#include "db/Base.h"
#include "db/Transaction.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QTest>

namespace {

using Valeurs = QList<std::pair<QString, QVariant>>;

void remplirGenres(int nombre)
{
    for (int i = 1; i <= nombre; ++i)
        Bac::executer(
            "INSERT INTO Genre VALUES (?, ?)", {i, QStringLiteral("a%1").arg(i, 2, 10, QChar(u'0'))});
}

}

class tst_recordset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Each row met moves ahead of the walk; all but the first are then deleted, and the next one behind its back.
    void unParcoursSurvitASesEcritures()
    {
        const Bac bac;
        Base base;
        remplirGenres(9);
        QVariantList vus;
        for (auto rs = base.edit("Genre", "order by Nom asc"); !rs.AtEnd(); rs.MoveNext()) {
            vus << rs.Fields(0);
            {
                const Transaction reprise(base);
                base.Execute("UPDATE Genre SET Nom = 'perdu'");
            }
            rs.Edit();
            rs.SetField("Nom", QStringLiteral("z%1").arg(vus.size()));
            rs.Update();
            if (vus.last() == 1)
                continue; // and is not met again, at its new place
            rs.Delete();
            QVERIFY(refus([&] { rs.Fields(0); }).has_value());
            Bac::executer("DELETE FROM Genre WHERE NGenre = ?", {vus.last().toInt() + 1});
        }
        QCOMPARE(vus, QVariantList({1, 2, 4, 6, 8}));
        QCOMPARE(Bac::valeur("SELECT Nom FROM Genre"), "z1");
    }

    void uneEditionSansChangementNEcritRien()
    {
        const Bac bac;
        Bac::executer(
            "INSERT INTO Album (Num, ISBN, ISSN, PrixA, Broche) VALUES (1, 'été', '', 12.34, true)");
        const QByteArray avant = Bac::lire(bac.collection());
        for (const auto &[champ, valeur] : Valeurs{
                 {"ISBN", "été"}, {"ISSN", ""}, {"DA", QVariant()}, {"PrixA", 12.340049}, {"Broche", true}}) {
            auto rs = Base().edit("Album", "Num = 1");
            rs.Edit();
            rs.SetField(champ, valeur);
            rs.Update();
            QVERIFY2(Bac::lire(bac.collection()) == avant, qPrintable(champ));
        }
    }

    void uneLigneSupprimeeEntreTempsRefuseLEdition()
    {
        const Bac bac;
        remplirGenres(1);
        auto rs = Base().edit("Genre");
        rs.Edit();
        rs.SetField("Nom", "Fantôme");
        Bac::executer("DELETE FROM Genre");
        QVERIFY(refus([&] { rs.Update(); }).has_value());
    }

    void uneValeurImpossibleEstRefusee()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Album (Num, NAlbum, PrixA) VALUES (1, 12, 3.5), (2, 13, 3.5)");
        const QByteArray avant = Bac::lire(bac.collection());
        for (const auto &[champ, valeur] :
            Valeurs{{"NAlbum", "douze"}, {"NAlbum", " "}, {"NAlbum", 1.5}, {"Broche", 1}, {"Num", 2}}) {
            auto rs = Base().edit("Album", "Num = 1");
            rs.Edit();
            rs.SetField("Commentaire", "avec");
            rs.SetField(champ, valeur);
            QVERIFY2(refus([&] { rs.Update(); }) == Error::Sorte::Autre, qPrintable(champ));
        }
        QVERIFY(Bac::lire(bac.collection()) == avant);
    }

    void uneValeurRevientCommeElleDoit_data()
    {
        const Colonnes<QString, QVariant, QVariant> cas;
        for (const QVariant &texte : QVariantList{QVariant(), "", "L'Écume d'été \"Lou\" ?1 :a; true -- DROP",
                 "œ € 😀 日本", QString(200'000, u'é')})
            QTest::addRow("%s", qPrintable(texte.toString().left(9))) << "TAlbum" << texte << texte;
        for (const auto &[donne, garde] : {std::pair(-12.34567, -12.3457), std::pair(0.00004, 0.0)})
            QTest::addRow("%g", donne) << "PrixA" << QVariant(donne) << QVariant(garde);
        cas("vrai", "Broche", QVariant(true), QVariant(-1));
        cas("faux", "Broche", QVariant(false), QVariant(0));
    }

    void uneValeurRevientCommeElleDoit()
    {
        const auto [champ, donne, garde] = essai<QString, QVariant, QVariant>();
        const Bac bac;
        const QString table = champ == "TAlbum" ? "LAlbums" : "Album";
        {
            auto rs = Base().edit(table);
            rs.AddNew();
            rs.SetField(champ, donne);
            rs.Update();
        }
        const QVariant lu
            = Bac::valeur("SELECT " + champ + " FROM " + table + " WHERE " + champ + " IS ?", {donne});
        QVERIFY2(lu == garde && lu.isValid() == garde.isValid(), qPrintable(lu.toString()));
    }

    void leTexteDUneRequeteEstMisEnForme()
    {
        const Bac bac;
        Base base;
        Bac::executer("INSERT INTO Auteurs (NAuteur, Nom, Scena, Dessin) VALUES (1, 'true', true, false),"
                      " (2, 'true', false, true), (3, 'fin; ', false, false)");
        for (const auto &[condition, nombre] : Valeurs{{"Scena=true", 1}, {"Scena = False ; ", 2},
                 {"Nom = 'true'", 2}, {"Nom <> 'l''a true' and Dessin=TRUE;;", 1}, {"Nom = 'fin; '", 1}}) {
            QCOMPARE(base.edit("Auteurs", condition).RecordCount(), nombre.toInt());
            QCOMPARE(Bac::valeur("SELECT count(*) From Auteurs where " + condition), nombre);
        }
    }
};

QTEST_GUILESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
