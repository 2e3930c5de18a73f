#pragma once

#include "db/Entete.h"
#include "db/Instruction.h"
#include "db/Journal.h"

#include <QDateTime>
#include <QVariantList>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <chrono>
#include <functional>
#include <memory>
#include <unordered_map>

/// One open database file. Bases, cursors and recordsets share it; the last one out closes it.
class Connexion
{
public:
    /// The open connection to this file, or a new one. Throws Error.
    static std::shared_ptr<Connexion> ouvrir(const QString &chemin, Entete::Nature nature);

    /// True while somebody holds a file open by its full, real path.
    static bool estOuverte(const QString &chemin);

    Connexion(const QString &chemin, Entete::Nature nature);
    ~Connexion();
    Connexion(const Connexion &) = delete;
    Connexion &operator=(const Connexion &) = delete;

    /// The file cannot be written: it is read, without being held against others, and writing throws Error.
    bool lectureSeule() const { return m_lectureSeule; }

    SQLite::Database &db() { return *m_db; }
    Journal &journal() { return m_journal; }

    /// A statement with its values bound, to be made and used within executer().
    Instruction preparer(const QString &sql, const QVariantList &valeurs);
    /// Forgets the statements kept: tables may have other columns than before.
    void oublierInstructions() { m_instructions.clear(); }

    /// Runs something on the engine. What the engine refuses becomes an Error that names the file, and what was
    /// already noted of it in the journal is forgotten.
    void executer(const std::function<void()> &travail);
    /// Likewise for what writes; `avantEcriture` is called first.
    void ecrire(const std::function<void()> &travail);

    /// How long a file may be held by others before it counts as in use.
    static constexpr int AttenteMs = 250;

    int profondeur = 0; ///< of nested transactions
    std::function<void()> avantEcriture; ///< may be empty

private:
    friend struct Rendre;
    bool ouvrirPourEcrire();
    void ouvrirPourLire(Entete::Nature nature);
    void armer();
    int inscrite();
    bool estAJour();
    void mettreANiveau();
    void verifierIndex();
    bool perimee() const;
    int attendre();

    QString m_chemin;
    bool m_lectureSeule = false;
    QDateTime m_copiee; ///< when the file was written of which this is a copy; else not valid
    Journal m_journal;
    std::chrono::steady_clock::time_point m_debut; ///< of the statement that was prepared last
    bool m_occupee = false; ///< asking about a long reading
    std::unique_ptr<SQLite::Database> m_db;
    std::unordered_multimap<std::string, std::unique_ptr<SQLite::Statement>> m_instructions;
};
