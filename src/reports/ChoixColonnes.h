#pragma once

#include "reports/Listage.h"

#include <QWidget>

class QCheckBox;
class QPushButton;
class QScrollArea;
class TitreGroupe;

/// The columns of a list as boxes to tick. What is ticked is kept for each kind of sheet.
class ChoixColonnes : public QWidget
{
    Q_OBJECT

public:
    explicit ChoixColonnes(QWidget *parent);

    /// Offers the columns of a kind, those ticked that were so last, or else those proposed.
    void proposer(General::Tri tri);
    bool estPose() const { return !m_cases.empty(); }
    /// The columns ticked, in their order.
    std::vector<Listage::Colonne> choisies() const;
    void Traduire();

Q_SIGNALS:
    void change();

private:
    QStringList memorisees() const;
    void memoriser();
    void cocherToutes(bool cochees);

    General::Tri m_tri = General::Tri::Albums;
    std::vector<Listage::Colonne> m_colonnes;
    std::vector<QCheckBox *> m_cases;
    TitreGroupe *m_titre = nullptr;
    QScrollArea *m_zone = nullptr;
    QPushButton *m_toutes = nullptr;
    QPushButton *m_aucune = nullptr;
};
