#pragma once

#include <QLabel>

/// Title of a group of fields: small capitals over a thin line.
class TitreGroupe : public QLabel
{
    Q_OBJECT

public:
    explicit TitreGroupe(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};
