#include "support/Bac.h"

#include "acts/Acte.h"
#include "db/Base.h"
#include "db/files/Livraison.h"
#include "db/schema/Tables.h"

#include <QDir>
#include <QFile>
#include <filesystem>

namespace {

/// Not by Qt, whose copies wait for the disk.
void copierDossier(const QString &source, const QString &cible)
{
    std::filesystem::copy(
        source.toStdString(), cible.toStdString(), std::filesystem::copy_options::recursive);
}

/// An application folder as the program prepares it, made once from a model or from nothing.
QString prepare(const QString &modele)
{
    static const QTemporaryDir lieu;
    const QString racine = lieu.filePath(QString::number(qHash(modele)));
    if (!QDir(racine).exists()) {
        if (!modele.isEmpty())
            copierDossier(modele, racine);
        const Dossier dossier(racine, Bac::livre());
        Livraison::Preparer();
    }
    return racine;
}

}

Bac::Bac(const QString &modele)
    : dossier(m_dossier.path() + QStringLiteral("/bulleo"), livre())
    , reglages(m_dossier.path() + QStringLiteral("/reglages.ini"))
{
    copierDossier(prepare(modele), dossier.racine());
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
    Base base;
    const auto rs = base.OpenRecordset(sql, valeurs);
    return rs.AtEnd() ? QVariant() : rs.Fields(0);
}

void Bac::executer(const QString &sql, const QVariantList &valeurs)
{
    Base().Execute(sql, valeurs);
}

void Bac::agir(const QString &sql, const QVariantList &valeurs, const QString &titre)
{
    Acte acte(titre);
    acte.base().Execute(sql, valeurs);
    acte.valider();
}

QStringList Bac::toutLire()
{
    Base base;
    QStringList lignes;
    const QStringList tables = Schema::Tables();
    for (const QString &table : tables) {
        const QString valeurs = "quote(" + Schema::Colonnes(table).join(") || '|' || quote(") + u')';
        const QString sql = "SELECT '%1|' || rowid || '|' || %2 FROM %1 ORDER BY rowid";
        for (auto rs = base.OpenRecordset(sql.arg(table, valeurs)); !rs.AtEnd(); rs.MoveNext())
            lignes << rs.Fields(0).toString();
    }
    return lignes;
}
