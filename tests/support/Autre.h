#pragma once

#include "db/Collation.h"

#include <QString>
#include <sqlite3.h>

/// Another program at work on the collection, behind this one's back.
class Autre
{
public:
    explicit Autre(const QString &fichier)
    {
        if (sqlite3_open(qPrintable(fichier), &m_db) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(m_db));
        Collation::Enregistrer(m_db);
    }
    ~Autre() { sqlite3_close(m_db); }
    Autre(const Autre &) = delete;
    Autre &operator=(const Autre &) = delete;

    /// SQLITE_OK when another can take the file for itself, SQLITE_BUSY when it cannot even read it.
    static int essayer(const QString &fichier)
    {
        const Autre autre(fichier);
        return sqlite3_exec(
            autre.m_db, "SELECT * FROM sqlite_schema; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    }
    sqlite3 *db() const { return m_db; }
    void executer(const QString &sql)
    {
        if (sqlite3_exec(m_db, qUtf8Printable(sql), nullptr, nullptr, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(m_db));
    }

private:
    sqlite3 *m_db = nullptr;
};
