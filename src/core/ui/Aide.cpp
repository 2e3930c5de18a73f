#include "core/ui/Aide.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Traduction.h"
#include "core/ui/Liens.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMap>

namespace {

const QString Accueil = QStringLiteral("index.htm");

QString pageDe(const QString &forme)
{
    static const QMap<QString, QString> Pages{
        {QStringLiteral("Frmmain"), QStringLiteral("fenetre.htm")},
        {QStringLiteral("Splash"), QStringLiteral("lanceur.htm")},
        {QStringLiteral("FrmModif"), QStringLiteral("fiches.htm")},
        {QStringLiteral("FrmModif2"), QStringLiteral("fiches.htm")},
        {QStringLiteral("Pret"), QStringLiteral("prets.htm")},
        {QStringLiteral("Acquisition"), QStringLiteral("images.htm")},
        {QStringLiteral("Stats"), QStringLiteral("statistiques.htm")},
        {QStringLiteral("Restauration"), QStringLiteral("sauvegardes.htm")},
        {QStringLiteral("Import"), QStringLiteral("anciennes.htm")},
    };
    return Pages.value(forme, forme.toLower() + QStringLiteral(".htm"));
}

}

QString Aide::Page(const QString &forme)
{
    const bool francais = Traduction::courant().locale().language() == QLocale::French;
    const QString langue = francais ? QString() : QStringLiteral("en/");
    // The folder's own pages come first; one that was made by an older program lacks some.
    for (const QString &page : {langue + pageDe(forme), langue + Accueil, Accueil}) {
        for (const QString &chemin : {Dossier::courant().chemin(QStringLiteral("Help/") + page),
                 Dossier::Livre() + QStringLiteral("/Help/") + page}) {
            if (QFileInfo(chemin).isFile())
                return chemin;
        }
    }
    return {};
}

void Aide::Ouvrir(const QString &forme)
{
    const QString chemin = Page(forme);
    if (chemin.isEmpty())
        throw Error(QCoreApplication::translate("Aide", "L'aide ne peut pas être ouverte."), chemin);
    Liens::OuvrirPage(chemin);
}
