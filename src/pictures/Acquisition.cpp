#include "pictures/Acquisition.h"

#include "acts/Joindre.h"
#include "core/Dossier.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "pictures/BoiteImage.h"
#include "pictures/Scan.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(980, 680);
constexpr QSize TailleDestination(220, 220);
constexpr int LargeurProgression = 180;
constexpr QSize TailleAnnuler(96, 32);

struct Outil
{
    const char *icone;
    Txt libelle;
};
constexpr Outil Outils[] = {
    {"scanner", Txt::Scanner},
    {"ouvrir", Txt::Ouvrir},
    {"enregistrer", Txt::Sauvegarder},
    {"tourner-gauche", Txt::PivoterAGauche},
    {"tourner-droite", Txt::PivoterADroite},
    {"miroir-horizontal", Txt::PivoterHoriz},
    {"miroir-vertical", Txt::PivoterVertical},
};
constexpr int Numeriser = 0;
constexpr int Ouvrir = 1;

constexpr Champs::Feuille Album = Champs::Feuille::Album;
/// The fields that a picture of the workshop can go into.
constexpr const Champs::Champ *ChampsDImage[] = {&Champs::De(Album, "Photo1"), &Champs::De(Album, "Photo2"),
    &Champs::De(Album, "Dedi(0)"), &Champs::De(Album, "Dedi(1)")};

}

Acquisition::Acquisition()
    : FormeOutil(QStringLiteral("Acquisition"), TailleDessinee, Mini | Progression, Serre)
    , m_acquereur(Numeriseur::DuSysteme())
{
    construireOutils(corps());
    construireBoites(corps());
    ajouterMessageAuPied(QStringLiteral("Message"), Cote::Avant);
    progression()->setFixedWidth(LargeurProgression);
    annuler()->setMinimumSize(TailleAnnuler);
    brancher();
    Acquisition::Traduire();
    occuper(false);
}

void Acquisition::construireOutils(QBoxLayout *page)
{
    auto *barre = new QHBoxLayout;
    barre->setSpacing(2);
    for (int i = 0; i < static_cast<int>(std::size(Outils)); ++i) {
        auto *bouton = nommer(new QToolButton(this), QStringLiteral("Btn_ScanS"), i);
        bouton->setIcon(Icones::Charger(QLatin1String(Outils[i].icone)));
        bouton->setIconSize({22, 22});
        bouton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        bouton->setAutoRaise(true);
        bouton->setFont(Theme::Taille(font(), 0.85));
        connect(bouton, &QToolButton::clicked, this, [this, i] { agir(i); });
        barre->addWidget(bouton);
        m_outils.push_back(bouton);
    }
    barre->addStretch(1);
    m_libelleSources = new QLabel(this);
    m_libelleSources->setForegroundRole(QPalette::PlaceholderText);
    m_sources = nommer(new QComboBox(this), QStringLiteral("Sources"));
    m_sources->setMinimumContentsLength(18);
    m_libelleSources->setBuddy(m_sources);
    barre->addWidget(m_libelleSources);
    barre->addWidget(m_sources);
    page->addLayout(barre);
}

void Acquisition::construireBoites(QBoxLayout *page)
{
    auto *boites = new QHBoxLayout;
    boites->setSpacing(Theme::Moyen);
    m_photo = nommer(new BoiteImage(this), QStringLiteral("PhotoScan1"));
    boites->addWidget(m_photo, 1);
    auto *colonne = new QVBoxLayout;
    colonne->setSpacing(Theme::Petit);
    m_libelleDestination = new QLabel(this);
    m_libelleDestination->setForegroundRole(QPalette::PlaceholderText);
    m_destination = nommer(new BoiteImage(this), QStringLiteral("PhotoScan2"));
    m_destination->setFixedSize(TailleDestination);
    m_destination->setAcceptDrops(false);
    m_album = nommer(new QLabel(this), QStringLiteral("Album"));
    m_album->setWordWrap(true);
    m_album->setTextFormat(Qt::PlainText);
    m_album->setMaximumWidth(TailleDestination.width());
    colonne->addWidget(m_libelleDestination);
    colonne->addWidget(m_destination);
    colonne->addSpacing(Theme::Moyen);
    colonne->addWidget(m_album);
    for (int i = 0; i < static_cast<int>(std::size(ChampsDImage)); ++i) {
        auto *bouton = nommer(new QPushButton(this), QStringLiteral("Utiliser"), i);
        connect(bouton, &QPushButton::clicked, this, [this, i] { utiliser(i); });
        colonne->addWidget(bouton);
        m_utiliser.push_back(bouton);
    }
    colonne->addStretch(1);
    boites->addLayout(colonne);
    page->addLayout(boites, 1);
}

void Acquisition::brancher()
{
    connect(m_photo, &BoiteImage::fichierDepose, this, &Acquisition::ouvrirFichier);
    connect(annuler(), &QPushButton::clicked, &m_acquereur, &Acquereur::annuler);
    connect(&m_acquereur, &Acquereur::listee, this, &Acquisition::montrerSources);
    connect(&m_acquereur, &Acquereur::avance, progression(), &QProgressBar::setValue);
    connect(&m_acquereur, &Acquereur::acquise, this, [this](const QImage &image) {
        occuper(false);
        if (image.isNull())
            return;
        QGuiApplication::clipboard()->setImage(image);
        poserImage(image, {});
    });
    connect(&m_acquereur, &Acquereur::echouee, this, [this](const QString &) {
        occuper(false);
        dire(texte(Txt::VerifierScanner));
    });
}

void Acquisition::charger()
{
    dire({});
    poserEtat();
    // The scanners are looked for meanwhile; asking them takes its time.
    if (!m_acquereur.occupe())
        m_acquereur.lister();
}

void Acquisition::montrerSources(const std::vector<Numeriseur::Source> &sources)
{
    const QVariant choisie = m_sources->currentData();
    m_sources->clear();
    for (const Numeriseur::Source &source : sources)
        m_sources->addItem(source.titre, source.nom);
    m_sources->setCurrentIndex(std::max(0, m_sources->findData(choisie)));
    m_sources->setEnabled(m_sources->count() > 0);
    nommerAbsence();
}

/// The list says so when there is nothing in it.
void Acquisition::nommerAbsence()
{
    if (m_sources->isEnabled())
        return;
    m_sources->clear();
    m_sources->addItem(tr("aucun scanner"));
}

void Acquisition::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::Acquisition));
    for (std::size_t i = 0; i < m_outils.size(); ++i) {
        m_outils[i]->setText(texte(Outils[i].libelle));
        expliquer(m_outils[i], texte(Outils[i].libelle));
    }
    m_libelleSources->setText(texte(Txt::Scanner));
    m_sources->setAccessibleName(texte(Txt::Scanner));
    nommerAbsence();
    m_photo->poserLegende(
        tr("Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V"));
    m_photo->setAccessibleName(texte(Txt::Photos));
    m_libelleDestination->setText(tr("Dernier résultat"));
    m_destination->setAccessibleName(tr("Dernier résultat"));
    const QString usages[] = {tr("Utiliser comme couverture"), tr("Utiliser comme dos"),
        tr("Utiliser comme dédicace 1"), tr("Utiliser comme dédicace 2")};
    for (std::size_t i = 0; i < m_utiliser.size(); ++i)
        libeller(m_utiliser[i], usages[i]);
    poserEtat();
}

void Acquisition::poserCourante(General::Entree entree)
{
    m_courante = entree;
    poserEtat();
}

/// What can be done depends on whether there is a picture, and an album to take it.
void Acquisition::poserEtat()
{
    const bool image = !m_photo->image().isNull();
    for (int i = 0; i < static_cast<int>(m_outils.size()); ++i)
        m_outils[static_cast<std::size_t>(i)]->setEnabled(
            !m_occupee && (image || i == Numeriser || i == Ouvrir));
    const bool album = m_courante.tri == General::Tri::Albums && m_courante.id > 0;
    m_album->setText(album ? General::LireTexte(m_courante.tri, m_courante.id)
                           : tr("Montrez un album dans la fenêtre principale pour lui donner cette image."));
    for (QPushButton *bouton : m_utiliser)
        bouton->setEnabled(image && album && !m_occupee);
}

void Acquisition::agir(int rang)
{
    dire({});
    switch (rang) {
    case 0:
        return numeriser();
    case 1:
        return ouvrir();
    case 2:
        return enregistrer();
    case 3:
        return tourner(Scan::QuartDeTour);
    case 4:
        return tourner(-Scan::QuartDeTour);
    case 5:
        return refleter(Qt::Horizontal);
    case 6:
        return refleter(Qt::Vertical);
    default:
        Q_UNREACHABLE();
    }
}

void Acquisition::numeriser()
{
    const QString source = m_sources->currentData().toString();
    if (m_acquereur.occupe())
        return dire(tr("Les scanners sont encore recherchés."));
    if (source.isEmpty()) {
        // One may have been plugged in since.
        m_acquereur.lister();
        return dire(texte(Txt::VerifierScanner));
    }
    occuper(true);
    annuler()->show();
    m_acquereur.acquerir(source);
}

void Acquisition::ouvrir()
{
    Reglages &reglages = Reglages::courant();
    QString dossier = reglages.texte(Cle::DossierImages);
    if (dossier.isEmpty())
        dossier = Dossier::courant().chemin(QStringLiteral("image"));
    const QString chemin = Messages::OuvrirFichier(this, tr("Ouvrir un fichier image"), dossier,
        tr("Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico"));
    if (chemin.isEmpty())
        return;
    reglages.ecrire(Cle::DossierImages, QFileInfo(chemin).absolutePath());
    ouvrirFichier(chemin);
}

void Acquisition::ouvrirFichier(const QString &chemin)
{
    if (m_occupee)
        return;
    const QImage image = Scan::Ouvrir(chemin);
    if (image.isNull())
        return dire(tr("Ce fichier n'est pas une image lisible : %1").arg(QFileInfo(chemin).fileName()));
    poserImage(image, chemin);
}

void Acquisition::enregistrer()
{
    const bool jpeg = m_fichier.endsWith(QLatin1String("jpg"), Qt::CaseInsensitive);
    const QString filtre = jpeg ? tr("Format Bitmap (*.bmp)|*.bmp")
                                : tr("Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico");
    const QString propose = m_fichier.isEmpty() ? Dossier::courant().chemin(QStringLiteral("image/image.bmp"))
                                                : Scan::NomPropose(m_fichier);
    QString chemin = Messages::EnregistrerFichier(this, texte(Txt::Sauvegarder), propose, filtre);
    if (chemin.isEmpty())
        return;
    if (!Scan::PeutEcrire(chemin)) {
        chemin = Scan::NomPropose(chemin);
        // The dialog asked about another name.
        const QString question = tr("« %1 » existe déjà. Le remplacer ?").arg(QFileInfo(chemin).fileName());
        if (QFileInfo::exists(chemin) && !Messages::Demander(this, question))
            return;
    }
    Scan::Enregistrer(m_photo->image(), chemin);
    m_fichier = chemin;
    dire(tr("Image enregistrée : %1").arg(chemin));
}

void Acquisition::tourner(double angle)
{
    occuper(true);
    const auto respirer = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
    const QImage tournee = Scan::Tourner(m_photo->image(), angle, respirer);
    occuper(false);
    m_destination->montrer(tournee);
    poserImage(Scan::ParLeBrouillon(tournee), m_fichier);
}

void Acquisition::refleter(Qt::Orientation sens)
{
    const QImage reflet = Scan::Miroir(m_photo->image(), sens);
    m_destination->montrer(reflet);
    poserImage(Scan::ParLeBrouillon(reflet), m_fichier);
    QFile::remove(Scan::Brouillon());
}

void Acquisition::coller()
{
    const QImage image = QGuiApplication::clipboard()->image();
    if (image.isNull())
        return dire(tr("Le presse-papiers ne contient pas d'image."));
    poserImage(image, {});
}

void Acquisition::utiliser(int rang)
{
    const Edition edition{m_courante, ChampsDImage[rang]};
    const QString question = Joindre::QuestionSurLaNote(edition);
    if (!question.isEmpty() && !Messages::Demander(this, question))
        return;
    Joindre::PoserImage(edition, m_photo->image());
    dire(tr("C'est fait : %1").arg(m_utiliser[static_cast<std::size_t>(rang)]->text()));
}

void Acquisition::poserImage(const QImage &image, const QString &fichier)
{
    m_photo->montrer(image);
    m_fichier = fichier;
    poserEtat();
}

void Acquisition::occuper(bool occupe)
{
    m_occupee = occupe;
    progression()->setVisible(occupe);
    progression()->setValue(0);
    annuler()->hide();
    poserEtat();
}

void Acquisition::keyPressEvent(QKeyEvent *evenement)
{
    const bool libre = !m_occupee;
    if (libre && evenement->matches(QKeySequence::Paste))
        coller();
    else if (libre && evenement->matches(QKeySequence::Open))
        ouvrir();
    else if (libre && evenement->matches(QKeySequence::Save) && !m_photo->image().isNull())
        enregistrer();
    else
        FormeOutil::keyPressEvent(evenement);
}

void Acquisition::closeEvent(QCloseEvent *evenement)
{
    m_acquereur.annuler();
    FormeOutil::closeEvent(evenement);
}
