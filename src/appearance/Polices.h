#pragma once

#include "appearance/PageApparence.h"

#include <QColor>
#include <array>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The font and the colour of lists and sheets, shown live on a sample.
class Polices : public PageApparence
{
    Q_OBJECT

public:
    explicit Polices(QWidget *parent = nullptr);

    QString titre() const override;
    void Traduire() override;
    void charger() override;
    void valider() override;

private:
    QBoxLayout *construireListes();
    QWidget *construireOptions();
    QWidget *construireExemple();
    void brancher();
    void choisirCouleur();
    void poserCouleur(const QColor &couleur);
    void montrerExemple();

    QTreeWidget *m_police = nullptr;
    QTreeWidget *m_taille = nullptr;
    std::array<QCheckBox *, 2> m_options{};
    QPushButton *m_couleur = nullptr;
    QPushButton *m_sansCouleur = nullptr;
    QLabel *m_exemple = nullptr;

    QFont m_choisie;
    QColor m_encre; ///< invalid for the theme's own
};
