#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

class QAction;
class QToolButton;

/// A frame that shows the picture of a file, fitted into it. Decoding happens beside the window's work; until
/// the picture is there the one before stays, so that walking a list does not flicker.
class CadreImage : public QWidget
{
    Q_OBJECT

public:
    explicit CadreImage(QWidget *parent = nullptr);

    /// Shows the file of a stored picture name; a blank name or a missing file leaves the frame empty.
    void montrer(const QString &nom);
    /// What an empty frame says.
    void poserLegende(const QString &legende);
    /// True while a picture of a file is shown or under way.
    bool aUneImage() const { return !m_chemin.isEmpty(); }

    QSize sizeHint() const override { return {216, 288}; }

    /// A frame of a sheet: the keyboard comes to it, files are dropped on it and pictures pasted into it.
    void poserModifiable();
    /// Its picture can be taken away: by Delete, by the command of this name in its menu, by the cross in its corner.
    void poserRetrait(const QString &libelle);

Q_SIGNALS:
    /// Clicked, or Enter or Space was pressed on it.
    void actionnee();
    /// Its picture is to be opened: double click, or Enter.
    void ouvertureDemandee();
    /// Its picture is to be taken away.
    void retraitDemande();
    /// A picture was pasted with Ctrl+V.
    void imageCollee(const QImage &image);
    /// A file was dropped on the frame, when it accepts drops.
    void fichierDepose(const QString &chemin);

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void dragEnterEvent(QDragEnterEvent *evenement) override;
    void dropEvent(QDropEvent *evenement) override;
    void mouseReleaseEvent(QMouseEvent *evenement) override;
    void mouseDoubleClickEvent(QMouseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void demander();
    void recevoir(int generation, const QImage &image);
    void placerRetrait();

    QString m_chemin;
    QString m_legende;
    QImage m_image;
    QTimer m_attente;
    int m_generation = 0;
    QAction *m_retirer = nullptr;
    QToolButton *m_croix = nullptr;
};
