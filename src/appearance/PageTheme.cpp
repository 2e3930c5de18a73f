#include "appearance/PageTheme.h"

#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Carte.h"
#include "core/ui/Habillage.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

PageTheme::PageTheme(QWidget *parent)
    : PageApparence(parent)
{
    m_libelle = new QLabel(this);
    m_theme = nommer(new QComboBox(this), QStringLiteral("Theme"));
    m_theme->addItems({{}, {}, {}});
    m_libelle->setBuddy(m_theme);
    auto *ligne = new QHBoxLayout;
    ligne->addWidget(m_libelle);
    ligne->addWidget(m_theme);
    ligne->addStretch(1);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, Theme::Moyen, 0, 0);
    page->setSpacing(Theme::Moyen);
    page->addLayout(ligne);
    page->addWidget(construireExemple(), 1);
    setFocusProxy(m_theme);
    connect(m_theme, &QComboBox::currentIndexChanged, this, &PageTheme::montrerExemple);
}

QWidget *PageTheme::construireExemple()
{
    m_bureau = nommer(new QWidget(this), QStringLiteral("ExempleTheme"));
    m_bureau->setAutoFillBackground(true);
    m_bureau->setBackgroundRole(QPalette::Dark);
    auto *carte = new Carte(m_bureau);
    m_exemple = new QLabel(carte);
    m_exemple->setFont(Theme::Taille(font(), 1.6, QFont::Bold));
    m_exemple->setForegroundRole(QPalette::LinkVisited);
    m_ligne = new QLabel(carte);
    m_ligne->setWordWrap(true);
    m_ligne->setForegroundRole(QPalette::Text);
    auto *colonne = new QVBoxLayout(carte);
    colonne->addWidget(m_exemple);
    colonne->addWidget(m_ligne);
    colonne->addStretch(1);
    auto *bureau = new QVBoxLayout(m_bureau);
    bureau->setContentsMargins(Theme::Grand, Theme::Grand, Theme::Grand, Theme::Grand);
    bureau->addWidget(carte);
    return m_bureau;
}

QString PageTheme::titre() const
{
    return tr("Thème");
}

void PageTheme::Traduire()
{
    m_libelle->setText(tr("Fenêtres :"));
    m_theme->setAccessibleName(tr("Fenêtres claires ou sombres"));
    const QString choix[] = {tr("comme le bureau"), tr("claires"), tr("sombres")};
    for (int i = 0; i < m_theme->count(); ++i)
        m_theme->setItemText(i, choix[i]);
    m_exemple->setText(texte(Txt::Exemple));
    m_ligne->setText(texte(Txt::LeGestionnaireDeBDTheque));
}

void PageTheme::charger()
{
    m_theme->setCurrentIndex(std::clamp(Reglages::courant().entier(Cle::Theme), 0, 2));
    montrerExemple();
}

void PageTheme::montrerExemple()
{
    m_bureau->setPalette(Habillage::PaletteDe(static_cast<Theme::Choix>(m_theme->currentIndex())));
}

void PageTheme::valider()
{
    Reglages::courant().ecrire(Cle::Theme, m_theme->currentIndex());
    Habillage::Relire();
}
