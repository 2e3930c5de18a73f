#pragma once

#include <QWidget>
#include <vector>

class Demandes;
class QLabel;
class QPushButton;

/// What stands in the place of a sheet when there is none; in an empty collection it says how to begin.
class Accueil : public QWidget
{
    Q_OBJECT

public:
    Accueil(Demandes &demandes, QWidget *parent);

    /// Shows the ways to begin, or just that nothing is chosen.
    void poserVierge(bool vierge);
    void Traduire();

private:
    QLabel *m_titre = nullptr;
    QLabel *m_texte = nullptr;
    QWidget *m_choix = nullptr;
    std::vector<QPushButton *> m_boutons;
    bool m_vierge = false;
};
