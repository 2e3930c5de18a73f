#pragma once

#include "model/Entrees.h"

#include <QStringList>

/// Lines numbered from 1 with these texts; an empty text leaves its number out.
inline Entrees desEntrees(const QStringList &textes)
{
    Entrees entrees;
    for (int i = 0; i < textes.size(); ++i) {
        if (!textes[i].isEmpty())
            entrees.ajouter(i + 1, textes[i].toStdString());
    }
    return entrees;
}
