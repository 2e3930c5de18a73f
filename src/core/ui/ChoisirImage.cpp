#include "core/ui/ChoisirImage.h"

#include "core/Dossier.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"

#include <QFileInfo>

QString ChoisirImage(QWidget *parent)
{
    Reglages &reglages = Reglages::courant();
    QString dossier = reglages.texte(Cle::DossierImages);
    if (dossier.isEmpty())
        dossier = Dossier::courant().chemin(QStringLiteral("image"));
    const QString filtre
        = QString(texte(Txt::FiltreImages)).replace(QLatin1String("*.bmp"), QLatin1String("*.bmp;*.png"));
    QString chemin = Messages::OuvrirFichier(parent, texte(Txt::OuvrirUnFichierImage), dossier, filtre);
    if (!chemin.isEmpty())
        reglages.ecrire(Cle::DossierImages, QFileInfo(chemin).absolutePath());
    return chemin;
}
