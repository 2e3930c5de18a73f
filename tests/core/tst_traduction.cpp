#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Refus.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

QStringList tousLesTextes(const Traduction &traduction)
{
    QStringList textes;
    for (int i = 0; i < Traduction::Nombre; ++i)
        textes << traduction.texte(Txt(i));
    return textes;
}

}

class tst_traduction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneLigneDonneSonTexte_data()
    {
        const Colonnes<QByteArray, int, QString> ligne;
        ligne("lignes sans separateur", "\n ; note\r\n5 : Cinq\n\n7:#:Sept\n\n", 7, "Sept");
        ligne("tabulation et blancs", "5:#:  Un\tdeux \t\r\n", 5, "Undeux");
        ligne("deux separateurs", "5:#:Cinq:#:Six\n", 5, "Cinq");
        ligne("la derniere ligne gagne", "5:#:Cinq\n6:#:Six\n5:#:Neuf\n", 5, "Neuf");
        ligne("UTF-8 avec marque", "\xEF\xBB\xBF 5:#:L'\xC3\xA9t\xC3\xA9 \xE2\x82\xAC", 5, "L'été €");
        ligne("Windows-1252", "5:#:L\x92\xE9t\xE9, \x9Cuvre, 3 \x80", 5, "L’été, œuvre, 3 €");
    }

    void uneLigneDonneSonTexte()
    {
        const auto [octets, indice, attendu] = essai<QByteArray, int, QString>();
        Bac bac;
        Bac::ecrire(bac.chemin("essai.lng"), octets);
        bac.traduction.chargerFichier(bac.chemin("essai.lng"));
        QCOMPARE(texte(Txt(indice)), attendu);
    }

    void unFichierFautifGardeLeLuEtCombleLeReste()
    {
        Bac bac;
        const QStringList francais = tousLesTextes(bac.traduction);
        QStringList attendus = francais;
        attendus[5] = "Funf";
        const auto refuser = [&](const QByteArray &octets) {
            Bac::ecrire(bac.chemin("essai.lng"), octets);
            QVERIFY(refus([&] { bac.traduction.chargerFichier(bac.chemin("essai.lng")); }).has_value());
        };
        for (const QByteArray faute : {"311:#:x", "-1:#:x", "abc:#:x"}) {
            refuser("langue = de\n5:#:Funf\n" + faute + "\n6:#:Sechs\n");
            QCOMPARE(tousLesTextes(bac.traduction), attendus);
        }
        for (const QByteArray &octets : {QByteArray(), QByteArray(5000, '\0')}) {
            refuser(octets);
            QCOMPARE(tousLesTextes(bac.traduction), francais);
            QCOMPARE(bac.traduction.locale().language(), QLocale::French);
        }
    }

    void unFichierRemplaceTousLesTextes()
    {
        Bac bac;
        Bac::ecrire(bac.chemin("essai.lng"), "5:#:Fünf\nlangue = de\n");
        bac.traduction.chargerFichier(bac.chemin("essai.lng"));
        QCOMPARE(tousLesTextes(bac.traduction).join(QString()), "Fünf");
        QCOMPARE(bac.traduction.locale().language(), QLocale::German);
        bac.traduction.chargerCourante();
        QCOMPARE(texte(Txt::Sauvegarder), "Sauvegarder");
        QCOMPARE(bac.traduction.locale().language(), QLocale::French);
    }

    void leChoixSurvitAuRedemarrage()
    {
        Bac bac;
        QCOMPARE(Traduction::LangueCourante(), "Français.lng");
        bac.traduction.choisir("Deutsch.lng");
        const QStringList allemand = tousLesTextes(bac.traduction);
        Traduction suivante;
        suivante.chargerCourante();
        QCOMPARE(tousLesTextes(suivante), allemand);
        QVERIFY(refus([&] { bac.traduction.choisir("Absente.lng"); }).has_value());
        QCOMPARE(tousLesTextes(bac.traduction), allemand);
        QCOMPARE(Traduction::LangueCourante(), "Deutsch.lng");

        // A file put there by hand tells more than the stored choice; one that nobody knows tells nothing.
        Bac::ecrire(bac.chemin("defaut.lng"), Bac::lire(bac.chemin("langues/Español.lng")));
        QCOMPARE(Traduction::LangueCourante(), "Español.lng");
        Bac::ecrire(bac.chemin("defaut.lng"), "5:#:Moi");
        QCOMPARE(Traduction::LangueCourante(), "Deutsch.lng");
        QVERIFY(QFile::remove(bac.chemin("langues/Deutsch.lng")));
        QCOMPARE(Traduction::LangueCourante(), "Français.lng");
    }

    void chaqueLangueLivreeEstComplete()
    {
        Bac bac;
        const QStringList francais = tousLesTextes(bac.traduction);
        QCOMPARE(Traduction::Langues().size(), 6);
        for (const auto &[fichier, langue] :
            {std::pair("Français.lng", QLocale::French), {"English.lng", QLocale::English},
                {"Deutsch.lng", QLocale::German}, {"Español.lng", QLocale::Spanish},
                {"Italiano.lng", QLocale::Italian}, {"Nederlands.lng", QLocale::Dutch}}) {
            bac.traduction.choisir(fichier);
            QCOMPARE(bac.traduction.locale().language(), langue);
            const QStringList textes = tousLesTextes(bac.traduction);
            for (qsizetype i = 0; i < textes.size(); ++i) {
                QVERIFY2(textes[i].isEmpty() == francais[i].isEmpty(), qPrintable(QString::number(i)));
                // In a file filter only the descriptions are translated.
                if (francais[i].contains(u'|'))
                    QCOMPARE(textes[i].section(u'|', 1, 1), francais[i].section(u'|', 1, 1));
            }
        }
    }

    /// Every text that the program takes from a catalogue is there, with the places for its values.
    void chaqueCatalogueEstComplet()
    {
        static const QRegularExpression place("%[0-9n]");
        static const QRegularExpression message(
            "<source>(.*?)</source>.*?<translation(?: type=\"(\\w+)\")?(?:/>|>(.*?)</translation>)",
            QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression balise("<[^>]*>");
        const auto placesDe = [](const QString &texte) {
            QSet<QString> places;
            for (auto i = place.globalMatch(texte); i.hasNext();)
                places << i.next().captured();
            return places;
        };
        const QDir dossier(QStringLiteral(CATALOGUES));
        for (const QString &nom : dossier.entryList({"*.ts"})) {
            int textes = 0;
            const QString catalogue = QString::fromUtf8(Bac::lire(dossier.filePath(nom)));
            for (auto i = message.globalMatch(catalogue); i.hasNext();) {
                const auto m = i.next();
                if (m.captured(2) == "vanished" || m.captured(2) == "obsolete")
                    continue;
                ++textes;
                const QString traduit = m.captured(3).remove(balise).trimmed();
                QVERIFY2(m.captured(2).isEmpty() && !traduit.isEmpty()
                        && placesDe(traduit) == placesDe(m.captured(1)),
                    qPrintable(nom + ": " + m.captured(1)));
            }
            QVERIFY(textes > 200);
        }
    }
};

QTEST_GUILESS_MAIN(tst_traduction)
#include "tst_traduction.moc"
