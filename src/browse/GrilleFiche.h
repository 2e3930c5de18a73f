#pragma once

#include "core/Txt.h"

#include <QWidget>
#include <vector>

class Legende;
class QGridLayout;

/// Two columns of values that grow with what they show and keep an empty last line to enter the next one.
class GrilleFiche : public QWidget
{
    Q_OBJECT

public:
    struct Colonne
    {
        QString nom; ///< of the cells: "Mois" for "Mois(0)", "Mois(1)", ...
        Txt libelle;
    };
    GrilleFiche(const Colonne &gauche, const Colonne &droite, QWidget *parent);

    void montrer(const std::vector<std::pair<QString, QString>> &lignes);
    void Traduire();
    /// The line of a cell.
    int rangDe(const Legende *cellule) const;
    /// True for a cell of the right column.
    bool estSeconde(const Legende *cellule) const;

Q_SIGNALS:
    void celluleFaite(Legende *cellule);
    void celluleActionnee(Legende *cellule);

private:
    void ajouterLigne();

    Colonne m_colonnes[2];
    QGridLayout *m_place = nullptr;
    std::vector<Legende *> m_cellules[2];
    Legende *m_derniere = nullptr;
};
