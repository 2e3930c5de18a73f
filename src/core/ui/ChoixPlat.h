#pragma once

#include <QComboBox>

/// A choice among a few words that reads like a value of the sheet, with an arrow behind it.
class ChoixPlat : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoixPlat(QWidget *parent = nullptr);

    /// Whether a missing value is shown by the dots, which it is unless told otherwise.
    void poserPointilles(bool pointilles) { m_pointilles = pointilles; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    /// A turn of the wheel scrolls the sheet; it never changes a value.
    void wheelEvent(QWheelEvent *evenement) override;
    void enterEvent(QEnterEvent *evenement) override;
    void leaveEvent(QEvent *evenement) override;

private:
    bool m_pointilles = true;
};
