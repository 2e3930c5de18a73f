#include "core/Dossier.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString Verrou = QStringLiteral(".bulleo.lock");

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

bool Dossier::EstLeFichier(const QString &chemin, const QString &fichier)
{
    const QFileInfo propre(fichier);
    const QFileInfo autre(chemin);
    return autre.absoluteFilePath().compare(propre.absoluteFilePath(), Qt::CaseInsensitive) == 0
        || (autre.exists() && autre.canonicalFilePath() == propre.canonicalFilePath());
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
