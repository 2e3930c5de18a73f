#pragma once

#include "core/Annonces.h"

#include <QTemporaryFile>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What was done to the rows of a collection, in its order: as much of it as taking it back needs. A row that was
/// added is noted by a digest alone, one that was edited by the values that its fields had, one that was taken away
/// whole. A tape that grows past a limit goes on in one temporary file, without a name where the disk knows such
/// files, so that nothing is left of it however the program ends. What writes to it throws Error when that file cannot be written.
class Bande
{
public:
    using Sorte = Changement::Sorte;

    /// One row. The values are those of Rangee; they are valid until the walk moves.
    struct Note
    {
        Sorte sorte;
        std::string_view table;
        qint64 cle;
        quint64 avant = 0; ///< digest of the row before; 0 where there was none
        quint64 apres = 0; ///< and after
        std::string_view valeurs = {}; ///< taken away: the row; edited: fields as (number, value before)
    };

    /// A place on the tape: what lies behind it can be cut off.
    struct Marque
    {
        qint64 octets = 0;
        qint64 notes = 0;
        std::size_t tables = 0;
    };

    /// Bytes that are kept in memory before the file is begun.
    static constexpr qint64 LimiteEnMemoire = 16 << 20;

    explicit Bande(qint64 limite = LimiteEnMemoire);

    void ajouter(const Note &note);

    Marque fin() const { return {taille(), m_notes, m_tables.size()}; }
    /// Forgets what was noted after a mark.
    void couper(const Marque &marque);

    bool vide() const { return m_notes == 0; }
    qint64 notes() const { return m_notes; }
    qint64 enMemoire() const { return static_cast<qint64>(m_memoire.size()); }
    /// Puts all of it into the file.
    void deposer();

    /// Calls `pour` for each row, the first one first, or the last one first.
    void parcourir(const std::function<void(const Note &)> &pour) const;
    void remonter(const std::function<void(const Note &)> &pour) const;

    /// The last row; there must be one.
    Note derniere() const;

    /// Puts a later tape behind this one: edits of a row that go on from an earlier edit become one with it, and
    /// what came back to where it began goes. For short tapes.
    void prolonger(const Bande &suite);

    /// The notice of what was done; above ten thousand rows only the tables.
    Changements avis() const;

private:
    qint64 taille() const { return m_deposes + enMemoire(); }
    quint16 numeroDe(std::string_view table);
    std::string_view octets(qint64 debut, qint64 longueur, bool versLeDebut) const;
    Note lire(std::string_view note) const;
    Note precedente(qint64 &position) const;

    qint64 m_limite;
    qint64 m_notes = 0;
    std::vector<std::string> m_tables; ///< in the order of their first note
    std::string m_memoire;
    qint64 m_deposes = 0; ///< bytes that stand in the file, before those in memory
    std::unique_ptr<QTemporaryFile> m_fichier;

    // The stretch of the file that was read last.
    mutable QByteArray m_fenetre;
    mutable qint64 m_debutFenetre = 0;
};
