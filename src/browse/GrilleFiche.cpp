#include "browse/GrilleFiche.h"

#include "core/Traduction.h"
#include "core/ui/Legende.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QGridLayout>

GrilleFiche::GrilleFiche(const Colonne &gauche, const Colonne &droite, QWidget *parent)
    : QWidget(parent)
    , m_colonnes{gauche, droite}
    , m_place(new QGridLayout(this))
{
    m_place->setContentsMargins(0, Theme::Fin, 0, 0);
    m_place->setHorizontalSpacing(Theme::Petit);
    m_place->setVerticalSpacing(1);
    m_place->setColumnStretch(0, 1);
    m_place->setColumnStretch(1, 1);
}

void GrilleFiche::ajouterLigne()
{
    const int rang = static_cast<int>(m_cellules[0].size());
    for (int i = 0; i < 2; ++i) {
        auto *cellule = nommer(new Legende(this), m_colonnes[i].nom, rang);
        cellule->setAccessibleName(texte(m_colonnes[i].libelle));
        m_place->addWidget(cellule, rang, i);
        // The keyboard walks the lines as the eye does, not in the order in which they were made.
        if (m_derniere)
            setTabOrder(m_derniere, cellule);
        m_derniere = cellule;
        m_cellules[i].push_back(cellule);
        connect(cellule, &Legende::actionnee, this, [this, cellule] { Q_EMIT celluleActionnee(cellule); });
        Q_EMIT celluleFaite(cellule);
    }
}

void GrilleFiche::montrer(const std::vector<std::pair<QString, QString>> &lignes)
{
    const std::size_t voulues = lignes.size() + 1;
    while (m_cellules[0].size() < voulues)
        ajouterLigne();
    // A line that goes leaves the keyboard to the last one.
    for (const auto &colonne : m_cellules) {
        for (std::size_t i = voulues; i < colonne.size(); ++i) {
            if (colonne[i]->hasFocus())
                colonne[voulues - 1]->setFocus();
        }
    }
    for (std::size_t i = 0; i < m_cellules[0].size(); ++i) {
        m_cellules[0][i]->montrer(i < lignes.size() ? lignes[i].first : QString());
        m_cellules[1][i]->montrer(i < lignes.size() ? lignes[i].second : QString());
        m_cellules[0][i]->setVisible(i < voulues);
        m_cellules[1][i]->setVisible(i < voulues);
    }
}

void GrilleFiche::Traduire()
{
    for (int i = 0; i < 2; ++i) {
        for (Legende *cellule : m_cellules[i])
            cellule->setAccessibleName(texte(m_colonnes[i].libelle));
    }
}

int GrilleFiche::rangDe(const Legende *cellule) const
{
    for (const auto &colonne : m_cellules) {
        const auto trouvee = std::find(colonne.begin(), colonne.end(), cellule);
        if (trouvee != colonne.end())
            return static_cast<int>(trouvee - colonne.begin());
    }
    return -1;
}

bool GrilleFiche::estSeconde(const Legende *cellule) const
{
    return std::find(m_cellules[1].begin(), m_cellules[1].end(), cellule) != m_cellules[1].end();
}
