#include "core/Fonds.h"

#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Reglages.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString Rangement = QStringLiteral("Fond Ecran");

}

QString Fonds::CheminChoisi()
{
    const QString nom = Reglages::courant().texte(Cle::FondScreen).trimmed().replace(u'\\', u'/');
    if (nom.isEmpty())
        return {};
    const QString seul = nom.section(u'/', -1);
    const QString dossier = Reglages::courant().texte(Cle::RepFondScreen).trimmed().replace(u'\\', u'/');
    // A folder that was moved, or that another machine wrote in its own letters, still has the picture.
    for (const QString &chemin :
        {nom.startsWith(u'/') ? nom : QString(), dossier + u'/' + seul, CheminDe(seul)}) {
        if (chemin.startsWith(u'/') && QFileInfo(chemin).isFile())
            return QDir::cleanPath(chemin);
    }
    return {};
}

QStringList Fonds::Textures()
{
    return QDir(CheminDe({}))
        .entryList(
            {QStringLiteral("*.jpg"), QStringLiteral("*.jpeg")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

QString Fonds::NomDe(const QString &fichier)
{
    return fichier.section(u'.', 0, 0);
}

QString Fonds::CheminDe(const QString &fichier)
{
    if (QFileInfo(fichier).isAbsolute())
        return fichier;
    return Dossier::courant().chemin(Rangement + u'/' + fichier);
}

QString Fonds::Ajouter(const QString &chemin)
{
    return Images::CopierDans(Rangement, chemin);
}

void Fonds::Choisir(const QString &fichier)
{
    Reglages::courant().ecrire(Cle::FondScreen, fichier.isEmpty() ? QString() : CheminDe(fichier));
    Reglages::courant().ecrire(
        Cle::RepFondScreen, fichier.isEmpty() ? QString() : QFileInfo(CheminDe(fichier)).path());
}

QString Fonds::Texture(int rang)
{
    const QStringList noms = Textures();
    return rang > 0 && rang <= noms.size() ? CheminDe(noms[rang - 1]) : QString();
}
