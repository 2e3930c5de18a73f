#include "db/Transaction.h"

#include "db/Base.h"
#include "db/Connexion.h"

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
    m_connexion.executer([&] { m_connexion.db().exec("RELEASE " + point(m_connexion.profondeur - 1)); });
    --m_connexion.profondeur;
    m_ouverte = false;
}
