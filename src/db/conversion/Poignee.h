#pragma once

#include "db/conversion/Jet.h"

// The library's own header includes this one where C++ cannot take it.
#include <glib.h>
#include <mdbtools.h>
#include <vector>

struct Jet::Poignee
{
    MdbHandle *mdb = nullptr;
    std::vector<MdbCatalogEntry *> entrees; ///< beside the names of the tables

    ~Poignee()
    {
        if (mdb)
            mdb_close(mdb);
    }
};
