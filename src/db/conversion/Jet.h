#pragma once

#include "db/conversion/Poignee.h"
#include "db/conversion/TableJet.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

/// An old file and the tables that its catalogue names. All its members throw Echec.
class Jet
{
public:
    /// Opens the file, and reads its catalogue.
    explicit Jet(const QString &chemin);

    /// Names of the tables that hold what a user entered.
    const QStringList &tables() const { return m_noms; }
    bool contient(const QString &table) const { return rang(table) >= 0; }
    /// A walk over one of these tables, which ends before this object does.
    std::unique_ptr<TableJet> ouvrir(const QString &table) const;

private:
    /// Place in the list, by name without regard to case; -1 when there is none.
    qsizetype rang(const QString &table) const;
    void verifierCatalogue() const;
    void lireCatalogue();

    Poignee m_poignee;
    QStringList m_noms;
    std::vector<unsigned long> m_pages; ///< beside the names: where each table is defined
};
