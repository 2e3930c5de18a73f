#include "entry/FormeModification.h"

#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace {

constexpr qreal TailleDuTitre = 1.1;
constexpr int HauteurDuCadre = 34; ///< about what a window's own frame takes above it

}

FormeModification::FormeModification(Demandes &demandes, const QString &nom, int lignes)
    : FormeOutil(nom, {}, Rien, {Serre.cotes, Serre.bords, Serre.ecart, Serre.ecartDuPied, TailleDuTitre})
    , m_demandes(demandes)
{
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    nommer(entete(), QStringLiteral("Champ"));
    QLabel *refus = ajouterMessage(QStringLiteral("Refus"));
    refus->setTextFormat(Qt::PlainText);
    refus->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    refus->setMinimumHeight(lignes * refus->fontMetrics().lineSpacing());
    refus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_valider = ajouterAuPied(QStringLiteral("Valider"), true);
    connect(m_valider, &QPushButton::clicked, this, [this] { valider(); });
}

void FormeModification::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(Ecrire::LibelleDe(m_edition));
    libeller(m_valider, texte(Txt::Valider));
}

void FormeModification::editer(const Edition &edition)
{
    m_edition = edition;
    Traduire();
    refuser({});
    proposer();
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
    dire(raison, QPalette::BrightText);
}

void FormeModification::prevenir(const QString &avis)
{
    dire(avis, QPalette::PlaceholderText);
}
