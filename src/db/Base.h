#pragma once

#include "db/Entete.h"
#include "db/Recordset.h"

#include <QString>
#include <QVariant>
#include <memory>

class Connexion;

/// An open database. The outermost one opens the file, exclusively, and closes it; those inside share it.
/// Every update is committed by itself unless a Transaction holds it. All its members throw Error.
class Base
{
public:
    /// Opens the collection of the application folder.
    Base();
    /// Opens another file.
    Base(const QString &chemin, Entete::Nature nature);

    /// Rows of a query; each "?" takes one of the values.
    Recordset OpenRecordset(const QString &sql, const QVariantList &valeurs = {}) const;
    /// Runs a statement that gives no rows. Returns the number of rows that it changed.
    int Execute(const QString &sql, const QVariantList &valeurs = {}) const;

    Connexion &connexion() const { return *m_connexion; }

private:
    std::shared_ptr<Connexion> m_connexion;
};
