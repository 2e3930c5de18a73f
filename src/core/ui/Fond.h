#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

/// The desk behind the sheets: plain, or the texture that the user chose, kept quiet by a veil, in the dark by little
/// light.
class Fond : public QWidget
{
    Q_OBJECT

public:
    explicit Fond(QWidget *parent = nullptr);

    /// Shows a picture, or none for an empty path. In squares it is repeated, else stretched.
    void poser(const QString &chemin, bool carreaux);

    /// Shows the picture of the settings.
    void charger();

    /// Lays the texture that the settings want on panels under all that a form holds, whenever the form is shown.
    static void Tapisser(QWidget *forme);

protected:
    void paintEvent(QPaintEvent *) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void poserSurPanneau();

    QImage m_texture;
    bool m_carreaux = false;
};
