#pragma once

#include "db/Instruction.h"

#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

/// Rows of a table to be edited: a list of row numbers, complete before the first change, whose rows are fetched one
/// by one, so that a walk survives its own edits. It keeps the database open. All members throw Error.
class Recordset
{
public:
    Recordset(std::shared_ptr<Connexion> connexion, const QString &table, const QString &where,
        const QVariantList &valeurs);
    Recordset(Recordset &&) noexcept;
    ~Recordset();

    /// Full number of rows.
    qint64 RecordCount();
    /// True when no current row is left.
    bool AtEnd();
    void MoveFirst();
    void MoveNext();

    /// Value of a field of the current row, by place or name in any letter case: an invalid variant for Null.
    QVariant Fields(int indice);
    QVariant Fields(const QString &nom);

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

    void commencer();
    void suivante();
    void avancer();
    void completer();
    bool charger(qint64 cle);
    SQLite::Statement &ligneParNumero();
    SQLite::Statement &ligne();
    void inserer();
    void modifier();

    std::shared_ptr<Connexion> m_connexion;
    QString m_table;
    QString m_parcours; ///< the query of the row numbers
    QVariantList m_valeurs;

    // The walk begins when it is first looked at: a recordset that only adds a row never walks.
    Instruction m_marche;
    Instruction m_ligne; ///< one row by its number
    std::vector<qint64> m_cles;
    std::vector<qint64> m_ajoutees; ///< rows added here while the list was not complete; they come last
    std::size_t m_position = 0;
    bool m_commencee = false;
    bool m_fin = false;
    bool m_epuisee = false;

    Mode m_mode = Mode::Lecture;
    std::vector<std::pair<QString, QVariant>> m_saisie;
    qint64 m_derniere = 0;
};
