#include "formes/Atelier.h"

namespace {

/// Gestures: "Saisir" types in FrmModif2; "Taper", "Choisir" and "Jour" type, pick a line or a day of the month
/// in FrmModif; "Etoile" and "Chiffre" give a grade; "Cocher" clicks; "Mot" picks a word; "Ecrire" types on the
/// sheet. A table names the entries of a choice.
constexpr const char *TousLesCas = R"(
0;TAlbum;Saisir;L'été;LAlbums.TAlbum
0;TAlbum;Saisir;Titre de cinquante lettres, coupé après la dernière !!;LAlbums.TAlbum;Titre de cinquante lettres, coupé après la dernièr
0;ISBN;Saisir;2-205-"00001";Album.ISBN
0;ISSN;Saisir;1234-567X;Album.ISSN
0;NumBD;Saisir;1234;Album.NAlbum;123
0;NumBD;Saisir;;Album.NAlbum;0;
0;NbPage;Saisir;48;Album.NbPage
0;PrixA;Saisir;1 012.25 €;Album.PrixA;1012.25;1 012,25 €
0;PrixA;Saisir;;Album.PrixA
0;DepotLegale;Saisir;  mai 1901 ;Album.DepotL;mai 1901
0;Dedi(0);Saisir;À l'ami;LAlbums.dedi1
0;Dedi(1);Saisir;dessin.PNG;LAlbums.dedi2
0;LieuD;Saisir;Angoulême;LAlbums.LieuD
0;Cotes(0);Saisir;1550;Cotes;01 juillet 2024:1550;1550
0;Mois(0);Jour;20;Cotes;20 juillet 2024:1500;20 juillet 2024
0;Etat;Etoile;2;Album.EtatBD
0;Qualite;Chiffre;5;Album.QualBD
0;EtatD;Etoile;4;LAlbums.EtatD
0;Hist;Ecrire;L'œuvre;LAlbums.Histoire
0;Infos;Ecrire; deux ;Album.Commentaire
0;Couleur;Mot;Infographie;Album.Couleur;3;Infographie
0;Format;Mot;Format Italienne;Album.NCouverture;2;Format Italienne
0;LEditionOri;Cocher;;Album.EDitOrig;0
0;LSerieLim;Cocher;;Album.SerieLim;-1;1
0;LCoffret;Cocher;;Album.Coffret;-1;1
0;LIntegral;Cocher;;Album.Integrale;-1;1
0;LBrochee;Cocher;;Album.Broche;-1;1
0;LHorsSerie;Cocher;;Album.HSerie;-1;1
0;DA;Jour;20;Album.DA;20 juin 2008
0;DA;Taper;à Noël;Album.DA
0;Dateparu;Jour;20;Album.Dateparu;20 janvier 1833
0;DPret;Jour;20;Album.DPret;20 mars 2026
0;DateD;Jour;20;LAlbums.DateD;20 mars 2026
0;Serie;Choisir;Albums Jabot;Album.NumSerie;2;Albums Jabot;Serie
0;Genre;Choisir;Mœurs;Album.NGenre;3;Mœurs;Genre
0;Pays;Choisir;Belgique;Album.NPays;3;Belgique;Pays
0;Edit;Choisir;Schmidt;Album.NEdit;2;Schmidt;Editeur
0;Coll;Choisir;Albums Pellerin;Coll;3;Albums Pellerin;Coll
0;Scena;Choisir;Philipon, Charles;Album.NScen;6;Philipon, Charles;Auteurs
0;Dessin;Choisir;Doré, Gustave;Album.NDessin;3;Doré, Gustave;Auteurs
0;Color;Choisir;Hellé, André;Album.NColor;61;Hellé, André;Auteurs
0;NPret;Choisir;Kervran;Album.NPret;2;Kervran;Pret
0;NomI(0);Choisir;Adolphe , Best;Intervenants;4-1;Adolphe , Best;Inter
0;ActI(0);Choisir;Graveur;Intervenants;1-4;Graveur;Metier
1;Nom;Saisir;Écume;Serie.Nom
1;CoteSerie;Saisir;7;Serie.cote;7;07
1;SiteWeb(0);Saisir;a.fr/b;Serie.SiteWeb1;http://a.fr/b
1;SiteWeb(1);Saisir;HTTP://a.fr;Serie.SiteWeb2
1;NoteG;Chiffre;1;Serie.NoteG
1;NoteD;Etoile;3;Serie.NoteD
1;NoteS;Etoile;1;Serie.NoteS
1;Commentaire;Ecrire;oui;Serie.Commentaire
1;Histoire;Ecrire;non;Serie.Histoire
1;NomGenre;Choisir;Mœurs;Serie.NGenre;3;Mœurs;Genre
1;Editeur;Choisir;Schmidt;Serie.NEditeur;2;Schmidt;Editeur
2;Nom;Saisir;R., Topffer;Noms;Topffer/R.;Topffer
2;Prenom;Saisir;Ad., T.;Noms;T./Ad.;Ad.
2;SurNom;Saisir;L'autre;Auteurs.SurNom
2;Naiss;Jour;20;Auteurs.DateNaiss;20 janvier 1799
2;LieuN;Saisir;Bâle;Auteurs.LieuNaiss
2;PaysN;Choisir;Belgique;Auteurs.NPays;3;Belgique;Pays
2;Liens(0);Saisir;a.fr;Auteurs.web1
2;Liens(1);Saisir;b.fr;Auteurs.web2
2;CommA;Ecrire;bon;Auteurs.Commentaire
2;M_tiers(0);Cocher;;Auteurs.Scena;0
2;M_tiers(1);Cocher;;Auteurs.Color;-1;1
7;NomE;Saisir;Chez lui;Editeur.Nom
7;AdressE(0);Saisir;1, rue;Editeur.adresse1
7;AdressE(1);Saisir;2, rue;Editeur.adresse2
7;CPE;Saisir;01000;Editeur.CP
7;VilleE;Saisir;Bâle;Editeur.ville
7;TelE;Saisir;01 02;Editeur.Tel
7;SiteE;Saisir;a.fr;Editeur.Site
7;PaysE;Choisir;Belgique;Editeur.NPays;3;Belgique;Pays
5;DescriptionX;Saisir;La noce;ExLibris.Nom
5;PrixAX;Saisir;30;ExLibris.PrixA;30.0;30,00 €
5;CommX;Ecrire;beau;ExLibris.Comm
5;DedicaceX;Cocher;;ExLibris.Dedicace;-1;1
5;SigneX;Cocher;;ExLibris.Signe;-1;1
5;TypeExlibris(7);Cocher;;ExLibris.TypeExlibris;7;1
5;DAX;Jour;20;ExLibris.DAchat;20 mai 2016
5;SerieX;Choisir;Albums Jabot;ExLibris.NSerie;2;Albums Jabot;Serie
5;DessinX;Choisir;Doré, Gustave;ExLibris.NDessin;3;Gustave, Doré;Auteurs
5;Librairie;Choisir;Au Petit Cartonnage;ExLibris.NLibrairie;4;Au Petit Cartonnage;Librairie
6;NomP;Saisir;Le Rire;PresseBD.Nom
6;NumP;Saisir;77;PresseBD.NPresseBD
6;DepotLP;Saisir;1890;PresseBD.DepotLegale
6;PrixAP;Saisir;0,5;PresseBD.PrixA;0.5;0,50 €
6;CommP;Ecrire;rare;PresseBD.Comm
6;HSP;Cocher;;PresseBD.HS;-1;1
6;ReliureP;Cocher;;PresseBD.Reliure;-1;1
6;ParutionP;Mot;7 - Annuelle;PresseBD.Parution;7;7 - Annuelle
6;DAP;Jour;20;PresseBD.DAchat;20 mars 2012
6;EditeurP;Choisir;Schmidt;PresseBD.NEdit;2;Schmidt;Editeur
8;NomC;Saisir;Jabot;Coll.Nom
)";

/// The entries that a choice of the album links to.
const QHash<QString, QString> Liens{{"Serie", "NSerie) FROM SerieAlbums WHERE"},
    {"Genre", "NGenre) FROM GenreAlbums WHERE"}, {"Pays", "NPays) FROM PaysAlbum WHERE"},
    {"Edit", "NEdit) FROM EditeurAlbums WHERE"}, {"Coll", "NColl) FROM CollAlbums WHERE"},
    {"Scena", "NAuteur) FROM AuteursAlbums WHERE Scena AND"},
    {"Dessin", "NAuteur) FROM AuteursAlbums WHERE Dessin AND"},
    {"Color", "NAuteur) FROM AuteursAlbums WHERE Color AND"}};

void ajouter(const Cas &cas)
{
    QTest::addRow("%d %s « %s »", cas.tri, qPrintable(cas.controle), qPrintable(cas.saisie)) << cas;
}

}

/// Every field of every sheet is edited where it stands, by the gesture that belongs to it, taken back and made again.
class tst_champs : public QObject, private Travaux
{
    Q_OBJECT

private:
    // One program for the cases of a list: each leaves the file as it was.
    std::unique_ptr<Atelier> m_partage;
    QStringList m_avant;
    int m_tri = -1;

private Q_SLOTS:
    void cleanup()
    {
        if (QTest::currentTestFailed())
            m_partage.reset();
    }
    void cleanupTestCase() { m_partage.reset(); }

    /// The given way, and for a choice of an entry two more: a name that nobody has yet makes the next entry, no
    /// name leaves no link.
    void chaqueChampSEditeOuIlEst_data()
    {
        QTest::addColumn<Cas>("cas");
        const std::vector<Cas> tous = lireCas(TousLesCas);
        const Bac bac(EXEMPLE);
        for (Cas cas : tous) {
            ajouter(cas);
            if (cas.table.isEmpty())
                continue;
            const QString neuf = Bac::valeur("SELECT max(rowid) + 1 FROM " + cas.table).toString();
            cas.geste = "Taper";
            cas.saisie = cas.montree = "L'Œuvre neuve";
            cas.stockee = cas.controle == "NomI(0)" ? neuf + "-1"
                : cas.controle == "ActI(0)"         ? "1-" + neuf
                                                    : neuf;
            ajouter(cas);
            cas.saisie = cas.montree = QString();
            cas.stockee = cas.controle == "ActI(0)"                   ? "1-0"
                : cas.controle == "NomI(0)" || cas.controle == "Coll" ? ""
                                                                      : "0";
            ajouter(cas);
        }
        for (const Champs::Champ &champ : Champs::Tous) {
            const auto concerne = [&](const Cas &cas) {
                return General::ListeDe(General::TriDe(cas.tri)).feuille == champ.feuille
                    && cas.controle.startsWith(QLatin1String(champ.controle));
            };
            if (champ.vue != Champs::Vue::Image && std::none_of(tous.begin(), tous.end(), concerne))
                ajouter({0, champ.controle, "?", "sans cas", {}, {}, {}, {}});
        }
    }

    void chaqueChampSEditeOuIlEst()
    {
        QFETCH(Cas, cas);
        QVERIFY2(cas.geste != "?", "a field that no case tries");
        if (m_tri != cas.tri || !m_partage) {
            m_partage.reset();
            m_partage = std::make_unique<Atelier>(cas.tri);
            m_tri = cas.tri;
            m_avant = Bac::toutLire();
        }
        // A number that was taken back is not given again in a run, but each case counts from the same one.
        m_partage->bac.annonces.numeros.clear();
        montrer(cas.tri, 1);
        const QString vueAvant = montre(cas.controle);
        const QString luAvant = lire(cas.lu);
        const auto attendre = [&](const QString &lu, const QString &vue) {
            QTRY_COMPARE(lire(cas.lu), lu);
            QTRY_COMPARE(montre(cas.controle), vue);
        };
        agir(cas);
        attendre(cas.stockee, cas.montree);
        if (const QString liens = Liens.value(cas.controle); cas.tri == 0 && !liens.isEmpty())
            QCOMPARE(
                lire("SELECT group_concat(" + liens + " NAlbum = 1"), cas.stockee == "0" ? "" : cas.stockee);
        const QStringList apres = Bac::toutLire();
        QVERIFY(apres != m_avant);

        commander(Qt::Key_Z);
        attendre(luAvant, vueAvant);
        QCOMPARE(Bac::toutLire(), m_avant);
        QVERIFY(!peutAnnuler());
        cliquer("Refaire");
        attendre(cas.stockee, cas.montree);
        QCOMPARE(Bac::toutLire(), apres);
        cliquer("Defaire");
        attendre(luAvant, vueAvant);
        QCOMPARE(m_partage->boites.textes, QStringList());
    }
};

JOUER(tst_champs)
#include "tst_champs.moc"
