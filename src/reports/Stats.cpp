#include "reports/Stats.h"

#include "acts/Demandes.h"
#include "core/Traduction.h"
#include "core/ui/Carte.h"
#include "core/ui/Fond.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/VueWeb.h"
#include "model/General.h"
#include "model/Montant.h"
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
constexpr qreal TailleDesTotaux = 2.2;
/// In the order of the tabs.
enum Onglet { OngletEnsemble, OngletPage, PremierGraphique };

}

Stats::Stats(Demandes &demandes)
    : FormeOutil(QStringLiteral("Stats"), TailleDessinee, Mini | Progression)
    , m_demandes(demandes)
{
    Fond::Tapisser(this);
    m_onglets = nommer(new QTabWidget(this), QStringLiteral("Onglets"));
    m_onglets->setDocumentMode(true);
    m_onglets->addTab(construireTotaux(), {});
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

/// What there is, in large figures, over the years in which it appeared.
QWidget *Stats::construireTotaux()
{
    auto *zone = new QWidget(m_onglets);
    auto *page = new QVBoxLayout(zone);
    page->setContentsMargins(0, Theme::Moyen, 0, 0);
    auto *ligne = new QHBoxLayout;
    ligne->setSpacing(Theme::Moyen);
    for (std::size_t i = 0; i < m_totaux.size(); ++i) {
        auto *carte = new Carte(zone);
        auto *colonne = new QVBoxLayout(carte);
        m_totaux[i] = nommer(new QLabel(carte), QStringLiteral("Total"), static_cast<int>(i));
        m_totaux[i]->setFont(Theme::Taille(font(), TailleDesTotaux, QFont::Bold));
        m_totaux[i]->setForegroundRole(QPalette::LinkVisited);
        m_legendes[i] = new QLabel(carte);
        m_legendes[i]->setForegroundRole(QPalette::PlaceholderText);
        colonne->addWidget(m_totaux[i]);
        colonne->addWidget(m_legendes[i]);
        ligne->addWidget(carte, 1);
    }
    page->addLayout(ligne);
    page->addWidget(construireGraphique(m_ensemble, QStringLiteral("Ensemble")), 1);
    return zone;
}

void Stats::construireGraphiques()
{
    for (std::size_t i = 0; i < m_graphiques.size(); ++i)
        m_onglets->addTab(construireGraphique(m_graphiques[i], QStringLiteral("Graphique(%1)").arg(i)), {});
}

QWidget *Stats::construireGraphique(Graphique *&graphique, const QString &nom)
{
    auto *defilement = new QScrollArea(m_onglets);
    defilement->setWidgetResizable(true);
    defilement->setFrameShape(QFrame::NoFrame);
    defilement->setFocusPolicy(Qt::NoFocus);
    graphique = nommer(new Graphique, nom);
    defilement->setWidget(graphique);
    // On panels with a texture the chart lies on it, as everything does.
    defilement->viewport()->setAutoFillBackground(false);
    graphique->setAutoFillBackground(false);
    connect(
        graphique, &Graphique::partChoisie, this, [this, trace = graphique](const Repartition::Part &part) {
            const auto libelle = [sujet = trace->donnees().sujet, nom = part.libelle] {
                return Repartition::Titre(sujet) + QStringLiteral(" : ") + nom;
            };
            Q_EMIT m_demandes.selection(libelle, part.albums);
        });
    return defilement;
}

/// Each tab is filled when it is first looked at.
void Stats::tracer()
{
    const int onglet = m_onglets->currentIndex();
    if (onglet == OngletEnsemble)
        return compter();
    const int rang = onglet - PremierGraphique;
    const auto i = static_cast<std::size_t>(rang);
    if (rang < 0 || m_traces[i])
        return;
    m_traces[i] = true;
    m_graphiques[i]->montrer(Repartition::Lire(static_cast<Repartition::Sujet>(rang)));
}

void Stats::compter()
{
    const QLocale &locale = Traduction::courant().locale();
    const General::Totaux totaux = General::LireTotaux();
    const QString figures[] = {locale.toString(totaux.albums), locale.toString(totaux.series),
        Montant::Montrer(totaux.valeur) + u' ' + texte(Txt::Euro),
        locale.toString(General::LirePretes().size())};
    for (std::size_t i = 0; i < m_totaux.size(); ++i)
        m_totaux[i]->setText(figures[i]);
    m_ensemble->montrer(Repartition::Lire(Repartition::Sujet::Decennies));
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
    const QString legendes[]
        = {texte(Txt::AlbumsDeBD), texte(Txt::Series), tr("Prix d'achat"), tr("Albums prêtés")};
    for (std::size_t i = 0; i < m_legendes.size(); ++i)
        m_legendes[i]->setText(legendes[i]);
    const QString onglets[] = {tr("Vue d'ensemble"), tr("Page"), tr("Genres"), tr("Éditeurs"),
        tr("Décennies"), tr("Croissance"), tr("Valeur")};
    for (int i = 0; i < m_onglets->count(); ++i)
        m_onglets->setTabText(i, onglets[i]);
    m_onglets->setAccessibleName(texte(Txt::Statistiques));
    m_traces = {};
    if (isVisible())
        tracer();
    libeller(m_calculer, tr("Recalculer"));
}
