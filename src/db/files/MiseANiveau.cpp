#include "db/files/MiseANiveau.h"

#include "core/Annonces.h"
#include "core/Error.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/Transaction.h"
#include "db/files/Moteur.h"
#include "db/files/Sauvegardes.h"
#include "db/schema/Paliers.h"
#include "db/schema/Version.h"

#include <QScopedValueRollback>
#include <optional>

namespace {

int inscrite(const Base &base)
{
    return static_cast<int>(base.read(QStringLiteral("PRAGMA user_version")).Int64(0));
}

/// The step and its number are one: a file that says a number has what belongs to it.
void franchir(Base &base, const Paliers::Palier &palier)
{
    Transaction transaction(base);
    const int nouvelle = Version::Composer(Version::Ordre(inscrite(base)), palier.numero);
    base.connexion().executer([&] { palier.faire(base.connexion().db()); });
    base.connexion().oublierInstructions();
    base.Execute(QStringLiteral("PRAGMA user_version=%1").arg(nouvelle));
    transaction.Commit();
}

void franchirTous(Base &base)
{
    const int palier = Version::Palier(inscrite(base));
    if (palier >= Version::DernierPalier)
        return;
    SQLite::Database &db = base.connexion().db();
    if (!Moteur::EstVierge(db))
        Sauvegardes::Garder(db);
    for (const Paliers::Palier &p : Paliers::Tous()) {
        if (p.numero > palier)
            franchir(base, p);
    }
}

}

void MiseANiveau::Executer()
{
    std::optional<Base> base;
    try {
        // The first operation that follows asks the user about a file in use; once is enough.
        const QScopedValueRollback demande(Annonces::courant().reessayer, {});
        base.emplace();
    } catch (const Error &) {
        // A file that does not open is told of by whoever opens it next.
        return;
    }
    if (!base->connexion().lectureSeule())
        franchirTous(*base);
}
