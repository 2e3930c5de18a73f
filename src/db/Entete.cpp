#include "db/Entete.h"

#include "core/Error.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

constexpr qsizetype Taille = 100;
constexpr qsizetype PositionTaillePage = 16;
constexpr qsizetype PositionCompteur = 24;
constexpr qsizetype PositionPages = 28;
constexpr qsizetype PositionVersion = 60;
constexpr qsizetype PositionApplication = 68;
constexpr qsizetype PositionValidite = 92;

quint32 mot(const QByteArray &octets, qsizetype position)
{
    return qFromBigEndian<quint32>(octets.constData() + position);
}

/// Length in bytes that the header promises; 0 when it makes no promise that can be trusted.
qint64 longueurPromise(const QByteArray &octets)
{
    const qint64 page = qFromBigEndian<quint16>(octets.constData() + PositionTaillePage);
    const bool fiable = mot(octets, PositionCompteur) == mot(octets, PositionValidite);
    return fiable ? (page == 1 ? 65536 : page) * mot(octets, PositionPages) : 0;
}

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Entete)
};

}

void Entete::Verifier(const QString &chemin, Nature nature)
{
    QFile fichier(chemin);
    if (!fichier.exists())
        throw Error(Error::Sorte::Introuvable, Tr::tr("Le fichier est introuvable."), chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw Error(Tr::tr("Le fichier ne peut pas être ouvert."), chemin, fichier.errorString());
    const QByteArray octets = fichier.read(Taille);
    if (octets.mid(4).startsWith("Standard Jet DB") || octets.mid(4).startsWith("Standard ACE DB"))
        throw Error(
            Error::Sorte::Ancienne, Tr::tr("Ce fichier est au format d'une ancienne version."), chemin);
    if (octets.isEmpty())
        throw Error(Error::Sorte::Etrangere, Tr::tr("Le fichier est vide."), chemin);
    const QByteArray magie("SQLite format 3", 16);
    if (octets.size() < Taille || !octets.startsWith(magie)
        || mot(octets, PositionApplication) != static_cast<quint32>(nature))
        throw Error(Error::Sorte::Etrangere, Tr::tr("Ce fichier n'est pas une base de Bulleo."), chemin);
    const int palier = Version::Palier(static_cast<int>(mot(octets, PositionVersion)));
    if (nature == Nature::Collection && palier > Version::DernierPalier)
        throw Error(Error::Sorte::PlusRecente,
            Tr::tr("Cette base vient d'une version plus récente de Bulleo : il faut celle-là pour l'ouvrir."),
            chemin);
    // After a crash the length may be wrong until the engine has rolled the journal back.
    const bool enSuspens = QFileInfo::exists(chemin + QStringLiteral("-journal"));
    if (!enSuspens && fichier.size() < longueurPromise(octets))
        throw Error(Error::Sorte::Abimee,
            Tr::tr("Le fichier est abîmé : il est plus court qu'il ne devrait."), chemin);
}
