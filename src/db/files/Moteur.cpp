#include "db/files/Moteur.h"

#include "db/Collation.h"
#include "db/Connexion.h"
#include "db/Copie.h"
#include "db/Defenses.h"
#include "db/Refus.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <filesystem>
#include <sqlite3.h>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Base)
};

std::filesystem::path enChemin(const QString &chemin)
{
    return QFileInfo(chemin).filesystemFilePath();
}

void copier(SQLite::Database &source, const QString &cible)
{
    SQLite::Database copie(cible.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    // A copy is whole or thrown away, so it needs no journal that a killed run would leave beside it.
    copie.exec("PRAGMA journal_mode=OFF; PRAGMA synchronous=FULL");
    SQLite::Backup acte(copie, source);
    if (acte.executeStep() != SQLITE_DONE)
        throw SQLite::Exception("backup", SQLITE_BUSY);
}

}

std::unique_ptr<SQLite::Database> Moteur::Ouvrir(const QString &chemin, Entete::Nature nature)
{
    Entete::Verifier(chemin, nature);
    try {
        auto db = Copie::EstEnSuspens(chemin) ? Copie::Ouvrir(chemin)
                                              : std::make_unique<SQLite::Database>(chemin.toStdString(),
                                                  SQLite::OPEN_READONLY, Connexion::AttenteMs);
        Defenses::Poser(db->getHandle());
        Defenses::Examiner(db->getHandle(), chemin);
        Collation::Enregistrer(db->getHandle());
        return db;
    } catch (const SQLite::Exception &e) {
        throw Refus::Dire(e, chemin);
    }
}

bool Moteur::EstVierge(SQLite::Database &db)
{
    try {
        SQLite::Statement tables(
            db, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
        while (tables.executeStep()) {
            const std::string nom = tables.getColumn(0).getString();
            if (db.execAndGet("SELECT EXISTS (SELECT 1 FROM \"" + nom + "\")").getInt() != 0)
                return false;
        }
        return true;
    } catch (const SQLite::Exception &e) {
        throw Refus::Dire(e, QString::fromStdString(db.getFilename()));
    }
}

void Moteur::Copier(SQLite::Database &source, const QString &cible)
{
    const QString enCours = cible + QStringLiteral(".neuve");
    const auto oter = qScopeGuard([&] { QFile::remove(enCours); });
    QFile::remove(enCours);
    try {
        copier(source, enCours);
    } catch (const SQLite::Exception &e) {
        const Error refus = Refus::Dire(e, {});
        throw Error(refus.sorte(), Tr::tr("La copie n'a pas pu être faite."), cible, refus.message());
    }
    Remplacer(enCours, cible);
}

void Moteur::Remplacer(const QString &neuf, const QString &cible)
{
    std::error_code erreur;
    std::filesystem::rename(enChemin(neuf), enChemin(cible), erreur);
    if (erreur)
        throw Error(
            Tr::tr("Ce fichier ne peut pas être remplacé."), cible, QString::fromStdString(erreur.message()));
}

void Moteur::Doubler(const QString &chemin, const QString &autre)
{
    std::error_code erreur;
    std::filesystem::create_hard_link(
        QFileInfo(chemin).filesystemFilePath(), QFileInfo(autre).filesystemFilePath(), erreur);
    QFile fichier(chemin);
    if (erreur && !fichier.copy(autre))
        throw Error(QCoreApplication::translate("Moteur", "Ce fichier ne peut pas être mis de côté."), autre,
            fichier.errorString());
}

QString Moteur::CheminLibre(const QString &chemin)
{
    const QFileInfo fichier(chemin);
    QString libre = chemin;
    for (int rang = 2; QFileInfo::exists(libre); ++rang)
        libre = QStringLiteral("%1/%2 (%3).%4")
                    .arg(fichier.path(), fichier.completeBaseName(), QString::number(rang), fichier.suffix());
    return libre;
}
