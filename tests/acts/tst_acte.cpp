#include "acts/Choisir.h"
#include "acts/Historique.h"
#include "acts/Importer.h"
#include "acts/Joindre.h"
#include "acts/Preter.h"
#include "acts/Renommer.h"
#include "acts/Saisie.h"
#include "acts/Supprimer.h"
#include "reports/Statistiques.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/Ecoute.h"
#include "support/Etapes.h"
#include "support/Refus.h"

#include <QImage>
#include <QTest>
#include <QtEndian>
#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

using General::Entree;
using General::Tri;

using Geste = std::function<void(const Bac &)>;
Q_DECLARE_METATYPE(Geste)

namespace {

/// An album with a series, an author, a borrower and a quote, and one entry of every other kind.
void peupler()
{
    Creer::CreerAlbum({{Rubrique::Titre, "L'été"}, {Rubrique::Tome, "3"}, {Rubrique::Serie, "Écume"},
        {Rubrique::Editeur, "Plage"}, {Rubrique::Genre, "Mer"}, {Rubrique::Dessin, "Sable, Jean"}});
    for (const char *sql : {"INSERT INTO Pret VALUES (1, 'Voisin', ' ', ' ')", "UPDATE Album SET NPret = 1",
             "UPDATE LAlbums SET Photo2 = 'dos.jpg', dedi1 = 'note'",
             "INSERT INTO CotesAlbum VALUES (1, '2026', '12')", "INSERT INTO Coll VALUES (1, 'Voiles')",
             "INSERT INTO ExLibris (NExLibris, Nom) VALUES (1, 'Une vague')",
             "INSERT INTO PresseBD (NPressBD, Nom, NPresseBD) VALUES (1, 'Le Pilote', 7)",
             "INSERT INTO GenreAlbums VALUES (99, 99)"})
        Bac::executer(sql);
}

Edition edition(Tri tri, const char *champ, const QString &affichee = {}, const QVariant &stockee = {})
{
    return {{tri, 1}, Champs::Chercher(ListeDe(tri).feuille, champ), affichee, stockee};
}

Album nouveau()
{
    return {{Rubrique::Titre, "Neuf"}, {Rubrique::Serie, "Neuve"}, {Rubrique::Editeur, "Neuf"},
        {Rubrique::Genre, "Neuf"}, {Rubrique::Dessin, "Neuf, Jean"}, {Rubrique::Collection, "Neuve"},
        {Rubrique::Isbn, "2-205-00001-0"}};
}

QString image(const Bac &bac)
{
    const QString chemin = bac.chemin("une image.png");
    QImage(8, 8, QImage::Format_RGB32).save(chemin);
    return chemin;
}

/// How often the file was written, by its own count.
quint32 ecritures(const Bac &bac)
{
    return qFromBigEndian<quint32>(Bac::lire(bac.collection()).mid(24, 4).constData());
}

/// As long as it lives the engine refuses such a write.
struct Refusant
{
    Refusant(const QString &quand, const QString &table)
    {
        base.Execute(
            QStringLiteral("CREATE TEMP TRIGGER Refus BEFORE %1 ON %2 BEGIN SELECT raise(ABORT, 'non'); END")
                .arg(quand, table));
    }
    Base base; ///< holds the connection, and the rule with it
};

/// The disk fails when it is told to keep what was written, once, the n-th time that it is told so of such a file.
struct DisqueFautif
{
    const char *fin = nullptr; ///< how the file's name ends
    int reussites = 0;
} disque;

int garder(int fichier, long appel)
{
    const QByteArray nom
        = QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(fichier)).toLocal8Bit();
    if (disque.fin && nom.endsWith(disque.fin) && disque.reussites-- == 0) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(appel, fichier));
}

}

// The engine's own calls come here.
extern "C" int fsync(int fichier)
{
    return garder(fichier, SYS_fsync);
}
extern "C" int fdatasync(int fichier)
{
    return garder(fichier, SYS_fdatasync);
}

/// Whatever a form can set off is one act: it writes once, undo knows it by a title and finds its place again, and when
/// it fails midway nothing of it stays.
class tst_acte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueActeEstUneEtapeEnSonLieu_data()
    {
        const Colonnes<Entree, Geste> cas;
        const Entree album{Tri::Albums, 1};
        cas("valeur tapee", album,
            [](auto &) { Ecrire::EcrireSaisie(edition(Tri::Albums, "PrixA"), "12,50"); });
        cas("resume", album,
            [](auto &) { Ecrire::EcrireSaisie(edition(Tri::Albums, "Hist"), "Une vague.", 5); });
        cas("metiers", {Tri::Dessinateurs, 1}, [](auto &) {
            Ecrire::EcrireSaisie({{Tri::Dessinateurs, 1}, Metiers()}, "Dessinateur|Coloriste");
        });
        cas("cote", album, [](auto &) {
            Ecrire::EcrireSaisie({{Tri::Albums, 1}, CelluleCote{{"2026", "12"}}}, "15");
        });
        cas("choix nouveau", album, [](auto &) {
            Choisir::Valider(edition(Tri::Albums, "Scena"), {0, "Sel, Anne"});
        });
        cas("choix de la liste", album, [](auto &) {
            Choisir::Valider(edition(Tri::Albums, "Coll"), {1, "Voiles"});
        });
        cas("choix vide", album, [](auto &) { Choisir::Vider(edition(Tri::Albums, "Serie", "Écume", 1)); });
        cas("date", album, [](auto &) { Choisir::Valider(edition(Tri::Albums, "DA"), {0, "mai 2026"}); });
        cas("intervenant", album, [](auto &) {
            Choisir::Valider({{Tri::Albums, 1}, CelluleIntervenant()}, {0, "Luc , Lettre"});
        });
        cas("emprunteur", album, [](auto &) {
            Choisir::Valider(edition(Tri::Albums, "NPret"), {0, "Cousine"});
        });
        cas("ajout au choix", album,
            [](auto &) { Choisir::Ajouter(edition(Tri::Albums, "Genre"), "Conte"); });
        cas("image posee", album,
            [](auto &bac) { Joindre::Poser(edition(Tri::Albums, "Photo1"), image(bac)); });
        cas("image en memoire", {Tri::ExLibris, 1}, [](auto &) {
            Joindre::PoserImage(edition(Tri::ExLibris, "Photo1"), QImage(8, 8, QImage::Format_RGB32));
        });
        cas("image otee", album, [](auto &) { Joindre::Oter(edition(Tri::Albums, "Photo2")); });
        cas("dedicace", album,
            [](auto &bac) { Joindre::Poser(edition(Tri::Albums, "Dedi(0)"), image(bac)); });
        cas("album renomme", album, [](auto &) { Renommer::RenommerEntree({Tri::Albums, 1}, "Hiver"); });
        cas("auteur renomme", {Tri::Dessinateurs, 1}, [](auto &) {
            Renommer::RenommerEntree({Tri::Dessinateurs, 1}, "Sel, Anne");
        });
        cas("presse renommee", {Tri::Presse, 1}, [](auto &) {
            Renommer::RenommerEntree({Tri::Presse, 1}, "Le Mousse - 8");
        });
        cas("serie ajoutee", {Tri::Series, 2}, [](auto &) { Renommer::AjouterEntree(Tri::Series, "Dune"); });
        cas("auteur ajoute", {Tri::Coloristes, 2},
            [](auto &) { Renommer::AjouterEntree(Tri::Coloristes, "Bleu, Ciel"); });
        cas("presse ajoutee", {Tri::Presse, 2},
            [](auto &) { Renommer::AjouterEntree(Tri::Presse, "Le Mousse - 8"); });
        for (const Tri tri : {Tri::Albums, Tri::Series, Tri::Dessinateurs, Tri::ExLibris, Tri::Presse,
                 Tri::Editeurs, Tri::Collections})
            cas(qPrintable("suppression " + QString::number(int(tri))), {tri, 1}, [tri](auto &) {
                Supprimer::SupprimerEntree({tri, 1});
            });
        cas("retour", album, [](auto &) { Preter::Rendre(1); });
        cas("pret", album, [](auto &) { Preter::PreterAlbum(1, 1); });
        cas("emprunteur ajoute", {}, [](auto &) { Preter::AjouterEmprunteur("Elsa"); });
        cas("emprunteur renomme", {},
            [](auto &) { Preter::EcrireEmprunteur(1, Preter::Donnee::Prenom, "Elsa"); });
        cas("emprunteur supprime", {}, [](auto &) { Preter::SupprimerEmprunteur(1); });
        cas("creation", {Tri::Albums, 2}, [](auto &) { Saisie::CreerAlbum(nouveau()); });
        cas("importation", {}, [](auto &bac) {
            Bac::ecrire(bac.chemin("a.csv"), "Titre,Genre\nA,Un\nB,Deux\n");
            Importer::ImporterAlbums(
                bac.chemin("a.csv"), Importer::Proposer({"Titre", "Genre"}), Importer::Doublons::Prendre);
        });
        cas("statistiques", {}, [](auto &) { Statistiques::Nettoyer(); });
    }

    void chaqueActeEstUneEtapeEnSonLieu()
    {
        const auto [lieu, geste] = essai<Entree, Geste>();
        Bac bac;
        peupler();
        const QStringList avant = Bac::toutLire();
        Ecoute ecoute(bac.annonces);
        Etapes etapes(bac.annonces);
        Historique histoire(bac.annonces);
        const quint32 debut = ecritures(bac);
        geste(bac);
        const QStringList apres = Bac::toutLire();
        QVERIFY(apres != avant);
        QCOMPARE(ecritures(bac), debut + 1);
        QCOMPARE(etapes.faites.size(), 1U);
        QVERIFY(!etapes.faites[0].titre.trimmed().isEmpty());
        QCOMPARE(etapes.faites[0].lieu.tri, lieu.tri);
        QCOMPARE(etapes.faites[0].lieu.id, lieu.id);
        QCOMPARE(ecoute.annonces().size(), 1U);
        histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
        histoire.refaire();
        QCOMPARE(Bac::toutLire(), apres);
    }

    void unActeRateNeLaisseRien_data() { chaqueActeEstUneEtapeEnSonLieu_data(); }

    /// The last of the writes is refused by the engine.
    void unActeRateNeLaisseRien()
    {
        const auto [lieu, geste] = essai<Entree, Geste>();
        Bac bac;
        peupler();
        std::vector<Etape> faites;
        {
            Etapes etapes(bac.annonces);
            Historique histoire(bac.annonces);
            geste(bac);
            faites = etapes.faites;
            histoire.annuler();
        }
        QString table;
        QString quand;
        faites.at(0).bande->remonter([&](const Bande::Note &n) {
            // The rules that keep the tome's key write for themselves.
            if (!table.isEmpty() || n.table == "SerieAlbums")
                return;
            table = QString::fromUtf8(n.table.data(), qsizetype(n.table.size()));
            quand = n.sorte == Bande::Sorte::Ajout ? "INSERT"
                : n.sorte == Bande::Sorte::Edition ? "UPDATE"
                                                   : "DELETE";
        });
        const Refusant refusant(quand, table);
        const QStringList avant = Bac::toutLire();
        Ecoute ecoute(bac.annonces);
        ecoute.annonces();
        const auto annonces = ecoute.annonces().size();
        Etapes etapes(bac.annonces);
        QVERIFY(refus([&bac, &agir = geste] { agir(bac); }).has_value());
        QCOMPARE(Bac::toutLire(), avant);
        QVERIFY(etapes.faites.empty());
        QCOMPARE(ecoute.annonces().size(), annonces);
    }

    void unSecondEssaiNeDoubleRien()
    {
        Bac bac;
        {
            const Refusant refusant("INSERT", "LAlbums");
            QVERIFY(refus([] { Saisie::CreerAlbum(nouveau()); }).has_value());
        }
        QVERIFY(Saisie::CreerAlbum(nouveau()) > 0);
        for (const char *liens : {"GenreAlbums", "EditeurAlbums", "SerieAlbums", "AuteursAlbums", "Album"})
            QCOMPARE(Bac::valeur(QStringLiteral("SELECT count(*) FROM %1").arg(liens)), 1);
    }

    /// The disk fails before what was written is the file's, or after it: what is said is what holds.
    void unDisqueFautifNeMentPas_data()
    {
        // whose keeping fails, after how many that succeed, and whether the change stands
        const Colonnes<QString, int, bool> cas;
        cas("journal", "-journal", 0, false);
        cas("base", "bd.mdb", 0, false);
        cas("journal, une fois son compte tenu", "-journal", 1, false);
        cas("fin du journal", "-journal", 2, true);
    }

    void unDisqueFautifNeMentPas()
    {
        const auto [fin, reussites, tient] = essai<QString, int, bool>();
        Bac bac;
        peupler();
        Bac::executer("UPDATE Serie SET NoteG = 1"); // the day's backup is made before
        const QStringList avant = Bac::toutLire();
        Historique histoire(bac.annonces);
        int avis = 0;
        bac.annonces.avertir = [&](const Error &) { ++avis; };
        const QByteArray nom = fin.toLatin1();
        disque = {nom.constData(), reussites};
        const auto echec = refus([] { Ecrire::EcrireSaisie(edition(Tri::Albums, "ISBN"), "2-205"); });
        disque = {};
        QCOMPARE(!echec.has_value(), tient);
        QCOMPARE(Bac::toutLire() != avant, tient);
        QCOMPARE(histoire.peutAnnuler(), tient);
        QCOMPARE(avis, int(tient));
        if (tient)
            histoire.annuler();
        QCOMPARE(Bac::toutLire(), avant);
    }
};

QTEST_GUILESS_MAIN(tst_acte)
#include "tst_acte.moc"
