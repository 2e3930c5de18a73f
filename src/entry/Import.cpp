#include "entry/Import.h"

#include "acts/Demandes.h"
#include "core/Reglages.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "core/ui/Depot.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"
#include "model/Montant.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Importer;

namespace {

constexpr QSize TailleDessinee(1040, 700);
constexpr int LargeurColonnes = 340;
constexpr int HauteurLigne = 24;
constexpr int HauteurRapport = 110;
constexpr qsizetype LettresMontrees = 400;

QString libelleDe(Rubrique rubrique)
{
    const QString libelle = texte(ChampsDeCreation::De(rubrique).champ->libelle);
    return rubrique == Rubrique::Photo2 ? libelle + QStringLiteral(" 2") : libelle;
}

/// What was read for it, as a person reads it.
QString montree(Rubrique rubrique, const QString &lu)
{
    const ChampsDeCreation::ChampDeCreation &champ = ChampsDeCreation::De(rubrique);
    if (champ.maniere == ChampsDeCreation::Case)
        return texte(lu == QLatin1String(ChampsDeCreation::TexteDeCase(champ, true)) ? Txt::Oui : Txt::Non);
    // A cell shows the beginning of a long text.
    const QString debut = Texte::Couper(lu, LettresMontrees);
    const double nombre = Montant::Lire(debut).value_or(0);
    if (champ.champ->regle == Champs::Regle::Tome)
        return nombre > 0 ? QString::number(nombre) : QString();
    if (champ.champ->regle == Champs::Regle::Prix)
        return nombre > 0 ? Montant::Montrer(nombre) : QString();
    return debut.simplified();
}

std::size_t rang(Rubrique rubrique)
{
    return static_cast<std::size_t>(rubrique);
}

}

Import::Import(Demandes &demandes)
    : FormeOutil(QStringLiteral("Import"), TailleDessinee, Mini | Progression)
    , m_demandes(demandes)
{
    new Depot(this, [this](const QString &chemin) { ouvrir(chemin); });
    auto *tete = new QHBoxLayout;
    m_choisir = nommer(new QPushButton(this), QStringLiteral("Choisir"));
    m_choisir->setMinimumHeight(HauteurLigne + Theme::Petit);
    m_fichier = nommer(new QLabel(this), QStringLiteral("Fichier"));
    m_fichier->setWordWrap(true);
    tete->addWidget(m_choisir);
    tete->addWidget(m_fichier, 1);
    corps()->addLayout(tete);
    auto *moities = new QHBoxLayout;
    moities->setSpacing(Theme::Grand);
    moities->addWidget(construireCorrespondance());
    moities->addWidget(construireExemples(), 1);
    corps()->addLayout(moities, 1);
    m_message = ajouterMessage();
    m_valider = ajouterAuPied(QStringLiteral("Valider"), true);
    connect(m_choisir, &QPushButton::clicked, this, &Import::choisirFichier);
    connect(m_valider, &QPushButton::clicked, this, &Import::importer);
    Import::Traduire();
}

QWidget *Import::construireCorrespondance()
{
    auto *zone = nommer(new QWidget(this), QStringLiteral("Correspondance"));
    zone->setFixedWidth(LargeurColonnes);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    m_titreColonnes = new TitreGroupe(zone);
    colonne->addWidget(m_titreColonnes);
    auto *champs = new QWidget;
    auto *grille = new QGridLayout(champs);
    grille->setContentsMargins(0, 0, Theme::Petit, 0);
    grille->setVerticalSpacing(Theme::Fin);
    grille->setColumnStretch(1, 1);
    for (const Rubrique rubrique : Rubriques()) {
        const int ligne = static_cast<int>(m_colonnes.size());
        auto *libelle = new QLabel(champs);
        auto *choix = nommer(new QComboBox(champs), QStringLiteral("Correspondance"), ligne);
        choix->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        libelle->setBuddy(choix);
        grille->addWidget(libelle, ligne, 0);
        grille->addWidget(choix, ligne, 1);
        connect(choix, &QComboBox::activated, this, &Import::montrerExemples);
        m_colonnes.push_back({rubrique, libelle, choix});
    }
    auto *defilement = new QScrollArea(zone);
    defilement->setWidgetResizable(true);
    defilement->setFrameShape(QFrame::NoFrame);
    defilement->setFocusPolicy(Qt::NoFocus);
    defilement->setWidget(champs);
    colonne->addWidget(defilement, 1);
    m_libelleDoublons = new QLabel(zone);
    m_libelleDoublons->setWordWrap(true);
    m_doublons = nommer(new QComboBox(zone), QStringLiteral("Doublons"));
    m_doublons->addItems({{}, {}});
    m_libelleDoublons->setBuddy(m_doublons);
    colonne->addWidget(m_libelleDoublons);
    colonne->addWidget(m_doublons);
    return zone;
}

QWidget *Import::construireExemples()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    m_titreExemples = new TitreGroupe(zone);
    colonne->addWidget(m_titreExemples);
    m_exemples = nommer(new QTableWidget(zone), QStringLiteral("Exemples"));
    m_exemples->setEditTriggers(QTableWidget::NoEditTriggers);
    m_exemples->setSelectionMode(QTableWidget::NoSelection);
    m_exemples->setAlternatingRowColors(true);
    m_exemples->setTabKeyNavigation(false);
    m_exemples->setWordWrap(false);
    m_exemples->verticalHeader()->setDefaultSectionSize(HauteurLigne);
    m_exemples->verticalHeader()->hide();
    m_exemples->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    colonne->addWidget(m_exemples, 1);
    m_rapport = nommer(new QPlainTextEdit(zone), QStringLiteral("Rapport"));
    m_rapport->setReadOnly(true);
    m_rapport->setTabChangesFocus(true);
    m_rapport->setMaximumHeight(HauteurRapport);
    colonne->addWidget(m_rapport);
    return zone;
}

void Import::charger()
{
    m_chemin.clear();
    m_apercu = {};
    m_rapport->hide();
    m_message->clear();
    proposerColonnes();
}

void Import::choisirFichier()
{
    const QString chemin = Messages::OuvrirFichier(this, tr("Choisir un fichier de valeurs séparées"),
        Reglages::courant().texte(Cle::DossierListes), QStringLiteral("CSV|*.csv;*.txt;*.tsv"));
    if (!chemin.isEmpty())
        ouvrir(chemin);
}

void Import::ouvrir(const QString &chemin)
{
    m_apercu = Lire(chemin);
    m_chemin = chemin;
    Reglages::courant().ecrire(Cle::DossierListes, QFileInfo(chemin).absolutePath());
    m_rapport->hide();
    m_message->clear();
    proposerColonnes();
    m_colonnes.front().choix->setFocus();
}

/// The columns of the file in every list, each list on the one that seems to be meant.
void Import::proposerColonnes()
{
    const Correspondance proposee = Proposer(m_apercu.entete);
    for (const Colonne &colonne : m_colonnes) {
        colonne.choix->clear();
        colonne.choix->addItem(QStringLiteral("—"));
        colonne.choix->addItems(m_apercu.entete);
        colonne.choix->setCurrentIndex(proposee[rang(colonne.rubrique)] + 1);
        colonne.choix->setEnabled(!m_chemin.isEmpty());
    }
    m_doublons->setEnabled(!m_chemin.isEmpty());
    m_importe = false;
    nommerFichier();
    montrerExemples();
}

void Import::nommerFichier()
{
    m_fichier->setText(
        m_chemin.isEmpty() ? tr(
            "Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.")
                           : tr("%1 : %n ligne(s)", nullptr, m_apercu.nombre)
                                 .arg(QFileInfo(m_chemin).fileName()));
}

Correspondance Import::correspondance() const
{
    Correspondance correspondance = Aucune();
    for (const Colonne &colonne : m_colonnes)
        correspondance[rang(colonne.rubrique)] = colonne.choix->currentIndex() - 1;
    return correspondance;
}

/// The first rows as they would come in; a row that is refused says why.
void Import::montrerExemples()
{
    const Correspondance c = correspondance();
    std::vector<Rubrique> montres;
    QStringList tetes;
    for (const Rubrique rubrique : Rubriques()) {
        if (c[rang(rubrique)] >= 0) {
            montres.push_back(rubrique);
            tetes << libelleDe(rubrique);
        }
    }
    m_exemples->clear();
    m_exemples->setRowCount(0);
    m_exemples->setColumnCount(static_cast<int>(montres.size()));
    m_exemples->setHorizontalHeaderLabels(tetes);
    for (const QStringList &rangee : montres.empty() ? QList<QStringList>() : m_apercu.rangees) {
        const Composee composee = Composer(rangee, c);
        const int ligne = m_exemples->rowCount();
        m_exemples->insertRow(ligne);
        for (std::size_t i = 0; i < montres.size(); ++i) {
            auto *cellule = new QTableWidgetItem(montree(montres[i], composee.album[montres[i]]));
            if (!composee.refus.isEmpty()) {
                cellule->setText(i == 0 ? composee.refus : QString());
                cellule->setForeground(Theme::Rouge(palette()));
            }
            m_exemples->setItem(ligne, static_cast<int>(i), cellule);
        }
    }
    m_exemples->resizeColumnsToContents();
    const bool titre = c[rang(Rubrique::Titre)] >= 0;
    m_valider->setEnabled(titre && m_apercu.nombre > 0 && !m_importe);
    if (!m_chemin.isEmpty() && !m_importe)
        m_message->setText(titre ? QString() : tr("Dites quelle colonne est celle du titre."));
}

void Import::importer()
{
    const auto doublons = m_doublons->currentIndex() == 0 ? Doublons::Sauter : Doublons::Prendre;
    Rapport rapport;
    {
        Suivi suivi(progression(), annuler());
        rapport = ImporterAlbums(
            m_chemin, correspondance(), doublons, [&](int pourcent) { return suivi.avancer(pourcent); });
    }
    montrerRapport(rapport);
}

void Import::montrerRapport(const Rapport &rapport)
{
    if (rapport.annule)
        return m_message->setText(tr("Annulé : rien n'a été importé."));
    const QString bilan = tr("%n album(s) créé(s)", nullptr, static_cast<int>(rapport.crees.size()))
        + QStringLiteral(", ") + tr("%n déjà présent(s)", nullptr, static_cast<int>(rapport.sautes.size()))
        + QStringLiteral(", ") + tr("%n refusé(s)", nullptr, static_cast<int>(rapport.refus.size()));
    m_message->setText(bilan);
    Q_EMIT m_demandes.message(bilan);
    QStringList lignes;
    for (const Rapport::Refus &refus : rapport.refus)
        lignes << tr("Ligne %1 : %2").arg(refus.ligne).arg(refus.raison);
    for (const int ligne : rapport.sautes)
        lignes << tr("Ligne %1 : cet album est déjà dans la collection").arg(ligne);
    m_rapport->setPlainText(lignes.join(u'\n'));
    m_rapport->setVisible(!lignes.isEmpty());
    // The same file once more would only make the same albums again.
    m_importe = true;
    m_valider->setEnabled(false);
}

void Import::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(tr("Importer des albums"));
    libeller(m_choisir, tr("Choisir un fichier…"));
    m_titreColonnes->setText(tr("Quelle colonne pour quoi ?"));
    m_titreExemples->setText(tr("Les premières lignes, telles qu'elles entreront"));
    for (const Colonne &colonne : m_colonnes) {
        colonne.libelle->setText(libelleDe(colonne.rubrique));
        colonne.choix->setAccessibleName(libelleDe(colonne.rubrique));
    }
    m_libelleDoublons->setText(tr("Un album de même titre, série et tome :"));
    m_doublons->setItemText(0, tr("le sauter"));
    m_doublons->setItemText(1, tr("le créer quand même"));
    m_doublons->setAccessibleName(tr("Un album de même titre, série et tome :"));
    m_exemples->setAccessibleName(m_titreExemples->text());
    m_rapport->setAccessibleName(tr("Rapport"));
    libeller(m_valider, tr("Importer"));
    nommerFichier();
    montrerExemples();
}
