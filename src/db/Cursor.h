#pragma once

#include "db/Instruction.h"

#include <QString>
#include <QVariant>
#include <memory>
#include <string_view>

/// A walk forward over the rows of a query; it stands on the first one from the start. It keeps the database open,
/// and shows what the rows hold when it comes to them: who changes the rows that he walks over edits a Recordset
/// instead. All members throw Error.
class Cursor
{
public:
    Cursor(std::shared_ptr<Connexion> connexion, const QString &sql, const QVariantList &valeurs);
    Cursor(Cursor &&) noexcept;
    ~Cursor();

    /// True when no current row is left.
    bool AtEnd() const { return m_fin; }
    void MoveFirst();
    void MoveNext();
    /// Full number of rows.
    qint64 RecordCount() const;

    /// Value of a field of the current row, by place or name in any letter case: an invalid variant for Null.
    QVariant Fields(int indice) const;
    QVariant Fields(const QString &nom) const;
    /// The two quick ways of long walks; a text is valid until the walk moves.
    qint64 Int64(int indice) const;
    std::string_view Utf8(int indice) const;

private:
    const SQLite::Statement &ligne() const;

    std::shared_ptr<Connexion> m_connexion;
    QString m_sql;
    QVariantList m_valeurs;
    Instruction m_marche;
    bool m_fin = false;
};
