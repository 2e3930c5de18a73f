#include "reports/Stats.h"

#include "acts/Demandes.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/VueWeb.h"
#include "reports/Graphique.h"
#include "reports/Statistiques.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(900, 700);

}

Stats::Stats(Demandes &demandes)
    : FormeOutil(QStringLiteral("Stats"), TailleDessinee, Mini | Progression)
    , m_demandes(demandes)
{
    m_onglets = nommer(new QTabWidget(this), QStringLiteral("Onglets"));
    m_onglets->setDocumentMode(true);
    m_onglets->addTab(construirePage(), {});
    construireGraphiques();
    corps()->addWidget(m_onglets, 1);
    connect(m_onglets, &QTabWidget::currentChanged, this, &Stats::tracer, Qt::QueuedConnection);
    m_calculer = ajouterAuPied(QStringLiteral("Calculer"));
    connect(m_calculer, &QPushButton::clicked, this, &Stats::charger);
    Stats::Traduire();
}

QWidget *Stats::construirePage()
{
    auto *zone = new QWidget(m_onglets);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, Theme::Petit, 0, 0);
    m_web = new VueWeb(FabriqueWeb::Acces::Fichier, zone);
    colonne->addWidget(m_web, 1);
    m_notice = nommer(new QLabel(zone), QStringLiteral("Notice"));
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setWordWrap(true);
    m_notice->setForegroundRole(QPalette::PlaceholderText);
    m_notice->hide();
    colonne->addWidget(m_notice, 1);
    return zone;
}

void Stats::construireGraphiques()
{
    for (std::size_t i = 0; i < m_graphiques.size(); ++i) {
        auto *defilement = new QScrollArea(m_onglets);
        defilement->setWidgetResizable(true);
        defilement->setFrameShape(QFrame::NoFrame);
        defilement->setFocusPolicy(Qt::NoFocus);
        m_graphiques[i] = nommer(new Graphique, QStringLiteral("Graphique"), static_cast<int>(i));
        defilement->setWidget(m_graphiques[i]);
        m_onglets->addTab(defilement, {});
        connect(m_graphiques[i], &Graphique::partChoisie, this, [this, i](const Repartition::Part &part) {
            Q_EMIT m_demandes.selection(
                m_graphiques[i]->donnees().titre + QStringLiteral(" : ") + part.libelle, part.albums);
        });
    }
}

/// Each chart is drawn when it is first looked at.
void Stats::tracer()
{
    const int rang = m_onglets->currentIndex() - 1;
    const auto i = static_cast<std::size_t>(rang);
    if (rang < 0 || m_traces[i])
        return;
    m_traces[i] = true;
    m_graphiques[i]->montrer(Repartition::Lire(static_cast<Repartition::Sujet>(rang)));
}

void Stats::charger()
{
    QString chemin;
    {
        Suivi suivi(progression(), annuler());
        chemin = Statistiques::Calculer([&](int pourcent) { return suivi.avancer(pourcent); });
    }
    m_traces = {};
    if (!chemin.isEmpty())
        montrer(chemin);
    tracer();
}

/// In the form where there is a browser engine, else in the desktop's browser.
void Stats::montrer(const QString &chemin)
{
    const bool navigateur = m_web->preparer();
    m_web->setVisible(navigateur);
    m_notice->setVisible(!navigateur);
    const QUrl url = QUrl::fromLocalFile(chemin);
    if (navigateur)
        return m_web->aller(url);
    m_notice->setText(tr("La page est ouverte dans votre navigateur : %1").arg(chemin));
    if (!QDesktopServices::openUrl(url))
        m_notice->setText(tr("La page est écrite, mais aucun programme ne l'ouvre : %1").arg(chemin));
}

void Stats::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::Statistiques));
    const QString onglets[]
        = {tr("Page"), tr("Genres"), tr("Éditeurs"), tr("Décennies"), tr("Croissance"), tr("Valeur")};
    for (int i = 0; i < m_onglets->count(); ++i)
        m_onglets->setTabText(i, onglets[i]);
    m_onglets->setAccessibleName(texte(Txt::Statistiques));
    m_traces = {};
    if (isVisible())
        tracer();
    libeller(m_calculer, tr("Recalculer"));
}
