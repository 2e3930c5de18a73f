#pragma once

#include <QString>
#include <QStringList>
#include <memory>

/// An old file, open for reading only, and the tables that its catalogue names. All its members throw Echec.
class Jet
{
public:
    /// Recognises the file by its first bytes, and reads its catalogue.
    explicit Jet(const QString &chemin);
    ~Jet();
    Jet(const Jet &) = delete;
    Jet &operator=(const Jet &) = delete;

    /// Names of the tables that hold what a user entered.
    const QStringList &tables() const { return m_noms; }
    bool contient(const QString &table) const { return rang(table) >= 0; }

private:
    friend class TableJet;

    /// Place in the list, by name without regard to case; -1 when there is none.
    qsizetype rang(const QString &table) const;
    void noter(const QString &table, unsigned long page);
    void verifierCatalogue() const;
    void lireCatalogue();
    void noterTables();

    struct Poignee;
    std::unique_ptr<Poignee> m_poignee;
    QStringList m_noms;
    qint64 m_taille = 0;
};
