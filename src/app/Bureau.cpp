#include "app/Bureau.h"

#include "acts/Choisir.h"
#include "app/Demarrage.h"
#include "appearance/Polices.h"
#include "appearance/Textures.h"
#include "archives/Restauration.h"
#include "browse/Frmmain.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
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
#include <QMetaEnum>
#include <QTextStream>
#include <QTimer>

using Nom = Forme::Nom;

namespace {

constexpr int AttenteCaptureMs = 700;
/// A page takes its time to be drawn.
constexpr int AttentePageMs = 2500;

}

Bureau::Bureau(const Options &options)
    : m_options(options)
    , m_historique(Annonces::courant())
{
    declarer<Frmmain>(Nom::Frmmain);
    declarer<Splash>(Nom::Splash);
    declarer<Manuelle>(Nom::Manuelle);
    declarer<Facile>(Nom::Facile);
    declarer<Acquisition>(Nom::Acquisition);
    declarer<BDNet>(Nom::BDNet);
    declarer<Polices>(Nom::Polices);
    declarer<Pret>(Nom::Pret);
    declarer<Import>(Nom::Import);
    declarer<Impression>(Nom::Impression);
    declarer<Recherche>(Nom::Recherche);
    declarer<Restauration>(Nom::Restauration);
    declarer<Stats>(Nom::Stats);
    declarer<Textures>(Nom::Textures);
    declarer<FrmModif>(Nom::FrmModif);
    declarer<FrmModif2>(Nom::FrmModif2);
}

Bureau::~Bureau() = default;

template <class F>
void Bureau::declarer(Nom nom)
{
    m_fabriques[nom] = [this, nom] {
        auto *forme = new F;
        brancher(forme);
        if constexpr (requires { forme->charger(); } && !std::is_same_v<F, Frmmain>)
            m_chargements[nom] = [forme] { forme->charger(); };
        return forme;
    };
}

template <class F>
void Bureau::brancher(F *forme)
{
    if constexpr (requires { &F::formeDemandee; })
        connect(forme, &F::formeDemandee, this, &Bureau::montrer);
    if constexpr (requires { &F::entreeDemandee; })
        connect(forme, &F::entreeDemandee, this,
            [this](General::Entree entree) { this->forme<Frmmain>(Nom::Frmmain)->montrerEntree(entree); });
    if constexpr (requires { &F::editionDemandee; })
        connect(forme, &F::editionDemandee, this, &Bureau::editer);
    if constexpr (requires { &F::dite; })
        connect(forme, &F::dite, this,
            [this](const QString &message) { this->forme<Frmmain>(Nom::Frmmain)->dire(message); });
    if constexpr (requires { &F::menuDemande; })
        connect(forme, &F::menuDemande, this,
            [this](const Edition &edition, const QPoint &point) { pop().ouvrir(edition, point); });
    if constexpr (requires { &F::imageDemandee; })
        connect(
            forme, &F::imageDemandee, this, [this](const Edition &edition) { pop().choisirImage(edition); });
    if constexpr (requires { &F::suppressionDemandee; })
        connect(forme, &F::suppressionDemandee, this,
            [this](General::Entree entree) { pop().supprimer(entree); });
    if constexpr (requires { &F::poserCourante; }) {
        auto *fenetre = this->forme<Frmmain>(Nom::Frmmain);
        connect(fenetre, &Frmmain::entreeMontree, forme, &F::poserCourante);
        forme->poserCourante(fenetre->courante());
    }
    if constexpr (requires { &F::triDemande; })
        connect(forme, &F::triDemande, this, [this](auto tri) {
            this->forme<Frmmain>(Nom::Frmmain)->montrerTri(General::TriDe(static_cast<int>(tri)));
        });
    if constexpr (requires { &F::albumCree; })
        connect(forme, &F::albumCree, this, [this](int num) {
            auto *fenetre = this->forme<Frmmain>(Nom::Frmmain);
            fenetre->montrerTri(General::Tri::Albums);
            fenetre->montrerEntree({General::Tri::Albums, num});
        });
    if constexpr (requires { &F::selectionDemandee; })
        connect(forme, &F::selectionDemandee, this,
            [this](const QString &libelle, const std::vector<int> &albums) {
                this->forme<Frmmain>(Nom::Frmmain)->montrerSelection(libelle, albums);
                montrer(Nom::Frmmain);
            });
    if constexpr (requires { &F::poserListe; })
        forme->poserListe([this] { return this->forme<Frmmain>(Nom::Frmmain)->listeMontree(); });
    if constexpr (requires { &F::langueDemandee; })
        connect(forme, &F::langueDemandee, this, &Bureau::choisirLangue);
    if constexpr (requires { &F::retourDemande; })
        connect(forme, &F::retourDemande, this, [this] {
            montrer(Nom::Frmmain);
            this->forme<Frmmain>(Nom::Frmmain)
                ->montrerTri(General::TriDe(Reglages::courant().entier(Cle::Tris)));
        });
    if constexpr (requires { &F::apparenceChangee; })
        connect(forme, &F::apparenceChangee, this, &Bureau::appliquerApparence);
    if constexpr (requires { forme->appliquerApparence(); })
        m_apparences.push_back([forme] { forme->appliquerApparence(); });
    if constexpr (requires { &F::copieDemandee; })
        connect(forme, &F::copieDemandee, this, &Bureau::sauvegarderCopie);
    if constexpr (requires { &F::actualiser; })
        connect(&Annonces::courant(), &Annonces::changee, forme, &F::actualiser);
    if constexpr (requires { &F::poserDisponibles; })
        forme->poserDisponibles([this](Nom nom) { return existe(nom); });
}

void Bureau::brancherParticuliers()
{
    auto *fenetre = forme<Frmmain>(Nom::Frmmain);
    connect(fenetre, &Frmmain::triChange, this, [this](int tri) {
        if (m_formes.contains(Nom::Splash))
            forme<Splash>(Nom::Splash)->poserTri(tri);
    });
    connect(fenetre, &Frmmain::annulationDemandee, &m_historique, &Historique::annuler);
    connect(fenetre, &Frmmain::retablissementDemande, &m_historique, &Historique::refaire);
    connect(&m_historique, &Historique::change, this, &Bureau::poserEtapes);
    connect(&m_historique, &Historique::inscrite, fenetre,
        [fenetre](const Etape &etape) { fenetre->dire(tr("%1 — Ctrl+Z pour annuler").arg(etape.titre)); });
    // Queued, so that the lists show the rows again before one of them is looked for.
    connect(
        &m_historique, &Historique::annulee, this,
        [this](const Etape &etape) { montrerEtape(etape, tr("Annulé : %1")); }, Qt::QueuedConnection);
    connect(
        &m_historique, &Historique::refaite, this,
        [this](const Etape &etape) { montrerEtape(etape, tr("Rétabli : %1")); }, Qt::QueuedConnection);
    connect(
        &Annonces::courant(), &Annonces::remplacee, fenetre,
        [fenetre] { fenetre->montrerTri(General::TriDe(Reglages::courant().entier(Cle::Tris))); },
        Qt::QueuedConnection);
    connect(fenetre, &Frmmain::fichierDepose, this, &Bureau::recevoirFichier);
    connect(fenetre, &Frmmain::sortie, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

/// The two ways to enter a value in a form of its own: chosen among entries or days, or typed in one line.
void Bureau::editer(const Edition &edition)
{
    const bool choisie = Ecrire::SourceDe(edition) || Choisir::EstUneDate(edition);
    const Nom nom = choisie ? Nom::FrmModif : Nom::FrmModif2;
    static_cast<FormeModification *>(ouvrir(nom))->editer(edition);
    montrer(nom);
}

Pop &Bureau::pop()
{
    if (!m_pop) {
        m_pop = std::make_unique<Pop>();
        brancher(m_pop.get());
        auto *fenetre = forme<Frmmain>(Nom::Frmmain);
        connect(m_pop.get(), &Pop::renommageDemande, fenetre, &Frmmain::renommerEntree);
        connect(m_pop.get(), &Pop::ajoutDemande, fenetre, &Frmmain::ajouterEntree);
        connect(m_pop.get(), &Pop::sortieDemandee, fenetre, &QWidget::close);
    }
    return *m_pop;
}

void Bureau::poserEtapes()
{
    forme<Frmmain>(Nom::Frmmain)->poserEtapes(m_historique.aAnnuler(), m_historique.aRefaire());
}

/// Shows where a step was taken back or made again.
void Bureau::montrerEtape(const Etape &etape, const QString &message)
{
    auto *fenetre = forme<Frmmain>(Nom::Frmmain);
    const General::Entree entree = etape.lieu;
    if (entree.id > 0 && entree != fenetre->courante() && General::EstDansLaListe(entree.tri, entree.id))
        fenetre->montrerEntree(entree);
    fenetre->dire(message.arg(etape.titre));
}

Forme *Bureau::ouvrir(Nom nom)
{
    auto &forme = m_formes[nom];
    if (!forme)
        forme.reset(m_fabriques.at(nom)());
    return forme.get();
}

void Bureau::montrer(Nom nom)
{
    if (!existe(nom))
        return;
    Forme *voulue = ouvrir(nom);
    // Shown anew, a form starts afresh; brought back from the task bar, it goes on where it was.
    if (!voulue->isVisible() && m_chargements.contains(nom))
        QTimer::singleShot(0, voulue, m_chargements[nom]);
    if (nom == Nom::Splash)
        forme<Splash>(nom)->poserTri(Reglages::courant().entier(Cle::Tris));
    voulue->setWindowState(voulue->windowState() & ~Qt::WindowMinimized);
    voulue->show();
    voulue->raise();
    voulue->activateWindow();
}

void Bureau::demarrer()
{
    Annonces::courant().reessayer
        = [](const Error &e) { return Messages::Reessayer(QApplication::activeWindow(), e.message()); };
    Reglages::courant().avertir = [](const QString &avis) {
        QTimer::singleShot(0, qApp, [avis] { Messages::Avertir(QApplication::activeWindow(), avis); });
    };
    chargerTextes();
    Annonces::courant().sauvegardes.manquee = [this](const Error &e) {
        QTimer::singleShot(0, this, [e] { Messages::Avertir(QApplication::activeWindow(), e.message()); });
    };
    Demarrage::MettreEnEtat();
    auto *fenetre = forme<Frmmain>(Nom::Frmmain);
    brancherParticuliers();
    fenetre->charger();
    fenetre->show();
    proposerReprise();
    if (m_options.capture.isEmpty())
        premierDemarrage();
    else
        QTimer::singleShot(AttenteCaptureMs, this, &Bureau::capturer);
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
    QTimer::singleShot(0, this, [this, chemin] { forme<Restauration>(Nom::Restauration)->proposer(chemin); });
}

/// A collection or a list of albums, dropped on the window.
void Bureau::recevoirFichier(const QString &chemin)
{
    const QString suffixe = QFileInfo(chemin).suffix().toLower();
    static const QStringList listes{QStringLiteral("csv"), QStringLiteral("tsv"), QStringLiteral("txt")};
    if (!listes.contains(suffixe))
        return proposerFichier(chemin);
    montrer(Nom::Import);
    QTimer::singleShot(0, this, [this, chemin] { forme<Import>(Nom::Import)->ouvrir(chemin); });
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
    for (const auto &appliquer : m_apparences)
        appliquer();
}

/// The launcher comes by itself when the user wants it, and the first time of all.
void Bureau::premierDemarrage()
{
    Reglages &reglages = Reglages::courant();
    const bool premiere = reglages.nombre(Cle::FirstTime) != 1;
    const bool voulu = reglages.booleen(Cle::SplashAuto);
    if (voulu)
        reglages.ecrire(Cle::SplashAuto, true);
    if (premiere || voulu)
        QTimer::singleShot(0, this, [this] {
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
    Messages::Informer(devant, texte(Txt::SauvegardeEffectuee));
}

void Bureau::capturer()
{
    bool connue = false;
    const int valeur = QMetaEnum::fromType<Nom>().keyToValue(m_options.forme.toLatin1().constData(), &connue);
    const auto nom = static_cast<Nom>(valeur);
    if (!connue || !existe(nom)) {
        QTextStream(stderr) << m_options.forme << QStringLiteral(" ?\n");
        return QCoreApplication::exit(2);
    }
    // Whatever happens to the entry, the picture ends the program.
    const bool page = nom == Nom::BDNet || nom == Nom::Stats;
    QTimer::singleShot(
        page ? AttentePageMs : AttenteCaptureMs, this, [this, nom] { enregistrerCapture(ouvrir(nom)); });
    if (m_options.entree)
        capturerEntree(*forme<Frmmain>(Nom::Frmmain), *m_options.entree);
    montrerPourCapture(nom);
}

/// A form by itself; those that edit a field on one of the sheet shown.
void Bureau::montrerPourCapture(Nom nom)
{
    if (nom != Nom::FrmModif && nom != Nom::FrmModif2)
        return nom == Nom::Frmmain ? void() : montrer(nom);
    constexpr Champs::Feuille Album = Champs::Feuille::Album;
    const General::Entree courante = forme<Frmmain>(Nom::Frmmain)->courante();
    if (courante.tri == General::Tri::Albums && courante.id > 0)
        editer(Ecrire::EditionDe(
            courante, nom == Nom::FrmModif ? Champs::De(Album, "Scena") : Champs::De(Album, "PrixA")));
}

void Bureau::capturerEntree(Frmmain &fenetre, int id)
{
    const General::Entree entree{General::TriDe(Reglages::courant().entier(Cle::Tris)), id};
    fenetre.montrerEntree(entree);
    if (fenetre.courante() != entree)
        throw Error(tr("Cette fiche n'existe pas."), QStringLiteral("N %1").arg(id));
}

void Bureau::enregistrerCapture(QWidget *fenetre)
{
    const bool ecrite = fenetre->grab().save(m_options.capture);
    if (!ecrite)
        QTextStream(stderr) << m_options.capture << QStringLiteral(" ?\n");
    QCoreApplication::exit(ecrite ? 0 : 1);
}
