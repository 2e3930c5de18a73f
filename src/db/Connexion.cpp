#include "db/Connexion.h"

#include "core/Error.h"
#include "db/Collation.h"
#include "db/Valeur.h"
#include "db/files/Moteur.h"
#include "db/files/Sauvegardes.h"
#include "db/schema/Tables.h"

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

QString dire(const char *texte)
{
    return QCoreApplication::translate("Base", texte);
}

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
            if (!enUsage || !Annonces::courant().reessayer || !Annonces::courant().reessayer(e))
                throw;
        }
    }
}

bool Connexion::estOuverte(const QString &chemin)
{
    return !ouvertes()[chemin].expired();
}

Connexion::Connexion(const QString &chemin, Entete::Nature nature)
    : m_chemin(chemin)
    , m_annonce(nature == Entete::Nature::Collection)
{
    Entete::Verifier(chemin, nature);
    executer([&] {
        m_db = std::make_unique<SQLite::Database>(
            chemin.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, Moteur::AttenteMs);
        preparer(nature);
    });
}

void Connexion::preparer(Entete::Nature nature)
{
    if (sqlite3_db_readonly(m_db->getHandle(), "main") == 1)
        throw Error(Error::Sorte::LectureSeule,
            dire(QT_TRANSLATE_NOOP("Base", "La base est en lecture seule.")), m_chemin);
    Collation::Enregistrer(m_db->getHandle());
    // A first read alone would not hold the file against others: the empty exclusive transaction does.
    m_db->exec("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT; PRAGMA journal_mode=DELETE");
    if (nature == Entete::Nature::Collection)
        verifierIndex();
    m_journal.suivre(m_db->getHandle());
}

void Connexion::verifierIndex()
{
    const int inscrite = m_db->execAndGet("PRAGMA user_version").getInt();
    constexpr int BitsDuSchema = 0xFF;
    if ((inscrite & ~BitsDuSchema) == (Schema::Version() & ~BitsDuSchema))
        return;
    const int nouvelle = (Schema::Version() & ~BitsDuSchema) | (inscrite & BitsDuSchema);
    m_db->exec("BEGIN; REINDEX FRANCAIS; PRAGMA user_version=" + std::to_string(nouvelle) + "; COMMIT");
}

Connexion::~Connexion()
{
    const Changements changements = m_journal.prendre();
    m_instructions.clear();
    m_db.reset();
    if (m_annonce && !changements.empty())
        Annonces::courant().annoncer(changements);
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

void Connexion::executer(const std::function<void()> &acte)
{
    const std::size_t marque = m_journal.taille();
    // When the engine gave a transaction up by itself, what was meant to be one must not go on piece by piece.
    if (profondeur > 0 && sqlite3_get_autocommit(m_db->getHandle()))
        throw Error(dire(QT_TRANSLATE_NOOP("Base", "L'opération a été interrompue.")), m_chemin);
    try {
        acte();
    } catch (const SQLite::Exception &e) {
        m_journal.couper(marque);
        throw Moteur::Refus(e, m_chemin);
    }
}

void Connexion::ecrire(const std::function<void()> &acte)
{
    // What is not noted is not the user's.
    if (aSauver && !m_journal.enPause())
        Sauvegardes::AvantEcriture(*m_db);
    executer(acte);
}
