#include "db/schema/Tables.h"
#include "model/ChargerAlbums.h"
#include "model/Fiche.h"
#include "model/Montant.h"
#include "support/Bac.h"
#include "support/Colonnes.h"

#include <QTest>

using namespace Champs;

class tst_fiche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A misspelt table or column would be found only when its sheet, list or choice is opened.
    void lesDescriptionsNommentCeQuAUnSchema()
    {
        const auto a = [](const char *table, const char *colonne) {
            return Schema::Colonnes(QLatin1String(table)).contains(QLatin1String(colonne));
        };
        for (const Champ &champ : Tous) {
            QVERIFY2(Chercher(champ.feuille, champ.nom) == &champ, champ.nom);
            QVERIFY2(!champ.colonne || a(champ.table, champ.colonne), champ.nom);
        }
        namespace E = Especes;
        for (const E::Espece *e :
            {&E::Album, &E::Serie, &E::Auteur, &E::Editeur, &E::ExLibris, &E::Presse, &E::Coll, &E::Genre,
                &E::Pays, &E::Emprunteur, &E::Librairie, &E::Intervenant, &E::Activite}) {
            QVERIFY2(
                a(e->table, e->cle) && a(e->table, e->nom) && (!e->suite || a(e->table, e->suite)), e->table);
            QVERIFY2(!e->liens || (a(e->liens, e->cle) && a(e->liens, "NAlbum")), e->table);
            for (const auto &lignes : {e->fiche, e->ailleurs}) {
                for (const E::Rangs &rangs : lignes)
                    QVERIFY2(a(rangs.table, rangs.cle), rangs.table);
            }
        }
        for (int i = 0; i < 7; ++i)
            QVERIFY(DuNom(static_cast<Feuille>(i)).feuille == static_cast<Feuille>(i));
    }

    void laFicheDitSesListes()
    {
        const Bac bac;
        for (const char *sql : {"Album VALUES (5, 3, 1, 1, 2, 1, 2, 3, 4, 9, '62', 'I', 'S', 'Récit', ' ', "
                                "1, 'DL', 'mars 1931', 2,"
                                " '01 mai 2026', 1, '14/07/2019', 35, -1, 2, 0, 0, -1, 0, -1)",
                 "LAlbums VALUES (5, 'L''Album', 'a.jpg', NULL, 'copie', 'à Luc', 'd.png', 'Paris', '2020', "
                 "'bon')",
                 "Auteurs(NAuteur, Nom, Prenom, Dessin, Scena, Color) VALUES (1, 'Pinchon', 'Joseph', -1, 0, "
                 "0),"
                 " (2, 'Caumery', ' ', 0, -1, 0), (3, 'Gris', 'Jean', -1, 0, 0)",
                 "Genre VALUES (1, 'Humour'), (2, 'Jeunesse')", "GenreAlbums VALUES (2, 5), (1, 5)",
                 "CotesAlbum VALUES (5, '2024', '60'), (5, '2024', '7'), (5, '2023', '50')",
                 "Inter VALUES (1, 'Dupré', 'Marie'), (2, 'Frutiger', NULL)", "Metier VALUES (1, 'Lettrage')",
                 "InterMetier VALUES (5, 1, 1), (5, 2, 9)"})
            Bac::executer(QStringLiteral("INSERT INTO ") + sql);
        const auto fiche = ChargerAlbums::AfficherAlbum(5);
        QVERIFY(fiche);
        const auto dit = [&](const char *champ) { return fiche->valeurs.at(QLatin1String(champ)).affichee; };
        QCOMPARE(dit("Dessin"), "Pinchon, Joseph");
        QCOMPARE(dit("Scena"), "Caumery");
        QCOMPARE(dit("Color"), QString()); // he is no colourist
        QCOMPARE(dit("Genre"), "Humour, Jeunesse");
        QCOMPARE(dit("Hist"), "Récit");
        QCOMPARE(dit("Infos"), QString());
        QCOMPARE(fiche->cotes.size(), 3u);
        QCOMPARE(fiche->cotes[1].cote, "7"); // within a month the higher text first
        QCOMPARE(fiche->intervenants[0].nom, "Marie , Dupré");
        QCOMPARE(fiche->intervenants[1].nom, "Frutiger");
        QCOMPARE(fiche->intervenants[1].activite, QString());
    }

    void laFicheVideNeDitRien()
    {
        const Bac bac;
        QVERIFY(!ChargerAlbums::AfficherAlbum(1));
        Bac::executer("INSERT INTO Album(Num) VALUES (1)");
        const auto fiche = ChargerAlbums::AfficherAlbum(1);
        QVERIFY(fiche);
        for (const Champ &champ : Tous) {
            if (champ.feuille == Feuille::Album && champ.vue != Vue::Case)
                QCOMPARE(fiche->valeurs.at(QLatin1String(champ.nom)).affichee, QString());
        }
        QVERIFY(fiche->cotes.empty() && fiche->intervenants.empty() && fiche->infos.bande.empty());
    }

    void lAlbumDansSaSerie()
    {
        const Bac bac;
        for (const auto &[num, tome] : {std::pair(1, 1), {2, 3}, {3, 3}, {4, 6}, {5, 0}}) {
            Bac::executer(
                QStringLiteral("INSERT INTO Album(Num, NAlbum, NumSerie) VALUES (?, ?, 9)"), {num, tome});
            Bac::executer(QStringLiteral("INSERT INTO LAlbums(NAlbum, TAlbum) VALUES (?, ?)"),
                {num, QStringLiteral("t%1").arg(num)});
            Bac::executer(QStringLiteral("INSERT INTO SerieAlbums(NSerie, NAlbum) VALUES (9, ?)"), {num});
        }
        const InfosAlbum infos = PreparerInfosAlbum::Preparer(2, 9);
        QCOMPARE(infos.tome, 3);
        QCOMPARE(infos.possedes, 5);
        QCOMPARE(infos.manquants, (std::vector<int>{2, 4, 5}));
        QCOMPARE(infos.precedent->titre, "t1");
        QCOMPARE(infos.suivant->num, 3);
        QCOMPARE(infos.bande.size(), 8u); // five albums and three holes
        QVERIFY(!PreparerInfosAlbum::Preparer(5, 9).precedent);
        QCOMPARE(PreparerInfosAlbum::Preparer(1, 0).possedes, 0);
    }

    void unMontantSeLitDansLesSignesDeLaLangue_data()
    {
        // in French, English and German: the amount, "?" when it could be two, "-" when it is none
        const Colonnes<QString, QString> cas;
        cas("virgule", "12,50", "12.5 12.5 12.5");
        cas("point", "12.50 €", "12.5 12.5 12.5");
        cas("point devant trois chiffres", "1.250", "? ? 1250");
        cas("virgule devant trois chiffres", "1,250", "? 1250 ?");
        cas("quatre chiffres devant", "1250,125", "1250.125 1250.125 1250.125");
        cas("zero devant", "0.125", "0.125 0.125 0.125");
        cas("les deux", "1.234,50", "1234.5 1234.5 1234.5");
        cas("les deux, autrement", "1,234.50", "1234.5 1234.5 1234.5");
        cas("plusieurs groupes", "1.234.567", "1234567 1234567 1234567");
        cas("blancs", "1\u202F234,5", "1234.5 1234.5 1234.5");
        cas("groupes boiteux", "1.23.456", "- - -");
        cas("deux virgules", "1,2.3,4", "- - -");
        cas("en puissance", "1e20", "- - -");
        cas("demesure", "100000000000000000000", "- - -");
        cas("mots", "douze", "- - -");
        cas("signe seul", ",", "- - -");
    }

    void unMontantSeLitDansLesSignesDeLaLangue()
    {
        const auto [texte, voulus] = essai<QString, QString>();
        Bac bac;
        QStringList lus;
        for (const char *langue : {"Français.lng", "English.lng", "Deutsch.lng"}) {
            bac.traduction.choisir(QString::fromUtf8(langue));
            const auto lectures = Montant::Lectures(texte);
            lus << (lectures.empty()      ? "-"
                    : lectures.size() > 1 ? "?"
                                          : QString::number(lectures.front(), 'g', 15));
            QCOMPARE(Fiche::Verifier(De(Feuille::Album, "PrixA"), texte).has_value(), lectures.size() == 1);
        }
        QCOMPARE(lus.join(u' '), voulus);
    }

    /// What could be two amounts is refused with both, and what is shown is always taken back.
    void unMontantMontreSeRelit()
    {
        Bac bac;
        const Champ &prix = De(Feuille::Album, "PrixA");
        for (const char *langue : {"Français", "English", "Deutsch", "Español", "Italiano", "Nederlands"}) {
            bac.traduction.choisir(QString::fromUtf8(langue) + ".lng");
            for (const double montant : {0.5, 12.5, 1250.0, 1234.5, 1234567.89})
                QVERIFY2(Fiche::Verifier(prix, Fiche::Afficher(prix, montant)) == QVariant(montant),
                    qPrintable(Fiche::Afficher(prix, montant)));
        }
        bac.traduction.choisir(QStringLiteral("Français.lng"));
        const QString raison = Fiche::RaisonDuRefus(prix, "1.250");
        QVERIFY2(raison.contains("1250 ") && raison.contains("1,25 "), qPrintable(raison));
        QCOMPARE(Montant::Lire(Montant::Ecrire(1.234)), 1.234);
    }

    void unTexteDUneLigneEnResteUne()
    {
        const QString visage = QStringLiteral("\U0001F600");
        QCOMPARE(Fiche::Verifier(De(Feuille::Album, "ISBN"), " 2-205\r\n\t1\u20282 "), "2-205   1 2");
        QCOMPARE(Fiche::Verifier(De(Feuille::Album, "Infos"), "un\ndeux"), "un\ndeux");
        // A character is cut off whole, with its accent.
        const Champ &titre = De(Feuille::Album, "TAlbum");
        QCOMPARE(Fiche::Verifier(titre, QString(49, u'a') + visage), QString(49, u'a'));
        QCOMPARE(Fiche::Verifier(titre, QString(48, u'a') + visage), QString(48, u'a') + visage);
        QCOMPARE(Fiche::Verifier(titre, QString(49, u'a') + "e\u0301"), QString(49, u'a'));
        for (int i = 0; i < 7; ++i) {
            const Champ &nom = DuNom(static_cast<Feuille>(i));
            QVERIFY2(!Fiche::Verifier(nom, " \n") && !Fiche::Verifier(nom, ","), nom.nom);
        }
        const Champ &site = De(Feuille::Serie, "SiteWeb(0)");
        QCOMPARE(Fiche::Verifier(site, "HTTPS://a.fr"), "HTTPS://a.fr");
        QCOMPARE(Fiche::Verifier(site, "http://a.fr"), "http://a.fr");
        QCOMPARE(Fiche::Verifier(site, "a.fr"), "http://a.fr");
    }
};

QTEST_GUILESS_MAIN(tst_fiche)
#include "tst_fiche.moc"
