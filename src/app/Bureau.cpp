#include "app/Bureau.h"

#include "acts/Choisir.h"
#include "app/Demarrage.h"
#include "appearance/Apparence.h"
#include "archives/Restauration.h"
#include "browse/Frmmain.h"
#include "browse/Parcours.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "core/ui/Placement.h"
#include "db/files/Reprise.h"
#include "entry/Facile.h"
#include "entry/FrmModif.h"
#include "entry/FrmModif2.h"
#include "entry/Import.h"
#include "entry/Manuelle.h"
#include "entry/Pop.h"
#include "launcher/Splash.h"
#include "loans/Pret.h"
#include "pictures/Acquisition.h"
#include "reports/Impression.h"
#include "reports/Recherche.h"
#include "reports/Stats.h"
#include "webimport/BDNet.h"

#include <QApplication>
#include <QFileInfo>
#include <QSet>
#include <QTimer>
#include <QWindow>

using Nom = Forme::Nom;
using General::Entree;

namespace {

constexpr int DelaiDesRestesMs = 1500;

}

Bureau::Bureau(const Options &options)
    : m_options(options)
    , m_historique(Annonces::courant())
{
    repondre();
    repondreAuxFiches();
    Q_ASSERT(m_demandes.malBranchees().isEmpty());
}

Bureau::~Bureau()
{
    // What a form still wishes while it goes is nobody's any more.
    m_demandes.disconnect();
}

void Bureau::repondre()
{
    connect(&m_demandes, &Demandes::forme, this, &Bureau::montrer);
    connect(
        &m_demandes, &Demandes::entree, this,
        [this](Entree entree) { fenetre().parcours().montrerEntree(entree); }, Qt::QueuedConnection);
    connect(&m_demandes, &Demandes::liste, this,
        [this](General::Tri tri) { fenetre().parcours().montrerTri(tri); });
    connect(&m_demandes, &Demandes::selection, this,
        [this](const std::function<QString()> &libelle, const std::vector<int> &albums) {
            fenetre().parcours().montrerSelection(libelle, albums);
            montrer(Nom::Frmmain);
        });
    connect(&m_demandes, &Demandes::retour, this, &Bureau::retourner);
    connect(&m_demandes, &Demandes::langue, this, &Bureau::choisirLangue);
    connect(&m_demandes, &Demandes::apparence, this, &Bureau::appliquerApparence);
    connect(&m_demandes, &Demandes::copie, this, &Bureau::sauvegarderCopie);
    connect(&m_demandes, &Demandes::fichier, this, &Bureau::recevoirFichier);
    connect(&m_demandes, &Demandes::sortie, this, [this] { fenetre().close(); });
    // Left at once: quit() would ask every window to close first, and one that stays would stay alone.
    connect(
        &m_demandes, &Demandes::fin, qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
}

/// What is wished where entries and their values are shown.
void Bureau::repondreAuxFiches()
{
    connect(&m_demandes, &Demandes::edition, this, &Bureau::editer);
    connect(&m_demandes, &Demandes::image, this, [this](const Edition &edition) {
        if (!seLitSeulement())
            pop().choisirImage(edition);
    });
    connect(&m_demandes, &Demandes::menu, this, &Bureau::ouvrirMenu);
    connect(&m_demandes, &Demandes::renommage, this, [this](Entree entree) {
        if (!seLitSeulement())
            fenetre().parcours().renommerEntree(entree);
    });
    connect(&m_demandes, &Demandes::ajout, this, [this](General::Tri tri) {
        if (!seLitSeulement())
            fenetre().parcours().ajouterEntree(tri);
    });
    connect(&m_demandes, &Demandes::suppression, this, [this](Entree entree) {
        if (!seLitSeulement() && fenetre().parcours().estLa(entree))
            pop().supprimer(entree);
    });
    connect(&m_demandes, &Demandes::annulation, &m_historique, &Historique::annuler);
    connect(&m_demandes, &Demandes::retablissement, &m_historique, &Historique::refaire);
    connect(&m_demandes, &Demandes::message, this, [this](const QString &ligne) { fenetre().dire(ligne); });
}

std::unique_ptr<Forme> Bureau::fabriquer(Nom nom)
{
    switch (nom) {
    case Nom::Frmmain:
        return std::make_unique<Frmmain>(m_demandes);
    case Nom::Splash:
        return std::make_unique<Splash>(m_demandes);
    case Nom::Manuelle:
        return std::make_unique<Manuelle>(m_demandes);
    case Nom::Facile:
        return std::make_unique<Facile>(m_demandes);
    case Nom::BDNet:
        return std::make_unique<BDNet>(m_demandes);
    case Nom::Apparence:
    case Nom::Polices:
    case Nom::Textures:
        return std::make_unique<Apparence>(m_demandes);
    case Nom::Stats:
        return std::make_unique<Stats>(m_demandes);
    case Nom::Impression:
        return suivre(std::make_unique<Impression>([this] { return fenetre().parcours().listeMontree(); }));
    case Nom::Acquisition:
        return suivre(std::make_unique<Acquisition>());
    case Nom::Pret:
        return suivre(std::make_unique<Pret>(m_demandes));
    case Nom::Restauration:
        return std::make_unique<Restauration>();
    case Nom::Recherche:
        return std::make_unique<Recherche>(m_demandes);
    case Nom::FrmModif:
        return std::make_unique<FrmModif>(m_demandes);
    case Nom::FrmModif2:
        return std::make_unique<FrmModif2>(m_demandes);
    case Nom::Import:
        return std::make_unique<Import>(m_demandes);
    }
    Q_UNREACHABLE();
}

template <class F>
std::unique_ptr<Forme> Bureau::suivre(std::unique_ptr<F> forme)
{
    connect(&fenetre().parcours(), &Parcours::entreeMontree, forme.get(), &F::poserCourante);
    forme->poserCourante(courante());
    return forme;
}

Forme *Bureau::ouvrir(Nom voulue)
{
    const Nom nom = Apparence::EstDemandee(voulue) ? Nom::Apparence : voulue;
    if (const auto faite = m_formes.find(nom); faite != m_formes.end())
        return faite->second.get();
    std::unique_ptr<Forme> forme = fabriquer(nom);
    connect(&Annonces::courant(), &Annonces::changee, forme.get(), &Forme::actualiser);
    return m_formes.emplace(nom, std::move(forme)).first->second.get();
}

template <class F>
F &Bureau::forme(Nom nom)
{
    auto *forme = qobject_cast<F *>(ouvrir(nom));
    Q_ASSERT(forme);
    return *forme;
}

Frmmain &Bureau::fenetre()
{
    return forme<Frmmain>(Nom::Frmmain);
}

Entree Bureau::courante()
{
    return fenetre().courante();
}

void Bureau::brancherFenetre()
{
    connect(&fenetre().parcours(), &Parcours::triChange, this, [this](int tri) {
        if (m_formes.contains(Nom::Splash))
            forme<Splash>(Nom::Splash).poserTri(tri);
    });
    connect(
        &Annonces::courant(), &Annonces::remplacee, &fenetre(),
        [this] { fenetre().parcours().montrerTri(General::TriDe(Reglages::courant().entier(Cle::Tris))); },
        Qt::QueuedConnection);
}

void Bureau::brancherHistorique()
{
    connect(&m_historique, &Historique::change, this, &Bureau::poserEtapes);
    connect(&m_historique, &Historique::inscrite, this,
        [this](const Etape &etape) { fenetre().dire(tr("%1 — Ctrl+Z pour annuler").arg(etape.titre)); });
    // Queued, so that the lists show the rows again before one of them is looked for.
    connect(
        &m_historique, &Historique::annulee, this,
        [this](const Etape &etape) { montrerEtape(etape, tr("Annulé : %1")); }, Qt::QueuedConnection);
    connect(
        &m_historique, &Historique::refaite, this,
        [this](const Etape &etape) { montrerEtape(etape, tr("Rétabli : %1")); }, Qt::QueuedConnection);
}

/// The two ways to enter a value in a form of its own: chosen among entries or days, or typed in one line.
void Bureau::editer(const Edition &edition)
{
    if (seLitSeulement())
        return;
    const bool choisie = Ecrire::SourceDe(edition) || Choisir::EstUneDate(edition);
    const Nom nom = choisie ? Nom::FrmModif : Nom::FrmModif2;
    auto &voulue = forme<FormeModification>(nom);
    voulue.editer(edition);
    // It stands by its field; one that no sheet shows has no place.
    if (edition.place.isEmpty())
        Placement::Centrer(voulue, fenetre());
    montrer(nom);
}

/// On an entry that is still there; whoever has found the menu needs its hint no more.
void Bureau::ouvrirMenu(const Edition &edition, const QPoint &point)
{
    if (!fenetre().parcours().estLa(edition.entree))
        return;
    pop().ouvrir(edition, point);
    fenetre().oublierIndice();
}

Pop &Bureau::pop()
{
    if (!m_pop)
        m_pop = std::make_unique<Pop>(m_demandes);
    return *m_pop;
}

bool Bureau::seLitSeulement()
{
    const bool seulement = General::EstEnLectureSeule();
    if (seulement)
        fenetre().dire(tr("La base est en lecture seule : rien ne peut y être modifié."));
    return seulement;
}

void Bureau::poserEtapes()
{
    fenetre().poserEtapes(m_historique.aAnnuler(), m_historique.aRefaire());
}

/// Shows where a step was taken back or made again.
void Bureau::montrerEtape(const Etape &etape, const QString &message)
{
    const Entree entree = etape.lieu;
    if (entree.id > 0 && entree != courante() && General::EstDansLaListe(entree.tri, entree.id))
        fenetre().parcours().montrerEntree(entree);
    fenetre().dire(message.arg(etape.titre));
}

void Bureau::montrer(Nom nom)
{
    static const QSet<Nom> entrees{Nom::Manuelle, Nom::Facile, Nom::BDNet, Nom::Import};
    if (entrees.contains(nom) && seLitSeulement())
        return;
    Forme *voulue = ouvrir(nom);
    if (auto *apparence = qobject_cast<Apparence *>(voulue))
        apparence->ouvrirPage(nom);
    // Shown anew, a form starts afresh; brought back from the task bar, it goes on where it was.
    if (!voulue->isVisible()) {
        placer(nom, *voulue);
        QTimer::singleShot(0, voulue, [voulue] { voulue->charger(); });
    }
    voulue->setWindowState(voulue->windowState() & ~Qt::WindowMinimized);
    voulue->show();
    voulue->raise();
    voulue->activateWindow();
}

/// Over the main window, whatever the desktop does with windows; those that edit a field have found their place.
void Bureau::placer(Nom nom, Forme &voulue)
{
    Frmmain &principale = fenetre();
    if (nom == Nom::Frmmain || !principale.isVisible())
        return;
    voulue.winId(); // a window has a handle once it is made
    voulue.windowHandle()->setTransientParent(principale.windowHandle());
    if (nom != Nom::FrmModif && nom != Nom::FrmModif2)
        Placement::Centrer(voulue, principale);
}

/// From the launcher to the list that was chosen there.
void Bureau::retourner()
{
    montrer(Nom::Frmmain);
    fenetre().parcours().montrerTri(General::TriDe(Reglages::courant().entier(Cle::Tris)));
}

void Bureau::demarrer()
{
    Annonces::courant().reessayer
        = [](const Error &e) { return Messages::Reessayer(QApplication::activeWindow(), e.message()); };
    Reglages::courant().avertir = [](const QString &avis) {
        QTimer::singleShot(0, qApp, [avis] { Messages::Avertir(QApplication::activeWindow(), avis); });
    };
    chargerTextes();
    Annonces::courant().patience.continuer = [] {
        return Messages::Demander(QApplication::activeWindow(),
            tr("La lecture de la base dure plus longtemps que prévu. Attendre encore ?"));
    };
    const auto avertir = [this](const Error &e) {
        QTimer::singleShot(0, this, [e] { Messages::Avertir(QApplication::activeWindow(), e.message()); });
    };
    Annonces::courant().avertir = avertir;
    Annonces::courant().sauvegardes.manquee = avertir;
    Demarrage::MettreEnEtat();
    brancherFenetre();
    brancherHistorique();
    fenetre().commencer();
    fenetre().show();
    proposerReprise();
    if (!m_options.capture.isEmpty())
        return;
    premierDemarrage();
    // Once the window is there and at rest.
    QTimer::singleShot(DelaiDesRestesMs, this, [this] { Demarrage::ProposerDOterLesRestes(&fenetre()); });
}

/// A collection or a catalogue in the old format is offered to be converted.
void Bureau::proposerReprise()
{
    for (const auto &nom : {Dossier::Catalogue, Dossier::Collection}) {
        const QString chemin = Dossier::courant().chemin(nom);
        if (Reprise::EstAncien(chemin))
            QTimer::singleShot(0, this, [this, chemin] { proposerFichier(chemin); });
    }
}

void Bureau::proposerFichier(const QString &chemin)
{
    montrer(Nom::Restauration);
    // After the form has listed the backups.
    QTimer::singleShot(0, this, [this, chemin] { forme<Restauration>(Nom::Restauration).proposer(chemin); });
}

/// A collection or a list of albums, dropped on the window.
void Bureau::recevoirFichier(const QString &chemin)
{
    const QString suffixe = QFileInfo(chemin).suffix().toLower();
    static const QStringList listes{QStringLiteral("csv"), QStringLiteral("tsv"), QStringLiteral("txt")};
    if (!listes.contains(suffixe))
        return proposerFichier(chemin);
    montrer(Nom::Import);
    QTimer::singleShot(0, this, [this, chemin] { forme<Import>(Nom::Import).ouvrir(chemin); });
}

void Bureau::chargerTextes()
{
    try {
        Traduction::courant().chargerCourante();
    } catch (const Error &e) {
        Messages::Signaler(e);
    }
    m_catalogues.charger(Traduction::courant().locale(), Dossier::Livre() + QStringLiteral("/tr"));
}

void Bureau::choisirLangue(const QString &fichier)
{
    if (fichier == Traduction::LangueCourante() && QFileInfo::exists(Traduction::CheminCourant()))
        return;
    try {
        Traduction::courant().choisir(fichier);
    } catch (const Error &) {
        annoncerLangue();
        throw;
    }
    annoncerLangue();
}

/// Every open form takes its captions anew, hidden ones too.
void Bureau::annoncerLangue()
{
    m_catalogues.charger(Traduction::courant().locale(), Dossier::Livre() + QStringLiteral("/tr"));
    for (const auto &[nom, forme] : m_formes)
        QCoreApplication::postEvent(forme.get(), new QEvent(QEvent::LanguageChange));
}

/// Fonts, colours and background, in every form that has been made.
void Bureau::appliquerApparence()
{
    for (const auto &[nom, forme] : m_formes)
        forme->appliquerApparence();
}

/// The launcher comes by itself when the user wants it, and the first time of all; an empty collection has its own welcome
/// then.
void Bureau::premierDemarrage()
{
    Reglages &reglages = Reglages::courant();
    const bool premiere = reglages.nombre(Cle::FirstTime) != 1;
    const bool voulu = reglages.booleen(Cle::SplashAuto);
    if (voulu)
        reglages.ecrire(Cle::SplashAuto, true);
    if (premiere || voulu)
        QTimer::singleShot(0, this, [this, premiere] {
            if (!premiere || !fenetre().parcours().estOuvert() || !General::EstVierge())
                montrer(Nom::Splash);
            Reglages::courant().ecrire(Cle::FirstTime, 1);
        });
    else
        reglages.ecrire(Cle::FirstTime, 1);
}

void Bureau::sauvegarderCopie()
{
    QWidget *devant = QApplication::activeWindow();
    Reglages &reglages = Reglages::courant();
    const QString chemin = Messages::EnregistrerFichier(devant, texte(Txt::SauvegarderLaBase),
        reglages.texte(Cle::DossierCopies), texte(Txt::FiltreSauvegarde));
    if (chemin.isEmpty())
        return;
    const QString interdit = General::VerifierCopie(chemin);
    if (!interdit.isEmpty()) {
        Messages::Informer(
            devant, QStringLiteral("%1 (%2) !!!").arg(texte(Txt::NePasSauvegarderAvecCeNom), interdit));
        return;
    }
    General::CopierBase(chemin);
    reglages.ecrire(Cle::DossierCopies, QFileInfo(chemin).absolutePath());
    Messages::Informer(devant,
        texte(Txt::SauvegardeEffectuee) + u'\n'
            + tr("La copie contient les données, pas les images : leurs dossiers, images et image, se "
                 "copient à part."));
}
