#include "db/Journal.h"

#include "db/Rangee.h"

#include <cstring>
#include <sqlite3.h>

namespace {

using Sorte = Bande::Sorte;
using LireCellule = int (*)(sqlite3 *, int, sqlite3_value **);

/// The row before or after the change; a cell that the engine cannot give is Null.
std::string lireRangee(sqlite3 *db, LireCellule lire)
{
    std::string octets;
    const int champs = sqlite3_preupdate_count(db);
    for (int i = 0; i < champs; ++i) {
        sqlite3_value *valeur = nullptr;
        if (lire(db, i, &valeur) != SQLITE_OK)
            valeur = nullptr;
        Rangee::Ajouter(octets, valeur);
    }
    return octets;
}

std::string ancienne(sqlite3 *db)
{
    return lireRangee(db, sqlite3_preupdate_old);
}

std::string nouvelle(sqlite3 *db)
{
    return lireRangee(db, sqlite3_preupdate_new);
}

}

void Journal::suivre(sqlite3 *db)
{
    const auto crochet = [](void *journal, sqlite3 *connexion, int operation, char const *base,
                             char const *table, sqlite3_int64 avant, sqlite3_int64 apres) {
        auto &soi = *static_cast<Journal *>(journal);
        if (!soi.m_bande || soi.m_echec || std::strcmp(base, "main") != 0)
            return;
        try {
            soi.noter(connexion, operation, table, avant, apres);
        } catch (...) {
            soi.m_echec = std::current_exception();
        }
    };
    sqlite3_preupdate_hook(db, crochet, this);
}

void Journal::commencer()
{
    Q_ASSERT(!m_bande);
    m_bande.emplace();
    m_echec = nullptr;
}

Bande Journal::terminer()
{
    Bande bande = std::move(*m_bande);
    m_bande.reset();
    return bande;
}

void Journal::couper(const Bande::Marque &marque)
{
    m_echec = nullptr; // of what is forgotten
    if (m_bande)
        m_bande->couper(marque);
}

void Journal::relever()
{
    if (m_echec)
        std::rethrow_exception(std::exchange(m_echec, nullptr));
}

void Journal::noter(sqlite3 *db, int operation, const char *table, qint64 cleAvant, qint64 cleApres)
{
    if (operation == SQLITE_UPDATE && cleAvant == cleApres)
        return noterEdition(db, table, cleAvant);
    if (operation != SQLITE_INSERT) {
        const std::string rangee = ancienne(db);
        m_bande->ajouter({Sorte::Retrait, table, cleAvant, Rangee::Empreinte(rangee), 0, rangee});
    }
    if (operation != SQLITE_DELETE)
        m_bande->ajouter({Sorte::Ajout, table, cleApres, 0, Rangee::Empreinte(nouvelle(db))});
}

/// Only the fields that differ are kept. A field of an edited row can be rewritten as it was: that is no change.
void Journal::noterEdition(sqlite3 *db, const char *table, qint64 cle)
{
    const std::string avant = ancienne(db);
    const std::string apres = nouvelle(db);
    if (avant == apres)
        return;
    std::string changes;
    std::string_view resteAvant = avant;
    std::string_view resteApres = apres;
    for (quint16 numero = 0; !resteAvant.empty(); ++numero) {
        const std::string_view valeur = Rangee::Prendre(resteAvant);
        if (valeur == Rangee::Prendre(resteApres))
            continue;
        changes.append(reinterpret_cast<const char *>(&numero), sizeof numero);
        changes.append(valeur);
    }
    m_bande->ajouter(
        {Sorte::Edition, table, cle, Rangee::Empreinte(avant), Rangee::Empreinte(apres), changes});
}
