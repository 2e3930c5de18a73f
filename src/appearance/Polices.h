#pragma once

#include "core/ui/FormeOutil.h"

#include <QColor>
#include <array>

class Demandes;
class QCheckBox;
class QComboBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

/// The font and the colour of lists and sheets, shown live on a sample; beside them whether windows are light or
/// dark.
class Polices : public FormeOutil
{
    Q_OBJECT

public:
    explicit Polices(Demandes &demandes);

    /// Shows what the settings hold.
    void charger() override;

protected:
    void Traduire() override;

private:
    void construireListes();
    QWidget *construireOptions();
    void construireExemple();
    void brancher();
    void choisirCouleur();
    void poserCouleur(const QColor &couleur);
    void montrerExemple();
    void valider();

    Demandes &m_demandes;
    QTreeWidget *m_police = nullptr;
    QTreeWidget *m_taille = nullptr;
    std::array<QCheckBox *, 2> m_options{};
    QPushButton *m_couleur = nullptr;
    QPushButton *m_sansCouleur = nullptr;
    QLabel *m_libelleTheme = nullptr;
    QComboBox *m_theme = nullptr;
    QLabel *m_exemple = nullptr;
    QPushButton *m_valider = nullptr;

    QFont m_choisie;
    QColor m_encre; ///< invalid for the theme's own
};
