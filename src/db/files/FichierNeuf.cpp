#include "db/files/FichierNeuf.h"

#include "core/Error.h"
#include "db/Collation.h"
#include "db/Comparaison.h"
#include "db/Entete.h"
#include "db/schema/Paliers.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Base)
};

void creer(const QString &chemin, Entete::Nature nature, int palier, const QStringList &instructions)
{
    const auto echec = [&](const QString &details) {
        throw Error(Tr::tr("La base ne peut pas être créée."), chemin, details);
    };
    if (QFileInfo::exists(chemin))
        echec(Tr::tr("Ce fichier existe déjà."));
    try {
        SQLite::Database db(chemin.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        Collation::Enregistrer(db.getHandle());
        db.exec("BEGIN");
        db.exec("PRAGMA application_id=" + std::to_string(static_cast<unsigned>(nature)));
        db.exec("PRAGMA user_version=" + std::to_string(Version::Composer(Comparaison::version(), palier)));
        for (const QString &instruction : instructions)
            db.exec(instruction.toStdString());
        db.exec("COMMIT");
    } catch (const SQLite::Exception &e) {
        QFile::remove(chemin);
        echec(QString::fromUtf8(e.what()));
    }
}

}

void FichierNeuf::CreerVierge(const QString &chemin)
{
    creer(chemin, Entete::Nature::Collection, Version::DernierPalier, Paliers::CollectionVierge());
}

void FichierNeuf::CreerCatalogue(const QString &chemin)
{
    creer(chemin, Entete::Nature::Catalogue, 0, Paliers::CatalogueVierge());
}
