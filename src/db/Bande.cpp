#include "db/Bande.h"

#include "core/Error.h"
#include "db/Rangee.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <cstring>
#include <map>

namespace {

constexpr qint64 Fenetre = 1 << 20;
constexpr qint64 AvisDetaille = 10'000;
constexpr quint16 ChampsSignales = 64;

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Journal)
};

/// What stands before the values of a note. Its length stands before it and behind it, so that a tape can be read
/// both ways.
struct Tete
{
    Bande::Sorte sorte;
    quint16 table;
    qint64 cle;
    quint64 avant;
    quint64 apres;
};
using Longueur = quint32;

template <class T>
T extraire(std::string_view octets)
{
    T valeur;
    std::memcpy(&valeur, octets.data(), sizeof valeur);
    return valeur;
}

template <class T>
void poser(std::string &octets, const T &valeur)
{
    octets.append(reinterpret_cast<const char *>(&valeur), sizeof valeur);
}

[[noreturn]] void echouer(const QTemporaryFile &fichier)
{
    throw Error(Tr::tr("Le fichier qui garde de quoi annuler ne peut pas être écrit."), QDir::tempPath(),
        fichier.errorString());
}

/// Fields of an edited row by number, with the value before.
std::map<quint16, std::string> champs(std::string_view valeurs)
{
    std::map<quint16, std::string> tous;
    while (!valeurs.empty()) {
        const auto numero = extraire<quint16>(valeurs);
        valeurs.remove_prefix(sizeof numero);
        tous.emplace(numero, Rangee::Prendre(valeurs));
    }
    return tous;
}

/// The same as bits; the last one stands for all further fields.
quint64 champsSignales(std::string_view valeurs)
{
    quint64 signales = 0;
    while (!valeurs.empty()) {
        const auto numero = extraire<quint16>(valeurs);
        valeurs.remove_prefix(sizeof numero);
        Rangee::Prendre(valeurs);
        signales |= quint64(1) << std::min<quint16>(numero, ChampsSignales - 1);
    }
    return signales;
}

/// A note that keeps its own bytes.
struct NoteGardee
{
    std::string table;
    std::string valeurs;
    Bande::Note note;
};

/// The last note on the row of an edit, when that is an edit which it goes on from.
NoteGardee *amorceDe(const Bande::Note &edition, std::vector<NoteGardee> &notes)
{
    const auto derniere = std::find_if(notes.rbegin(), notes.rend(),
        [&](const NoteGardee &g) { return g.note.cle == edition.cle && g.table == edition.table; });
    const bool suit = derniere != notes.rend() && edition.sorte == Bande::Sorte::Edition
        && derniere->note.sorte == Bande::Sorte::Edition && derniere->note.apres == edition.avant;
    return suit ? &*derniere : nullptr;
}

/// The earlier values of a field are what it is taken back to.
void fondre(NoteGardee &note, const Bande::Note &suite)
{
    std::map<quint16, std::string> tous = champs(note.valeurs);
    tous.merge(champs(suite.valeurs));
    note.note.apres = suite.apres;
    note.valeurs.clear();
    for (const auto &[numero, valeur] : tous) {
        poser(note.valeurs, numero);
        note.valeurs += valeur;
    }
}

}

Bande::Bande(qint64 limite)
    : m_limite(limite)
{
}

quint16 Bande::numeroDe(std::string_view table)
{
    const auto numero = std::find(m_tables.begin(), m_tables.end(), table) - m_tables.begin();
    if (numero == std::ssize(m_tables))
        m_tables.emplace_back(table);
    return static_cast<quint16>(numero);
}

void Bande::ajouter(const Note &note)
{
    const Tete tete{note.sorte, numeroDe(note.table), note.cle, note.avant, note.apres};
    const auto longueur = static_cast<Longueur>(sizeof tete + note.valeurs.size());
    poser(m_memoire, longueur);
    poser(m_memoire, tete);
    m_memoire.append(note.valeurs);
    poser(m_memoire, longueur);
    ++m_notes;
    if (enMemoire() > (m_fichier ? Fenetre : m_limite))
        deposer();
}

void Bande::deposer()
{
    if (m_memoire.empty())
        return;
    if (!m_fichier) {
        // Opened before it is asked for its name, it has none, where the disk knows such files.
        m_fichier = std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/bulleo"));
        if (!m_fichier->open())
            echouer(*m_fichier);
    }
    const bool ecrit = m_fichier->seek(m_deposes)
        && m_fichier->write(m_memoire.data(), enMemoire()) == enMemoire() && m_fichier->flush();
    if (!ecrit)
        echouer(*m_fichier);
    m_deposes += enMemoire();
    m_memoire.clear();
    m_memoire.shrink_to_fit();
    m_fenetre.clear();
}

void Bande::couper(const Marque &marque)
{
    m_notes = marque.notes;
    m_tables.resize(marque.tables);
    m_memoire.resize(static_cast<std::size_t>(std::max<qint64>(marque.octets - m_deposes, 0)));
    m_deposes = std::min(m_deposes, marque.octets);
    m_fenetre.clear();
}

/// Bytes of the tape, from the file by a window that reaches on in the direction of the walk. They are valid until the
/// next call.
std::string_view Bande::octets(qint64 debut, qint64 longueur, bool versLeDebut) const
{
    if (debut >= m_deposes)
        return std::string_view(m_memoire).substr(
            static_cast<std::size_t>(debut - m_deposes), static_cast<std::size_t>(longueur));
    const qint64 fin = m_debutFenetre + m_fenetre.size();
    if (m_fenetre.isEmpty() || debut < m_debutFenetre || debut + longueur > fin) {
        const qint64 etendue = std::max(Fenetre, longueur);
        m_debutFenetre = versLeDebut ? std::max<qint64>(debut + longueur - etendue, 0) : debut;
        m_fichier->seek(m_debutFenetre);
        m_fenetre = m_fichier->read(std::min(etendue, m_deposes - m_debutFenetre));
        if (debut + longueur > m_debutFenetre + m_fenetre.size())
            throw Error(Tr::tr("Le fichier qui garde de quoi annuler ne peut pas être relu."),
                QDir::tempPath(), m_fichier->errorString());
    }
    return {m_fenetre.constData() + (debut - m_debutFenetre), static_cast<std::size_t>(longueur)};
}

Bande::Note Bande::lire(std::string_view note) const
{
    const auto tete = extraire<Tete>(note);
    return {tete.sorte, m_tables[tete.table], tete.cle, tete.avant, tete.apres, note.substr(sizeof tete)};
}

void Bande::parcourir(const std::function<void(const Note &)> &pour) const
{
    for (qint64 position = 0; position < taille();) {
        const auto longueur = extraire<Longueur>(octets(position, sizeof(Longueur), false));
        pour(lire(octets(position + qint64(sizeof longueur), longueur, false)));
        position += longueur + qint64(2 * sizeof longueur);
    }
}

/// The note that ends at a position, which becomes that where it begins.
Bande::Note Bande::precedente(qint64 &position) const
{
    position -= qint64(sizeof(Longueur));
    const auto longueur = extraire<Longueur>(octets(position, sizeof(Longueur), true));
    position -= longueur;
    const Note note = lire(octets(position, longueur, true));
    position -= qint64(sizeof longueur);
    return note;
}

void Bande::remonter(const std::function<void(const Note &)> &pour) const
{
    for (qint64 position = taille(); position > 0;)
        pour(precedente(position));
}

Bande::Note Bande::derniere() const
{
    qint64 position = taille();
    return precedente(position);
}

void Bande::prolonger(const Bande &suite)
{
    std::vector<NoteGardee> notes;
    const auto garder = [&](const Note &n) {
        notes.push_back({std::string(n.table), std::string(n.valeurs), n});
    };
    parcourir(garder);
    suite.parcourir([&](const Note &n) {
        if (NoteGardee *amorce = amorceDe(n, notes))
            fondre(*amorce, n);
        else
            garder(n);
    });
    // This one stays as it is when the new one cannot be written.
    Bande nouvelle(m_limite);
    for (NoteGardee &g : notes) {
        if (g.note.sorte == Sorte::Edition && g.note.avant == g.note.apres)
            continue;
        g.note.table = g.table;
        g.note.valeurs = g.valeurs;
        nouvelle.ajouter(g.note);
    }
    *this = std::move(nouvelle);
}

Changements Bande::avis() const
{
    Changements avis;
    if (m_notes > AvisDetaille) {
        for (const std::string &table : m_tables)
            avis.push_back({QString::fromStdString(table), 0, Sorte::Tout});
        return avis;
    }
    parcourir([&](const Note &n) {
        const quint64 signales = n.sorte == Sorte::Edition ? champsSignales(n.valeurs) : ~quint64(0);
        avis.push_back(
            {QString::fromUtf8(n.table.data(), qsizetype(n.table.size())), n.cle, n.sorte, signales});
    });
    return avis;
}
