#include "db/conversion/Neuve.h"

#include "db/Collation.h"
#include "db/Comparaison.h"
#include "db/conversion/Echec.h"
#include "db/files/Conversion.h"
#include "db/files/FichierNeuf.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace {

void lier(SQLite::Statement &instruction, int rang, const Cellules::Valeur &valeur)
{
    if (const auto *entier = std::get_if<qint64>(&valeur))
        instruction.bind(rang, static_cast<int64_t>(*entier));
    else if (const auto *reel = std::get_if<double>(&valeur))
        instruction.bind(rang, *reel);
    else if (const auto *texte = std::get_if<QByteArray>(&valeur))
        instruction.bind(rang, std::string(texte->constData(), static_cast<std::size_t>(texte->size())));
    else
        instruction.bind(rang);
}

/// The identifier decides which rows are one; link tables have none.
QString instructionDAjout(const Schema::Table &table)
{
    QStringList champs;
    QStringList places;
    for (const Schema::Colonne &champ : table.colonnes) {
        champs << QLatin1String(champ.nom);
        places << QStringLiteral("?");
    }
    const bool cle = table.colonnes.front().type == Schema::Type::Cle;
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
               .arg(QLatin1String(table.nom), champs.join(QStringLiteral(", ")),
                   places.join(QStringLiteral(", ")))
        + (cle ? QStringLiteral(" ON CONFLICT (%1) DO NOTHING").arg(champs.front()) : QString());
}

}

Neuve::Neuve(const QString &chemin, Nature nature)
    : m_chemin(chemin)
    , m_partiel(Conversion::Partiel(chemin))
    , m_nature(nature)
{
    Conversion::RetirerPartiel(m_chemin);
    nature == Nature::Collection ? FichierNeuf::CreerVierge(m_partiel)
                                 : FichierNeuf::CreerCatalogue(m_partiel);
    m_db = std::make_unique<SQLite::Database>(m_partiel.toStdString(), SQLite::OPEN_READWRITE);
    Collation::Enregistrer(m_db->getHandle());
    // Nothing needs to last until all of it does: whatever stops the work, the file begun is thrown away.
    m_db->exec("PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF; BEGIN EXCLUSIVE");
}

Neuve::~Neuve()
{
    m_ajout.reset();
    m_db.reset();
    Conversion::RetirerPartiel(m_chemin);
}

void Neuve::commencer(const Schema::Table &table)
{
    m_table = &table;
    m_ajout = std::make_unique<SQLite::Statement>(*m_db, instructionDAjout(table).toStdString());
}

bool Neuve::ajouter(const std::vector<Cellules::Valeur> &rangee)
{
    for (std::size_t i = 0; i < rangee.size(); ++i)
        lier(*m_ajout, static_cast<int>(i) + 1, rangee[i]);
    const bool ajoutee = m_ajout->exec() == 1;
    m_ajout->reset();
    return ajoutee;
}

qint64 Neuve::compter() const
{
    return m_db->execAndGet(std::string("SELECT count(*) FROM ") + m_table->nom).getInt64();
}

void Neuve::achever()
{
    m_ajout.reset();
    m_db->exec("COMMIT");
    const std::string etat = m_db->execAndGet("PRAGMA integrity_check").getString();
    if (etat != "ok")
        throw Echec(Conversion::Code::Ecriture,
            QStringLiteral("Le nouveau fichier n'est pas sain : ") + QString::fromStdString(etat));
    // One last write that waits for the disk takes everything before it along.
    const int palier = m_nature == Nature::Catalogue ? Version::TextesTelsQuels : Version::DernierPalier;
    m_db->exec("PRAGMA synchronous=FULL; PRAGMA user_version="
        + std::to_string(Version::Composer(Comparaison::version(), palier)));
    m_db.reset();
    // This rename never replaces a file.
    QFile partiel(m_partiel);
    if (partiel.rename(m_chemin))
        return;
    if (QFileInfo::exists(m_chemin))
        throw Echec(Conversion::Code::Existe, QStringLiteral("Le nouveau fichier existe déjà."));
    throw Echec(Conversion::Code::Ecriture, partiel.errorString());
}
