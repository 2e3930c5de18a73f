#include "db/conversion/Jet.h"

#include "db/conversion/Echec.h"

#include <algorithm>

namespace {

constexpr unsigned long PageDuCatalogue = 2;
constexpr qint64 PageDUnObjet = 0x00FF'FFFF; // in its identifier
constexpr qint64 DuSysteme = 0x8000'0002; // in its flags

}

Jet::Jet(const QString &chemin)
    : m_poignee(chemin)
{
    verifierCatalogue();
    lireCatalogue();
}

std::unique_ptr<TableJet> Jet::ouvrir(const QString &table) const
{
    return std::make_unique<TableJet>(m_poignee, table, m_pages.at(static_cast<std::size_t>(rang(table))));
}

qsizetype Jet::rang(const QString &table) const
{
    const auto trouve = std::find_if(m_noms.begin(), m_noms.end(),
        [&](const QString &nom) { return nom.compare(table, Qt::CaseInsensitive) == 0; });
    return trouve == m_noms.end() ? -1 : trouve - m_noms.begin();
}

void Jet::verifierCatalogue() const
{
    MdbHandle *mdb = m_poignee.mdb();
    if (mdb_read_pg(mdb, PageDuCatalogue) <= 0 || mdb->pg_buf[0] != MDB_PAGE_TABLE)
        throw Echec(Conversion::Code::Abimee, QStringLiteral("Le catalogue du fichier ne peut pas être lu."));
}

/// The library's own reading of the catalogue also takes in what else it holds of each table; that is of no use
/// here, and never ends in some damaged files.
void Jet::lireCatalogue()
{
    TableJet catalogue(m_poignee, QStringLiteral("MSysObjects"), PageDuCatalogue);
    while (catalogue.suivante()) {
        const QString nom = catalogue.cellule("Name");
        const qint64 marques = catalogue.cellule("Flags").toLongLong();
        const bool table = catalogue.cellule("Type").toInt() == MDB_TABLE && (marques & DuSysteme) == 0;
        // The engine's own tables are not always marked as such; "~" begins what it has yet to delete.
        if (table && !nom.startsWith(QLatin1String("MSys")) && !nom.startsWith(u'~')) {
            m_noms << nom;
            m_pages.push_back(
                static_cast<unsigned long>(catalogue.cellule("Id").toLongLong() & PageDUnObjet));
        }
    }
}
