#pragma once

#include "model/PreparerInfosAlbum.h"

#include <QWidget>

/// A series as a strip of its tomes: those owned, the one shown, and the holes. A click on an owned one asks
/// for it. A long series shows the stretch around the tome shown; a sign at an end that is cut says how many there are beyond,
/// and shows them when it is clicked.
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
    int caseSous(const QPoint &point) const;
    int albumDe(int i) const;
    int cachees(int i) const;
    int parLigne() const;
    int rangDuCourant() const;
    void cadrer(int milieu);
    void derouler(int sens);
    void peindrePlace(QPainter &p, const QRectF &cadre, const InfosAlbum::Place &place) const;
    void peindreCoupe(QPainter &p, int i) const;

    std::vector<InfosAlbum::Place> m_bande;
    int m_courant = 0;
    int m_premiere = 0;
    int m_visibles = 0;
};
