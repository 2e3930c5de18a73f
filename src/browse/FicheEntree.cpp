#include "browse/FicheEntree.h"

#include "browse/Etagere.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"

#include <QLabel>
#include <QVBoxLayout>

FicheEntree::FicheEntree(QWidget *parent)
    : Carte(parent)
{
    setObjectName(QStringLiteral("FicheEntree"));
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    m_genre = nommer(new TitreGroupe(this), QStringLiteral("GenreEntree"));
    m_nom = nommer(new QLabel(this), QStringLiteral("NomEntree"));
    m_nom->setTextFormat(Qt::PlainText);
    m_nom->setWordWrap(true);
    m_nom->setFont(Theme::Taille(Theme::PoliceChoisie(), 1.55, QFont::Bold));
    m_albums = nommer(new QLabel(this), QStringLiteral("AlbumsEntree"));
    m_albums->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel *label : {m_genre, m_nom, m_albums})
        colonne->addWidget(label);
    colonne->addSpacing(Theme::Petit);
    m_etagere = new Etagere(this);
    constexpr int ToutLeReste = 1000;
    colonne->addWidget(m_etagere, ToutLeReste);
    colonne->addStretch(1);
    connect(m_etagere, &Etagere::albumDemande, this, [this](int num) {
        Q_EMIT entreeDemandee({General::Tri::Albums, num});
    });
}

void FicheEntree::montrer(General::Entree entree, const QString &nom, const Entrees &albums)
{
    m_genre->setText(texte(General::GenreDe(entree.tri).bouton));
    m_nom->setText(nom);
    m_albums->setText(
        albums.empty() ? QString() : QStringLiteral("%1 %2").arg(albums.size()).arg(texte(Txt::AlbumsUnite)));
    m_etagere->setAccessibleName(texte(Txt::ListeDesAlbums));
    m_etagere->montrer(albums);
    m_etagere->setVisible(!albums.empty());
}
