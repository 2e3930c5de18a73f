#include "db/conversion/TableJet.h"

#include "db/conversion/Echec.h"
#include "db/conversion/TexteJet.h"

#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int PositionProprietaire = 4; // in a page of rows: the table they belong to, or "LVAL"

// A long text is kept behind 12 bytes: its length with two flags, then where it begins when it stands elsewhere.
constexpr quint32 EnPlace = 0x80000000;
constexpr quint32 UneSeulePage = 0x40000000;
constexpr quint32 LongueurMemo = 0x3FFFFFFF;
constexpr std::size_t PointeurSuite = 4;
constexpr int PositionDansLaPage = 0x1FFF; // of a row; the bits above it are marks

MdbColumn *colonne(const MdbTableDef *table, std::size_t rang)
{
    return static_cast<MdbColumn *>(g_ptr_array_index(table->columns, rang));
}

TableJet::Sorte sorteDe(int type)
{
    using enum TableJet::Sorte;
    switch (type) {
    case MDB_TEXT:
    case MDB_MEMO:
    case MDB_DATETIME:
        return Texte;
    case MDB_BOOL:
        return Booleen;
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return Entier;
    case MDB_MONEY:
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_NUMERIC:
        return Reel;
    default:
        return Illisible;
    }
}

/// The library passes on the bytes of these; all others it makes into texts.
bool estLuBrut(const MdbColumn *c)
{
    return c->col_type == MDB_TEXT || c->col_type == MDB_MEMO;
}

/// As much of an entry of the catalogue as the library wants to read a table.
MdbCatalogEntry entree(const Poignee &poignee, unsigned long page)
{
    MdbCatalogEntry e{};
    e.mdb = poignee.mdb();
    e.object_type = MDB_TABLE;
    e.table_pg = page;
    return e;
}

}

TableJet::TableJet(const Poignee &poignee, const QString &nom, unsigned long page)
    : m_poignee(poignee)
    , m_nom(nom)
    , m_entree(entree(poignee, page))
    , m_table(mdb_read_table(&m_entree), mdb_free_tabledef)
{
    // The library would read a map that is not there.
    if (!m_table || !m_table->usage_map || m_table->map_sz < 5 || !mdb_read_columns(m_table.get()))
        abimee("sa définition ne peut pas être lue");
    m_annoncees = m_table->num_rows;
    lierColonnes();
    mdb_rewind_table(m_table.get());
}

void TableJet::abimee(const char *quoi) const
{
    throw Echec(Conversion::Code::Abimee,
        QStringLiteral("La table %1 est abîmée : %2.").arg(m_nom, QString::fromUtf8(quoi)));
}

void TableJet::lierColonnes()
{
    const std::size_t nombre = m_table->columns->len;
    m_tampons.resize(nombre);
    for (std::size_t i = 0; i < nombre; ++i) {
        MdbColumn *c = colonne(m_table.get(), i);
        m_champs.push_back({QString::fromUtf8(c->name), sorteDe(c->col_type)});
        if (estLuBrut(c) || m_champs.back().sorte == Sorte::Illisible)
            continue;
        m_tampons[i].resize(m_poignee.mdb()->bind_size);
        mdb_bind_column(m_table.get(), static_cast<int>(i) + 1, m_tampons[i].data(), nullptr);
    }
}

bool TableJet::suivante()
{
    if (mdb_fetch_row(m_table.get())) {
        ++m_lues;
        return true;
    }
    if (m_lues != m_annoncees)
        abimee(qUtf8Printable(
            QStringLiteral("elle annonce %1 lignes, %2 se lisent").arg(m_annoncees).arg(m_lues)));
    return false;
}

QString TableJet::cellule(std::size_t champ) const
{
    const MdbColumn *c = colonne(m_table.get(), champ);
    if (estLuBrut(c) && c->cur_value_start + c->cur_value_len > MDB_PGSIZE)
        abimee("un texte dépasse sa page");
    if (c->col_type == MDB_MEMO)
        return memo(champ);
    if (c->col_type == MDB_TEXT)
        return texte(reinterpret_cast<const char *>(m_poignee.mdb()->pg_buf) + c->cur_value_start,
            static_cast<std::size_t>(c->cur_value_len));
    const std::vector<char> &tampon = m_tampons[champ];
    if (tampon.empty() || tampon[0] == '\0')
        return {};
    // The library gives all the figures that the type has, sure or not.
    const bool flottant = c->col_type == MDB_FLOAT || c->col_type == MDB_DOUBLE;
    return flottant
        ? QString::number(std::strtod(tampon.data(), nullptr), 'g', c->col_type == MDB_FLOAT ? 7 : 15)
        : QString::fromUtf8(tampon.data());
}

QString TableJet::cellule(const char *champ) const
{
    const auto trouve = std::find_if(
        m_champs.begin(), m_champs.end(), [&](const Champ &c) { return c.nom == QLatin1String(champ); });
    if (trouve == m_champs.end())
        abimee("il lui manque un champ");
    return cellule(static_cast<std::size_t>(trouve - m_champs.begin()));
}

QString TableJet::texte(const char *octets, std::size_t taille) const
{
    MdbHandle *mdb = m_poignee.mdb();
    if (taille == 0)
        return {};
    if (!IS_JET3(mdb))
        return TexteJet::Lire(QByteArrayView(octets, static_cast<qsizetype>(taille)));
    // One byte of a code page becomes at most four of UTF-8.
    std::vector<char> utf8(taille * 4 + 1);
    const int longueur = mdb_unicode2ascii(mdb, octets, taille, utf8.data(), utf8.size());
    return QString::fromUtf8(utf8.data(), longueur);
}

QString TableJet::memo(std::size_t champ) const
{
    const MdbColumn *c = colonne(m_table.get(), champ);
    if (c->cur_value_len == 0)
        return {};
    const auto reste = static_cast<std::size_t>(c->cur_value_len);
    const auto *debut = reinterpret_cast<const char *>(m_poignee.mdb()->pg_buf) + c->cur_value_start;
    if (reste < MDB_MEMO_OVERHEAD)
        abimee("un texte long ne peut pas être lu");
    const auto marque = qFromLittleEndian<quint32>(debut);
    const quint32 taille = marque & LongueurMemo;
    if (marque & EnPlace) {
        if (reste - MDB_MEMO_OVERHEAD < taille)
            abimee("un texte long est coupé");
        return texte(debut + MDB_MEMO_OVERHEAD, taille);
    }
    const QByteArray octets = memoAilleurs(
        taille, qFromLittleEndian<quint32>(debut + sizeof marque), (marque & UneSeulePage) == 0);
    return texte(octets.constData(), static_cast<std::size_t>(octets.size()));
}

QByteArray TableJet::memoAilleurs(quint32 taille, quint32 ou, bool enChaine) const
{
    if (taille > m_poignee.taille())
        abimee("un texte long serait plus long que le fichier");
    const std::size_t avant = enChaine ? PointeurSuite : 0;
    QByteArray octets;
    octets.reserve(taille);
    while (octets.size() < static_cast<qsizetype>(taille)) {
        void *page = nullptr;
        int position = 0;
        std::size_t longueur = 0;
        // What has been read stays on its page: the library keeps a second one for this.
        if (mdb_find_pg_row(m_poignee.mdb(), static_cast<int>(ou), &page, &position, &longueur) != 0
            || longueur <= avant
            || std::memcmp(static_cast<char *>(page) + PositionProprietaire, "LVAL", 4) != 0)
            abimee("un texte long n'est pas entier");
        const char *morceau = static_cast<char *>(page) + (position & PositionDansLaPage);
        const qsizetype manque = static_cast<qsizetype>(taille) - octets.size();
        octets.append(morceau + avant, std::min(static_cast<qsizetype>(longueur - avant), manque));
        if (!enChaine && octets.size() < static_cast<qsizetype>(taille))
            abimee("un texte long est coupé");
        ou = qFromLittleEndian<quint32>(morceau);
    }
    return octets;
}
