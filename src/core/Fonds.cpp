#include "core/Fonds.h"

#include "core/Dossier.h"
#include "core/Reglages.h"

#include <QDir>
#include <QFileInfo>

QString Fonds::CheminChoisi()
{
    const QString nom = Reglages::courant().texte(Cle::FondScreen).trimmed().replace(u'\\', u'/');
    if (nom.isEmpty())
        return {};
    if (nom.startsWith(u'/'))
        return QFileInfo(nom).isFile() ? nom : QString();
    QString dossier = Reglages::courant().texte(Cle::RepFondScreen).trimmed().replace(u'\\', u'/');
    if (dossier.isEmpty())
        dossier = Dossier::courant().chemin(QStringLiteral("Fond Ecran"));
    if (!dossier.endsWith(u'/'))
        dossier += u'/';
    const QString chemin = dossier + nom.section(u'/', -1);
    return QFileInfo(chemin).isFile() ? chemin : QString();
}

QString Fonds::Texture(int rang)
{
    const QDir dossier(Dossier::courant().chemin(QStringLiteral("Fond Ecran")));
    const QStringList noms
        = dossier.entryList({QStringLiteral("*.jpg"), QStringLiteral("*.jpeg")}, QDir::Files, QDir::Name);
    return rang > 0 && rang <= noms.size() ? dossier.filePath(noms[rang - 1]) : QString();
}
