#pragma once

#include "db/Instruction.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

/// The rows of a query. "SELECT * From one table ..." can be edited: it is a list of row numbers, complete
/// before the first change, whose rows are fetched one by one, so that a walk survives its own edits. Every
/// other query is a walk forward. It keeps the database open. All members throw Error.
class Recordset
{
public:
    Recordset(std::shared_ptr<Connexion> connexion, const QString &sql, const QVariantList &valeurs);
    Recordset(Recordset &&) noexcept;
    ~Recordset();

    /// Full number of rows.
    qint64 RecordCount();
    /// True when no current row is left.
    bool AtEnd() const;
    void MoveFirst();
    void MoveNext();

    /// Value of a field of the current row: an invalid variant for Null.
    QVariant Fields(int indice) const;
    QVariant Fields(const QString &nom) const;
    /// The two quick ways of long walks; a text is valid until the walk moves.
    qint64 Int64(int indice) const;
    std::string_view Utf8(int indice) const;

    void AddNew();
    void Edit();
    void SetField(const QString &nom, const QVariant &valeur);
    void SetField(int indice, const QVariant &valeur);
    /// Writes the new row, or the fields that differ; an edit that changes nothing writes nothing.
    void Update();
    void Delete();

    /// Bookmark of the row last added or edited.
    qint64 LastModified() const { return m_derniere; }
    void SetBookmark(qint64 signet);

private:
    enum class Mode { Lecture, Ajout, Edition };

    void commencer() const;
    void suivante() const;
    void avancer() const;
    void completer();
    bool charger(qint64 cle) const;
    SQLite::Statement &ligneParNumero() const;
    SQLite::Statement &ligne() const;
    int indiceDe(const QString &nom) const;
    void inserer();
    void modifier();

    std::shared_ptr<Connexion> m_connexion;
    QString m_sql;
    QVariantList m_valeurs;
    QString m_table; ///< empty when the rows cannot be edited
    QString m_parcours; ///< the query of the row numbers, when they can

    // The walk begins when it is first looked at: a recordset that only adds a row never walks.
    mutable Instruction m_marche; ///< the query itself, or its row numbers
    mutable Instruction m_ligne; ///< one row by its number
    mutable QHash<QString, int> m_colonnes;
    mutable std::vector<qint64> m_cles;
    mutable std::vector<qint64>
        m_ajoutees; ///< rows added here while the list was not complete; they come last
    mutable std::size_t m_position = 0;
    mutable bool m_commencee = false;
    mutable bool m_fin = false;
    mutable bool m_epuisee = false;

    Mode m_mode = Mode::Lecture;
    std::vector<std::pair<QString, QVariant>> m_saisie;
    qint64 m_derniere = 0;
};
