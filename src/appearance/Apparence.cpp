#include "appearance/Apparence.h"

#include "acts/Demandes.h"
#include "appearance/PageTheme.h"
#include "appearance/Polices.h"
#include "appearance/Textures.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(760, 600);
/// The names by which the pages are asked for, in their order.
constexpr Formes::Nom NomsDesPages[] = {Formes::Nom::Apparence, Formes::Nom::Polices, Formes::Nom::Textures};

}

Apparence::Apparence(Demandes &demandes)
    : FormeOutil(QStringLiteral("Apparence"), TailleDessinee)
    , m_demandes(demandes)
{
    m_pages = nommer(new QTabWidget(this), QStringLiteral("Pages"));
    m_pages->setDocumentMode(true);
    ajouterPage(new PageTheme);
    ajouterPage(new Polices);
    ajouterPage(new Textures);
    corps()->addWidget(m_pages, 1);
    ajouterMessage()->setTextFormat(Qt::PlainText);
    m_valider = ajouterAuPied(QStringLiteral("Valider"), true);
    connect(m_valider, &QPushButton::clicked, this, &Apparence::valider);
    connect(m_pages, &QTabWidget::currentChanged, this, [this] { dire({}); });
    Apparence::Traduire();
}

void Apparence::ajouterPage(PageApparence *page)
{
    m_pages->addTab(page, {});
    connect(page, &PageApparence::reponse, this, [this](const QString &ligne) { dire(ligne); });
}

PageApparence *Apparence::pageDe(int rang) const
{
    return static_cast<PageApparence *>(m_pages->widget(rang));
}

bool Apparence::EstDemandee(Nom nom)
{
    return std::find(std::begin(NomsDesPages), std::end(NomsDesPages), nom) != std::end(NomsDesPages);
}

void Apparence::ouvrirPage(Nom nom)
{
    const auto *page = std::find(std::begin(NomsDesPages), std::end(NomsDesPages), nom);
    m_pages->setCurrentIndex(static_cast<int>(page - std::begin(NomsDesPages)));
    m_pages->currentWidget()->setFocus();
}

void Apparence::charger()
{
    dire({});
    for (int i = 0; i < m_pages->count(); ++i)
        pageDe(i)->charger();
    m_pages->currentWidget()->setFocus();
}

void Apparence::valider()
{
    PageApparence *page = pageDe(m_pages->currentIndex());
    page->valider();
    Q_EMIT m_demandes.apparence();
    page->charger();
}

void Apparence::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(tr("Apparence"));
    for (int i = 0; i < m_pages->count(); ++i) {
        pageDe(i)->Traduire();
        m_pages->setTabText(i, pageDe(i)->titre());
    }
    m_pages->setAccessibleName(tr("Apparence"));
    libeller(m_valider, texte(Txt::Appliquer));
}
