#include "reports/Impression.h"

#include "core/Error.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Icones.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"
#include "reports/ChoixColonnes.h"

#include <QButtonGroup>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

using namespace General;
using Listage::Ordre;
using Listage::Tableau;

namespace {

constexpr QSize TailleDessinee(980, 680);
constexpr int LignesDExemple = 30;
constexpr int HauteurBouton = 32;
constexpr int HauteurLigne = 24;
/// In the order of the groups on the form.
enum Groupe { GroupePortee, GroupeExemple, GroupeSorties };

QString libelleDeLaSortie(int rang)
{
    switch (rang) {
    case 0:
        return texte(Txt::EditerListeHtml);
    case 1:
        return texte(Txt::EditerListeTexte);
    case 2:
        return Impression::tr("Éditer la liste au format PDF");
    default:
        return Impression::tr("Exporter la liste au format CSV");
    }
}

constexpr const char *NomsDesSorties[] = {"Html", "Texte", "Pdf", "Csv"};
constexpr const char *Extensions[] = {"html", "txt", "pdf", "csv"};

}

Impression::Impression(std::function<Selection()> liste)
    : FormeOutil(QStringLiteral("Impression"), TailleDessinee, Mini | Progression)
    , m_liste(std::move(liste))
{
    Fond::Tapisser(this);
    for (TitreGroupe *&groupe : m_groupes)
        groupe = new TitreGroupe(this);
    auto *moities = new QHBoxLayout;
    moities->setSpacing(Theme::Grand);
    m_colonnes = new ChoixColonnes(this);
    connect(m_colonnes, &ChoixColonnes::change, this, &Impression::montrerExemple);
    moities->addWidget(m_colonnes);
    auto *droite = new QVBoxLayout;
    droite->setSpacing(Theme::Moyen);
    droite->addWidget(construireChoix());
    droite->addWidget(construireExemple(), 1);
    droite->addWidget(construireSorties());
    moities->addLayout(droite, 1);
    corps()->addLayout(moities, 1);
    QLabel *message = ajouterMessage();
    message->setTextFormat(Qt::RichText);
    message->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(message, &QLabel::linkActivated, this,
        [](const QString &lien) { QDesktopServices::openUrl(QUrl(lien)); });
    Impression::Traduire();
}

QWidget *Impression::construireChoix()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(m_groupes[GroupePortee]);
    const auto rangee = [&](auto &boutons, const char *nom) {
        auto *ligne = new QHBoxLayout;
        auto *groupe = new QButtonGroup(this);
        int rang = 0;
        for (QRadioButton *&bouton : boutons) {
            bouton = nommer(new QRadioButton(zone), QLatin1String(nom), rang);
            groupe->addButton(bouton, rang++);
            ligne->addWidget(bouton);
            ligne->addSpacing(Theme::Petit);
        }
        ligne->addStretch(1);
        colonne->addLayout(ligne);
        return groupe;
    };
    connect(rangee(m_portees, "Portee"), &QButtonGroup::idClicked, this, [this](int rang) {
        Reglages::courant().ecrire(Cle::PorteeImp, rang);
        changer();
    });
    connect(rangee(m_ordres, "TriImp"), &QButtonGroup::idClicked, this, [this](int rang) {
        Reglages::courant().ecrire(Cle::TriImp, rang);
        montrerExemple();
    });
    return zone;
}

QWidget *Impression::construireExemple()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(m_groupes[GroupeExemple]);
    m_exemple = nommer(new QTableWidget(zone), QStringLiteral("Exemple"));
    m_exemple->setEditTriggers(QTableWidget::NoEditTriggers);
    m_exemple->setSelectionMode(QTableWidget::NoSelection);
    m_exemple->setAlternatingRowColors(true);
    m_exemple->setWordWrap(false);
    m_exemple->setTabKeyNavigation(false);
    m_exemple->verticalHeader()->hide();
    m_exemple->verticalHeader()->setDefaultSectionSize(HauteurLigne);
    m_exemple->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    colonne->addWidget(m_exemple, 1);
    m_nombre = nommer(new QLabel(zone), QStringLiteral("Nombre"));
    m_nombre->setForegroundRole(QPalette::PlaceholderText);
    colonne->addWidget(m_nombre);
    return zone;
}

QWidget *Impression::construireSorties()
{
    auto *zone = new QWidget(this);
    auto *grille = new QGridLayout(zone);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setSpacing(Theme::Petit);
    grille->addWidget(m_groupes[GroupeSorties], 0, 0, 1, 3);
    for (std::size_t i = 0; i < m_sorties.size(); ++i) {
        const int rang = static_cast<int>(i);
        m_sorties[i] = nommer(new QPushButton(zone), QLatin1String(NomsDesSorties[i]));
        m_sorties[i]->setMinimumHeight(HauteurBouton);
        grille->addWidget(m_sorties[i], 1 + rang / 2, rang % 2);
        connect(m_sorties[i], &QPushButton::clicked, this, [this, i] { ecrire(static_cast<Sortie>(i)); });
    }
    m_apercu = nommer(new QPushButton(zone), QStringLiteral("Apercu"));
    m_imprimer = nommer(new QPushButton(zone), QStringLiteral("Imprimer"));
    m_imprimer->setIcon(Icones::Charger(QStringLiteral("impression"), QPalette::HighlightedText));
    Theme::Accentuer(m_imprimer);
    for (QPushButton *bouton : {m_apercu, m_imprimer})
        bouton->setMinimumHeight(HauteurBouton);
    grille->addWidget(m_apercu, 1, 2);
    grille->addWidget(m_imprimer, 2, 2);
    connect(m_apercu, &QPushButton::clicked, this, &Impression::montrerApercu);
    connect(m_imprimer, &QPushButton::clicked, this, &Impression::imprimer);
    return zone;
}

void Impression::charger()
{
    const Reglages &reglages = Reglages::courant();
    m_montree = m_liste();
    m_ordres[reglages.entier(Cle::TriImp) == 1 ? 1 : 0]->setChecked(true);
    const int voulue = reglages.entier(Cle::PorteeImp);
    m_portees[voulue >= 0 && voulue < std::ssize(m_portees) ? static_cast<std::size_t>(voulue) : 0]
        ->setChecked(true);
    dire({});
    proposerPortees();
    changer();
}

void Impression::poserCourante(Entree entree)
{
    m_courante = entree;
    proposerPortees();
    if (isVisible() && portee() == Portee::Fiche)
        montrerExemple();
}

/// The list of the main window may be another one by now.
void Impression::relireListe()
{
    const Selection liste = m_liste();
    const bool memeSorte = liste.tri == m_montree.tri;
    m_montree = liste;
    proposerPortees();
    if (portee() == Portee::Liste)
        memeSorte ? montrerExemple() : changer();
}

bool Impression::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::WindowActivate && m_colonnes && m_colonnes->estPose())
        QMetaObject::invokeMethod(this, &Impression::relireListe, Qt::QueuedConnection);
    return FormeOutil::event(evenement);
}

/// What there is to print: the sheet only when one is shown.
void Impression::proposerPortees()
{
    const bool fiche = m_courante.id > 0;
    m_portees[2]->setEnabled(fiche);
    if (!fiche && m_portees[2]->isChecked())
        m_portees[1]->setChecked(true);
    m_portees[1]->setText(
        QStringLiteral("%1 (%2)").arg(tr("La liste affichée"), texte(ListeDe(m_montree.tri).bouton)));
    m_portees[1]->setAccessibleName(m_portees[1]->text());
}

Impression::Portee Impression::portee() const
{
    const auto choisie = std::find_if(
        m_portees.begin(), m_portees.end(), [](const QRadioButton *bouton) { return bouton->isChecked(); });
    return static_cast<Portee>(choisie - m_portees.begin());
}

Tri Impression::tri() const
{
    return portee() == Portee::Liste ? m_montree.tri : Tri::Albums;
}

/// Another extent: other columns to choose from, and orders that make sense.
void Impression::changer()
{
    const bool fiche = portee() == Portee::Fiche;
    m_colonnes->proposer(tri());
    m_colonnes->setEnabled(!fiche);
    for (QRadioButton *ordre : m_ordres)
        ordre->setEnabled(!fiche && tri() == Tri::Albums);
    montrerExemple();
}

Tableau Impression::tableau() const
{
    if (portee() == Portee::Fiche)
        return Listage::DeLaFiche(m_courante);
    const Ordre ordre = m_ordres[1]->isChecked() ? Ordre::Series : Ordre::Albums;
    if (portee() == Portee::Collection)
        return Listage::DesEntrees(tri(), m_colonnes->choisies(), ordre);
    return Listage::DesEntrees(tri(), m_colonnes->choisies(), ordre, m_montree.ids);
}

/// The first rows, as they would come out.
void Impression::montrerExemple()
{
    const Tableau liste = tableau();
    const bool vide = liste.tetes.empty();
    m_exemple->clear();
    m_exemple->setRowCount(0);
    m_exemple->setColumnCount(static_cast<int>(liste.tetes.size()));
    QStringList tetes;
    for (const auto &tete : liste.tetes)
        tetes << tete.libelle;
    m_exemple->setHorizontalHeaderLabels(tetes);
    if (!vide)
        liste.parcourir([&](const QStringList &cellules) {
            const int ligne = m_exemple->rowCount();
            m_exemple->insertRow(ligne);
            for (int i = 0; i < cellules.size(); ++i) {
                auto *cellule = new QTableWidgetItem(cellules[i].simplified());
                if (liste.tetes[static_cast<std::size_t>(i)].aDroite)
                    cellule->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                m_exemple->setItem(ligne, i, cellule);
            }
            return ligne + 1 < LignesDExemple;
        });
    m_exemple->resizeColumnsToContents();
    m_exemple->horizontalHeader()->setStretchLastSection(true);
    m_nombre->setText(vide              ? tr("Cochez au moins une colonne.")
            : portee() == Portee::Fiche ? liste.titre
                                        : tr("%n ligne(s) en tout", nullptr, static_cast<int>(liste.lignes)));
    for (QPushButton *bouton : {m_sorties[0], m_sorties[1], m_sorties[2], m_sorties[3], m_apercu, m_imprimer})
        bouton->setEnabled(!vide);
}

bool Impression::travailler(const std::function<bool(const Sorties::Avance &)> &travail)
{
    dire({});
    Suivi suivi(progression(), annuler());
    return travail([&](int pourcent) { return suivi.avancer(pourcent); });
}

void Impression::ecrire(Sortie sortie)
{
    static const Ecriture Ecritures[]
        = {Sorties::EcrireHtml, Sorties::EcrireTexte, MiseEnPage::EcrirePdf, Sorties::EcrireCsv};
    const auto rang = static_cast<std::size_t>(sortie);
    Reglages &reglages = Reglages::courant();
    const Tableau liste = tableau();
    const QString suffixe = QLatin1String(Extensions[rang]);
    if (sortie == Sortie::Pdf && !accepterLargeur(liste))
        return;
    QString dossier = reglages.texte(Cle::DossierListes);
    if (dossier.isEmpty() || !QFileInfo(dossier).isDir())
        dossier = QDir::homePath();
    const QString propose = QDir(dossier).filePath(Images::NomDeFichier(liste.titre) + u'.' + suffixe);
    const QString chemin = Messages::EnregistrerFichier(this, libelleDeLaSortie(static_cast<int>(rang)),
        propose, QStringLiteral("%1|*.%2").arg(suffixe.toUpper(), suffixe));
    if (chemin.isEmpty())
        return;
    reglages.ecrire(Cle::DossierListes, QFileInfo(chemin).absolutePath());
    const bool entiere
        = travailler([&](const Sorties::Avance &avance) { return Ecritures[rang](chemin, liste, avance); });
    if (!entiere)
        return dire(tr("Annulé : rien n'a été écrit."));
    dire(tr("Liste enregistrée : %1")
             .arg(QStringLiteral("<a href=\"%1\">%2</a>")
                      .arg(QUrl::fromLocalFile(chemin).toString(QUrl::FullyEncoded),
                          QFileInfo(chemin).fileName().toHtmlEscaped())));
}

/// Paper has its width: with many columns there is no room for words.
bool Impression::accepterLargeur(const Tableau &liste)
{
    constexpr int ColonnesLisibles = 16;
    return std::ssize(liste.tetes) <= ColonnesLisibles
        || Messages::Demander(this, tr("Avec autant de colonnes, une page se lit mal. Continuer ?"));
}

void Impression::imprimer()
{
    const Tableau liste = tableau();
    if (!accepterLargeur(liste))
        return;
    QPrinter imprimante(QPrinter::HighResolution);
    preparer(imprimante, liste);
    QPrintDialog dialogue(&imprimante, this);
    if (dialogue.exec() != QDialog::Accepted)
        return;
    const bool entiere = travailler(
        [&](const Sorties::Avance &avance) { return MiseEnPage::Dessiner(imprimante, liste, avance); });
    if (!entiere)
        imprimante.abort();
    dire(entiere ? tr("La liste est partie à l'impression.") : tr("Impression annulée."));
}

void Impression::montrerApercu()
{
    const Tableau liste = tableau();
    if (!accepterLargeur(liste))
        return;
    QPrinter imprimante(QPrinter::ScreenResolution);
    preparer(imprimante, liste);
    QPrintPreviewDialog dialogue(&imprimante, this);
    dialogue.setObjectName(QStringLiteral("DialogueApercu"));
    dialogue.resize(size());
    connect(&dialogue, &QPrintPreviewDialog::paintRequested, this, [&](QPrinter *papier) {
        // The preview is in front, so the progress stands on it.
        QProgressDialog suivi(texte(Txt::ChargementEnCours), tr("Annuler"), 0, 100, &dialogue);
        suivi.setWindowModality(Qt::WindowModal);
        try {
            MiseEnPage::Dessiner(*papier, liste, [&](int pourcent) {
                suivi.setValue(pourcent);
                return !suivi.wasCanceled();
            });
        } catch (const Error &e) {
            // The dialog is in the middle of its own work: told once that is over.
            Messages::Signaler(e);
        }
    });
    dialogue.exec();
}

void Impression::preparer(QPrinter &imprimante, const Tableau &liste)
{
    imprimante.setDocName(liste.titre);
    imprimante.setPageOrientation(
        MiseEnPage::EstLarge(liste) ? QPageLayout::Landscape : QPageLayout::Portrait);
}

void Impression::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::Impression));
    m_colonnes->Traduire();
    m_groupes[GroupePortee]->setText(tr("Que voulez-vous lister ?"));
    m_groupes[GroupeExemple]->setText(tr("Ce qui sortira"));
    m_groupes[GroupeSorties]->setText(tr("Vers un fichier ou sur papier"));
    libeller(m_portees[0], tr("Toute la collection"));
    libeller(m_portees[2], tr("La fiche affichée"));
    proposerPortees();
    libeller(m_ordres[0], texte(Txt::TriParNomDAlbums));
    libeller(m_ordres[1], texte(Txt::TriParNomDeSeries));
    m_exemple->setAccessibleName(tr("Ce qui sortira"));
    for (std::size_t i = 0; i < m_sorties.size(); ++i)
        libeller(m_sorties[i], libelleDeLaSortie(static_cast<int>(i)));
    libeller(m_apercu, tr("Aperçu avant impression"));
    libeller(m_imprimer, tr("Imprimer…"));
    if (isVisible())
        changer();
}
