#pragma once

#include <QToolButton>

/// A group in the left column of the launcher: its name at the left, on paper when it is the one shown.
class BoutonGroupe : public QToolButton
{
    Q_OBJECT

public:
    explicit BoutonGroupe(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *) override;
};

/// A large button of the launcher, with an edge, so that it seems to stand out.
class GrosBouton : public QToolButton
{
    Q_OBJECT

public:
    explicit GrosBouton(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};
