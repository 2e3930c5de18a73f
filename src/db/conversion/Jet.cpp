#include "db/conversion/Jet.h"

#include "db/conversion/Echec.h"
#include "db/conversion/Poignee.h"
#include "db/conversion/TableJet.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>

using Conversion::Code;

namespace {

constexpr qsizetype PositionMarque = 4;
constexpr qsizetype PositionVersion = 0x14;
constexpr qsizetype TailleEntete = 0x18;
constexpr quint32 PremierAce = MDB_VER_ACCDB_2007;
constexpr quint32 DernierAce = MDB_VER_ACCDB_2019;
constexpr unsigned long PageDuCatalogue = 2;
constexpr qint64 PageDUnObjet = 0x00FF'FFFF; // in its identifier
constexpr qint64 DuSysteme = 0x8000'0002; // in its flags
const QString Catalogue = QStringLiteral("MSysObjects");

[[noreturn]] void refuser(Code code, const char *details)
{
    throw Echec(code, QString::fromUtf8(details));
}

/// Bytes of a page, by what the first bytes of a file say; 0 when it is no old file.
qint64 taillePage(const QByteArray &entete)
{
    if (entete.size() < TailleEntete)
        return 0;
    const QByteArrayView marque = QByteArrayView(entete).sliced(PositionMarque);
    const quint32 version = qFromLittleEndian<quint32>(entete.constData() + PositionVersion);
    if (marque.startsWith(QByteArrayView("Standard Jet DB", 16)))
        return version == MDB_VER_JET3 ? 2048 : version == MDB_VER_JET4 ? 4096 : 0;
    if (marque.startsWith(QByteArrayView("Standard ACE DB", 16)))
        return version >= PremierAce && version <= DernierAce ? 4096 : 0;
    return 0;
}

/// Size of the file. Throws unless it is an old one, and whole as far as its length tells.
qint64 reconnaitre(const QString &chemin)
{
    QFile fichier(chemin);
    if (!QFileInfo(chemin).isFile() || !fichier.open(QIODevice::ReadOnly))
        throw Echec(
            Code::Etrangere, QStringLiteral("Le fichier ne peut pas être lu : ") + fichier.errorString());
    const qint64 page = taillePage(fichier.read(TailleEntete));
    if (page == 0)
        refuser(Code::Etrangere, "Ce fichier n'est pas une ancienne base.");
    if (fichier.size() % page != 0)
        refuser(Code::Abimee, "Le fichier est coupé : sa longueur n'est pas un nombre entier de pages.");
    return fichier.size();
}

/// What of the environment would change how the library finds and reads a file.
void isoler()
{
    qputenv("MDBICONV", "UTF-8");
    for (const char *variable : {"MDBPATH", "MDBOPTS", "MDB_JET3_CHARSET"})
        qunsetenv(variable);
}

}

Jet::Jet(const QString &chemin)
    : m_poignee(std::make_unique<Poignee>())
    , m_taille(reconnaitre(chemin))
{
    isoler();
    m_poignee->mdb = mdb_open(QFile::encodeName(chemin).constData(), MDB_NOFLAGS);
    if (!m_poignee->mdb)
        refuser(Code::Abimee, "L'en-tête du fichier ne peut pas être lu.");
    // Dates that were typed are texts; a true date becomes such a text.
    mdb_set_date_fmt(m_poignee->mdb, "%d/%m/%Y");
    mdb_set_shortdate_fmt(m_poignee->mdb, "%d/%m/%Y");
    mdb_set_boolean_fmt_numbers(m_poignee->mdb);
    lireCatalogue();
}

Jet::~Jet() = default;

qsizetype Jet::rang(const QString &table) const
{
    const auto trouve = std::find_if(m_noms.begin(), m_noms.end(),
        [&](const QString &nom) { return nom.compare(table, Qt::CaseInsensitive) == 0; });
    return trouve == m_noms.end() ? -1 : trouve - m_noms.begin();
}

void Jet::noter(const QString &table, unsigned long page)
{
    MdbCatalogEntry &entree = m_poignee->entrees.emplace_back();
    entree.mdb = m_poignee->mdb;
    entree.object_type = MDB_TABLE;
    entree.table_pg = page;
    m_noms << table;
}

void Jet::verifierCatalogue() const
{
    MdbHandle *mdb = m_poignee->mdb;
    // A key in the header means coded pages. A password alone leaves them clear, and has no key.
    if (mdb->f->db_key != 0)
        refuser(Code::Chiffree, "Le fichier est chiffré.");
    if (mdb_read_pg(mdb, PageDuCatalogue) > 0 && mdb->pg_buf[0] == MDB_PAGE_TABLE)
        return;
    refuser(Code::Abimee, "Le catalogue du fichier ne peut pas être lu.");
}

void Jet::lireCatalogue()
{
    verifierCatalogue();
    // The library's own reading of the catalogue also takes in what else it holds of each table; that is of no use
    // here, and never ends in some damaged files.
    noter(Catalogue, PageDuCatalogue);
    noterTables();
    m_noms.removeFirst();
    m_poignee->entrees.pop_front();
}

void Jet::noterTables()
{
    TableJet catalogue(*this, Catalogue);
    while (catalogue.suivante()) {
        const QString nom = catalogue.cellule("Name");
        const qint64 marques = catalogue.cellule("Flags").toLongLong();
        const bool table = catalogue.cellule("Type").toInt() == MDB_TABLE && (marques & DuSysteme) == 0;
        // The engine's own tables are not always marked as such; "~" begins what it has yet to delete.
        if (table && !nom.startsWith(QLatin1String("MSys")) && !nom.startsWith(u'~'))
            noter(nom, static_cast<unsigned long>(catalogue.cellule("Id").toLongLong() & PageDUnObjet));
    }
}
