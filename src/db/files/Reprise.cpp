#include "db/files/Reprise.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "db/Entete.h"
#include "db/files/Moteur.h"
#include "db/files/Remplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace {

void placerCatalogue(const QString &nouveau)
{
    const QString place = Dossier::courant().catalogue();
    if (QFileInfo::exists(place)) {
        const QFileInfo ancien(place);
        const QString garde = Moteur::CheminLibre(
            ancien.path() + u'/' + ancien.completeBaseName() + QStringLiteral("-ancien.") + ancien.suffix());
        Moteur::Doubler(place, garde);
    }
    Moteur::Remplacer(nouveau, place);
}

}

bool Reprise::EstAncien(const QString &chemin)
{
    try {
        Entete::Verifier(chemin, Entete::Nature::Collection);
    } catch (const Error &e) {
        return e.sorte() == Error::Sorte::Ancienne;
    }
    return false;
}

Conversion::Rapport Reprise::Reprendre(const QString &chemin, const std::function<bool(int)> &suivre)
{
    const QString nouveau = Dossier::courant().racine() + QStringLiteral("/reprise.neuve");
    // Left by a run that was cut off.
    QFile::remove(nouveau);
    Conversion::Rapport rapport = Conversion::Convertir(chemin, nouveau, suivre);
    if (rapport.erreur != Conversion::Code::Aucun)
        return rapport;
    const auto oter = qScopeGuard([&] { QFile::remove(nouveau); });
    if (rapport.nature == QLatin1String("catalogue")) {
        placerCatalogue(nouveau);
        return rapport;
    }
    const QString refus = Remplacement::Restaurer(nouveau);
    if (!refus.isEmpty())
        throw Error(refus, chemin);
    return rapport;
}
