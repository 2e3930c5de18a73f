#pragma once

#include "db/Cursor.h"
#include "db/Entete.h"
#include "db/Recordset.h"

#include <QString>
#include <QVariant>
#include <memory>

class Connexion;

/// An open database. The outermost one opens the file, exclusively, and closes it; those inside share it. Every
/// update is committed by itself unless a Transaction holds it. All its members throw Error.
class Base
{
public:
    /// Opens the collection of the application folder.
    Base();
    /// Opens another file.
    Base(const QString &chemin, Entete::Nature nature);

    /// A walk over the rows of a query; each "?" takes one of the values.
    Cursor read(const QString &sql, const QVariantList &valeurs = {}) const;
    /// The rows of a table to be edited, or a new one to be added: those that `where` names, in its order when it
    /// has an "order by", else in that of their making.
    Recordset edit(const QString &table, const QString &where = {}, const QVariantList &valeurs = {});
    /// Runs a statement that gives no rows. Returns the number of rows that it changed.
    int Execute(const QString &sql, const QVariantList &valeurs = {});

    /// The name that `read` was given.
    Cursor OpenRecordset(const QString &sql, const QVariantList &valeurs = {}) const
    {
        return read(sql, valeurs);
    }

    Connexion &connexion() { return *m_connexion; }

private:
    std::shared_ptr<Connexion> m_connexion;
};
