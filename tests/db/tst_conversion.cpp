#include "core/Csv.h"
#include "core/Outil.h"
#include "db/Base.h"
#include "db/Collation.h"
#include "db/files/Conversion.h"
#include "db/schema/Tables.h"
#include "entry/Catalogue.h"
#include "entry/ListeCatalogue.h"
#include "support/Bac.h"
#include "support/Colonnes.h"
#include "support/EcrivainJet.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>
#include <SQLiteCpp/Database.h>
#include <atomic>
#include <thread>

using Conversion::Code;
using Conversion::Rapport;

namespace {

using namespace EcrivainJet;

constexpr qsizetype Page = 4096;

QString materiel(const QString &nom)
{
    return qEnvironmentVariable("BULLEO_ANCIENNES", ANCIENNES) + u'/' + nom;
}

/// A cell as the comparison sees it: Null and empty are one, since the old reader cannot tell them apart.
QString cellule(const QVariant &valeur)
{
    return valeur.typeId() == QMetaType::Double ? QString::number(valeur.toDouble(), 'f', 4)
                                                : valeur.toString();
}

QString attendue(const QString &texte, Schema::Type type)
{
    if (texte == "\\N" || texte.isEmpty())
        return {};
    if (type == Schema::Type::Montant)
        return cellule(texte.toDouble());
    return type == Schema::Type::Booleen && texte == "1" ? "-1" : texte;
}

/// What was left out, but for whole tables that the old file never had.
QStringList ecartes(const Rapport &rapport)
{
    QStringList lignes;
    for (const Conversion::Ecarte &e : rapport.ecartes) {
        if (e.sorte != "tableManquante")
            lignes << (QStringList{e.sorte, e.table} + e.quoi).join(u'|');
    }
    return lignes;
}

/// The rows of a table, by identifier or as they came.
QStringList rangees(const QString &fichier, const QString &table, const QString &champs)
{
    QStringList lignes;
    const Base base(fichier, Entete::Nature::Collection);
    const QString sql = QString("SELECT %1 FROM %2 ORDER BY rowid").arg(champs, table);
    for (auto rs = base.OpenRecordset(sql); !rs.AtEnd(); rs.MoveNext()) {
        QStringList ligne;
        for (int i = 0; i <= champs.count(", "); ++i)
            ligne << cellule(rs.Fields(i));
        lignes << ligne.join(u'|');
    }
    return lignes;
}

/// The same of what a real file is known to hold, and which of the fields.
QStringList attendues(const Schema::Table &table, QString &champs)
{
    QStringList lignes;
    Csv::Lire(materiel(QString("expected/%1.csv").arg(table.nom)), [&](const Csv::Rangee &r) {
        champs = r.entete->join(", ");
        QStringList ligne;
        for (const Schema::Colonne &champ : table.colonnes) {
            if (r.entete->contains(QLatin1String(champ.nom)))
                ligne << attendue(r[QLatin1String(champ.nom)], champ.type);
        }
        lignes << ligne.join(u'|');
    });
    return lignes;
}

/// Opens as a collection does, in any thread.
bool estSain(const QString &fichier)
{
    Entete::Verifier(fichier, Entete::Nature::Collection);
    SQLite::Database db(fichier.toStdString());
    Collation::Enregistrer(db.getHandle());
    return db.execAndGet("PRAGMA integrity_check").getString() == "ok";
}

/// A few bits, as likely on one page as on another, but not where it is empty.
QByteArray abimer(QByteArray octets, QRandomGenerator hasard)
{
    constexpr int Voisinage = 8;
    for (quint32 bits = 1 + hasard.bounded(4U); bits > 0; --bits) {
        const qint64 choix = hasard.bounded(octets.size() / Page);
        const qint64 page = choix == 1 ? 0 : choix; // the writer leaves page 1 empty
        qint64 ou = 0;
        do {
            ou = page * Page + hasard.bounded(static_cast<int>(Page) - Voisinage);
        } while (octets.sliced(ou, Voisinage).count('\0') == Voisinage);
        octets[ou] = static_cast<char>(octets[ou] ^ 1 << hasard.bounded(8));
    }
    return octets;
}

/// True when the report accounts for all rows of the three tables, or says that one of them is missing.
bool rendCompte(const Rapport &rapport, qint64 attendues)
{
    for (const Conversion::TableLue &table : rapport.tables)
        attendues -= table.rangees;
    for (const Conversion::Ecarte &e : rapport.ecartes)
        attendues -= e.sorte == "double" || e.sorte == "identifiant";
    return attendues == 0 || rapport.tables.size() < 3;
}

}

class tst_conversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        for (const QString &fichier : fichiers())
            QFile::remove(m_dossier.filePath(fichier));
    }

    void uneVraieBaseDonneSesCellules_data()
    {
        const Colonnes<QString, bool> cas;
        cas("Jet 4", "bd-jet4.mdb", true);
        cas("mot de passe", "bd-password.mdb", true);
        cas("ACE", "bd-2007.accdb", true);
        cas("vide", "bd-empty.mdb", false);
    }

    void uneVraieBaseDonneSesCellules()
    {
        const auto [fichier, remplie] = essai<QString, bool>();
        if (!QFile::exists(materiel(fichier)))
            QSKIP(qPrintable(fichier + " n'est pas là"));
        const Rapport rapport = Conversion::Convertir(materiel(fichier), nouveau());
        QCOMPARE(rapport.details, "");
        QCOMPARE(rapport.nature, "collection");
        QCOMPARE(rapport.tables.size(), qsizetype(Schema::Definitions().size()));
        const QString montant = "montant|Album|52|PrixA|922337203685477.5807";
        QCOMPARE(ecartes(rapport), QStringList(remplie ? 1 : 0, montant));
        QVERIFY(estSain(nouveau()));
        for (const Schema::Table &table : Schema::Definitions()) {
            QString champs = "*";
            const QStringList lignes = remplie ? attendues(table, champs) : QStringList();
            QVERIFY2(lignes.isEmpty() != remplie, table.nom);
            QCOMPARE(rangees(nouveau(), table.nom, champs), lignes);
        }
    }

    void uneBaseEcriteIciDonneSesCellules_data()
    {
        const Colonnes<bool> cas;
        cas("Jet 4", false);
        cas("Jet 3", true);
    }

    void uneBaseEcriteIciDonneSesCellules()
    {
        const auto [jet3] = essai<bool>();
        const QString ailleurs = jet3 ? "Été" : LongTexte(70'000, u'Ā');
        const QList<QString> memos{LongTexte(5), LongTexte(64), LongTexte(1990), LongTexte(4070),
            LongTexte(70'000), ailleurs, " ", "", jet3 ? "à" : "Bulle 😀 中 œ", {}};
        Table fiches = DuSchema("Album");
        // What the upgrade of old files adds is not there, and names are matched without regard to case.
        fiches.champs.removeLast();
        fiches.nom = "aLBUM";
        fiches.champs[0].nom = "NUM";
        fiches.champs[8].type = Type::Court; // QualBD
        fiches.champs[19].type = Type::Date; // DPret
        Table liens = DuSchema("SerieAlbums");
        liens.champs.removeLast();
        QStringList prevues;
        for (int i = 0; i < memos.size(); ++i) {
            fiches.rangees << Rangee(fiches,
                {{"NUM", i}, {"NAlbum", i}, {"QualBD", -i},
                    {"Histoire", memos[i].isNull() ? QVariant() : memos[i]}, {"ISBN", " "},
                    {"DPret", 36526 + i},
                    {"PrixA", i == 1 ? qlonglong(9'007'199'254'740'000) : qlonglong(i) * -1001},
                    {"HSerie", i % 2}});
            liens.rangees << Rangee(liens, {{"NSerie", 3}, {"NAlbum", i}});
            const double prix = i == 1 ? 900'719'925'474.0 : i * -0.1001;
            prevues << QStringList{QString::number(i), QString::number(-i), memos[i], " ", "",
                QDate(2000, 1, 1 + i).toString("dd/MM/yyyy"), cellule(prix), i % 2 ? "-1" : "0", "0"}
                           .join(u'|');
        }
        Bac::ecrire(ancien(), Octets({.tables = {fiches, liens}, .jet3 = jet3}));
        const Rapport rapport = Conversion::Convertir(ancien(), nouveau());
        QCOMPARE(rapport.details, "");
        QVERIFY(ecartes(rapport).isEmpty());
        QVERIFY(estSain(nouveau()));
        const QString champs = "Num, QualBD, Histoire, ISBN, DA, DPret, PrixA, HSerie, Coffret";
        QCOMPARE(rangees(nouveau(), "Album", champs), prevues);
        QCOMPARE(rangees(nouveau(), "Album", "group_concat(DISTINCT typeof(DA))"), QStringList("null"));
        QCOMPARE(rangees(nouveau(), "SerieAlbums", "NumeroAlbum2")[2], "C");
    }

    void ceQuiNEstPasGardeEstDit()
    {
        Table fiches = DuSchema("Album");
        fiches.champs[1].type = Type::Texte; // NAlbum
        fiches.champs[3].type = Type::Double; // NGenre
        fiches.champs << Champ{"Reliure", Type::Texte} << Champ{"Vignette", Type::Ole};
        const auto ajouter = [&](const QMap<QString, QVariant> &v) { fiches.rangees << Rangee(fiches, v); };
        ajouter({{"Num", 1}, {"NAlbum", "7 "}, {"NGenre", 3.0}, {"ISBN", "premier"}});
        ajouter({{"Num", 1}, {"NAlbum", "2"}, {"NGenre", 0.5}, {"ISBN", "tab\tet\nligne"}, {"Broche", true}});
        ajouter({{"NAlbum", "sans numéro"}});
        ajouter(
            {{"Num", 2}, {"NAlbum", "douze"}, {"NGenre", 2.5}, {"PrixA", qlonglong(9'007'199'254'750'001)}});
        ajouter(
            {{"Num", 3}, {"NAlbum", " "}, {"NGenre", 1e12}, {"PrixA", qlonglong(-9'007'199'254'750'001)}});
        Table inconnue{"Mes notes", {{"N", Type::Long}}, {{1}, {2}}};
        Bac::ecrire(ancien(), Octets({{fiches, inconnue}}));
        const Rapport rapport = Conversion::Convertir(ancien(), nouveau());
        QCOMPARE(rapport.details, "");
        const QStringList attendus{"champInconnu|Album|Reliure", "champInconnu|Album|Vignette",
            "tableInconnue|Mes notes|2",
            "double|Album|Num=1|NAlbum=2|NGenre=0.5|ISBN=tab\tet\nligne|Broche=1",
            "identifiant|Album|NAlbum=sans numéro", "nombre|Album|2|NAlbum|douze",
            "nombre|Album|2|NGenre|2.5", "montant|Album|2|PrixA|900719925475.0001",
            "nombre|Album|3|NGenre|1000000000000", "montant|Album|3|PrixA|-900719925475.0001"};
        QCOMPARE(ecartes(rapport), attendus);
        QCOMPARE(rapport.ecartes.size() - attendus.size(), 21); // tables that are not there
        QCOMPARE(rangees(nouveau(), "Album", "Num, NAlbum, NGenre, ISBN"),
            QStringList({"1|7|3|premier", "2|||", "3|||"}));
    }

    void leCatalogueGardeSesTextes()
    {
        Table bd = DuSchema("BD");
        bd.rangees << Rangee(
            bd, {{"Numero", 5}, {"Titre", "Xq zé"}, {"Tome", 7}, {"Serie", "Ww"}, {"Couleur", true}});
        Bac::ecrire(ancien(), Octets({{bd}}));
        QFile::remove(m_bac.chemin("BDbase.bd"));
        const Rapport rapport = Conversion::Convertir(ancien(), m_bac.chemin("BDbase.bd"));
        QCOMPARE(rapport.details, "");
        QCOMPARE(rapport.nature, "catalogue");
        ListeCatalogue lignes;
        lignes.remplir(General::Tri::Albums, Catalogue::LireAlbums().albums);
        QCOMPARE(lignes.index(0).data(), "Xq zé  (N° 7)");
        const auto reference = Catalogue::LireReference(5);
        QVERIFY(reference && reference->album[Rubrique::Couleur] == "1");
        QCOMPARE(reference->album[Rubrique::Serie], "Ww");
    }

    void unRefusNeLaisseRien_data()
    {
        const Colonnes<QByteArray, Code> cas;
        const QByteArray saine = UneCollection(40);
        const auto changee = [&](qsizetype ou, const QByteArray &par) {
            QByteArray octets = saine;
            return octets.replace(ou, par.size(), par);
        };
        cas("vide", {}, Code::Etrangere);
        cas("autre marque", changee(4, "Standard Kit"), Code::Etrangere);
        cas("autres tables", Octets({{DuSchema("Serie")}}), Code::Etrangere);
        cas("codee", Octets({.tables = {DuSchema("Album")}, .codee = true}), Code::Chiffree);
        cas("coupee entre deux pages", saine.first(8 * Page), Code::Abimee);
        cas("catalogue illisible", changee(2 * Page, QByteArray(Page, '\xA5')), Code::Abimee);
        cas("page d'une autre table", changee(7 * Page + 4, "\x05"), Code::Abimee);
        // The rank of the row count in a definition page.
        cas("table dite vide", changee(4 * Page + 16, QByteArray(1, '\0')), Code::Abimee);
        cas("texte long d'une table", changee(saine.indexOf("LVAL"), QByteArray("\x03\0\0", 4)),
            Code::Abimee);
        for (const char *nom : {"bd-truncated.mdb", "bd-garbage.mdb"})
            cas(nom, Bac::lire(materiel(nom)), Code::Abimee);
    }

    void unRefusNeLaisseRien()
    {
        const auto [octets, code] = essai<QByteArray, Code>();
        const QString nom = QTest::currentDataTag();
        if (nom.endsWith(".mdb") && octets.isEmpty())
            QSKIP(qPrintable(nom + " n'est pas là"));
        Bac::ecrire(ancien(), octets);
        const Rapport rapport = Conversion::Convertir(ancien(), nouveau());
        QCOMPARE(rapport.erreur, code);
        QVERIFY(!rapport.details.isEmpty() && rapport.nature.isEmpty());
        QProcess processus;
        Outil::Lancer(processus, "bulleo-convertir", {ancien(), nouveau()});
        QVERIFY(processus.waitForFinished() && processus.exitCode() != 0);
        QCOMPARE(fichiers(), QStringList("l'été.mdb"));
        QVERIFY(Bac::lire(ancien()) == octets);
    }

    void lUtilisateurArreteLaConversion()
    {
        Bac::ecrire(ancien(), UneCollection(2000));
        const auto suivre = [](int avance) { return avance < 20; };
        QCOMPARE(Conversion::Convertir(ancien(), nouveau(), suivre).erreur, Code::Annulee);
        QCOMPARE(Conversion::Convertir(ancien(), nouveau(), {}, 0).erreur, Code::Abimee);
        QCOMPARE(fichiers(), QStringList("l'été.mdb"));
        const QString ailleurs = m_dossier.filePath("nulle part/nouveau.mdb");
        QCOMPARE(Conversion::Convertir(ancien(), ailleurs).erreur, Code::Ecriture);
        Bac::ecrire(nouveau(), "déjà là");
        QCOMPARE(Conversion::Convertir(ancien(), nouveau()).erreur, Code::Existe);
        QCOMPARE(Bac::lire(nouveau()), "déjà là");
        QCOMPARE(Conversion::Convertir(ancien(), ancien()).erreur, Code::Existe);
    }

    void ceQuiNEstPasUneLigneEstIgnore()
    {
        const QString texte = QString("é\t\n\"\\,} 😀 ") + QChar(0) + QChar(0xD83D); // half a pair of UTF-16
        const QByteArray entiere = Conversion::Ligne(Conversion::Ecarte{texte, texte, {texte, ""}});
        QByteArrayList fautes{"warning: 3\n", "{}", R"({"avance":1}{"avance":2})", R"({"avance":"3"})",
            R"({"avance":101})", R"({"table":"A","rangees":-1})", R"({"fini":true})", "{\"fini\":\"\xE9\"}"};
        for (qsizetype i = 0; i < entiere.size() - 1; ++i)
            fautes << entiere.first(i);
        Rapport rapport;
        for (const QByteArray &faute : std::as_const(fautes))
            QVERIFY2(!Conversion::Lire(rapport, faute), faute.left(60));
        QVERIFY(rapport.tables.isEmpty() && rapport.ecartes.isEmpty() && rapport.nature.isEmpty());
        QVERIFY(Conversion::Lire(rapport, entiere));
        QCOMPARE(ecartes(rapport), QStringList(texte + u'|' + texte + u'|' + texte + u'|'));
        QVERIFY(Conversion::Lire(rapport, R"({"erreur":"autre","details":"x"})"));
        QCOMPARE(rapport.erreur, Code::Abimee);
    }

    /// A damaged file is refused, or gives a sound collection in which no row was lost without a word.
    void desBitsFautifsNeTrompentPas()
    {
        constexpr int Variantes = 1000;
        constexpr int Albums = 6;
        const QByteArray saine = UneCollection(Albums);
        std::atomic<int> suivante = 0;
        std::atomic<int> reussies = 0;
        std::atomic<int> fautive = -1;
        const auto travailler = [&] {
            for (int n = suivante++; n < Variantes; n = suivante++) {
                const QString source = m_dossier.filePath(QString("variante%1.mdb").arg(n));
                const QString cible = m_dossier.filePath(QString("cible%1.mdb").arg(n));
                Bac::ecrire(source, abimer(saine, QRandomGenerator(static_cast<quint32>(n))));
                const Rapport rapport = Conversion::Convertir(source, cible, {}, 30'000);
                const bool reussie = rapport.erreur == Code::Aucun;
                reussies += reussie;
                const bool tient = QFile::exists(cible) == reussie
                    && (!reussie || (estSain(cible) && rendCompte(rapport, qint64(3) * Albums)));
                QFile::remove(cible);
                if (!tient || !QFile::remove(source))
                    fautive = n;
            }
        };
        for (std::vector<std::jthread> ateliers; ateliers.size() < 4;)
            ateliers.emplace_back(travailler);
        QCOMPARE(fautive, -1);
        QVERIFY(reussies > 0 && reussies < Variantes && fichiers().isEmpty());
    }

    void uneFinBrutaleNeLaisseRienAMoitie()
    {
        const QByteArray octets = UneCollection(600);
        Bac::ecrire(ancien(), octets);
        QElapsedTimer duree;
        duree.start();
        QCOMPARE(Conversion::Convertir(ancien(), nouveau()).erreur, Code::Aucun);
        const int entiere = static_cast<int>(duree.elapsed());
        QVERIFY(QFile::remove(nouveau()));
        QRandomGenerator hasard(7);
        int entamees = 0;
        for (int i = 0; i < 50; ++i, QFile::remove(nouveau())) {
            QProcess processus;
            processus.setStandardErrorFile(QProcess::nullDevice());
            Outil::Lancer(processus, "bulleo-convertir", {ancien(), nouveau()});
            processus.waitForFinished(hasard.bounded(entiere + entiere / 10));
            Outil::Arreter(processus);
            QVERIFY(Bac::lire(ancien()) == octets);
            entamees += QFile::exists(Conversion::Partiel(nouveau()));
            if (QFile::exists(nouveau()))
                QVERIFY(estSain(nouveau()) && rangees(nouveau(), "LAlbums", "NAlbum").size() == 600);
        }
        QVERIFY(entamees > 0);
        // What a dead converter left behind is no hindrance.
        QCOMPARE(Conversion::Convertir(ancien(), nouveau()).erreur, Code::Aucun);
        QCOMPARE(fichiers(), QStringList({"l'été.mdb", "Œuvre neuve.mdb"}));
    }

private:
    QString ancien() const { return m_dossier.filePath("l'été.mdb"); }
    QString nouveau() const { return m_dossier.filePath("Œuvre neuve.mdb"); }
    QStringList fichiers() const { return QDir(m_dossier.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir m_dossier;
    Bac m_bac;
};

QTEST_GUILESS_MAIN(tst_conversion)
#include "tst_conversion.moc"
