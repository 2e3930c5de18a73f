#include "db/Recordset.h"

#include "core/Error.h"
#include "db/Connexion.h"
#include "db/Sql.h"
#include "db/Valeur.h"

#include <QCoreApplication>
#include <QStringList>
#include <SQLiteCpp/Statement.h>

namespace {

/// The row numbers of a table's rows; in the order of their making when none is asked for.
QString numeros(const QString &table, const QString &where)
{
    const bool ordonnee = where.contains(QLatin1String("order by"), Qt::CaseInsensitive);
    const bool toutes = where.trimmed().startsWith(QLatin1String("order by"), Qt::CaseInsensitive);
    return QStringLiteral("SELECT rowid FROM %1%2%3")
        .arg(table,
            where.isEmpty()
                ? QString()
                : (toutes ? QStringLiteral(" ") : QStringLiteral(" WHERE ")) + Sql::Normaliser(where),
            ordonnee ? QString() : QStringLiteral(" ORDER BY rowid"));
}

}

Recordset::Recordset(std::shared_ptr<Connexion> connexion, const QString &table, const QString &where,
    const QVariantList &valeurs)
    : m_connexion(std::move(connexion))
    , m_table(table)
    , m_parcours(numeros(table, where))
    , m_valeurs(valeurs)
{
}

Recordset::Recordset(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

qint64 Recordset::RecordCount()
{
    completer();
    return static_cast<qint64>(m_cles.size());
}

/// One step of the walk: the next row number comes into the list.
void Recordset::avancer()
{
    m_connexion->executer([&] {
        if (!m_marche)
            m_marche = m_connexion->preparer(m_parcours, m_valeurs);
        m_epuisee = m_epuisee || !m_marche->executeStep();
    });
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

bool Recordset::charger(qint64 cle)
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

void Recordset::commencer()
{
    if (std::exchange(m_commencee, true))
        return;
    m_position = 0;
    while (m_cles.empty() && !m_epuisee)
        avancer();
    m_fin = m_cles.empty();
    if (!m_fin && !charger(m_cles[0]))
        suivante();
}

/// To the next row of the list that is still there.
void Recordset::suivante()
{
    do {
        ++m_position;
        while (m_position >= m_cles.size() && !m_epuisee)
            avancer();
        m_fin = m_position >= m_cles.size();
    } while (!m_fin && !charger(m_cles[m_position]));
}

bool Recordset::AtEnd()
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
    suivante();
}

SQLite::Statement &Recordset::ligneParNumero()
{
    if (!m_ligne)
        m_ligne = m_connexion->preparer(
            QStringLiteral("SELECT * FROM %1 WHERE rowid = ?").arg(m_table), {QVariant(0)});
    return *m_ligne;
}

SQLite::Statement &Recordset::ligne()
{
    commencer();
    SQLite::Statement &instruction = ligneParNumero();
    if (m_fin || !instruction.hasRow())
        throw Error(QCoreApplication::translate("Base", "Il n'y a plus d'enregistrement ici."), m_table);
    return instruction;
}

QVariant Recordset::Fields(int indice)
{
    return Valeur::Lire(ligne().getColumn(indice));
}

QVariant Recordset::Fields(const QString &nom)
{
    return Fields(Valeur::Champ(ligne(), nom));
}

void Recordset::AddNew()
{
    m_mode = Mode::Ajout;
    m_saisie.clear();
}

void Recordset::Edit()
{
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
