#pragma once

#include "reports/Repartition.h"

#include <QChartView>

class QAbstractBarSeries;
class QAbstractAxis;
class QBarCategoryAxis;

/// A chart of how albums are spread. A click on a bar chooses it; so do the arrow keys and Enter.
class Graphique : public QChartView
{
    Q_OBJECT

public:
    explicit Graphique(QWidget *parent = nullptr);

    void montrer(const Repartition::Graphique &donnees);
    const Repartition::Graphique &donnees() const { return m_donnees; }

Q_SIGNALS:
    void partChoisie(const Repartition::Part &part);

protected:
    void keyPressEvent(QKeyEvent *evenement) override;
    void focusInEvent(QFocusEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;

private:
    void poserBarres();
    void poserAxes();
    void poserCumul(QAbstractAxis *categories);
    void colorer();
    void designer(int rang);
    void choisir(int rang);
    QString legende(int rang) const;
    QString nombre(double valeur) const;
    /// Bars of parts without an order of their own lie, the first on top: the chart counts them from below.
    int barreDe(int rang) const;

    Repartition::Graphique m_donnees;
    QAbstractBarSeries *m_barres = nullptr;
    int m_designee = -1; ///< where the keys stand
};
