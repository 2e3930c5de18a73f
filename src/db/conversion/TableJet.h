#pragma once

#include "db/conversion/Poignee.h"

#include <QString>
#include <memory>
#include <vector>

/// A walk over the rows of one table of an old file. Damage that the library passes over in silence ends it: a
/// row or page that cannot be read, a long text that is not whole. Throws Echec.
class TableJet
{
public:
    /// How the old file holds a field, as far as that changes how it is read.
    enum class Sorte { Texte, Entier, Reel, Booleen, Illisible };

    struct Champ
    {
        QString nom;
        Sorte sorte = Sorte::Illisible;
    };

    /// The table of this name that is defined on this page. What is open must outlive this object.
    TableJet(const Poignee &poignee, const QString &nom, unsigned long page);
    TableJet(const TableJet &) = delete;
    TableJet &operator=(const TableJet &) = delete;

    const std::vector<Champ> &champs() const { return m_champs; }
    /// How many rows the table says it has.
    qint64 rangees() const { return m_annoncees; }

    /// Goes to the next row; false after the last one.
    bool suivante();
    /// A cell of the row: a text, or a number as a computer writes it. Null when it is Null, or an empty text,
    /// which the library cannot tell apart.
    QString cellule(std::size_t champ) const;
    /// Of the field of this name; throws when the table lacks it.
    QString cellule(const char *champ) const;

private:
    void lierColonnes();
    QString texte(const char *octets, std::size_t taille) const;
    QString memo(std::size_t champ) const;
    QByteArray memoAilleurs(quint32 taille, quint32 ou, bool enChaine) const;
    [[noreturn]] void abimee(const char *quoi) const;

    const Poignee &m_poignee;
    QString m_nom;
    MdbCatalogEntry m_entree; ///< of the table, which points to it
    std::unique_ptr<MdbTableDef, void (*)(MdbTableDef *)> m_table;
    std::vector<Champ> m_champs;
    std::vector<std::vector<char>> m_tampons; ///< where the library writes what is no text
    qint64 m_annoncees = 0;
    qint64 m_lues = 0;
};
