#pragma once

#include <QObject>

class QProgressBar;
class QPushButton;

/// Long work on the window's own thread: for as long as it lives the bar and the cancel button of a form are
/// shown, the windows go on painting, and no other input comes through.
class Suivi : public QObject
{
    Q_OBJECT

public:
    Suivi(QProgressBar *barre, QPushButton *annuler);
    ~Suivi() override;

    /// Shows how far the work is; false once the user has cancelled it.
    bool avancer(int pourcent);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    QProgressBar *m_barre;
    QPushButton *m_annuler;
    bool m_annule = false;
};
