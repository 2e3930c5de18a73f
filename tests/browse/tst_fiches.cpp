#include "browse/ChargerAlbums.h"
#include "browse/ChargerAuteurs.h"
#include "browse/ChargerColl.h"
#include "browse/ChargerEditeur.h"
#include "browse/ChargerExLibris.h"
#include "browse/ChargerPresse.h"
#include "browse/ChargerSeries.h"
#include "db/Base.h"
#include "support/Bac.h"

#include <QFile>
#include <QTest>

using namespace Champs;

class tst_fiches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueChampSEcritEtSeRelit_data();
    void chaqueChampSEcritEtSeRelit();
    void lesMetiersDUnAuteur();
    void unIntervenantRemplaceLAncien();
    void uneCoteRemplaceLAncienne();
    void leResumeAUneCopie();
};

namespace {

/// The sample collection, with known values in the entries number 1 and in what their choices offer.
void peupler()
{
    const QString collection = Dossier::courant().chemin(QStringLiteral("bd.mdb"));
    QVERIFY(QFile::remove(collection) && QFile::copy(QStringLiteral(EXEMPLE "/bd.mdb"), collection));
    for (const char *sql : {
             "INSERT OR REPLACE INTO Album(Num, NAlbum) VALUES (1, 1)",
             "INSERT OR REPLACE INTO LAlbums(NAlbum, TAlbum) VALUES (1, 'a')",
             "INSERT OR REPLACE INTO Serie(NSerie, Nom, cote) VALUES (1, 'Zig', 5), (2, 'Zag', 6)",
             "INSERT OR REPLACE INTO Auteurs(NAuteur, Nom, Prenom, Dessin, Scena) VALUES (1, 'Doré', "
             "'Gustave', -1, "
             "-1), (2, 'Cham', ' ', 0, -1)",
             "INSERT OR REPLACE INTO Editeur(NEdit, Nom) VALUES (1, 'Plon'), (2, 'Aubert')",
             "INSERT OR REPLACE INTO ExLibris(NExLibris, Nom, PrixA) VALUES (1, 'La noce', 9)",
             "INSERT OR REPLACE INTO PresseBD(NPressBD, Nom, NPresseBD) VALUES (1, 'Le Rire', 12)",
             "INSERT OR REPLACE INTO Coll(NColl, Nom) VALUES (1, 'Jabot')",
             "INSERT OR REPLACE INTO Genre VALUES (2, 'Humour')",
             "INSERT OR REPLACE INTO Pays VALUES (2, 'Suisse')",
             "INSERT OR REPLACE INTO Librairie VALUES (2, 'La Plume')",
         })
        Bac::executer(QString::fromUtf8(sql));
}

void ecrire(Feuille feuille, const QString &champ, const QString &valeur)
{
    switch (feuille) {
    case Feuille::Album:
        if (qstrcmp(Chercher(feuille, champ.toUtf8().constData())->table, "LAlbums") == 0)
            ChargerAlbums::EcrireListe(1, champ, valeur);
        else
            ChargerAlbums::EcrireAlbum(1, champ, valeur);
        break;
    case Feuille::Serie:
        ChargerSeries::EcrireSerie(1, champ, valeur);
        break;
    case Feuille::Auteur:
        ChargerAuteurs::EcrireAuteur(1, champ, valeur);
        break;
    case Feuille::Editeur:
        ChargerEditeur::EcrireEditeur(1, champ, valeur);
        break;
    case Feuille::ExLibris:
        ChargerExLibris::EcrireExLibris(1, champ, valeur);
        break;
    case Feuille::Presse:
        ChargerPresse::EcrirePresse(1, champ, valeur);
        break;
    case Feuille::Coll:
        ChargerColl::EcrireColl(1, valeur);
        break;
    }
}

QStringList lignes(const QString &sql)
{
    const Base base;
    QStringList resultat;
    for (auto rs = base.OpenRecordset(sql); !rs.AtEnd(); rs.MoveNext())
        resultat << rs.Fields(0).toString();
    return resultat;
}

}

void tst_fiches::chaqueChampSEcritEtSeRelit_data()
{
    QTest::addColumn<int>("feuille");
    QTest::addColumn<QString>("champ");
    QTest::addColumn<QString>("saisie");
    QTest::addColumn<QString>("affichee");
    // Every field of every sheet by its rule; the odd cases follow.
    for (const Champ &champ : Tous()) {
        if (!champ.colonne)
            continue;
        QString saisie = QStringLiteral("L'été");
        QString affichee = saisie;
        switch (champ.vue) {
        case Vue::Nom:
            saisie = QStringLiteral("2");
            affichee.clear();
            break;
        case Vue::Prix:
            saisie = QStringLiteral("12,5");
            affichee = QStringLiteral("12,50 €");
            break;
        case Vue::Case:
            saisie = QStringLiteral("1");
            affichee = QStringLiteral("Oui");
            break;
        case Vue::Cote:
            saisie = QStringLiteral("7");
            affichee = QStringLiteral("07");
            break;
        case Vue::Parution:
            saisie = QStringLiteral("1");
            affichee = QStringLiteral("1 - Hebdomadaire");
            break;
        case Vue::Genre:
            saisie = QStringLiteral("2");
            affichee = QStringLiteral("Sérigraphie");
            break;
        case Vue::Format:
            saisie = QStringLiteral("2");
            affichee = QStringLiteral("Format Italienne");
            break;
        case Vue::Couleur:
            saisie = QStringLiteral("2");
            affichee = QStringLiteral("Noir et Blanc");
            break;
        default:
            if (champ.regle != Regle::Texte && champ.regle != Regle::Titre && champ.regle != Regle::Http)
                affichee = saisie = QStringLiteral("3");
            if (champ.regle == Regle::Http)
                affichee = QStringLiteral("http://") + saisie;
        }
        QTest::addRow("%d %s", static_cast<int>(champ.feuille), champ.nom)
            << static_cast<int>(champ.feuille) << QString::fromUtf8(champ.nom) << saisie << affichee;
    }
    const auto cas = [](Feuille feuille, const char *champ, const char *saisie, const char *affichee) {
        QTest::addRow("%s « %s »", champ, saisie) << static_cast<int>(feuille) << QString::fromUtf8(champ)
                                                  << QString::fromUtf8(saisie) << QString::fromUtf8(affichee);
    };
    cas(Feuille::Serie, "CoteSerie", "cher", "05");
    cas(Feuille::Serie, "SiteWeb(0)", "HTTP://a.fr", "HTTP://a.fr");
    cas(Feuille::Serie, "SiteWeb(1)", " ", "");
    cas(Feuille::Serie, "NomGenre", "2", "Humour");
    cas(Feuille::Auteur, "Liens(0)", "a.fr", "a.fr");
    cas(Feuille::Auteur, "Nom", "Rodolphe, Töpffer", "Töpffer");
    cas(Feuille::Auteur, "Prenom", "Rodolphe, Töpffer", "Rodolphe");
    cas(Feuille::Auteur, "PaysN", "2", "Suisse");
    cas(Feuille::Editeur, "SiteE", "a.fr", "a.fr");
    cas(Feuille::ExLibris, "PrixAX", "cher", "9,00 €");
    cas(Feuille::ExLibris, "DessinX", "1", "Gustave, Doré");
    cas(Feuille::ExLibris, "DessinX", "2", ""); // he draws nothing
    cas(Feuille::ExLibris, "Librairie", "2", "La Plume");
    cas(Feuille::Presse, "NumP", "douze", "12");
    cas(Feuille::Presse, "EditeurP", "2", "Aubert");
}

void tst_fiches::chaqueChampSEcritEtSeRelit()
{
    QFETCH(int, feuille);
    QFETCH(QString, champ);
    QFETCH(QString, saisie);
    QFETCH(QString, affichee);
    const Bac bac;
    peupler();
    ecrire(static_cast<Feuille>(feuille), champ, saisie);
    const auto valeurs = Fiche::Lire(static_cast<Feuille>(feuille), 1);
    QVERIFY(valeurs);
    const ValeurDeChamp &valeur = valeurs->at(champ);
    const Champ *ligne = Chercher(static_cast<Feuille>(feuille), champ.toUtf8().constData());
    if (ligne->vue == Vue::Nom && affichee.isEmpty())
        QCOMPARE(valeur.stockee.toInt(), 2);
    else
        QCOMPARE(valeur.affichee, affichee);
    // An entry that is not there is neither made nor missed.
    Fiche::Ecrire(static_cast<Feuille>(feuille), 9999, ligne->nom, valeur.stockee);
    QVERIFY(!Fiche::Lire(static_cast<Feuille>(feuille), 9999));
}

void tst_fiches::lesMetiersDUnAuteur()
{
    const Bac bac;
    peupler();
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
