#include "db/conversion/Poignee.h"

#include "db/conversion/Echec.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using Conversion::Code;

namespace {

constexpr qsizetype PositionMarque = 4;
constexpr qsizetype PositionVersion = 0x14;
constexpr qsizetype TailleEntete = 0x18;
constexpr quint32 PremierAce = MDB_VER_ACCDB_2007;
constexpr quint32 DernierAce = MDB_VER_ACCDB_2019;

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

/// Null when the library does not want the file.
MdbHandle *ouvrir(const QString &chemin)
{
    isoler();
    return mdb_open(QFile::encodeName(chemin).constData(), MDB_NOFLAGS);
}

}

Poignee::Poignee(const QString &chemin)
    : m_taille(reconnaitre(chemin))
    , m_mdb(ouvrir(chemin), mdb_close)
{
    if (!m_mdb)
        refuser(Code::Abimee, "L'en-tête du fichier ne peut pas être lu.");
    // A key in the header means coded pages. A password alone leaves them clear, and has no key.
    if (m_mdb->f->db_key != 0)
        refuser(Code::Chiffree, "Le fichier est chiffré.");
    // Dates that were typed are texts; a true date becomes such a text.
    mdb_set_date_fmt(m_mdb.get(), "%d/%m/%Y");
    mdb_set_shortdate_fmt(m_mdb.get(), "%d/%m/%Y");
    mdb_set_boolean_fmt_numbers(m_mdb.get());
}
