#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

/// What must be known of the online catalogue before it can be browsed: its address and its home page.
class AccesBDNet : public QWidget
{
    Q_OBJECT

public:
    explicit AccesBDNet(QWidget *parent);

    /// Shows what the settings hold, and says what is missing; `navigateur` tells whether there is a browser.
    void montrer(bool navigateur);
    void Traduire();

Q_SIGNALS:
    /// Both were stored.
    void enregistre();
    /// One of them is no address of the web; the reason is one line.
    void refuse(const QString &raison);

private:
    void enregistrer();
    void suivre();

    QLabel *m_notice = nullptr;
    QLabel *m_libelleHote = nullptr;
    QLabel *m_libelleAccueil = nullptr;
    QLineEdit *m_hote = nullptr;
    QLineEdit *m_accueil = nullptr;
    QPushButton *m_enregistrer = nullptr;
    bool m_navigateur = false;
};
