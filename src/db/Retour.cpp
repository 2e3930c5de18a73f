#include "db/Retour.h"

#include "core/Error.h"
#include "db/Bande.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/Rangee.h"
#include "db/Sql.h"

#include <QCoreApplication>
#include <QStringList>
#include <cstring>
#include <map>
#include <optional>
#include <sqlite3.h>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Journal)
};

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

/// The statements on one table: its row by number, its fields.
class Table
{
public:
    Table(Connexion &connexion, std::string_view nom)
        : m_connexion(connexion)
        , m_nom(Sql::Nom(QString::fromUtf8(nom.data(), qsizetype(nom.size()))))
    {
        const Instruction forme
            = m_connexion.preparer(QStringLiteral("SELECT * FROM %1 LIMIT 0").arg(m_nom), {});
        for (int i = 0; i < forme->getColumnCount(); ++i)
            m_champs << Sql::Nom(QString::fromUtf8(forme->getColumnName(i)));
        const QStringList marques(m_champs.size() + 1, QStringLiteral("?"));
        m_lecture = QStringLiteral("SELECT * FROM %1 WHERE rowid = ?").arg(m_nom);
        m_retrait = QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(m_nom);
        m_ajout = QStringLiteral("INSERT INTO %1 (rowid, %2) VALUES (%3)")
                      .arg(m_nom, m_champs.join(u','), marques.join(u','));
    }

    void reprendre(const Bande::Note &note)
    {
        if (!estFaite(note))
            throw Error(Error::Sorte::Perimee,
                Tr::tr("Cette modification ne peut plus être reprise : la fiche a changé depuis."), {});
        if (note.sorte == Bande::Sorte::Ajout)
            retirer(note.cle);
        else if (note.sorte == Bande::Sorte::Retrait)
            rajouter(note.cle, note.valeurs);
        else
            reediter(note.cle, note.valeurs);
    }

    /// The row is as it was left.
    bool estFaite(const Bande::Note &note)
    {
        return empreinteActuelle(note.cle) == (note.apres ? std::optional(note.apres) : std::nullopt);
    }

private:
    std::optional<quint64> empreinteActuelle(qint64 cle)
    {
        const Instruction lecture = m_connexion.preparer(m_lecture, {cle});
        if (!lecture->executeStep())
            return std::nullopt;
        std::string rangee;
        for (int i = 0; i < lecture->getColumnCount(); ++i)
            Rangee::Ajouter(rangee, lecture->getColumn(i));
        return Rangee::Empreinte(rangee);
    }

    void retirer(qint64 cle) { m_connexion.preparer(m_retrait, {cle})->exec(); }

    void rajouter(qint64 cle, std::string_view rangee)
    {
        const Instruction ajout = m_connexion.preparer(m_ajout, {cle});
        for (int position = 2; !rangee.empty(); ++position)
            Rangee::Lier(*ajout, position, Rangee::Prendre(rangee));
        ajout->exec();
    }

    void reediter(qint64 cle, std::string_view champs)
    {
        QStringList ecritures;
        std::vector<std::string_view> valeurs;
        while (!champs.empty()) {
            quint16 numero = 0;
            std::memcpy(&numero, champs.data(), sizeof numero);
            champs.remove_prefix(sizeof numero);
            ecritures << m_champs.at(numero) + QStringLiteral(" = ?");
            valeurs.push_back(Rangee::Prendre(champs));
        }
        const Instruction edition = m_connexion.preparer(
            QStringLiteral("UPDATE %1 SET %2 WHERE rowid = %3")
                .arg(m_nom, ecritures.join(u','), QStringLiteral("?%1").arg(valeurs.size() + 1)),
            {});
        for (std::size_t i = 0; i < valeurs.size(); ++i)
            Rangee::Lier(*edition, static_cast<int>(i) + 1, valeurs[i]);
        edition->bind(static_cast<int>(valeurs.size()) + 1, static_cast<int64_t>(cle));
        edition->exec();
    }

    Connexion &m_connexion;
    QString m_nom;
    QStringList m_champs;
    QString m_lecture;
    QString m_retrait;
    QString m_ajout;
};

}

void Retour::Refaire(Base &base, const Bande &bande)
{
    base.connexion().ecrire([&] {
        const SansDeclencheurs sans(base.connexion().db().getHandle());
        std::map<std::string, Table, std::less<>> tables;
        bande.remonter([&](const Bande::Note &note) {
            auto table = tables.find(note.table);
            if (table == tables.end())
                table = tables.emplace(note.table, Table(base.connexion(), note.table)).first;
            table->second.reprendre(note);
        });
    });
}

bool Retour::EstFait(Base &base, const Bande &bande)
{
    bool fait = false;
    base.connexion().executer([&] {
        const Bande::Note note = bande.derniere();
        fait = Table(base.connexion(), note.table).estFaite(note);
    });
    return fait;
}
