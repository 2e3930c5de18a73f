#pragma once

#include "core/ui/FormeOutil.h"
#include "reports/Repartition.h"

#include <array>

class Demandes;
class Graphique;
class QLabel;
class QPushButton;
class QTabWidget;
class VueWeb;

/// The collection in figures: totals with a chart, the statistics page, computed when the form opens and anew on demand,
/// and charts, whose bars show their albums in the main window.
class Stats : public FormeOutil
{
    Q_OBJECT

public:
    explicit Stats(Demandes &demandes);

    /// Computes the page and shows it. Throws Error.
    void charger() override;

protected:
    void Traduire() override;

private:
    QWidget *construireTotaux();
    QWidget *construirePage();
    void construireGraphiques();
    QWidget *construireGraphique(Graphique *&graphique, const QString &nom);
    void compter();
    void tracer();
    void montrer(const QString &chemin);

    Demandes &m_demandes;
    QTabWidget *m_onglets = nullptr;
    std::array<QLabel *, 4> m_totaux{};
    std::array<QLabel *, 4> m_legendes{};
    Graphique *m_ensemble = nullptr;
    std::array<Graphique *, Repartition::NombreDeSujets> m_graphiques{};
    std::array<bool, Repartition::NombreDeSujets> m_traces{}; ///< charts that show the collection as it is
    VueWeb *m_web = nullptr;
    QLabel *m_notice = nullptr;
    QPushButton *m_calculer = nullptr;
};
