#include "browse/Accueil.h"

#include "acts/Demandes.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Largeur = 420;
constexpr int HauteurBouton = 44;

/// The ways to a first album.
struct Chemin
{
    const char *icone;
    Formes::Nom forme;
};
constexpr Chemin Chemins[] = {
    {"creation-manuelle", Formes::Nom::Manuelle},
    {"creation-facile", Formes::Nom::Facile},
    {"ouvrir", Formes::Nom::Import},
    {"restauration", Formes::Nom::Restauration},
};

}

Accueil::Accueil(Demandes &demandes, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("Accueil"));
    auto *page = new QVBoxLayout(this);
    page->addStretch(1);
    m_titre = new QLabel(this);
    m_titre->setFont(Theme::Taille(font(), 1.9, QFont::Bold));
    m_titre->setForegroundRole(QPalette::Link);
    m_texte = new QLabel(this);
    m_texte->setWordWrap(true);
    m_texte->setForegroundRole(QPalette::PlaceholderText);
    m_texte->setMaximumWidth(Largeur);
    m_texte->setMinimumWidth(Largeur);
    for (QLabel *ligne : {m_titre, m_texte}) {
        ligne->setAlignment(Qt::AlignCenter);
        page->addWidget(ligne, 0, Qt::AlignHCenter);
    }
    m_choix = new QWidget(this);
    m_choix->setFixedWidth(Largeur);
    auto *choix = new QVBoxLayout(m_choix);
    choix->setSpacing(Theme::Petit);
    for (const Chemin &chemin : Chemins) {
        auto *bouton = nommer(
            new QPushButton(m_choix), QStringLiteral("Commencer"), static_cast<int>(m_boutons.size()));
        const bool premier = m_boutons.empty();
        bouton->setIcon(Icones::Charger(
            QLatin1String(chemin.icone), premier ? QPalette::HighlightedText : QPalette::Link));
        bouton->setMinimumHeight(HauteurBouton);
        if (premier)
            Theme::Accentuer(bouton);
        connect(bouton, &QPushButton::clicked, this,
            [&demandes, forme = chemin.forme] { Q_EMIT demandes.forme(forme); });
        choix->addWidget(bouton);
        m_boutons.push_back(bouton);
    }
    page->addSpacing(Theme::Moyen);
    page->addWidget(m_choix, 0, Qt::AlignHCenter);
    page->addStretch(2);
    Traduire();
}

void Accueil::poserVierge(bool vierge)
{
    m_vierge = vierge;
    Traduire();
}

void Accueil::Traduire()
{
    m_titre->setText(tr("Bienvenue dans votre bibliothèque"));
    m_titre->setVisible(m_vierge);
    m_choix->setVisible(m_vierge);
    m_texte->setText(m_vierge ? tr("Votre collection est encore vide. Par quoi voulez-vous commencer ?")
                              : tr("Choisissez une ligne de la liste pour voir sa fiche."));
    const QString libelles[] = {tr("Saisir un premier album"), tr("Le prendre dans le catalogue fourni"),
        tr("Importer un fichier CSV"), tr("Reprendre une ancienne base (bd.mdb)")};
    for (std::size_t i = 0; i < m_boutons.size(); ++i) {
        libeller(m_boutons[i], libelles[i]);
        m_boutons[i]->setText(QStringLiteral("  ") + libelles[i]);
    }
}
