#include "db/Journal.h"

#include "core/Error.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/Sql.h"
#include "db/Transaction.h"
#include "db/Valeur.h"

#include <QCoreApplication>
#include <QStringList>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

namespace {

using Ligne = Changement::Ligne;
using LireCellule = int (*)(sqlite3 *, int, sqlite3_value **);

Ligne lireLigne(sqlite3 *db, LireCellule lire)
{
    Ligne ligne(static_cast<std::size_t>(sqlite3_preupdate_count(db)));
    for (std::size_t i = 0; i < ligne.size(); ++i) {
        sqlite3_value *valeur = nullptr;
        if (lire(db, static_cast<int>(i), &valeur) == SQLITE_OK && valeur)
            ligne[i] = Valeur::Lire(valeur);
    }
    return ligne;
}

/// Writing a row back must not set off the rules that made other rows follow: those are noted, too.
class SansDeclencheurs
{
public:
    explicit SansDeclencheurs(sqlite3 *db)
        : m_db(db)
    {
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    }
    ~SansDeclencheurs() { sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 1, nullptr); }
    SansDeclencheurs(const SansDeclencheurs &) = delete;
    SansDeclencheurs &operator=(const SansDeclencheurs &) = delete;

private:
    sqlite3 *m_db;
};

std::optional<Ligne> ligneActuelle(Connexion &connexion, const QString &table, qint64 cle)
{
    const Instruction lecture
        = connexion.preparer(QStringLiteral("SELECT * FROM %1 WHERE rowid = ?").arg(Sql::Nom(table)), {cle});
    if (!lecture->executeStep())
        return std::nullopt;
    Ligne ligne;
    for (int i = 0; i < lecture->getColumnCount(); ++i)
        ligne.push_back(Valeur::Lire(lecture->getColumn(i)));
    return ligne;
}

void supprimer(Connexion &connexion, const QString &table, qint64 cle)
{
    connexion.preparer(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(Sql::Nom(table)), {cle})->exec();
}

void inserer(Connexion &connexion, const QString &table, qint64 cle, const Ligne &ligne)
{
    const Instruction forme
        = connexion.preparer(QStringLiteral("SELECT * FROM %1 LIMIT 0").arg(Sql::Nom(table)), {});
    QStringList colonnes{QStringLiteral("rowid")};
    for (int i = 0; i < forme->getColumnCount(); ++i)
        colonnes << Sql::Nom(QString::fromUtf8(forme->getColumnName(i)));
    const QString marques = QStringList(colonnes.size(), QStringLiteral("?")).join(u',');
    const QString sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                            .arg(Sql::Nom(table), colonnes.join(u','), marques);
    connexion.preparer(sql, QVariantList{cle} + QVariantList(ligne.begin(), ligne.end()))->exec();
}

void remplacer(Connexion &connexion, const Changement &c, const std::optional<Ligne> &attendue,
    const std::optional<Ligne> &voulue)
{
    if (ligneActuelle(connexion, c.table, c.cle) != attendue)
        throw Error(Error::Sorte::Perimee,
            QCoreApplication::translate(
                "Journal", "Cette modification ne peut plus être reprise : la fiche a changé depuis."),
            {});
    if (attendue)
        supprimer(connexion, c.table, c.cle);
    if (voulue)
        inserer(connexion, c.table, c.cle, *voulue);
}

}

void Journal::suivre(sqlite3 *db)
{
    const auto crochet = [](void *journal, sqlite3 *connexion, int operation, char const *base,
                             char const *table, sqlite3_int64 avant, sqlite3_int64 apres) {
        noter(journal, connexion, operation, base, table, avant, apres);
    };
    sqlite3_preupdate_hook(db, crochet, this);
}

void Journal::noter(void *journal, sqlite3 *db, int operation, const char *, const char *table,
    long long cleAvant, long long cleApres)
{
    auto &soi = *static_cast<Journal *>(journal);
    if (soi.m_pauses > 0)
        return;
    const auto ancienne = [&] { return std::optional<Ligne>(lireLigne(db, sqlite3_preupdate_old)); };
    const auto nouvelle = [&] { return std::optional<Ligne>(lireLigne(db, sqlite3_preupdate_new)); };
    const QString nom = QString::fromUtf8(table);
    if (operation == SQLITE_INSERT)
        soi.m_changements.push_back({nom, cleApres, std::nullopt, nouvelle()});
    else if (operation == SQLITE_DELETE)
        soi.m_changements.push_back({nom, cleAvant, ancienne(), std::nullopt});
    else if (cleAvant == cleApres)
        soi.m_changements.push_back({nom, cleAvant, ancienne(), nouvelle()});
    else {
        soi.m_changements.push_back({nom, cleAvant, ancienne(), std::nullopt});
        soi.m_changements.push_back({nom, cleApres, std::nullopt, nouvelle()});
    }
}

Journal::Pause::Pause(const Base &base)
    : m_journal(base.connexion().journal())
{
    ++m_journal.m_pauses;
}

Journal::Pause::~Pause()
{
    --m_journal.m_pauses;
}

void Journal::Annuler(const Base &base, const Changements &changements)
{
    Transaction transaction(base);
    base.connexion().ecrire([&] {
        const SansDeclencheurs sans(base.connexion().db().getHandle());
        for (auto c = changements.rbegin(); c != changements.rend(); ++c)
            remplacer(base.connexion(), *c, c->apres, c->avant);
    });
    transaction.Commit();
}

void Journal::Refaire(const Base &base, const Changements &changements)
{
    Transaction transaction(base);
    base.connexion().ecrire([&] {
        const SansDeclencheurs sans(base.connexion().db().getHandle());
        for (const Changement &c : changements)
            remplacer(base.connexion(), c, c.avant, c.apres);
    });
    transaction.Commit();
}
