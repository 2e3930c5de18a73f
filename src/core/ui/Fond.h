#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

/// The desk behind the sheets: plain, or the texture that the user chose, under a veil that keeps it quiet.
class Fond : public QWidget
{
    Q_OBJECT

public:
    explicit Fond(QWidget *parent = nullptr);

    /// Full path of the n-th texture of "Fond Ecran", by name; empty for 0 and beyond the last.
    static QString Texture(int rang);
    /// Shows a picture, or none for an empty path. In squares it is repeated, else stretched.
    void poser(const QString &chemin, bool carreaux);

    /// Full path of the background picture of the settings, or empty.
    static QString CheminChoisi();
    /// Shows the picture of the settings.
    void charger();

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QImage m_texture;
    bool m_carreaux = false;
};
