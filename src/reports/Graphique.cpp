#include "reports/Graphique.h"

#include "core/Traduction.h"
#include "core/ui/Legende.h"
#include "core/ui/Theme.h"
#include "model/Montant.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QHorizontalBarSeries>
#include <QKeyEvent>
#include <QLegend>
#include <QLineSeries>
#include <QPainter>
#include <QToolTip>
#include <QValueAxis>

namespace {

constexpr int HauteurBarre = 26;
constexpr int HauteurAutour = 150;
constexpr int HauteurMoindre = 360;
/// From so many bars on their names are set aslant, and their figures left out.
constexpr int BarresNombreuses = 13;
constexpr int Penchant = -60;

}

Graphique::Graphique(QWidget *parent)
    : QChartView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(HauteurMoindre);
    viewport()->setAutoFillBackground(false);
    chart()->setBackgroundVisible(false);
    chart()->legend()->setAlignment(Qt::AlignBottom);
}

void Graphique::montrer(const Repartition::Graphique &donnees)
{
    m_donnees = donnees;
    m_designee = -1;
    m_barres = nullptr;
    chart()->removeAllSeries();
    for (QAbstractAxis *axe : chart()->axes()) {
        chart()->removeAxis(axe);
        delete axe;
    }
    chart()->setTitle(Repartition::Titre(donnees.sujet));
    setAccessibleName(Repartition::Titre(donnees.sujet));
    const int barres = static_cast<int>(donnees.parts.size());
    setMinimumHeight(
        donnees.periodes ? HauteurMoindre : std::max(HauteurMoindre, HauteurAutour + HauteurBarre * barres));
    chart()->legend()->setVisible(donnees.series.size() > 1);
    if (donnees.parts.empty())
        return;
    poserBarres();
    poserAxes();
    colorer();
}

int Graphique::barreDe(int rang) const
{
    return m_donnees.periodes ? rang : static_cast<int>(m_donnees.parts.size()) - 1 - rang;
}

void Graphique::poserBarres()
{
    const int nombre = static_cast<int>(m_donnees.parts.size());
    m_barres = m_donnees.periodes ? static_cast<QAbstractBarSeries *>(new QBarSeries(chart()))
                                  : new QHorizontalBarSeries(chart());
    m_barres->setBarWidth(0.7);
    for (std::size_t serie = 0; serie < m_donnees.series.size(); ++serie) {
        if (m_donnees.series[serie].cumulee)
            continue;
        auto *barres = new QBarSet(m_donnees.series[serie].libelle, m_barres);
        for (int i = 0; i < nombre; ++i)
            barres->append(m_donnees.parts[static_cast<std::size_t>(barreDe(i))].valeurs[serie]);
        m_barres->append(barres);
    }
    m_barres->setLabelsVisible(nombre < BarresNombreuses || !m_donnees.periodes);
    m_barres->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
    m_barres->setLabelsPrecision(7);
    chart()->addSeries(m_barres);
    connect(m_barres, &QAbstractBarSeries::clicked, this, [this](int barre) { choisir(barreDe(barre)); });
    connect(m_barres, &QAbstractBarSeries::hovered, this, [this](bool dessus, int barre) {
        viewport()->setCursor(dessus ? Qt::PointingHandCursor : Qt::ArrowCursor);
        QToolTip::showText(QCursor::pos(), dessus ? legende(barreDe(barre)) : QString(), this);
    });
}

void Graphique::poserAxes()
{
    const int nombre = static_cast<int>(m_donnees.parts.size());
    auto *categories = new QBarCategoryAxis;
    for (int i = 0; i < nombre; ++i) {
        const Repartition::Part &part = m_donnees.parts[static_cast<std::size_t>(barreDe(i))];
        QString libelle = part.abrege.isEmpty() ? part.libelle : part.abrege;
        // The axis takes a name only once; an entry may bear that of those that belong nowhere.
        while (categories->categories().contains(libelle))
            libelle += QChar(0x200B);
        categories->append(libelle);
    }
    if (m_donnees.periodes && nombre >= BarresNombreuses)
        categories->setLabelsAngle(Penchant);
    categories->setTruncateLabels(false);
    categories->setGridLineVisible(false);
    auto *valeurs = new QValueAxis;
    valeurs->setLabelFormat(QStringLiteral("%.0f"));
    double plusGrande = 1;
    for (const Repartition::Part &part : m_donnees.parts) {
        for (std::size_t i = 0; i < part.valeurs.size(); ++i)
            plusGrande = std::max(plusGrande, part.valeurs[i]);
    }
    // Room for the figure at the end of the longest bar.
    valeurs->setRange(0, plusGrande * 1.12);
    valeurs->applyNiceNumbers();
    chart()->addAxis(categories, m_donnees.periodes ? Qt::AlignBottom : Qt::AlignLeft);
    chart()->addAxis(valeurs, m_donnees.periodes ? Qt::AlignLeft : Qt::AlignBottom);
    m_barres->attachAxis(categories);
    m_barres->attachAxis(valeurs);
    poserCumul(valeurs);
}

/// A total that runs on is a line over the bars, on the same scale.
void Graphique::poserCumul(QAbstractAxis *valeurs)
{
    for (std::size_t serie = 0; serie < m_donnees.series.size(); ++serie) {
        if (!m_donnees.series[serie].cumulee)
            continue;
        auto *ligne = new QLineSeries(chart());
        ligne->setName(m_donnees.series[serie].libelle);
        ligne->setPointsVisible(true);
        for (std::size_t i = 0; i < m_donnees.parts.size(); ++i) {
            if (serie < m_donnees.parts[i].valeurs.size())
                ligne->append(static_cast<qreal>(i), m_donnees.parts[i].valeurs[serie]);
        }
        chart()->addSeries(ligne);
        ligne->attachAxis(m_barres->attachedAxes().constFirst());
        ligne->attachAxis(valeurs);
    }
}

/// All colours come from the palette, in light and dark alike.
void Graphique::colorer()
{
    const QPalette p = palette();
    chart()->setTitleBrush(Theme::Titre(p));
    chart()->setTitleFont(Theme::Taille(font(), 1.15, QFont::Bold));
    chart()->legend()->setLabelColor(Theme::Encre(p));
    chart()->legend()->setFont(font());
    for (QAbstractAxis *axe : chart()->axes()) {
        axe->setLabelsColor(Theme::Encre(p));
        axe->setLabelsFont(font());
        axe->setLinePenColor(Theme::Trait(p));
        axe->setGridLineColor(Theme::Survol(p));
    }
    for (QAbstractSeries *serie : chart()->series()) {
        if (auto *ligne = qobject_cast<QLineSeries *>(serie))
            ligne->setPen(QPen(Theme::Rouge(p), 2));
    }
    if (!m_barres)
        return;
    const QColor couleurs[] = {Theme::Bleu(p), Theme::Or()};
    const QList<QBarSet *> barres = m_barres->barSets();
    for (qsizetype i = 0; i < barres.size(); ++i) {
        barres[i]->setColor(couleurs[i % 2]);
        barres[i]->setBorderColor(Qt::transparent);
        barres[i]->setLabelColor(Theme::Encre(p));
        barres[i]->setLabelFont(font());
        barres[i]->setSelectedColor(Theme::Rouge(p));
    }
}

QString Graphique::nombre(double valeur) const
{
    const QLocale &locale = Traduction::courant().locale();
    return m_donnees.montants ? Montant::Montrer(valeur) + u' ' + texte(Txt::Euro)
                              : locale.toString(valeur, 'f', 0);
}

QString Graphique::legende(int rang) const
{
    const Repartition::Part &part = m_donnees.parts[static_cast<std::size_t>(rang)];
    QStringList lignes{part.libelle};
    for (std::size_t i = 0; i < part.valeurs.size(); ++i)
        lignes << QStringLiteral("%1 : %2").arg(m_donnees.series[i].libelle, nombre(part.valeurs[i]));
    return lignes.join(u'\n');
}

void Graphique::designer(int rang)
{
    m_designee = std::clamp(rang, 0, static_cast<int>(m_donnees.parts.size()) - 1);
    for (QBarSet *barres : m_barres->barSets()) {
        barres->deselectAllBars();
        barres->selectBar(barreDe(m_designee));
    }
    setAccessibleDescription(legende(m_designee));
    const QPoint coin = viewport()->mapToGlobal(QPoint(Theme::Grand, Theme::Grand));
    QToolTip::showText(coin, legende(m_designee), this);
}

void Graphique::choisir(int rang)
{
    const Repartition::Part &part = m_donnees.parts[static_cast<std::size_t>(rang)];
    if (!part.albums.empty())
        Q_EMIT partChoisie(part);
}

void Graphique::keyPressEvent(QKeyEvent *evenement)
{
    if (m_donnees.parts.empty())
        return QChartView::keyPressEvent(evenement);
    switch (evenement->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return designer(m_designee + 1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return designer(m_designee - 1);
    case Qt::Key_Home:
        return designer(0);
    case Qt::Key_End:
        return designer(static_cast<int>(m_donnees.parts.size()) - 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_designee >= 0)
            choisir(m_designee);
        return;
    default:
        QChartView::keyPressEvent(evenement);
    }
}

void Graphique::focusInEvent(QFocusEvent *evenement)
{
    QChartView::focusInEvent(evenement);
    viewport()->update();
}

void Graphique::focusOutEvent(QFocusEvent *evenement)
{
    QChartView::focusOutEvent(evenement);
    viewport()->update();
}

void Graphique::paintEvent(QPaintEvent *evenement)
{
    QChartView::paintEvent(evenement);
    if (!hasFocus())
        return;
    QPainter p(viewport());
    Legende::DessinerFocus(p, *viewport());
}

void Graphique::changeEvent(QEvent *evenement)
{
    QChartView::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange)
        colorer();
}
