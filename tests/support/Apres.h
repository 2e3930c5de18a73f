#pragma once

#include "db/Base.h"
#include "db/Transaction.h"
#include "support/Bac.h"

/// Every row of the collection as these statements would leave it; they are taken back.
inline QStringList apres(const QStringList &instructions)
{
    Base base;
    const Transaction reprise(base);
    for (const QString &sql : instructions)
        base.Execute(sql);
    return Bac::toutLire();
}
