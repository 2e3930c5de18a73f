#include "db/Recordset.h"

#include "core/Error.h"
#include "db/Connexion.h"
#include "db/Sql.h"
#include "db/Valeur.h"

#include <QCoreApplication>
#include <QStringList>
#include <SQLiteCpp/Statement.h>

namespace {

/// The row numbers of a query; in the order of their making when the query asks for none.
QString numerosDe(const Sql::UneTable &requete)
{
    const bool ordonnee = requete.suite.contains(QLatin1String("order by"), Qt::CaseInsensitive);
    return QStringLiteral("SELECT rowid FROM %1%2%3")
        .arg(requete.table, requete.suite, ordonnee ? QString() : QStringLiteral(" ORDER BY rowid"));
}

}

Recordset::Recordset(std::shared_ptr<Connexion> connexion, const QString &sql, const QVariantList &valeurs)
    : m_connexion(std::move(connexion))
    , m_sql(Sql::Normaliser(sql))
    , m_valeurs(valeurs)
{
    if (const auto uneTable = Sql::Decomposer(m_sql)) {
        m_table = uneTable->table;
        m_parcours = numerosDe(*uneTable);
    } else {
        m_connexion->executer([&] { m_marche = m_connexion->preparer(m_sql, m_valeurs); });
    }
}

Recordset::Recordset(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

qint64 Recordset::RecordCount()
{
    if (!m_table.isEmpty()) {
        completer();
        return static_cast<qint64>(m_cles.size());
    }
    qint64 nombre = 0;
    m_connexion->executer([&] {
        const Instruction compte
            = m_connexion->preparer(QStringLiteral("SELECT count(*) FROM (%1)").arg(m_sql), m_valeurs);
        compte->executeStep();
        nombre = compte->getColumn(0).getInt64();
    });
    return nombre;
}

/// One step of the walk: the next row itself, or the next row number into the list.
void Recordset::avancer() const
{
    m_connexion->executer([&] {
        if (!m_marche)
            m_marche = m_connexion->preparer(m_parcours, m_valeurs);
        m_epuisee = m_epuisee || !m_marche->executeStep();
    });
    if (m_table.isEmpty())
        return;
    if (m_epuisee) {
        m_cles.insert(m_cles.end(), m_ajoutees.begin(), m_ajoutees.end());
        m_ajoutees.clear();
        return;
    }
    const qint64 cle = m_marche->getColumn(0).getInt64();
    // The walk may or may not meet a row that was added behind it.
    if (std::find(m_ajoutees.begin(), m_ajoutees.end(), cle) == m_ajoutees.end())
        m_cles.push_back(cle);
}

void Recordset::completer()
{
    while (!m_epuisee)
        avancer();
}

bool Recordset::charger(qint64 cle) const
{
    bool trouvee = false;
    m_connexion->executer([&] {
        SQLite::Statement &instruction = ligneParNumero();
        instruction.reset();
        instruction.bind(1, static_cast<int64_t>(cle));
        trouvee = instruction.executeStep();
    });
    return trouvee;
}

void Recordset::commencer() const
{
    if (std::exchange(m_commencee, true))
        return;
    if (m_table.isEmpty()) {
        m_connexion->executer([&] { m_marche->reset(); });
        m_epuisee = false;
        avancer();
        m_fin = m_epuisee;
        return;
    }
    m_position = 0;
    while (m_cles.empty() && !m_epuisee)
        avancer();
    m_fin = m_cles.empty();
    if (!m_fin && !charger(m_cles[0]))
        suivante();
}

/// To the next row of the list that is still there.
void Recordset::suivante() const
{
    do {
        ++m_position;
        while (m_position >= m_cles.size() && !m_epuisee)
            avancer();
        m_fin = m_position >= m_cles.size();
    } while (!m_fin && !charger(m_cles[m_position]));
}

bool Recordset::AtEnd() const
{
    commencer();
    return m_fin;
}

void Recordset::MoveFirst()
{
    m_mode = Mode::Lecture;
    m_commencee = false;
    commencer();
}

void Recordset::MoveNext()
{
    m_mode = Mode::Lecture;
    commencer();
    if (!m_table.isEmpty())
        return suivante();
    avancer();
    m_fin = m_epuisee;
}

SQLite::Statement &Recordset::ligneParNumero() const
{
    if (!m_ligne)
        m_ligne = m_connexion->preparer(
            QStringLiteral("SELECT * FROM %1 WHERE rowid = ?").arg(m_table), {QVariant(0)});
    return *m_ligne;
}

SQLite::Statement &Recordset::ligne() const
{
    commencer();
    SQLite::Statement &instruction = m_table.isEmpty() ? *m_marche : ligneParNumero();
    if (m_fin || !instruction.hasRow())
        throw Error(QCoreApplication::translate("Base", "Il n'y a plus d'enregistrement ici."), m_sql);
    return instruction;
}

int Recordset::indiceDe(const QString &nom) const
{
    if (m_colonnes.isEmpty()) {
        const SQLite::Statement &instruction = m_table.isEmpty() ? *m_marche : ligneParNumero();
        for (int i = 0; i < instruction.getColumnCount(); ++i)
            m_colonnes.insert(QString::fromUtf8(instruction.getColumnName(i)).toLower(), i);
    }
    const int indice = m_colonnes.value(nom.toLower(), -1);
    if (indice < 0)
        throw Error(QCoreApplication::translate("Base", "Un champ manque dans la base."), nom, m_sql);
    return indice;
}

QVariant Recordset::Fields(int indice) const
{
    return Valeur::Lire(ligne().getColumn(indice));
}

QVariant Recordset::Fields(const QString &nom) const
{
    return Fields(indiceDe(nom));
}

qint64 Recordset::Int64(int indice) const
{
    return ligne().getColumn(indice).getInt64();
}

std::string_view Recordset::Utf8(int indice) const
{
    return Valeur::Utf8(ligne().getColumn(indice));
}

void Recordset::AddNew()
{
    Q_ASSERT(!m_table.isEmpty());
    m_mode = Mode::Ajout;
    m_saisie.clear();
}

void Recordset::Edit()
{
    Q_ASSERT(!m_table.isEmpty());
    ligne();
    completer();
    m_mode = Mode::Edition;
    m_saisie.clear();
}

void Recordset::SetField(const QString &nom, const QVariant &valeur)
{
    Q_ASSERT(m_mode != Mode::Lecture);
    const auto deja = std::find_if(m_saisie.begin(), m_saisie.end(),
        [&](const auto &paire) { return paire.first.compare(nom, Qt::CaseInsensitive) == 0; });
    if (deja != m_saisie.end())
        deja->second = valeur;
    else
        m_saisie.emplace_back(nom, valeur);
}

void Recordset::SetField(int indice, const QVariant &valeur)
{
    SetField(QString::fromUtf8(ligneParNumero().getColumnName(indice)), valeur);
}

void Recordset::Update()
{
    Q_ASSERT(m_mode != Mode::Lecture);
    if (m_mode == Mode::Ajout)
        inserer();
    else
        modifier();
    m_mode = Mode::Lecture;
    m_saisie.clear();
}

void Recordset::inserer()
{
    QStringList noms;
    QVariantList valeurs;
    for (const auto &[nom, valeur] : m_saisie) {
        noms << Sql::Nom(nom);
        valeurs << valeur;
    }
    const QString marques = QStringList(noms.size(), QStringLiteral("?")).join(u',');
    const QString sql = noms.isEmpty()
        ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(m_table)
        : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(m_table, noms.join(u','), marques);
    m_connexion->ecrire([&] {
        m_connexion->preparer(sql, valeurs)->exec();
        m_derniere = m_connexion->db().getLastInsertRowid();
    });
    // Adding a row must not cost a walk of all others.
    (m_epuisee ? m_cles : m_ajoutees).push_back(m_derniere);
}

void Recordset::modifier()
{
    QStringList ecritures;
    QVariantList valeurs;
    for (const auto &[nom, valeur] : m_saisie) {
        if (Valeur::Egales(Fields(nom), valeur))
            continue;
        ecritures << Sql::Nom(nom) + QStringLiteral(" = ?");
        valeurs << valeur;
    }
    const qint64 cle = m_cles[m_position];
    m_derniere = cle;
    if (ecritures.isEmpty())
        return;
    m_connexion->ecrire([&] {
        // The row read before must not hold the statement open while it is rewritten.
        m_ligne->reset();
        const QString sql = QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?")
                                .arg(m_table, ecritures.join(QStringLiteral(", ")));
        if (m_connexion->preparer(sql, valeurs + QVariantList{cle})->exec() == 0)
            throw Error(QCoreApplication::translate("Base", "La fiche n'existe plus."), m_table);
    });
    charger(cle);
}

void Recordset::Delete()
{
    ligne();
    completer();
    m_connexion->ecrire([&] {
        m_ligne->reset();
        m_connexion
            ->preparer(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(m_table), {m_cles[m_position]})
            ->exec();
    });
}

void Recordset::SetBookmark(qint64 signet)
{
    m_commencee = true;
    completer();
    const auto trouvee = std::find(m_cles.begin(), m_cles.end(), signet);
    Q_ASSERT(trouvee != m_cles.end());
    m_position = static_cast<std::size_t>(trouvee - m_cles.begin());
    m_fin = !charger(signet);
}
