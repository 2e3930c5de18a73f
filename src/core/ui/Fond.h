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

    /// Shows a picture, or none for an empty path. In squares it is repeated, else stretched.
    void poser(const QString &chemin, bool carreaux);

    /// Shows the picture of the settings.
    void charger();

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QImage m_texture;
    bool m_carreaux = false;
};
