#pragma once

#include <QWidget>

/// The card on which a sheet is written.
class Carte : public QWidget
{
    Q_OBJECT

public:
    explicit Carte(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *) override;
};
