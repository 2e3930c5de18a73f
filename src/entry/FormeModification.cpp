#include "entry/FormeModification.h"

#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int HauteurDuCadre = 34; ///< about what a window's own frame takes above it

}

FormeModification::FormeModification(const QString &nom)
    : Forme(nom)
{
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    setWindowIcon(Icones::Programme());
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(Theme::Moyen, Theme::Moyen, Theme::Moyen, Theme::Moyen);
    page->setSpacing(Theme::Petit);
    m_champ = nommer(new QLabel(this), QStringLiteral("Champ"));
    m_champ->setFont(Theme::Taille(font(), 1.1, QFont::Bold));
    m_champ->setForegroundRole(QPalette::Link);
    page->addWidget(m_champ);
    m_corps = new QVBoxLayout;
    page->addLayout(m_corps, 1);
    m_refus = nommer(new QLabel(this), QStringLiteral("Refus"));
    m_refus->setTextFormat(Qt::PlainText);
    m_refus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    page->addWidget(m_refus);

    auto *boutons = new QHBoxLayout;
    m_valider = nommer(new QPushButton(this), QStringLiteral("Valider"));
    m_quit = nommer(new QPushButton(this), QStringLiteral("Quit"));
    boutons->addStretch(1);
    for (QPushButton *bouton : {m_valider, m_quit}) {
        bouton->setMinimumSize(96, 32);
        boutons->addWidget(bouton);
    }
    page->addLayout(boutons);
    Theme::Accentuer(m_valider);
    connect(m_valider, &QPushButton::clicked, this, [this] { valider(); });
    connect(m_quit, &QPushButton::clicked, this, &QWidget::close);
}

void FormeModification::Traduire()
{
    libeller(m_valider, texte(Txt::Valider));
    libeller(m_quit, texte(Txt::Fermer));
    m_champ->setText(Ecrire::LibelleDe(m_edition));
    setWindowTitle(Ecrire::LibelleDe(m_edition) + QStringLiteral(" - ") + titre());
}

void FormeModification::editer(const Edition &edition)
{
    m_edition = edition;
    Traduire();
    refuser({});
    charger();
    placer();
}

/// Below the field, or above it where there is no room; never over it, never off the screen.
void FormeModification::placer()
{
    adjustSize();
    const QScreen *ecran = QGuiApplication::screenAt(m_edition.place.center());
    if (!ecran || m_edition.place.isEmpty())
        return;
    const QRect libre = ecran->availableGeometry();
    const int hauteur = height() + HauteurDuCadre;
    int y = m_edition.place.bottom() + Theme::Fin;
    if (y + hauteur > libre.bottom())
        y = m_edition.place.top() - hauteur - Theme::Fin;
    const int x = std::min(m_edition.place.left(), libre.right() - width());
    move(std::max(x, libre.left()),
        std::clamp(y, libre.top(), std::max(libre.top(), libre.bottom() - hauteur)));
}

void FormeModification::refuser(const QString &raison)
{
    m_refus->setForegroundRole(QPalette::BrightText);
    m_refus->setText(raison);
}

void FormeModification::prevenir(const QString &avis)
{
    m_refus->setForegroundRole(QPalette::PlaceholderText);
    m_refus->setText(avis);
}

void FormeModification::keyPressEvent(QKeyEvent *evenement)
{
    const bool entree = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (!entree)
        return Forme::keyPressEvent(evenement);
    // Enter on a button is that button's; anywhere else it validates.
    if (auto *bouton = qobject_cast<QAbstractButton *>(focusWidget()))
        bouton->click();
    else
        valider();
}
