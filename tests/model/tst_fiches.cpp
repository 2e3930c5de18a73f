#include "acts/EcrireFiche.h"
#include "acts/EcrireGrilles.h"
#include "db/Base.h"
#include "model/ChargerAuteurs.h"
#include "support/Bac.h"

#include <QTest>

class tst_fiches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesMetiersDUnAuteur();
    void unIntervenantRemplaceLAncien();
    void uneCoteRemplaceLAncienne();
    void leResumeAUneCopie();
};

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

void tst_fiches::lesMetiersDUnAuteur()
{
    const Bac bac;
    Bac::executer("INSERT INTO Auteurs(NAuteur, Dessin, Scena) VALUES (1, -1, -1)");
    const auto vu = ChargerAuteurs::LireMetiers(1, General::Tri::Scenaristes);
    QCOMPARE(vu.titre, Txt::Scenariste);
    QVERIFY(vu.autres[0].libelle == Txt::Dessinateur && vu.autres[0].exerce);
    QVERIFY(vu.autres[1].libelle == Txt::Coloriste && !vu.autres[1].exerce);
    ChargerAuteurs::EcrireAuteur(1, QStringLiteral("Métiers"), QStringLiteral("Coloriste|Scénariste"));
    QCOMPARE(Bac::valeur(QStringLiteral("SELECT Dessin || Scena || Color FROM Auteurs WHERE NAuteur = 1"))
                 .toString(),
        QStringLiteral("0-1-1"));
}

void tst_fiches::unIntervenantRemplaceLAncien()
{
    const Bac bac;
    const QString tout = QStringLiteral("SELECT NInter || '/' || NMetier FROM InterMetier WHERE NAlbum = 1");
    auto ligne = ChargerAlbums::EcrireIntervenant(
        1, {}, {0, 0, QStringLiteral("Marie , D'Upré"), QStringLiteral("Lettrage")});
    QCOMPARE(lignes(tout), QStringList("1/1"));
    QCOMPARE(Bac::valeur(QStringLiteral("SELECT Nom || '|' || Prenom FROM Inter")).toString(),
        QStringLiteral("D'Upré|Marie"));
    // The same names again write nothing; another first name is another person.
    ChargerAlbums::EcrireIntervenant(
        1, ligne, {0, 0, QStringLiteral("marie,d'upré"), QStringLiteral("lettrage")});
    QCOMPARE(lignes(tout), QStringList("1/1"));
    ligne = ChargerAlbums::EcrireIntervenant(1, ligne, {0, 0, QStringLiteral("Jean , D'Upré"), QString()});
    QCOMPARE(lignes(tout), QStringList("2/0"));
    ligne = ChargerAlbums::EcrireIntervenant(
        1, ligne, {0, 0, QStringLiteral("D'Upré"), QStringLiteral("Gravure")});
    QCOMPARE(lignes(tout), QStringList("1/2"));
    ChargerAlbums::EcrireIntervenant(1, ligne, {0, 0, QString(855, u'.'), QStringLiteral("Gravure")});
    QVERIFY(lignes(tout).isEmpty());
    QCOMPARE(lignes(QStringLiteral("SELECT Nom FROM Inter")).size(), 2);
}

void tst_fiches::uneCoteRemplaceLAncienne()
{
    const Bac bac;
    const QString tout
        = QStringLiteral("SELECT Mois || '=' || Cotes FROM CotesAlbum WHERE NAlbum = 1 ORDER BY 1");
    ChargerAlbums::EcrireCote(1, {}, {QStringLiteral("l'été 2024"), QStringLiteral("60")});
    ChargerAlbums::EcrireCote(1, {}, {QStringLiteral("2025"), QString()});
    QCOMPARE(lignes(tout), QStringList({"2025=", "l'été 2024=60"}));
    ChargerAlbums::EcrireCote(
        1, {QStringLiteral("2025"), QString()}, {QStringLiteral("l'été 2024"), QStringLiteral("60")});
    QCOMPARE(lignes(tout), QStringList("l'été 2024=60"));
    ChargerAlbums::EcrireCote(
        1, {QStringLiteral("l'été 2024"), QStringLiteral("60")}, {QStringLiteral(" "), QString(855, u'.')});
    QVERIFY(lignes(tout).isEmpty());
}

void tst_fiches::leResumeAUneCopie()
{
    const Bac bac;
    Bac::executer(QStringLiteral("INSERT INTO Album(Num) VALUES (1)"));
    Bac::executer(QStringLiteral("INSERT INTO LAlbums(NAlbum) VALUES (1)"));
    QVERIFY(ChargerAlbums::EcrireAlbum(1, QStringLiteral("Hist"), QStringLiteral("Récit")));
    QCOMPARE(lignes(QStringLiteral("SELECT Histoire FROM LAlbums")), QStringList(QStringLiteral("Récit")));
    Bac::executer(QStringLiteral("UPDATE Album SET Histoire = ' '"));
    QCOMPARE(ChargerAlbums::AfficherAlbum(1)->valeurs.at(QStringLiteral("Hist")).affichee,
        QStringLiteral("Récit"));
    ChargerAlbums::EcrireAlbum(1, QStringLiteral("DateD"), QStringLiteral("mai 1931"));
    QCOMPARE(lignes(QStringLiteral("SELECT Dateparu FROM Album")), QStringList("mai 1931"));
    QVERIFY(!ChargerAlbums::EcrireAlbum(1, QStringLiteral("PrixA"), QStringLiteral("cher")));
}

QTEST_GUILESS_MAIN(tst_fiches)
#include "tst_fiches.moc"
