// Makes a reference catalogue from a CSV file: bulleo-catalogue [--strict] SOURCE.csv BDbase.bd. An existing file is
// replaced once the new one is whole. A bad row is reported with its line and left out; with --strict it stops all.
// bulleo-catalogue --empreinte BDbase.bd prints the digest of a catalogue's content.

#include "core/Annonces.h"
#include "core/Csv.h"
#include "core/Error.h"
#include "db/Base.h"
#include "db/Module2.h"
#include "db/Transaction.h"
#include "db/files/FichierNeuf.h"
#include "db/files/Livraison.h"
#include "model/ChampsDeCreation.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QSet>
#include <QTextStream>

using ChampsDeCreation::ChampDeCreation;

namespace {

constexpr int TomeMax = 999;
/// The columns that say nothing that a field of the album holds as such.
constexpr const char *Propres[] = {"Numero", "Carton"};

bool estUnDrapeau(const ChampDeCreation &champ)
{
    return champ.maniere == ChampsDeCreation::Case;
}

bool estUnTome(const ChampDeCreation &champ)
{
    return champ.champ->regle == Champs::Regle::Tome;
}

/// The columns that fill a field of the album.
std::vector<const ChampDeCreation *> colonnes()
{
    std::vector<const ChampDeCreation *> champs;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (champ.catalogue)
            champs.push_back(&champ);
    }
    return champs;
}

/// Adds the rows of the source to an open catalogue, and counts.
class Import
{
public:
    Import(Base &base, bool strict)
        : m_rs(base.edit(QStringLiteral("BD")))
        , m_strict(strict)
    {
    }

    void prendre(const Csv::Rangee &r)
    {
        const QString faute = chercherFaute(r);
        if (!faute.isEmpty()) {
            ++m_refusees;
            QTextStream(stderr) << QStringLiteral("ligne %1 : %2\n").arg(r.ligne).arg(faute);
            if (m_strict)
                throw Error(QStringLiteral("Rien n'a été écrit."), {});
            return;
        }
        m_numeros.insert(r[QStringLiteral("Numero")].toInt());
        ajouter(r);
    }

    qsizetype prises() const { return m_numeros.size(); }
    int refusees() const { return m_refusees; }

private:
    /// An album of its own has no tome, or tome 0.
    static int tomeDe(const Csv::Rangee &r, bool &nombre)
    {
        const QString tome = r[QStringLiteral("Tome")].trimmed();
        nombre = tome.isEmpty();
        return nombre ? 0 : tome.toInt(&nombre);
    }

    static void exiger(const Csv::Rangee &r, const char *colonne)
    {
        if (!r.entete->contains(QLatin1String(colonne)))
            throw Error(QStringLiteral("Il manque la colonne %1.").arg(QLatin1String(colonne)), {});
    }

    QString chercherFaute(const Csv::Rangee &r) const
    {
        for (const char *colonne : Propres)
            exiger(r, colonne);
        for (const ChampDeCreation *champ : colonnes())
            exiger(r, champ->catalogue);
        if (r.cellules.size() != r.entete->size())
            return QStringLiteral("%1 cellules au lieu de %2").arg(r.cellules.size()).arg(r.entete->size());
        bool nombre = false;
        const int numero = r[QStringLiteral("Numero")].toInt(&nombre);
        if (!nombre || numero <= 0)
            return QStringLiteral("numéro « %1 »").arg(r[QStringLiteral("Numero")]);
        if (m_numeros.contains(numero))
            return QStringLiteral("le numéro %1 est déjà pris").arg(numero);
        const int tome = tomeDe(r, nombre);
        if (!nombre || tome < 0 || tome > TomeMax)
            return QStringLiteral("tome « %1 »").arg(r[QStringLiteral("Tome")]);
        if (r[QStringLiteral("Titre")].trimmed().isEmpty())
            return QStringLiteral("sans titre");
        for (const ChampDeCreation *champ : colonnes()) {
            const QString valeur = r[QLatin1String(champ->catalogue)];
            if (estUnDrapeau(*champ) && valeur != QLatin1String("0") && valeur != QLatin1String("1"))
                return QStringLiteral("%1 « %2 »").arg(QLatin1String(champ->catalogue), valeur);
        }
        for (const QString &cellule : r.cellules) {
            if (!Module2::Coder(cellule))
                return QStringLiteral("un caractère ne peut pas être codé dans « %1 »")
                    .arg(cellule.simplified());
        }
        return {};
    }

    static QVariant valeurDe(const ChampDeCreation &champ, const Csv::Rangee &r)
    {
        const QString texte = r[QLatin1String(champ.catalogue)];
        bool nombre = false;
        if (estUnTome(champ))
            return tomeDe(r, nombre);
        if (estUnDrapeau(champ))
            return texte == QLatin1String("1");
        return *Module2::Coder(texte.trimmed());
    }

    void ajouter(const Csv::Rangee &r)
    {
        m_rs.AddNew();
        m_rs.SetField(QStringLiteral("Numero"), r[QStringLiteral("Numero")].toInt());
        m_rs.SetField(QStringLiteral("Carton"), *Module2::Coder(r[QStringLiteral("Carton")].trimmed()));
        for (const ChampDeCreation *champ : colonnes())
            m_rs.SetField(QLatin1String(champ->catalogue), valeurDe(*champ, r));
        m_rs.Update();
    }

    Recordset m_rs;
    bool m_strict;
    QSet<int> m_numeros;
    int m_refusees = 0;
};

void convertir(const QString &source, const QString &cible, bool strict)
{
    const QString brouillon = cible + QStringLiteral(".neuf");
    QFile::remove(brouillon);
    FichierNeuf::CreerCatalogue(brouillon);
    try {
        Base base(brouillon, Entete::Nature::Catalogue);
        Transaction transaction(base);
        Import import(base, strict);
        Csv::Lire(source, [&](const Csv::Rangee &r) { import.prendre(r); });
        transaction.Commit();
        QTextStream(stdout)
            << QStringLiteral("%1 albums, %2 lignes refusées\n").arg(import.prises()).arg(import.refusees());
    } catch (const Error &) {
        QFile::remove(brouillon);
        throw;
    }
    QFile::remove(cible);
    if (!QFile::rename(brouillon, cible))
        throw Error(QStringLiteral("Le catalogue ne peut pas être écrit."), cible);
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const Annonces annonces;
    QCommandLineParser lecteur;
    const QCommandLineOption strict(
        QStringLiteral("strict"), QStringLiteral("S'arrête à la première ligne fautive."));
    lecteur.setApplicationDescription(QStringLiteral("Fait un catalogue de référence d'un fichier CSV."));
    const QCommandLineOption empreinte(
        QStringLiteral("empreinte"), QStringLiteral("Dit l'empreinte du contenu d'un catalogue."));
    lecteur.addOptions({strict, empreinte});
    lecteur.addHelpOption();
    lecteur.addPositionalArgument(QStringLiteral("source"), QStringLiteral("Fichier CSV (UTF-8)."));
    lecteur.addPositionalArgument(QStringLiteral("cible"), QStringLiteral("Catalogue à écrire, BDbase.bd."));
    lecteur.process(application);
    const QStringList fichiers = lecteur.positionalArguments();
    if (fichiers.size() != (lecteur.isSet(empreinte) ? 1 : 2))
        lecteur.showHelp(2);
    try {
        if (lecteur.isSet(empreinte))
            QTextStream(stdout) << Livraison::EmpreinteDuCatalogue(fichiers[0]) << '\n';
        else
            convertir(fichiers[0], fichiers[1], lecteur.isSet(strict));
    } catch (const Error &e) {
        QTextStream(stderr) << e.message() << '\n';
        return 1;
    }
    return 0;
}
