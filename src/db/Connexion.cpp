#include "db/Connexion.h"

#include "core/Annonces.h"
#include "core/Error.h"
#include "db/Collation.h"
#include "db/Comparaison.h"
#include "db/Refus.h"
#include "db/Valeur.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>
#include <SQLiteCpp/Exception.h>
#include <map>
#include <sqlite3.h>

namespace {

constexpr std::size_t InstructionsGardees = 64;

std::map<QString, std::weak_ptr<Connexion>> &ouvertes()
{
    static std::map<QString, std::weak_ptr<Connexion>> connexions;
    return connexions;
}

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Base)
};

}

std::shared_ptr<Connexion> Connexion::ouvrir(const QString &chemin, Entete::Nature nature)
{
    Q_ASSERT(!qApp || QThread::currentThread() == qApp->thread());
    // Inner routines come by the same path: no need to ask the disk where it leads.
    if (auto ouverte = ouvertes()[chemin].lock())
        return ouverte;
    // One file is one connection, whatever link leads to it.
    const QFileInfo fichier(chemin);
    const QString cle = fichier.exists() ? fichier.canonicalFilePath() : fichier.absoluteFilePath();
    if (auto ouverte = ouvertes()[cle].lock())
        return ouverte;
    for (;;) {
        try {
            auto connexion = std::make_shared<Connexion>(cle, nature);
            ouvertes()[cle] = ouvertes()[chemin] = connexion;
            return connexion;
        } catch (const Error &e) {
            const bool enUsage = e.sorte() == Error::Sorte::EnUsage;
            if (!enUsage || !Annonces::courant().reessayer)
                throw;
            if (!Annonces::courant().reessayer(e))
                throw Error(Error::Sorte::Abandonnee, e.message(), {});
        }
    }
}

bool Connexion::estOuverte(const QString &chemin)
{
    return !ouvertes()[chemin].expired();
}

Connexion::Connexion(const QString &chemin, Entete::Nature nature)
    : m_chemin(chemin)
{
    Entete::Verifier(chemin, nature);
    executer([&] {
        m_db = std::make_unique<SQLite::Database>(
            chemin.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, AttenteMs);
        ouvrir(nature);
    });
}

void Connexion::ouvrir(Entete::Nature nature)
{
    if (sqlite3_db_readonly(m_db->getHandle(), "main") == 1)
        throw Error(Error::Sorte::LectureSeule, Tr::tr("La base est en lecture seule."), m_chemin);
    Collation::Enregistrer(m_db->getHandle());
    // A first read alone would not hold the file against others: the empty exclusive transaction does.
    m_db->exec("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT; PRAGMA journal_mode=DELETE");
    if (nature == Entete::Nature::Collection)
        verifierIndex();
    m_journal.suivre(m_db->getHandle());
}

/// Indexes that were made with another version of the collator are in another order.
void Connexion::verifierIndex()
{
    const int inscrite = m_db->execAndGet("PRAGMA user_version").getInt();
    if (Version::Ordre(inscrite) == Comparaison::version())
        return;
    const int nouvelle = Version::Composer(Comparaison::version(), inscrite & Version::BitsDuPalier);
    m_db->exec("BEGIN; REINDEX; PRAGMA user_version=" + std::to_string(nouvelle) + "; COMMIT");
}

Connexion::~Connexion()
{
    m_instructions.clear();
    m_db.reset();
}

Instruction Connexion::preparer(const QString &sql, const QVariantList &valeurs)
{
    Instruction instruction(nullptr, Rendre{this});
    if (auto gardee = m_instructions.extract(sql.toStdString())) {
        instruction.reset(gardee.mapped().release());
        instruction->clearBindings();
    } else {
        instruction.reset(new SQLite::Statement(*m_db, sql.toStdString()));
    }
    for (int i = 0; i < valeurs.size(); ++i)
        Valeur::Lier(*instruction, i + 1, valeurs[i]);
    return instruction;
}

void Rendre::operator()(SQLite::Statement *instruction) const
{
    std::unique_ptr<SQLite::Statement> rendue(instruction);
    instruction->tryReset();
    if (connexion->m_instructions.size() < InstructionsGardees)
        connexion->m_instructions.emplace(instruction->getQuery(), std::move(rendue));
}

void Connexion::executer(const std::function<void()> &travail)
{
    const Bande::Marque marque = m_journal.marque();
    // When the engine gave a transaction up by itself, what was meant to be one must not go on piece by piece.
    if (profondeur > 0 && sqlite3_get_autocommit(m_db->getHandle()))
        throw Error(Tr::tr("L'opération a été interrompue."), m_chemin);
    try {
        travail();
        m_journal.relever();
    } catch (const SQLite::Exception &e) {
        m_journal.couper(marque);
        throw Refus::Dire(e, m_chemin);
    }
}

void Connexion::ecrire(const std::function<void()> &travail)
{
    if (avantEcriture)
        avantEcriture();
    executer(travail);
}
