#pragma once

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <string_view>
#include <vector>

/// The lines of a list: identifier and text of each. The texts stand in one block of UTF-8, so that a million
/// lines cost little more than their letters.
class Entrees
{
public:
    int size() const { return static_cast<int>(m_lignes.size()); }
    bool empty() const { return m_lignes.empty(); }
    int id(int rang) const { return m_lignes[static_cast<std::size_t>(rang)].id; }
    QString texte(int rang) const
    {
        const std::string_view octets = utf8(rang);
        return QString::fromUtf8(octets.data(), static_cast<qsizetype>(octets.size()));
    }
    /// The beginning of a text, of so many letters at most.
    QString debut(int rang, qsizetype lettres) const
    {
        constexpr std::size_t OctetsParLettre = 4;
        const std::string_view octets = utf8(rang);
        if (octets.size() <= static_cast<std::size_t>(lettres))
            return texte(rang);
        const std::string_view debut = octets.substr(0, OctetsParLettre * static_cast<std::size_t>(lettres));
        return QString::fromUtf8(debut.data(), static_cast<qsizetype>(debut.size())).left(lettres);
    }
    std::string_view utf8(int rang) const
    {
        const Ligne &ligne = m_lignes[static_cast<std::size_t>(rang)];
        return std::string_view(m_textes).substr(ligne.debut, ligne.longueur);
    }

    /// Adds a line; a text in several pieces is given piece by piece, with `prolonger`.
    void ajouter(int id, std::string_view texte)
    {
        m_lignes.push_back({id, static_cast<unsigned>(texte.size()), m_textes.size()});
        m_textes.append(texte);
    }
    void prolonger(std::string_view texte)
    {
        m_lignes.back().longueur += static_cast<unsigned>(texte.size());
        m_textes.append(texte);
    }
    /// Line of an identifier, or -1.
    int rang(int id) const
    {
        const auto trouvee
            = std::find_if(m_lignes.begin(), m_lignes.end(), [id](const Ligne &l) { return l.id == id; });
        return trouvee == m_lignes.end() ? -1 : static_cast<int>(trouvee - m_lignes.begin());
    }

private:
    struct Ligne
    {
        int id;
        unsigned longueur;
        std::size_t debut;
    };
    std::vector<Ligne> m_lignes;
    std::string m_textes;
};
