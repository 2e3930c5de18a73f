#include "db/files/Livraison.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Traduction.h"
#include "db/Comparaison.h"
#include "db/Refus.h"
#include "db/files/Moteur.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <algorithm>
#include <array>
#include <optional>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Livraison)
};

const QString CollectionVierge = QStringLiteral("Base vierge.bd");
const QString Langues = QStringLiteral("langues");

/// What every complete folder has beside the collection.
const std::array Complements{
    Dossier::Catalogue, Langues, QStringLiteral("Fond Ecran"), QStringLiteral("Help")};

/// Folders that the program fills.
const std::array DossiersVides{QStringLiteral("images"), QStringLiteral("image")};

/// How everything shipped ever came: a line each of a digest, two blanks, and the name in the application folder.
const QString Liste = QStringLiteral("/empreintes.txt");
using Empreintes = QSet<QByteArray>;

/// In the application folder: what was shipped when it was last brought up to date.
const QString Marque = QStringLiteral("/.bulleo.livre");

QString cheminLivre(const QString &nom)
{
    return Dossier::courant().livre() + u'/' + nom;
}

QByteArray lire(const QString &chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

/// True when there is nothing but what the program keeps there for itself.
bool estVide(const QString &dossier)
{
    const QStringList entrees
        = QDir(dossier).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return std::all_of(entrees.begin(), entrees.end(),
        [](const QString &nom) { return nom.startsWith(QLatin1String(".bulleo.")); });
}

void creerDossier(const QString &chemin)
{
    if (!QDir().mkpath(chemin))
        throw Error(Tr::tr("Ce dossier ne peut pas être créé."), chemin);
}

[[noreturn]] void refuser(const QString &cible, const QString &details)
{
    throw Error(Tr::tr("Ce fichier ne peut pas être copié."), cible, details);
}

/// Copies a shipped file to where there is none. The copy has no name before it is whole, so that a first start
/// that is cut off leaves an empty folder. A shipped file may be read-only; the copy is the user's own.
void copier(const QString &source, const QString &cible)
{
    QFile fichier(source);
    if (!fichier.copy(cible))
        refuser(cible, fichier.errorString());
    QFile::setPermissions(cible, QFile::permissions(cible) | QFile::ReadOwner | QFile::WriteOwner);
}

/// Puts a shipped file in the place of an own one, which stays until the new one is on the disk.
void remplacer(const QString &source, const QString &cible)
{
    QFile livre(source);
    if (!livre.open(QIODevice::ReadOnly))
        refuser(cible, livre.errorString());
    const QByteArray octets = livre.readAll();
    if (livre.error() != QFileDevice::NoError)
        refuser(cible, livre.errorString());
    QSaveFile fichier(cible);
    // The commit alone passes over a last part that the disk did not take.
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size() || !fichier.flush()
        || !fichier.commit())
        refuser(cible, fichier.errorString());
}

/// The lines of the list; none at all when one of them is damaged.
Empreintes lireEmpreintes(const QByteArray &liste)
{
    static const QRegularExpression forme(QStringLiteral("^[0-9a-f]{64}  \\S"));
    Empreintes connues;
    const QByteArrayList lignes = liste.split('\n');
    for (const QByteArray &ligne : lignes) {
        if (ligne.isEmpty())
            continue;
        if (!forme.match(QString::fromUtf8(ligne)).hasMatch())
            return {};
        connues.insert(ligne);
    }
    return connues;
}

/// The line that a file would have under a name; one that is in no list when it cannot be read.
QByteArray ligneDe(const QString &nom, const QString &chemin)
{
    QByteArray empreinte;
    if (nom == Dossier::Catalogue) {
        try {
            empreinte = Livraison::EmpreinteDuCatalogue(chemin);
        } catch (const Error &) {
            // Of an old format, or no catalogue any more: not what was shipped.
        }
    } else {
        QFile fichier(chemin);
        QCryptographicHash somme(QCryptographicHash::Sha256);
        if (fichier.open(QIODevice::ReadOnly) && somme.addData(&fichier))
            empreinte = somme.result().toHex();
    }
    return empreinte + "  " + nom.toUtf8();
}

/// True for a file that may be replaced: no link, nothing that its user protects.
bool estRemplacable(const QFileInfo &fichier)
{
    return fichier.isFile() && !fichier.isSymLink() && fichier.isWritable();
}

bool memesOctets(const QFileInfo &un, const QFileInfo &autre)
{
    return un.size() == autre.size() && lire(un.filePath()) == lire(autre.filePath());
}

/// True when a file is what was once shipped under a name, and is so no more.
bool estPerime(const QFileInfo &fichier, const QString &nom, const Empreintes &connues)
{
    const QFileInfo livre(cheminLivre(nom));
    // Most are as they are shipped now: seen without a digest, which takes ten times as long.
    if (connues.isEmpty() || !estRemplacable(fichier) || memesOctets(fichier, livre))
        return false;
    const QByteArray mienne = ligneDe(nom, fichier.filePath());
    if (!connues.contains(mienne))
        return false;
    // The new version must be in the list, too: one that was damaged on its way replaces nothing.
    const QByteArray nouvelle = ligneDe(nom, livre.filePath());
    return nouvelle != mienne && connues.contains(nouvelle);
}

/// Brings a shipped file, or all that a shipped folder holds.
void apporter(const QString &nom, const Empreintes &connues)
{
    const QFileInfo source(cheminLivre(nom));
    const QFileInfo cible(Dossier::courant().chemin(nom));
    const bool absente = !cible.exists() && !cible.isSymLink();
    if (source.isDir()) {
        if (!absente && (!cible.isDir() || cible.isSymLink()))
            return;
        creerDossier(cible.filePath());
        const QStringList entrees
            = QDir(source.filePath()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QString &entree : entrees)
            apporter(nom + u'/' + entree, connues);
    } else if (source.isFile() && absente) {
        copier(source.filePath(), cible.filePath());
    } else if (source.isFile() && estPerime(cible, nom, connues)) {
        remplacer(source.filePath(), cible.filePath());
    }
}

/// The language in force is a copy of a language file, and ages with it.
void renouvelerLangue(const Empreintes &connues)
{
    const QFileInfo courante(Traduction::CheminCourant());
    const QStringList fichiers = QDir(cheminLivre(Langues)).entryList(QDir::Files);
    for (const QString &fichier : fichiers) {
        const QString nom = Langues + u'/' + fichier;
        if (estPerime(courante, nom, connues)) {
            remplacer(cheminLivre(nom), courante.filePath());
            return;
        }
    }
}

/// `user_version` of a collection without a row; nothing for any other file.
std::optional<int> versionDeVierge(const QString &chemin)
{
    try {
        const auto db = Moteur::Ouvrir(chemin);
        if (Moteur::EstVierge(*db))
            return db->execAndGet("PRAGMA user_version").getInt();
    } catch (const Error &) {
        // Missing, held by others, or none of ours.
    } catch (const SQLite::Exception &) {
        // Likewise.
    }
    return std::nullopt;
}

/// A blank collection that is still blank is nobody's work, whoever made it.
void renouvelerVierge()
{
    const QFileInfo mienne(Dossier::courant().chemin(CollectionVierge));
    if (!estRemplacable(mienne))
        return;
    const auto ancienne = versionDeVierge(mienne.filePath());
    const auto nouvelle = versionDeVierge(cheminLivre(CollectionVierge));
    if (ancienne && nouvelle && ancienne != nouvelle)
        remplacer(cheminLivre(CollectionVierge), mienne.filePath());
}

void remplir()
{
    const Dossier &dossier = Dossier::courant();
    creerDossier(dossier.racine());
    if (QFileInfo::exists(cheminLivre(CollectionVierge))) {
        copier(cheminLivre(CollectionVierge), dossier.collection());
        copier(cheminLivre(CollectionVierge), dossier.chemin(CollectionVierge));
    }
    for (const QString &nom : DossiersVides)
        creerDossier(dossier.chemin(nom));
}

/// Stands for all that is shipped: the list changes with every file of it, the version with the blank collection.
QByteArray marqueDe(const QByteArray &liste)
{
    const QByteArray tout
        = liste + QByteArray::number(Version::Composer(Comparaison::version(), Version::DernierPalier));
    return QCryptographicHash::hash(tout, QCryptographicHash::Sha256).toHex() + '\n';
}

/// Without a mark the same is done again at the next start, so it may fail.
void marquer(const QByteArray &marque)
{
    QFile fichier(Dossier::courant().racine() + Marque);
    if (fichier.open(QIODevice::WriteOnly))
        fichier.write(marque);
}

}

void Livraison::Preparer()
{
    const Dossier &dossier = Dossier::courant();
    if (estVide(dossier.racine()))
        remplir();
    // A folder that is only to be read is taken as it is.
    if (!QFileInfo::exists(dossier.collection()) || !QFileInfo(dossier.racine()).isWritable())
        return;
    const QByteArray liste = lire(dossier.livre() + Liste);
    const QByteArray marque = marqueDe(liste);
    const bool aJour = lire(dossier.racine() + Marque) == marque;
    const Empreintes connues = aJour ? Empreintes() : lireEmpreintes(liste);
    for (const QString &nom : Complements) {
        if (!aJour || !QFileInfo::exists(dossier.chemin(nom)))
            apporter(nom, connues);
    }
    if (aJour)
        return;
    renouvelerLangue(connues);
    renouvelerVierge();
    marquer(marque);
}

QByteArray Livraison::EmpreinteDuCatalogue(const QString &chemin)
{
    const auto db = Moteur::Ouvrir(chemin, Entete::Nature::Catalogue);
    QCryptographicHash somme(QCryptographicHash::Sha256);
    try {
        SQLite::Statement rangees(*db, "SELECT * FROM BD ORDER BY Numero");
        while (rangees.executeStep()) {
            for (int i = 0; i < rangees.getColumnCount(); ++i) {
                const SQLite::Column valeur = rangees.getColumn(i);
                const std::string octets = valeur.getString();
                // With its type and length before it, no value passes for another or for two.
                somme.addData(
                    QByteArray::number(valeur.getType()) + ':' + QByteArray::number(octets.size()) + ':');
                somme.addData(octets);
            }
            somme.addData("\n");
        }
    } catch (const SQLite::Exception &e) {
        throw Refus::Dire(e, chemin);
    }
    return somme.result().toHex();
}
