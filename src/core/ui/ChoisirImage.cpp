#include "core/ui/ChoisirImage.h"

#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"

#include <QFileInfo>
#include <QStandardPaths>

QString FiltreDImages()
{
    QStringList motifs;
    for (const QString &extension : Images::Extensions())
        motifs << QStringLiteral("*.") + extension;
    return texte(Txt::FiltreImages).section(u'|', 0, 0) + u'|' + motifs.join(u';');
}

QString DossierDImages()
{
    const QString dernier = Reglages::courant().texte(Cle::DossierImages);
    for (const QString &dossier :
        {dernier, QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)}) {
        if (!dossier.isEmpty() && QFileInfo(dossier).isDir())
            return dossier;
    }
    return Dossier::courant().chemin(QStringLiteral("image"));
}

QString ChoisirImage(QWidget *parent)
{
    QString chemin = Messages::OuvrirFichier(
        parent, texte(Txt::OuvrirUnFichierImage), DossierDImages(), FiltreDImages());
    if (!chemin.isEmpty())
        Reglages::courant().ecrire(Cle::DossierImages, QFileInfo(chemin).absolutePath());
    return chemin;
}
