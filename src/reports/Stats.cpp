#include "reports/Stats.h"

#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/VueWeb.h"
#include "reports/Statistiques.h"

#include <QDesktopServices>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
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
    m_web = new VueWeb(FabriqueWeb::Acces::Fichier, this);
    page->addWidget(m_web, 1);
    m_notice = nommer(new QLabel(this), QStringLiteral("Notice"));
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setWordWrap(true);
    m_notice->setForegroundRole(QPalette::PlaceholderText);
    m_notice->hide();
    page->addWidget(m_notice, 1);
    construirePied(page);
    Stats::Traduire();
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
    if (!chemin.isEmpty())
        montrer(chemin);
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
    m_progression->setAccessibleName(texte(Txt::ChargementEnCours));
    libeller(m_annuler, tr("Annuler"));
    libeller(m_calculer, tr("Recalculer"));
    libeller(m_mini, texte(Txt::Minimiser));
    libeller(m_quit, texte(Txt::Fermer));
}
