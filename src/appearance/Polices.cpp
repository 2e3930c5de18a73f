#include "appearance/Polices.h"

#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int LargeurTailles = 110;
constexpr int HauteurExemple = 110;
constexpr const char *Tailles[] = {"08", "09", "10", "11", "12", "14", "16", "18", "20"};

QTreeWidget *liste(const char *nom, QWidget *parent)
{
    auto *liste = nommer(new QTreeWidget(parent), QLatin1String(nom));
    liste->setRootIsDecorated(false);
    liste->setUniformRowHeights(true);
    liste->setAllColumnsShowFocus(true);
    liste->setAlternatingRowColors(true);
    return liste;
}

void mettreEnGras(QTreeWidgetItem *ligne, bool gras)
{
    QFont police = ligne->font(0);
    police.setBold(gras);
    ligne->setFont(0, police);
}

/// A colour as the settings keep it: red in the lowest byte, 0 for the theme's own.
int nombreDe(const QColor &couleur)
{
    return couleur.isValid() ? couleur.red() | couleur.green() << 8 | couleur.blue() << 16 : 0;
}

}

Polices::Polices(QWidget *parent)
    : PageApparence(parent)
{
    setObjectName(QStringLiteral("Polices"));
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, Theme::Moyen, 0, 0);
    page->setSpacing(Theme::Moyen);
    page->addLayout(construireListes(), 1);
    page->addWidget(construireOptions());
    page->addWidget(construireExemple());
    setFocusProxy(m_police);
    brancher();
}

QBoxLayout *Polices::construireListes()
{
    auto *listes = new QHBoxLayout;
    listes->setSpacing(Theme::Moyen);
    m_police = liste("Police", this);
    for (const QString &famille : QFontDatabase::families())
        m_police->addTopLevelItem(new QTreeWidgetItem({famille}));
    m_taille = liste("Taille", this);
    m_taille->setFixedWidth(LargeurTailles);
    for (const char *taille : Tailles)
        m_taille->addTopLevelItem(new QTreeWidgetItem({QLatin1String(taille)}));
    listes->addWidget(m_police, 1);
    listes->addWidget(m_taille);
    return listes;
}

QWidget *Polices::construireOptions()
{
    auto *zone = new QWidget(this);
    auto *ligne = new QHBoxLayout(zone);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(Theme::Petit);
    for (std::size_t i = 0; i < m_options.size(); ++i) {
        m_options[i] = nommer(new QCheckBox(zone), QStringLiteral("Options"), static_cast<int>(i));
        ligne->addWidget(m_options[i]);
    }
    m_couleur = nommer(new QPushButton(zone), QStringLiteral("Couleur"));
    m_sansCouleur = nommer(new QPushButton(zone), QStringLiteral("SansCouleur"));
    ligne->addWidget(m_couleur);
    ligne->addWidget(m_sansCouleur);
    ligne->addStretch(1);
    return zone;
}

QWidget *Polices::construireExemple()
{
    m_exemple = nommer(new QLabel(this), QStringLiteral("TExemple"));
    m_exemple->setAlignment(Qt::AlignCenter);
    m_exemple->setWordWrap(true);
    m_exemple->setMinimumHeight(HauteurExemple);
    m_exemple->setAutoFillBackground(true);
    m_exemple->setBackgroundRole(QPalette::Base);
    m_exemple->setFrameShape(QFrame::StyledPanel);
    return m_exemple;
}

void Polices::brancher()
{
    // The selection, not the current line: that comes with the focus alone.
    connect(m_police, &QTreeWidget::itemSelectionChanged, this, [this] {
        const auto lignes = m_police->selectedItems();
        if (!lignes.isEmpty())
            m_choisie.setFamily(lignes.first()->text(0));
        montrerExemple();
    });
    connect(m_taille, &QTreeWidget::itemSelectionChanged, this, [this] {
        const auto lignes = m_taille->selectedItems();
        if (!lignes.isEmpty())
            m_choisie.setPointSizeF(lignes.first()->text(0).toDouble());
        montrerExemple();
    });
    connect(m_options[0], &QCheckBox::toggled, this, [this](bool gras) {
        m_choisie.setBold(gras);
        montrerExemple();
    });
    connect(m_options[1], &QCheckBox::toggled, this, [this](bool italique) {
        m_choisie.setItalic(italique);
        montrerExemple();
    });
    connect(m_couleur, &QPushButton::clicked, this, &Polices::choisirCouleur);
    connect(m_sansCouleur, &QPushButton::clicked, this, [this] { poserCouleur({}); });
}

void Polices::charger()
{
    const QFont police = Theme::PoliceChoisie();
    m_choisie = police;
    m_taille->setCurrentItem(nullptr);
    for (int i = 0; i < m_taille->topLevelItemCount(); ++i) {
        QTreeWidgetItem *ligne = m_taille->topLevelItem(i);
        mettreEnGras(ligne, ligne->text(0).toInt() == static_cast<int>(police.pointSizeF()));
        if (ligne->font(0).bold())
            m_taille->setCurrentItem(ligne);
    }
    const auto connues = m_police->findItems(police.family(), Qt::MatchFixedString);
    m_police->setCurrentItem(connues.isEmpty() ? nullptr : connues.first());
    m_options[0]->setChecked(police.bold());
    m_options[1]->setChecked(police.italic());
    m_choisie = police;
    poserCouleur(Theme::CouleurChoisie());
}

void Polices::choisirCouleur()
{
    QColorDialog dialogue(m_encre.isValid() ? m_encre : Theme::Encre(palette()), this);
    dialogue.setWindowTitle(texte(Txt::Coloriser));
    if (dialogue.exec() == QDialog::Accepted)
        poserCouleur(dialogue.currentColor());
}

void Polices::poserCouleur(const QColor &couleur)
{
    m_encre = couleur;
    m_sansCouleur->setEnabled(couleur.isValid());
    montrerExemple();
}

void Polices::montrerExemple()
{
    QPalette palette;
    if (m_encre.isValid())
        palette.setColor(QPalette::WindowText, m_encre);
    m_exemple->setPalette(palette);
    m_exemple->setFont(m_choisie);
}

void Polices::valider()
{
    Reglages &reglages = Reglages::courant();
    // Black is the number that stands for the theme's own colour; the darkest red looks the same.
    const int couleur = nombreDe(m_encre);
    reglages.ecrire(Cle::Forecolor, m_encre.isValid() && couleur == 0 ? 1 : couleur);
    reglages.ecrire(Cle::FontBold, m_options[0]->isChecked());
    reglages.ecrire(Cle::FontItalic, m_options[1]->isChecked());
    reglages.ecrire(Cle::FontSize, QString::number(m_choisie.pointSizeF()));
    reglages.ecrire(Cle::FontName, m_choisie.family());
}

QString Polices::titre() const
{
    return texte(Txt::PolicesDeCaracteres);
}

void Polices::Traduire()
{
    m_police->setHeaderLabels({tr("police")});
    m_police->setAccessibleName(texte(Txt::ListeDesPolices));
    m_taille->setHeaderLabels({texte(Txt::Taille)});
    m_taille->setAccessibleName(texte(Txt::Taille));
    libeller(m_options[0], texte(Txt::Gras));
    libeller(m_options[1], texte(Txt::Italic));
    libeller(m_couleur, texte(Txt::Coloriser) + QStringLiteral("…"));
    libeller(m_sansCouleur, tr("Couleur du thème"));
    m_exemple->setText(texte(Txt::Exemple) + QStringLiteral("\n") + texte(Txt::LeGestionnaireDeBDTheque));
}
