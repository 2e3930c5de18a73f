#pragma once

#include "db/Bande.h"

#include <exception>
#include <optional>

struct sqlite3;

/// Notes what happens to the rows of an open collection, by the engine's hook, while an act is under way. Only what
/// stands in the file is noted, nothing temporary.
class Journal
{
public:
    /// From now on hears of the changes of a connection. The journal must outlive it.
    void suivre(sqlite3 *db);

    /// Begins a tape. There may be no other.
    void commencer();
    bool enCours() const { return m_bande.has_value(); }
    /// The tape in the making; null without one.
    const Bande *bande() const { return m_bande ? &*m_bande : nullptr; }
    /// Ends the noting and hands the tape over.
    Bande terminer();

    Bande::Marque marque() const { return m_bande ? m_bande->fin() : Bande::Marque(); }
    /// Forgets what was noted after a mark, when those changes were rolled back.
    void couper(const Bande::Marque &marque);

    /// Throws what the noting failed with since it was last asked: an exception may not cross the engine.
    void relever();

private:
    void noter(sqlite3 *db, int operation, const char *table, qint64 cleAvant, qint64 cleApres);
    void noterEdition(sqlite3 *db, const char *table, qint64 cle);

    std::optional<Bande> m_bande;
    std::exception_ptr m_echec;
};
