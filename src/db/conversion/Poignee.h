#pragma once

#include "db/conversion/Jet.h"

// The library's own header includes this one where C++ cannot take it.
#include <deque>
#include <glib.h>
#include <mdbtools.h>

struct Jet::Poignee
{
    MdbHandle *mdb = nullptr;
    std::deque<MdbCatalogEntry> entrees; ///< beside the names of the tables; a table read points to its own

    ~Poignee()
    {
        if (mdb)
            mdb_close(mdb);
    }
};
