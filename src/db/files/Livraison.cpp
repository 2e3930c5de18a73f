#include "db/files/Livraison.h"

#include "core/Dossier.h"
#include "core/Error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

namespace {

const QString CollectionVierge = QStringLiteral("Base vierge.bd");

/// What every complete folder has beside the collection.
const std::array Complements{QStringLiteral("BDbase.bd"), QStringLiteral("langues"),
    QStringLiteral("Fond Ecran"), QStringLiteral("Help")};

/// Folders that the program fills.
const std::array DossiersVides{QStringLiteral("images"), QStringLiteral("image")};

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
        throw Error(QCoreApplication::translate("Livraison", "Ce dossier ne peut pas être créé."), chemin);
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
        throw Error(QCoreApplication::translate("Livraison", "Ce fichier ne peut pas être copié."), cible,
            fichier.errorString());
    QFile::setPermissions(cible, QFile::permissions(cible) | QFile::ReadOwner | QFile::WriteOwner);
}

void copierLivre(const QString &source, const QString &cible)
{
    const QString livre = Dossier::courant().livre() + u'/' + source;
    if (!QFileInfo::exists(cible) && QFileInfo::exists(livre))
        copier(livre, cible);
}

}

void Livraison::Preparer()
{
    const Dossier &dossier = Dossier::courant();
    if (estVide(dossier.racine())) {
        creerDossier(dossier.racine());
        copierLivre(CollectionVierge, dossier.collection());
        copierLivre(CollectionVierge, dossier.chemin(CollectionVierge));
        for (const QString &nom : DossiersVides)
            creerDossier(dossier.chemin(nom));
    }
    if (!QFileInfo::exists(dossier.collection()))
        return;
    for (const QString &nom : Complements)
        copierLivre(nom, dossier.chemin(nom));
}
