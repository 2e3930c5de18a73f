#pragma once

#include "core/Annonces.h"

#include <QCoreApplication>
#include <vector>

/// What the collection announces, from now on.
class Ecoute
{
public:
    explicit Ecoute(Annonces &annonces)
    {
        QObject::connect(&annonces, &Annonces::changee, &m_contexte,
            [this](const Changements &changements) { m_annonces.push_back(changements); });
    }

    /// The announcements so far, with those that the event loop still held.
    const std::vector<Changements> &annonces()
    {
        QCoreApplication::processEvents();
        return m_annonces;
    }

private:
    std::vector<Changements> m_annonces;
    QObject m_contexte;
};
