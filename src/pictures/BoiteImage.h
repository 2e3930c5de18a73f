#pragma once

#include <QImage>
#include <QWidget>

/// A box that shows a picture held in memory, fitted into it.
class BoiteImage : public QWidget
{
    Q_OBJECT

public:
    explicit BoiteImage(QWidget *parent = nullptr);

    void montrer(const QImage &image);
    const QImage &image() const { return m_image; }
    /// What the empty box says.
    void poserLegende(const QString &legende);

Q_SIGNALS:
    void fichierDepose(const QString &chemin);

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void dragEnterEvent(QDragEnterEvent *evenement) override;
    void dropEvent(QDropEvent *evenement) override;

private:
    QImage m_image;
    QImage m_reduite; ///< at the size shown
    QString m_legende;
};
