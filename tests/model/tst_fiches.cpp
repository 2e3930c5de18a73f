#include "acts/EcrireFiche.h"
#include "acts/EcrireGrilles.h"
#include "db/Base.h"
#include "model/ChargerAuteurs.h"
#include "support/Bac.h"

#include <QTest>

namespace {

QStringList lignes(const QString &sql)
{
    Base base;
    QStringList resultat;
    for (auto rs = base.OpenRecordset(sql); !rs.AtEnd(); rs.MoveNext())
        resultat << rs.Fields(0).toString();
    return resultat;
}

}

class tst_fiches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesMetiersDUnAuteur()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Auteurs(NAuteur, Dessin, Scena) VALUES (1, -1, -1)");
        const auto vu = ChargerAuteurs::LireMetiers(1, General::Tri::Scenaristes);
        QCOMPARE(vu.titre, Txt::Scenariste);
        QVERIFY(vu.autres[0].libelle == Txt::Dessinateur && vu.autres[0].exerce);
        QVERIFY(vu.autres[1].libelle == Txt::Coloriste && !vu.autres[1].exerce);
        ChargerAuteurs::EcrireAuteur(1, "Métiers", "Coloriste|Scénariste");
        QCOMPARE(Bac::valeur("SELECT Dessin || Scena || Color FROM Auteurs"), "0-1-1");
    }

    void unNomDAuteurNeSeVidePas()
    {
        const Bac bac;
        Bac::executer("INSERT INTO Auteurs(NAuteur, Nom, Prenom) VALUES (1, 'Remi', 'Georges')");
        const auto apres = [](const char *champ, const QString &texte) {
            const bool pris = ChargerAuteurs::EcrireAuteur(1, QLatin1String(champ), texte);
            return Bac::valeur("SELECT Nom || '|' || Prenom FROM Auteurs").toString() + (pris ? "" : " !");
        };
        QCOMPARE(apres("Nom", " \n "), "Remi|Georges !");
        QCOMPARE(apres("Nom", ", "), "Remi|Georges !");
        QCOMPARE(apres("Nom", "Hergé, "), "Hergé|Georges");
        QCOMPARE(apres("Nom", "Paul, Dupont"), "Dupont|Paul");
        QCOMPARE(apres("Prenom", " "), "Dupont|");
    }

    void unIntervenantRemplaceLAncien()
    {
        const Bac bac;
        const QString tout
            = QStringLiteral("SELECT NInter || '/' || NMetier FROM InterMetier WHERE NAlbum = 1");
        auto ligne = ChargerAlbums::EcrireIntervenant(1, {}, {0, 0, "Marie , D'Upré", "Lettrage"});
        QCOMPARE(lignes(tout), QStringList("1/1"));
        QCOMPARE(Bac::valeur("SELECT Nom || '|' || Prenom FROM Inter").toString(), "D'Upré|Marie");
        // The same names again write nothing; another first name is another person.
        ChargerAlbums::EcrireIntervenant(1, ligne, {0, 0, "marie,d'upré", "lettrage"});
        QCOMPARE(lignes(tout), QStringList("1/1"));
        ligne = ChargerAlbums::EcrireIntervenant(1, ligne, {0, 0, "Jean , D'Upré", QString()});
        QCOMPARE(lignes(tout), QStringList("2/0"));
        ligne = ChargerAlbums::EcrireIntervenant(1, ligne, {0, 0, "D'Upré", "Gravure"});
        QCOMPARE(lignes(tout), QStringList("1/2"));
        ChargerAlbums::EcrireIntervenant(1, ligne, {0, 0, QString(855, u'.'), "Gravure"});
        QVERIFY(lignes(tout).isEmpty());
        QCOMPARE(lignes("SELECT Nom FROM Inter").size(), 2);
    }

    void uneCoteRemplaceLAncienne()
    {
        const Bac bac;
        const QString tout
            = QStringLiteral("SELECT Mois || '=' || Cotes FROM CotesAlbum WHERE NAlbum = 1 ORDER BY 1");
        ChargerAlbums::EcrireCote(1, {}, {"l'été 2024", "60"});
        ChargerAlbums::EcrireCote(1, {}, {"2025", QString()});
        QCOMPARE(lignes(tout), QStringList({"2025=", "l'été 2024=60"}));
        ChargerAlbums::EcrireCote(1, {"2025", QString()}, {"l'été 2024", "60"});
        QCOMPARE(lignes(tout), QStringList("l'été 2024=60"));
        ChargerAlbums::EcrireCote(1, {"l'été 2024", "60"}, {" ", QString(855, u'.')});
        QVERIFY(lignes(tout).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_fiches)
#include "tst_fiches.moc"
