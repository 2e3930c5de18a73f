#include "appearance/Textures.h"

#include "core/Fonds.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int LargeurListe = 230;
constexpr QSize TailleEssai(64, 64);
/// The file of a line; empty for the line of no texture.
constexpr int Fichier = Qt::UserRole;

void mettreEnGras(QListWidgetItem *ligne, bool gras)
{
    QFont police = ligne->font();
    police.setBold(gras);
    ligne->setFont(police);
}

}

Textures::Textures(QWidget *parent)
    : PageApparence(parent)
{
    setObjectName(QStringLiteral("Textures"));
    auto *ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, Theme::Moyen, 0, 0);
    ligne->setSpacing(Theme::Grand);
    construireListe(ligne);
    construireApercu(ligne);
    setFocusProxy(m_liste);
    connect(m_liste, &QListWidget::currentItemChanged, this, &Textures::choisir);
    connect(m_suppl, &QPushButton::clicked, this, &Textures::ajouterTexture);
    connect(m_apercu, &QCheckBox::clicked, this, [this](bool coche) {
        Reglages::courant().ecrire(Cle::Apercu, coche ? 1 : 0);
        montrerApercu();
    });
}

void Textures::construireListe(QBoxLayout *ligne)
{
    auto *colonne = new QVBoxLayout;
    m_titreListe = new TitreGroupe(this);
    m_liste = nommer(new QListWidget(this), QStringLiteral("ListeFond"));
    m_liste->setFixedWidth(LargeurListe);
    m_liste->setUniformItemSizes(true);
    m_suppl = nommer(new QPushButton(this), QStringLiteral("TextureSuppl"));
    colonne->addWidget(m_titreListe);
    colonne->addWidget(m_liste, 1);
    colonne->addWidget(m_suppl);
    ligne->addLayout(colonne);
}

void Textures::construireApercu(QBoxLayout *ligne)
{
    auto *colonne = new QVBoxLayout;
    m_visu = nommer(new CadreImage(this), QStringLiteral("Visu"));
    m_visu->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_apercu = nommer(new QCheckBox(this), QStringLiteral("Apercu"));
    m_defilement = nommer(new QCheckBox(this), QStringLiteral("Defilement"));
    colonne->addWidget(m_visu, 1);
    colonne->addWidget(m_apercu);
    colonne->addWidget(m_defilement);
    ligne->addLayout(colonne, 1);
}

void Textures::charger()
{
    m_apercu->setChecked(Reglages::courant().entier(Cle::Apercu) != 0);
    m_defilement->setChecked(Reglages::courant().booleen(Cle::Defilement));
    const QString choisie = Fonds::CheminChoisi();
    m_liste->clear();
    m_liste->setCurrentItem(ajouterLigne({}, tr("Aucune texture")));
    for (const QString &fichier : Fonds::Textures()) {
        QListWidgetItem *ligne = ajouterLigne(fichier, Fonds::NomDe(fichier));
        if (Fonds::CheminDe(fichier) == choisie)
            m_liste->setCurrentItem(ligne);
    }
    // A picture that somebody keeps elsewhere.
    if (!choisie.isEmpty() && m_liste->currentRow() == 0)
        m_liste->setCurrentItem(ajouterLigne(choisie, Fonds::NomDe(QFileInfo(choisie).fileName())));
    m_presente = m_liste->currentRow();
}

QListWidgetItem *Textures::ajouterLigne(const QString &fichier, const QString &nom)
{
    auto *ligne = new QListWidgetItem(nom, m_liste);
    ligne->setData(Fichier, fichier);
    return ligne;
}

void Textures::choisir(QListWidgetItem *choisie)
{
    for (int i = 0; i < m_liste->count(); ++i)
        mettreEnGras(m_liste->item(i), m_liste->item(i) == choisie);
    montrerApercu();
}

void Textures::montrerApercu()
{
    const QListWidgetItem *ligne = m_liste->currentItem();
    const QString fichier = ligne ? ligne->data(Fichier).toString() : QString();
    m_visu->montrer(m_apercu->isChecked() && !fichier.isEmpty() ? Fonds::CheminDe(fichier) : QString());
}

void Textures::ajouterTexture()
{
    Reglages &reglages = Reglages::courant();
    const QString chemin = Messages::OuvrirFichier(this, texte(Txt::SelectionnerNouvelleTexture),
        reglages.texte(Cle::DossierImages), texte(Txt::FiltreTextures));
    if (chemin.isEmpty())
        return;
    reglages.ecrire(Cle::DossierImages, QFileInfo(chemin).absolutePath());
    const QString suffixe = QFileInfo(chemin).suffix().toLower();
    const bool jpeg = suffixe == QLatin1String("jpg") || suffixe == QLatin1String("jpeg");
    if (!jpeg || Images::Decoder(chemin, TailleEssai).isNull())
        return Q_EMIT reponse(tr("Ce fichier n'est pas une image JPEG lisible."));
    const QString fichier = Fonds::Ajouter(chemin);
    Q_EMIT reponse({});
    for (int i = 0; i < m_liste->count(); ++i) {
        if (m_liste->item(i)->data(Fichier).toString() == fichier)
            return m_liste->setCurrentRow(i);
    }
    m_liste->setCurrentItem(ajouterLigne(fichier, Fonds::NomDe(fichier).toUpper()));
}

void Textures::valider()
{
    Reglages::courant().ecrire(Cle::Defilement, m_defilement->isChecked());
    // One whose file is missing for now is kept until another is chosen.
    const QListWidgetItem *ligne = m_liste->currentItem();
    if (ligne && m_liste->currentRow() != m_presente)
        Fonds::Choisir(ligne->data(Fichier).toString());
    m_presente = m_liste->currentRow();
}

QString Textures::titre() const
{
    return texte(Txt::LesTextures);
}

void Textures::Traduire()
{
    m_titreListe->setText(texte(Txt::ListeDesFondsDEcran));
    m_liste->setAccessibleName(texte(Txt::ListeDesFondsDEcran));
    if (m_liste->count() > 0)
        m_liste->item(0)->setText(tr("Aucune texture"));
    m_visu->setAccessibleName(texte(Txt::Apercu));
    m_visu->poserLegende(texte(Txt::Apercu));
    libeller(m_suppl, texte(Txt::PlusDeTextures));
    libeller(m_apercu, texte(Txt::Apercu));
    libeller(m_defilement, tr("Répéter l'image au lieu de l'étirer"));
}
