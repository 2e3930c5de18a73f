#include "db/Transaction.h"

#include "core/Error.h"
#include "db/Base.h"
#include "db/Connexion.h"

#include <sqlite3.h>
#include <string>

namespace {

std::string point(int profondeur)
{
    return "niveau" + std::to_string(profondeur);
}

}

Transaction::Transaction(Base &base)
    : m_connexion(base.connexion())
    , m_marque(m_connexion.journal().marque())
{
    m_connexion.executer([&] { m_connexion.db().exec("SAVEPOINT " + point(m_connexion.profondeur)); });
    ++m_connexion.profondeur;
}

Transaction::~Transaction()
{
    if (!m_ouverte)
        return;
    --m_connexion.profondeur;
    const std::string nom = point(m_connexion.profondeur);
    // A point that the engine has already rolled back by itself is gone; a release alone would commit.
    if (m_connexion.db().tryExec("ROLLBACK TO " + nom) == 0)
        m_connexion.db().tryExec("RELEASE " + nom);
    m_connexion.oublierInstructions();
    m_connexion.journal().couper(m_marque);
}

void Transaction::Commit()
{
    try {
        m_connexion.executer([&] { m_connexion.db().exec("RELEASE " + point(m_connexion.profondeur - 1)); });
    } catch (const Error &) {
        // Where the engine has given up what was written there is nothing left to take back, and the file says what
        // holds; by name the transaction may be open still.
        SQLite::Database &db = m_connexion.db();
        if (m_connexion.profondeur == 1 && sqlite3_txn_state(db.getHandle(), "main") == SQLITE_TXN_NONE) {
            db.tryExec("ROLLBACK");
            fermer();
            m_connexion.oublierInstructions();
        }
        throw;
    }
    fermer();
}

void Transaction::fermer()
{
    --m_connexion.profondeur;
    m_ouverte = false;
}
