#include "db/Cursor.h"

#include "core/Error.h"
#include "db/Connexion.h"
#include "db/Sql.h"
#include "db/Valeur.h"

#include <QCoreApplication>
#include <SQLiteCpp/Statement.h>

Cursor::Cursor(std::shared_ptr<Connexion> connexion, const QString &sql, const QVariantList &valeurs)
    : m_connexion(std::move(connexion))
    , m_sql(Sql::Normaliser(sql))
    , m_valeurs(valeurs)
{
    m_connexion->executer([&] { m_marche = m_connexion->preparer(m_sql, m_valeurs); });
    MoveNext();
}

Cursor::Cursor(Cursor &&) noexcept = default;
Cursor::~Cursor() = default;

void Cursor::MoveFirst()
{
    m_connexion->executer([&] { m_marche->reset(); });
    m_fin = false;
    MoveNext();
}

void Cursor::MoveNext()
{
    if (!m_fin)
        m_connexion->executer([&] { m_fin = !m_marche->executeStep(); });
}

qint64 Cursor::RecordCount() const
{
    qint64 nombre = 0;
    m_connexion->executer([&] {
        const Instruction compte
            = m_connexion->preparer(QStringLiteral("SELECT count(*) FROM (%1)").arg(m_sql), m_valeurs);
        compte->executeStep();
        nombre = compte->getColumn(0).getInt64();
    });
    return nombre;
}

const SQLite::Statement &Cursor::ligne() const
{
    if (m_fin || !m_marche->hasRow())
        throw Error(QCoreApplication::translate("Base", "Il n'y a plus d'enregistrement ici."), m_sql);
    return *m_marche;
}

QVariant Cursor::Fields(int indice) const
{
    return Valeur::Lire(ligne().getColumn(indice));
}

QVariant Cursor::Fields(const QString &nom) const
{
    return Fields(Valeur::Champ(ligne(), nom));
}

qint64 Cursor::Int64(int indice) const
{
    return ligne().getColumn(indice).getInt64();
}

std::string_view Cursor::Utf8(int indice) const
{
    return Valeur::Utf8(ligne().getColumn(indice));
}
