#pragma once

#include "model/PreparerInfosAlbum.h"

#include <QWidget>

/// A series as a strip of its tomes: those owned, the one shown, and the holes. A click on an owned one asks
/// for it. A long series shows the stretch around the tome shown.
class BandeSerie : public QWidget
{
    Q_OBJECT

public:
    explicit BandeSerie(QWidget *parent = nullptr);

    void montrer(const std::vector<InfosAlbum::Place> &bande, int courant);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void albumDemande(int num);

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void mouseReleaseEvent(QMouseEvent *evenement) override;
    void mouseMoveEvent(QMouseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    QRect caseDe(int rang) const;
    int rangSous(const QPoint &point) const;
    void cadrer();

    std::vector<InfosAlbum::Place> m_bande;
    int m_courant = 0;
    int m_premiere = 0;
    int m_visibles = 0;
};
