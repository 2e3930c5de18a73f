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

    /// Full path of the background picture of the settings, or empty.
    static QString CheminChoisi();
    /// Shows the picture of the settings; `carreaux` tiles it instead of stretching it.
    void charger();

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QImage m_texture;
    bool m_carreaux = false;
};
