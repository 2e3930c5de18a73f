#pragma once

#include "core/Annonces.h"

struct sqlite3;
class Base;

/// What happens to the rows while the collection is open, noted by the engine's hook: the material of the
/// change notice and of undo.
class Journal
{
public:
    /// Starts noting the changes of a connection. The journal must outlive it.
    void suivre(sqlite3 *db);

    std::size_t taille() const { return m_changements.size(); }
    /// Forgets what was noted after a mark, when those changes were rolled back.
    void couper(std::size_t marque) { m_changements.resize(marque); }
    Changements prendre() { return std::exchange(m_changements, {}); }

    bool enPause() const { return m_pauses > 0; }

    /// Suspends the noting for work that is not the user's: upgrade, cleaning, conversion.
    class Pause
    {
    public:
        explicit Pause(const Base &base);
        ~Pause();
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        Journal &m_journal;
    };

    /// Takes changes back, the last one first, in one transaction. Throws Error, with nothing changed, when a
    /// row is no longer as the changes left it.
    static void Annuler(const Base &base, const Changements &changements);
    /// Makes changes again, likewise.
    static void Refaire(const Base &base, const Changements &changements);

private:
    static void noter(void *journal, sqlite3 *db, int operation, const char *, const char *table,
        long long cleAvant, long long cleApres);

    Changements m_changements;
    int m_pauses = 0;
};
