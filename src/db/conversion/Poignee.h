#pragma once

#include <QString>
#include <memory>

// The library's own header includes this one where C++ cannot take it.
#include <glib.h>
#include <mdbtools.h>

/// An old file, open for reading only.
class Poignee
{
public:
    /// Recognises the file by its first bytes. Throws Echec unless it is an old one, whole as far as its length
    /// tells, and not coded.
    explicit Poignee(const QString &chemin);

    MdbHandle *mdb() const { return m_mdb.get(); }
    /// Bytes of the file.
    qint64 taille() const { return m_taille; }

private:
    qint64 m_taille;
    std::unique_ptr<MdbHandle, void (*)(MdbHandle *)> m_mdb;
};
