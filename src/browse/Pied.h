#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

/// The foot of the main window: status line, the hint that catches the eye while the window is in front, and
/// what the collection amounts to.
class Pied : public QWidget
{
    Q_OBJECT

public:
    explicit Pied(QWidget *parent);

    void dire(const QString &message);
    /// Reads the totals anew. Throws Error.
    void poserTotaux();
    /// Lets the hint change colour once a second, or stops it.
    void animer(bool actif);
    /// The user has found what it tells of: it does not come again.
    void oublierIndice();
    void Traduire();

private:
    void changerCouleur();

    QLabel *m_message = nullptr;
    QLabel *m_anim = nullptr;
    QLabel *m_totaux = nullptr;
    QTimer m_timer;
};
