#include "browse/Frmmain.h"

#include "acts/Demandes.h"
#include "acts/Renommer.h"
#include "browse/Bandeau.h"
#include "browse/Pied.h"
#include "browse/PileFiches.h"
#include "browse/VoletListes.h"
#include "browse/VueListe.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Aide.h"
#include "core/ui/Depot.h"
#include "core/ui/Fond.h"
#include "core/ui/Icones.h"
#include "core/ui/Liens.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "db/files/Reprise.h"

#include <QAction>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

using namespace General;

namespace {

constexpr QSize TailleDessinee(1280, 800);
constexpr QSize TailleMinimale(860, 560);
constexpr int LargeurVolet = 318;

/// For measuring the start: QT_LOGGING_RULES="bulleo.demarrage=true" tells when the list is on screen.
Q_LOGGING_CATEGORY(demarrage, "bulleo.demarrage", QtInfoMsg)

}

Frmmain::Frmmain(Demandes &demandes)
    : Forme(QStringLiteral("Frmmain"))
    , m_demandes(demandes)
{
    setWindowIcon(Icones::Programme());
    resize(TailleDessinee);
    setMinimumSize(TailleMinimale.boundedTo(screen()->availableSize()));
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(0);
    m_bandeau = new Bandeau(m_demandes, this);
    page->addWidget(m_bandeau);
    construireCorps(page);
    m_pied = new Pied(this);
    page->addWidget(m_pied);
    new Depot(this, [this](const QString &chemin) { Q_EMIT m_demandes.fichier(chemin); });
    brancher();
    raccourcis();
    Frmmain::Traduire();
}

void Frmmain::construireCorps(QBoxLayout *page)
{
    m_partage = nommer(new QSplitter(this), QStringLiteral("SSResizer1"));
    m_partage->setChildrenCollapsible(false);
    m_volet = new VoletListes(m_demandes, m_partage);
    m_volet->setMinimumWidth(LargeurVolet - 18);
    m_fond = nommer(new Fond(m_partage), QStringLiteral("Fond"));
    auto *surFond = new QVBoxLayout(m_fond);
    surFond->setContentsMargins(Theme::Petit, Theme::Moyen, Theme::Moyen, Theme::Moyen);

    m_defilement = new QScrollArea(m_fond);
    m_defilement->setWidgetResizable(true);
    m_defilement->setFrameShape(QFrame::NoFrame);
    m_defilement->setFocusPolicy(Qt::NoFocus);
    m_defilement->viewport()->setAutoFillBackground(false);
    m_fiches = new PileFiches(m_demandes, m_defilement);
    m_defilement->setWidget(m_fiches);
    m_fiches->setAutoFillBackground(false);
    surFond->addWidget(m_defilement);

    m_partage->addWidget(m_volet);
    m_partage->addWidget(m_fond);
    m_partage->setStretchFactor(1, 1);
    m_partage->setSizes({LargeurVolet, TailleDessinee.width() - LargeurVolet});
    m_bandeau->poserLargeurTitre(LargeurVolet - Theme::Moyen);
    page->addWidget(m_partage, 1);
}

void Frmmain::brancher()
{
    connect(m_volet, &VoletListes::triDemande, this, &Frmmain::montrerTri);
    connect(m_volet, &VoletListes::entreeChoisie, this, &Frmmain::choisir);
    connect(m_volet, &VoletListes::renommageDemande, this, &Frmmain::renommer);
    connect(m_bandeau, &Bandeau::aideDemandee, this, [] { Aide::Ouvrir(QStringLiteral("index")); });
    connect(
        m_bandeau, &Bandeau::siteDemande, this, [] { Liens::Ouvrir(Reglages::courant().texte(Cle::Site)); });
    connect(m_bandeau, &Bandeau::aProposDemande, this, &Frmmain::apropos);
    connect(m_bandeau, &Bandeau::loopBascule, this, [this](bool actif) {
        Reglages::courant().ecrire(Cle::Loop, actif);
        m_fiches->poserDefilement(actif);
    });
    connect(m_bandeau, &Bandeau::annulationDemandee, this, &Frmmain::annuler);
    connect(m_bandeau, &Bandeau::retablissementDemande, this, &Frmmain::retablir);
}

void Frmmain::raccourcis()
{
    const auto ajouter = [this](const QList<QKeySequence> &touches, auto acte) {
        auto *action = new QAction(this);
        action->setShortcuts(touches);
        connect(action, &QAction::triggered, this, acte);
        addAction(action);
    };
    // Ctrl+Y is the platform's own key for it on some, and known to everybody on all.
    const QKeySequence ctrlY(Qt::CTRL | Qt::Key_Y);
    QList<QKeySequence> refaire = QKeySequence::keyBindings(QKeySequence::Redo);
    if (!refaire.contains(ctrlY))
        refaire << ctrlY;
    ajouter({Qt::CTRL | Qt::Key_Q}, [this] { close(); });
    ajouter({QKeySequence::New}, [this] { Q_EMIT m_demandes.forme(Nom::Manuelle); });
    ajouter({QKeySequence::Find}, [this] { m_volet->filtrer(); });
    ajouter({QKeySequence::Undo}, [this] { annuler(); });
    ajouter(refaire, [this] { retablir(); });
    ajouter({QKeySequence::Print}, [this] { Q_EMIT m_demandes.forme(Nom::Impression); });
    for (int i = 0; i < NombreDeTris; ++i)
        ajouter({Qt::CTRL | Qt::Key(Qt::Key_1 + i)}, [this, i] { montrerTri(TriDe(i)); });
}

void Frmmain::commencer()
{
    m_fond->charger();
    restaurerTaille();
    m_bandeau->poserLoop(Reglages::courant().booleen(Cle::Loop));
    m_fiches->poserDefilement(Reglages::courant().booleen(Cle::Loop));
    // From the event loop, so that a collection that cannot be opened is told of like any other error, and
    // still before the window is first painted.
    QTimer::singleShot(0, this, [this] {
        // One in the old format is not opened: it is offered to be converted.
        if (Reprise::EstAncien(Dossier::courant().collection()))
            return;
        m_volet->montrer(TriDe(Reglages::courant().entier(Cle::Tris)));
        m_ouverte = true;
        if (m_peinte)
            montrerPremiere();
    });
}

void Frmmain::restaurerTaille()
{
    const Reglages &reglages = Reglages::courant();
    const int hauteur = static_cast<int>(reglages.nombre(Cle::Height));
    const int largeur = static_cast<int>(reglages.nombre(Cle::Width));
    QSize taille(largeur > 0 ? largeur : width(), hauteur > 0 ? hauteur : height());
    taille = taille.expandedTo(minimumSize()).boundedTo(screen()->availableSize());
    resize(taille);
    const QStringList volets = reglages.texte(Cle::Volets).split(u'|');
    if (volets.size() == 2) {
        m_partage->restoreState(QByteArray::fromBase64(volets[0].toLatin1()));
        m_volet->poserEtat(QByteArray::fromBase64(volets[1].toLatin1()));
    }
}

void Frmmain::memoriserTaille()
{
    Reglages &reglages = Reglages::courant();
    const QSize taille = isMaximized() ? normalGeometry().size() : size();
    reglages.ecrire(Cle::Height, taille.height());
    reglages.ecrire(Cle::Width, taille.width());
    reglages.ecrire(Cle::Volets,
        QString::fromLatin1(m_partage->saveState().toBase64() + '|' + m_volet->etat().toBase64()));
}

void Frmmain::montrerTri(Tri tri)
{
    quitterFiche();
    m_volet->montrer(tri);
    m_ouverte = true;
    retenirTri(tri);
    m_courante = {};
    // The list that was there already keeps its entry.
    if (m_volet->liste()->choisie() > 0)
        choisirCourante();
    else
        montrerPremiere();
}

void Frmmain::retenirTri(Tri tri)
{
    Reglages::courant().ecrire(Cle::Tris, static_cast<int>(tri));
    Q_EMIT triChange(static_cast<int>(tri));
}

void Frmmain::montrerSelection(const QString &libelle, const std::vector<int> &albums)
{
    montrerTri(Tri::Albums);
    m_volet->montrerSelection(libelle, albums);
    m_volet->liste()->setCurrentIndex(m_volet->liste()->modele().index(0));
}

Liste Frmmain::listeMontree() const
{
    return m_volet->montree();
}

void Frmmain::montrerPremiere()
{
    qCDebug(demarrage) << "peinte";
    VueListe *liste = m_volet->liste();
    if (!m_ouverte)
        return;
    m_pied->poserTotaux();
    if (liste->currentIndex().isValid())
        return;
    if (liste->modele().rowCount() == 0) {
        oublier();
        return;
    }
    choisirPremiere();
    liste->setFocus();
}

void Frmmain::choisirPremiere()
{
    ListeEntrees &modele = m_volet->liste()->modele();
    const int premiere = modele.id(modele.index(0));
    if (premiere == 0)
        return;
    m_volet->liste()->choisir(premiere);
    choisir({modele.tri(), premiere});
}

void Frmmain::montrerEntree(Entree entree)
{
    // An album shows beside any list that has albums; every other entry belongs to its own list.
    if (entree.tri != Tri::Albums && entree.tri != m_volet->tri()) {
        m_volet->montrer(entree.tri);
        retenirTri(entree.tri);
    }
    if (entree.tri == m_volet->tri()) {
        m_volet->montrerLigne(entree.id);
        choisir(entree);
        return;
    }
    m_volet->albums()->choisir(entree.id);
    montrerFiche(entree);
}

/// An entry was chosen in a list: its sheet, and what is linked to it when the main list shows it.
void Frmmain::choisir(Entree entree)
{
    if (entree.tri == m_volet->tri())
        m_volet->montrerLies(entree);
    montrerFiche(entree);
}

void Frmmain::montrerFiche(Entree entree)
{
    if (entree != m_courante)
        quitterFiche();
    m_courante = entree;
    if (m_fiches->montrer(entree))
        Q_EMIT entreeMontree(entree);
    else
        oublier();
}

/// What was typed into the sheet's texts is written before another sheet stands in its place.
void Frmmain::quitterFiche()
{
    try {
        m_fiches->ecrireMemos();
    } catch (...) {
        // The text stays, and the list stands by it.
        if (m_courante.tri == m_volet->tri())
            m_volet->liste()->choisir(m_courante.id);
        throw;
    }
}

void Frmmain::annuler()
{
    m_fiches->ecrireMemos();
    Q_EMIT m_demandes.annulation();
}

void Frmmain::retablir()
{
    m_fiches->ecrireMemos();
    Q_EMIT m_demandes.retablissement();
}

/// The entry shown is gone.
void Frmmain::oublier()
{
    m_courante = {};
    m_fiches->vider(m_ouverte && General::EstVierge());
    Q_EMIT entreeMontree(m_courante);
}

void Frmmain::renommerEntree(Entree entree)
{
    m_volet->renommer(entree);
}

void Frmmain::ajouterEntree(Tri tri)
{
    if (tri != m_volet->tri())
        montrerTri(tri);
    m_volet->ajouter();
}

void Frmmain::ajouter(Tri tri, const QString &libelle)
{
    const Renommer::Ajout ajout = Renommer::AjouterEntree(tri, libelle);
    if (ajout.id == 0)
        return;
    if (!ajout.nouveau)
        Messages::Avertir(this, tr("La donnée existe déjà !"));
    // Once the lists know of it.
    QTimer::singleShot(0, this, [this, tri, id = ajout.id] { montrerEntree({tri, id}); });
}

void Frmmain::renommer(Tri tri, int id, const QString &libelle)
{
    if (id == 0)
        return ajouter(tri, libelle);
    if (Renommer::RenommerEntree({tri, id}, libelle) == Renommer::Renommage::Coupe)
        dire(tr("Le titre a été coupé à 50 caractères."));
}

void Frmmain::actualiser(const Changements &changements)
{
    m_volet->actualiser(changements);
    const Entree avant = m_courante;
    // Who is no longer in the list of his kind is gone from here, though his row may stay.
    const bool parti = avant.tri == m_volet->tri() && m_volet->liste()->modele().entrees().rang(avant.id) < 0;
    if (parti)
        oublier();
    else if (m_courante.id > 0)
        montrerFiche(m_courante);
    if (m_courante.id == 0 && avant.id > 0 && avant.tri != m_volet->tri())
        montrerVoisin(avant.tri);
    if (m_courante.id == 0)
        choisirCourante();
    // The first entries of a collection that was empty.
    if (m_courante.id == 0)
        choisirPremiere();
    m_pied->poserTotaux();
}

/// An entry of the lower lists is gone: the one that stands in its place is shown.
void Frmmain::montrerVoisin(Tri tri)
{
    VueListe *liste = tri == Tri::Albums ? m_volet->albums() : m_volet->presse();
    if (const int voisin = liste->choisie())
        montrerFiche({tri, voisin});
}

/// Shows the sheet of the entry that the main list stands on, if it stands on one.
void Frmmain::choisirCourante()
{
    if (const int courante = m_volet->liste()->choisie())
        choisir({m_volet->tri(), courante});
}

void Frmmain::appliquerApparence()
{
    m_volet->appliquerApparence();
    m_fiches->AppliquerPolices();
    m_fond->charger();
}

void Frmmain::dire(const QString &message)
{
    m_pied->dire(message);
}

void Frmmain::poserEtapes(const QString &aAnnuler, const QString &aRefaire)
{
    m_bandeau->poserEtapes(aAnnuler, aRefaire);
}

void Frmmain::Traduire()
{
    setWindowTitle(titre());
    m_bandeau->Traduire();
    m_volet->Traduire();
    m_fiches->Traduire();
    m_pied->Traduire();
    if (m_ouverte)
        QTimer::singleShot(0, this, [this] { actualiser({}); });
}

bool Frmmain::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::WindowActivate)
        m_pied->animer(true);
    else if (evenement->type() == QEvent::WindowDeactivate)
        m_pied->animer(false);
    else if (evenement->type() == QEvent::Paint && !std::exchange(m_peinte, true))
        // The list is on screen; only now is there time for the first sheet.
        QTimer::singleShot(0, this, &Frmmain::montrerPremiere);
    return Forme::event(evenement);
}

void Frmmain::keyPressEvent(QKeyEvent *evenement)
{
    // Escape closes forms, not the program: here it leaves the sheet for the list.
    if (evenement->key() == Qt::Key_Escape) {
        dire({});
        m_volet->liste()->setFocus();
    } else if (evenement->key() == Qt::Key_F10 && evenement->modifiers().testFlag(Qt::ShiftModifier)) {
        ouvrirMenu();
    } else {
        Forme::keyPressEvent(evenement);
    }
}

/// The context menu of what has the focus; the menu key brings it without being told.
void Frmmain::ouvrirMenu()
{
    QWidget *cible = focusWidget();
    if (!cible)
        return;
    const QPoint milieu = cible->rect().center();
    QContextMenuEvent demande(QContextMenuEvent::Keyboard, milieu, cible->mapToGlobal(milieu));
    QCoreApplication::sendEvent(cible, &demande);
}

void Frmmain::closeEvent(QCloseEvent *evenement)
{
    if (m_fiches->memosEnAttente()) {
        evenement->ignore();
        QTimer::singleShot(0, this, &Frmmain::ecrirePuisFermer);
        return;
    }
    const QString question = texte(Txt::VoulezVousQuitter) + u' ' + titre() + QStringLiteral(" ?");
    if (!Messages::Demander(this, question)) {
        evenement->ignore();
        return;
    }
    memoriserTaille();
    QFile::remove(Dossier::courant().chemin(QStringLiteral("temp.bmp")));
    evenement->accept();
    Q_EMIT m_demandes.fin();
}

/// A text that cannot be written does not keep anybody in the program.
void Frmmain::ecrirePuisFermer()
{
    try {
        m_fiches->ecrireMemos();
    } catch (const Error &e) {
        const QString question
            = tr("Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?");
        if (!Messages::Demander(this, e.message() + u'\n' + question))
            return;
        m_fiches->oublierMemos();
    }
    close();
}

void Frmmain::apropos()
{
    Messages::Informer(this,
        QStringList{titre(), texte(Txt::LeGestionnaireDeBDTheque), QString(),
            tr("Version %1").arg(QCoreApplication::applicationVersion()),
            tr("Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure")}
            .join(u'\n'));
}
