#pragma once

#include "acts/Acte.h"

#include <vector>

/// The steps that are done, from now on.
class Etapes
{
public:
    explicit Etapes(Annonces &annonces)
    {
        QObject::connect(&annonces, &Annonces::faite, &m_contexte,
            [this](const Etape &etape) { faites.push_back(etape); });
    }

    std::vector<Etape> faites;

private:
    QObject m_contexte;
};
