#include "db/Connexion.h"

#include "core/Annonces.h"
#include "core/Error.h"
#include "db/Collation.h"
#include "db/Comparaison.h"
#include "db/Copie.h"
#include "db/Defenses.h"
#include "db/Refus.h"
#include "db/Valeur.h"
#include "db/schema/Paliers.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QThread>
#include <SQLiteCpp/Exception.h>
#include <map>
#include <sqlite3.h>

namespace {

constexpr std::size_t InstructionsGardees = 64;
/// Some hundredths of a second.
constexpr int OperationsEntreDeuxRegards = 1'000'000;

std::map<QString, std::weak_ptr<Connexion>> &ouvertes()
{
    static std::map<QString, std::weak_ptr<Connexion>> connexions;
    return connexions;
}

/// Those that are copies of files that cannot be written: making one anew for each action would take its time.
std::map<QString, std::shared_ptr<Connexion>> &copies()
{
    static std::map<QString, std::shared_ptr<Connexion>> connexions;
    return connexions;
}

/// A change of the file needs room for its journal beside it.
bool peutSEcrire(const QString &chemin)
{
    const QFileInfo fichier(chemin);
    return fichier.isWritable() && QFileInfo(fichier.path()).isWritable();
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
    if (auto ouverte = ouvertes()[chemin].lock(); ouverte && !ouverte->perimee())
        return ouverte;
    // One file is one connection, whatever link leads to it.
    const QFileInfo fichier(chemin);
    const QString cle = fichier.exists() ? fichier.canonicalFilePath() : fichier.absoluteFilePath();
    if (auto ouverte = ouvertes()[cle].lock(); ouverte && !ouverte->perimee())
        return ouverte;
    copies().erase(cle);
    for (;;) {
        try {
            auto connexion = std::make_shared<Connexion>(cle, nature);
            ouvertes()[cle] = ouvertes()[chemin] = connexion;
            if (connexion->m_copiee.isValid())
                copies()[cle] = connexion;
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
        m_lectureSeule = !peutSEcrire(chemin) || !ouvrirPourEcrire();
        if (m_lectureSeule)
            ouvrirPourLire(nature);
        if (nature == Entete::Nature::Collection)
            verifierIndex();
        m_journal.suivre(m_db->getHandle());
        const auto attendre = [](void *connexion) { return static_cast<Connexion *>(connexion)->attendre(); };
        sqlite3_progress_handler(m_db->getHandle(), OperationsEntreDeuxRegards, attendre, this);
    });
}

/// False when the engine says that the file cannot be written.
bool Connexion::ouvrirPourEcrire()
{
    m_db = std::make_unique<SQLite::Database>(
        m_chemin.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, AttenteMs);
    if (sqlite3_db_readonly(m_db->getHandle(), "main") == 1)
        return false;
    // A first read alone would not hold the file against others: the empty exclusive transaction does.
    m_db->exec("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT; PRAGMA journal_mode=DELETE");
    armer();
    return true;
}

/// As it stands where that will do, else a copy in which what is lacking is done.
void Connexion::ouvrirPourLire(Entete::Nature nature)
{
    if (!Copie::EstEnSuspens(m_chemin)) {
        m_db = std::make_unique<SQLite::Database>(
            m_chemin.toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX, AttenteMs);
        armer();
        if (nature != Entete::Nature::Collection || estAJour())
            return;
    }
    m_copiee = QFileInfo(m_chemin).lastModified();
    m_db = Copie::Ouvrir(m_chemin);
    armer();
    if (nature == Entete::Nature::Collection) {
        verifierIndex();
        mettreANiveau();
    }
}

void Connexion::armer()
{
    Defenses::Poser(m_db->getHandle());
    Collation::Enregistrer(m_db->getHandle());
    Defenses::Examiner(m_db->getHandle(), m_chemin);
}

int Connexion::inscrite()
{
    return m_db->execAndGet("PRAGMA user_version").getInt();
}

bool Connexion::estAJour()
{
    return Version::Ordre(inscrite()) == Comparaison::version()
        && Version::Palier(inscrite()) == Version::DernierPalier;
}

void Connexion::mettreANiveau()
{
    const int avant = inscrite();
    for (const Paliers::Palier &palier : Paliers::Tous()) {
        if (palier.numero > Version::Palier(avant))
            palier.faire(*m_db);
    }
    const int apres = Version::Composer(Version::Ordre(avant), Version::DernierPalier);
    m_db->exec("PRAGMA user_version=" + std::to_string(apres));
}

/// Asks whether a reading that goes on and on is to go on; 1 ends it. Long works, which are transactions, have their
/// own ways to be ended.
int Connexion::attendre()
{
    const Annonces::Patience &patience = Annonces::courant().patience;
    const auto maintenant = std::chrono::steady_clock::now();
    if (profondeur > 0 || !patience.continuer || maintenant - m_debut < patience.delai)
        return 0;
    const QScopedValueRollback occupee(m_occupee, true);
    const bool continuer = patience.continuer();
    m_debut = std::chrono::steady_clock::now();
    return continuer ? 0 : 1;
}

/// A copy stands for its file as long as that is not written.
bool Connexion::perimee() const
{
    return m_copiee.isValid() && (peutSEcrire(m_chemin) || QFileInfo(m_chemin).lastModified() != m_copiee);
}

/// Indexes that were made with another version of the collator are in another order.
void Connexion::verifierIndex()
{
    const int avant = inscrite();
    if (Version::Ordre(avant) == Comparaison::version())
        return;
    const int nouvelle = Version::Composer(Comparaison::version(), avant & Version::BitsDuPalier);
    m_db->exec("BEGIN; REINDEX; PRAGMA user_version=" + std::to_string(nouvelle) + "; COMMIT");
}

Connexion::~Connexion()
{
    m_instructions.clear();
    m_db.reset();
}

Instruction Connexion::preparer(const QString &sql, const QVariantList &valeurs)
{
    m_debut = std::chrono::steady_clock::now();
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
    if (m_occupee)
        throw Error(Error::Sorte::EnUsage, Tr::tr("Une longue lecture de la base est en cours."), m_chemin);
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
    if (m_lectureSeule)
        throw Error(Error::Sorte::LectureSeule,
            Tr::tr("La base est en lecture seule : rien ne peut y être modifié."), m_chemin);
    if (avantEcriture)
        avantEcriture();
    executer(travail);
}
