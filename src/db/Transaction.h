#pragma once

#include "db/Bande.h"

class Base;
class Connexion;

/// Several writes that belong together: undone at the end of its life unless Commit was called. Nested ones
/// undo their own part only.
class Transaction
{
public:
    explicit Transaction(Base &base);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// Throws Error; the writes are then undone, unless the engine failed in what follows their commit.
    void Commit();

private:
    void fermer();

    Connexion &m_connexion;
    Bande::Marque m_marque;
    bool m_ouverte = true;
};
