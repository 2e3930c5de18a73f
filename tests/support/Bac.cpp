#include "support/Bac.h"

#include "db/Base.h"

#include <QFile>

Bac::Bac()
    : dossier(m_dossier.path() + QStringLiteral("/bulleo"), livre())
    , reglages(m_dossier.path() + QStringLiteral("/reglages.ini"))
{
    dossier.preparer();
}

QString Bac::chemin(const QString &nom) const
{
    return nom.isEmpty() ? dossier.racine() : dossier.racine() + u'/' + nom;
}

QString Bac::livre()
{
    return QStringLiteral(PARTAGE);
}

QByteArray Bac::lire(const QString &chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Bac::ecrire(const QString &chemin, const QByteArray &octets)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        qFatal("%s", qPrintable(fichier.errorString()));
}

QVariant Bac::valeur(const QString &sql, const QVariantList &valeurs)
{
    const Base base;
    const auto rs = base.OpenRecordset(sql, valeurs);
    return rs.AtEnd() ? QVariant() : rs.Fields(0);
}

void Bac::executer(const QString &sql, const QVariantList &valeurs)
{
    Base().Execute(sql, valeurs);
}
