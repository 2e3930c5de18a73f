#pragma once

#include <QLabel>

/// A value on a sheet: its text, or the dots as a leader where there is none. It never asks for more room than
/// it gets; a longer text ends in an ellipsis and stands whole in the tool tip.
class Legende : public QLabel
{
    Q_OBJECT

public:
    /// Room around a value, in device-independent pixels.
    static constexpr int MargeLaterale = 4;
    static constexpr int MargeVerticale = 2;
    /// The ring that shows where the keyboard is, the same on all that stands on a sheet.
    static void DessinerFocus(QPainter &p, const QWidget &valeur);

    explicit Legende(QWidget *parent = nullptr);

    /// Shows a value, or the dots for a blank one. The text of the label is what is shown.
    void montrer(const QString &valeur);
    /// The value leads elsewhere: it is drawn so, and has an arrow at its end; the tool tip says how to go there.
    void poserLien(const QString &explication);
    /// True while the dots are shown.
    bool estVide() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Clicked, or Enter or Space was pressed on it.
    void actionnee();
    /// What it leads to is to be opened: Ctrl+click, Ctrl+Enter, or a click on the arrow at its end.
    void ouvertureDemandee(const QString &adresse);

protected:
    void paintEvent(QPaintEvent *) override;
    void mouseReleaseEvent(QMouseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void enterEvent(QEnterEvent *evenement) override;
    void leaveEvent(QEvent *evenement) override;

private:
    bool mene() const { return m_lien && !estVide(); }
    QRect fleche() const;
    QRect placeDuTexte() const;
    QString ligne() const;
    bool estCoupee() const;
    void agir(bool ouvrir);

    bool m_lien = false;
    QString m_explication;
};
