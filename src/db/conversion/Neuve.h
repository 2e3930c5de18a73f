#pragma once

#include "db/conversion/Cellules.h"
#include "db/schema/Tables.h"

#include <QString>
#include <memory>
#include <vector>

namespace SQLite {
class Database;
class Statement;
}

/// A new file in the making, under another name beside its own until it is whole; what is not whole is removed.
/// Members throw what the engine throws, or Error.
class Neuve
{
public:
    enum class Nature { Collection, Catalogue };

    Neuve(const QString &chemin, Nature nature);
    ~Neuve();
    Neuve(const Neuve &) = delete;
    Neuve &operator=(const Neuve &) = delete;

    /// From here on rows are of this table.
    void commencer(const Schema::Table &table);
    /// Adds a row, one value for each field. False when its identifier is taken.
    bool ajouter(const std::vector<Cellules::Valeur> &rangee);
    /// Rows of the table as the engine counts them.
    qint64 compter() const;

    /// Checks the file, brings it to the disk and into its place. Throws Echec.
    void achever();

private:
    QString m_chemin;
    QString m_partiel;
    Nature m_nature;
    std::unique_ptr<SQLite::Database> m_db;
    std::unique_ptr<SQLite::Statement> m_ajout;
    const Schema::Table *m_table = nullptr;
};
