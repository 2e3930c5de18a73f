#pragma once

#include <QWidget>

/// A grade as one to five stars; 0 is no grade. A value that is no grade is shown as the text it is.
class Etoiles : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int valeur READ valeur WRITE poserValeur NOTIFY valeurChangee)

public:
    explicit Etoiles(QWidget *parent = nullptr);

    int valeur() const { return m_valeur; }
    void poserValeur(int valeur);
    /// Shows a text instead of stars.
    void poserTexte(const QString &texte);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void valeurChangee(int valeur);
    /// The user gave a grade, by a click on a star or a digit.
    void choisie(int valeur);

protected:
    void paintEvent(QPaintEvent *) override;
    void mouseReleaseEvent(QMouseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    int m_valeur = 0;
    QString m_texte;
};
