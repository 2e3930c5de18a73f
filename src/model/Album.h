#pragma once

#include "model/ChampsDeCreation.h"

#include <QString>
#include <initializer_list>
#include <utility>

/// An album that is being entered: a text for each thing that can be entered of it, empty for none. A flag is "1" or
/// "0", a choice among words its number, an entry its name, a picture the path of a file or a stored name.
class Album
{
public:
    Album() = default;
    Album(std::initializer_list<std::pair<Rubrique, QString>> textes)
    {
        for (const auto &[rubrique, texte] : textes)
            (*this)[rubrique] = texte;
    }

    QString &operator[](Rubrique rubrique) { return m_textes[static_cast<std::size_t>(rubrique)]; }
    const QString &operator[](Rubrique rubrique) const
    {
        return m_textes[static_cast<std::size_t>(rubrique)];
    }
    bool operator==(const Album &) const = default;
    bool a(Rubrique rubrique) const { return !(*this)[rubrique].trimmed().isEmpty(); }

private:
    std::array<QString, NombreDeRubriques> m_textes;
};
