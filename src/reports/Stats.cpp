#include "reports/Stats.h"

#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/VueWeb.h"
#include "reports/Graphique.h"
#include "reports/Statistiques.h"

#include <QDesktopServices>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(900, 700);

}

Stats::Stats()
    : Forme(QStringLiteral("Stats"))
{
    setWindowIcon(Icones::Programme());
    resize(TailleDessinee);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(Theme::Moyen, Theme::Moyen, Theme::Moyen, Theme::Moyen);
    page->setSpacing(Theme::Petit);
    m_titre = new QLabel(this);
    m_titre->setFont(Theme::Taille(font(), 1.3, QFont::Bold));
    m_titre->setForegroundRole(QPalette::Link);
    page->addWidget(m_titre);
    m_onglets = nommer(new QTabWidget(this), QStringLiteral("Onglets"));
    m_onglets->setDocumentMode(true);
    m_onglets->addTab(construirePage(), {});
    construireGraphiques();
    page->addWidget(m_onglets, 1);
    connect(m_onglets, &QTabWidget::currentChanged, this, &Stats::tracer, Qt::QueuedConnection);
    construirePied(page);
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
            Q_EMIT selectionDemandee(
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

void Stats::construirePied(QBoxLayout *page)
{
    auto *pied = new QHBoxLayout;
    m_progression = nommer(new QProgressBar(this), QStringLiteral("Progression"));
    m_progression->setTextVisible(false);
    m_annuler = nommer(new QPushButton(this), QStringLiteral("Annuler"));
    m_calculer = nommer(new QPushButton(this), QStringLiteral("Calculer"));
    m_mini = nommer(new QPushButton(this), QStringLiteral("Mini"));
    m_quit = nommer(new QPushButton(this), QStringLiteral("Quit"));
    pied->addWidget(m_progression, 1);
    pied->addWidget(m_annuler);
    pied->addStretch(1);
    for (QPushButton *bouton : {m_calculer, m_mini, m_quit}) {
        bouton->setMinimumSize(96, 32);
        pied->addWidget(bouton);
    }
    page->addLayout(pied);
    m_progression->hide();
    m_annuler->hide();
    connect(m_calculer, &QPushButton::clicked, this, &Stats::charger);
    connect(m_mini, &QPushButton::clicked, this, &QWidget::showMinimized);
    connect(m_quit, &QPushButton::clicked, this, &QWidget::close);
}

void Stats::charger()
{
    QString chemin;
    {
        Suivi suivi(m_progression, m_annuler);
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
    setWindowTitle(texte(Txt::Statistiques) + QStringLiteral(" - ") + titre());
    m_titre->setText(texte(Txt::Statistiques));
    const QString onglets[]
        = {tr("Page"), tr("Genres"), tr("Éditeurs"), tr("Décennies"), tr("Croissance"), tr("Valeur")};
    for (int i = 0; i < m_onglets->count(); ++i)
        m_onglets->setTabText(i, onglets[i]);
    m_onglets->setAccessibleName(texte(Txt::Statistiques));
    m_traces = {};
    if (isVisible())
        tracer();
    m_progression->setAccessibleName(texte(Txt::ChargementEnCours));
    libeller(m_annuler, tr("Annuler"));
    libeller(m_calculer, tr("Recalculer"));
    libeller(m_mini, texte(Txt::Minimiser));
    libeller(m_quit, texte(Txt::Fermer));
}
