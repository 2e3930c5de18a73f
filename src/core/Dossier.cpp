#include "core/Dossier.h"

#include "core/Error.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>
#include <array>

namespace {

const QString CollectionVierge = QStringLiteral("Base vierge.bd");
const QString Verrou = QStringLiteral(".bulleo.lock");

/// What every complete folder has beside the collection.
const std::array Complements{
    Dossier::Catalogue, QStringLiteral("langues"), QStringLiteral("Fond Ecran"), QStringLiteral("Help")};

/// Folders that the program fills.
const std::array DossiersVides{QStringLiteral("images"), QStringLiteral("image")};

/// The name of an existing entry of `dossier` that equals `nom` but for case; `nom` when there is none.
QString nomExistant(const QString &dossier, const QString &nom)
{
    if (nom == QLatin1String(".") || nom == QLatin1String("..") || QFileInfo::exists(dossier + u'/' + nom))
        return nom;
    QDirIterator entrees(dossier, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entrees.hasNext()) {
        entrees.next();
        if (entrees.fileName().compare(nom, Qt::CaseInsensitive) == 0)
            return entrees.fileName();
    }
    return nom;
}

bool estVide(const QString &dossier)
{
    QStringList entrees
        = QDir(dossier).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    entrees.removeAll(Verrou);
    return entrees.isEmpty();
}

void creerDossier(const QString &chemin)
{
    if (!QDir().mkpath(chemin))
        throw Error(QCoreApplication::translate("Dossier", "Ce dossier ne peut pas être créé."), chemin);
}

/// Copies a file or a whole folder. Shipped files may be read-only; copies are the user's own.
void copier(const QString &source, const QString &cible)
{
    if (QFileInfo(source).isDir()) {
        creerDossier(cible);
        const QStringList noms = QDir(source).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QString &nom : noms)
            copier(source + u'/' + nom, cible + u'/' + nom);
        return;
    }
    QFile fichier(source);
    if (!fichier.copy(cible))
        throw Error(QCoreApplication::translate("Dossier", "Ce fichier ne peut pas être copié."), cible,
            fichier.errorString());
    QFile::setPermissions(cible, QFile::permissions(cible) | QFile::ReadOwner | QFile::WriteOwner);
}

}

Dossier::Dossier(const QString &racine, const QString &livre)
    : m_racine(QDir::cleanPath(QDir(racine).absolutePath()))
    , m_livre(livre)
{
}

QString Dossier::Choisir(const QString &demande)
{
    if (!demande.isEmpty())
        return demande;
    QString executable = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(executable + u'/' + nomExistant(executable, Collection)))
        return executable;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Bulleo");
}

QString Dossier::Livre()
{
    const QString executable = QCoreApplication::applicationDirPath();
    const QString construit = executable + QStringLiteral("/partage");
    return QFileInfo::exists(construit) ? construit : executable + QStringLiteral("/../share/bulleo");
}

QString Dossier::chemin(const QString &nom) const
{
    QString chemin = m_racine;
    const QStringList parties = QString(nom).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    for (const QString &partie : parties)
        chemin += u'/' + nomExistant(chemin, partie);
    return chemin;
}

bool Dossier::estLeFichier(const QString &chemin, const QString &nom) const
{
    const QFileInfo propre(this->chemin(nom));
    const QFileInfo autre(chemin);
    return autre.absoluteFilePath().compare(propre.absoluteFilePath(), Qt::CaseInsensitive) == 0
        || (autre.exists() && autre.canonicalFilePath() == propre.canonicalFilePath());
}

void Dossier::copierLivre(const QString &source, const QString &nom) const
{
    const QString cible = chemin(nom);
    const QString livre = m_livre + u'/' + source;
    if (!QFileInfo::exists(cible) && QFileInfo::exists(livre))
        copier(livre, cible);
}

void Dossier::preparer() const
{
    if (estVide(m_racine)) {
        creerDossier(m_racine);
        copierLivre(CollectionVierge, Collection);
        copierLivre(CollectionVierge, CollectionVierge);
        for (const QString &nom : DossiersVides)
            creerDossier(chemin(nom));
    }
    if (!QFileInfo::exists(chemin(Collection)))
        return;
    for (const QString &nom : Complements)
        copierLivre(nom, nom);
}

bool Dossier::verrouiller()
{
    QDir().mkpath(m_racine);
    const QString chemin = m_racine + u'/' + Verrou;
    m_verrou = std::make_unique<QLockFile>(chemin);
    m_verrou->setStaleLockTime(0);
    const bool enReste = QFileInfo::exists(chemin);
    const bool pris = m_verrou->tryLock(0);
    m_finBrutale = pris && enReste;
    return pris || m_verrou->error() != QLockFile::LockFailedError;
}
