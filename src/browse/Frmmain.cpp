#include "browse/Frmmain.h"

#include "acts/Demandes.h"
#include "browse/Bandeau.h"
#include "browse/Parcours.h"
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
#include "core/ui/Raccourcis.h"
#include "core/ui/Theme.h"

#include <QAction>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
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
/// Both sides of an album are seen before the next one.
constexpr int DiaporamaMs = 6000;

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
    m_parcours = new Parcours(*m_volet, *m_fiches, *m_pied, this);
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
    connect(m_bandeau, &Bandeau::aideDemandee, this, [] { Aide::Ouvrir(QStringLiteral("index")); });
    connect(
        m_bandeau, &Bandeau::siteDemande, this, [] { Liens::Ouvrir(Reglages::courant().texte(Cle::Site)); });
    connect(m_bandeau, &Bandeau::aProposDemande, this, &Frmmain::apropos);
    connect(m_bandeau, &Bandeau::loopBascule, this, [this](bool actif) {
        Reglages::courant().ecrire(Cle::Loop, actif);
        m_fiches->poserDefilement(actif);
        m_diaporama.stop();
        if (actif && QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier))
            m_diaporama.start(DiaporamaMs);
    });
    connect(&m_diaporama, &QTimer::timeout, this, [this] {
        // Nobody is led away from what he types, nor from another form.
        if (isActiveWindow() && !m_fiches->memosEnAttente())
            m_parcours->avancer(1);
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
    Raccourcis::Poser(*this, [this](Nom forme) { Q_EMIT m_demandes.forme(forme); });
    ajouter({QKeySequence::Find}, [this] { m_volet->filtrer(); });
    ajouter({QKeySequence::Undo}, [this] { annuler(); });
    ajouter(refaire, [this] { retablir(); });
    // Through the groups of the sheet, and through the entries of the list under the same field.
    ajouter({Qt::Key_F6}, [this] { allerAuGroupe(1); });
    ajouter({Qt::SHIFT | Qt::Key_F6}, [this] { allerAuGroupe(-1); });
    ajouter({Qt::CTRL | Qt::Key_PageUp}, [this] { m_parcours->avancer(-1); });
    ajouter({Qt::CTRL | Qt::Key_PageDown}, [this] { m_parcours->avancer(1); });
    for (int i = 0; i < NombreDeTris; ++i)
        ajouter({Qt::CTRL | Qt::Key(Qt::Key_1 + i)}, [this, i] { m_parcours->montrerTri(TriDe(i)); });
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
        m_parcours->ouvrir();
        if (m_peinte)
            m_parcours->montrerPremiere();
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

void Frmmain::allerAuGroupe(int pas)
{
    if (m_fiches->allerAuGroupe(pas) && focusWidget())
        m_defilement->ensureWidgetVisible(focusWidget(), 0, Theme::Grand);
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

Entree Frmmain::courante() const
{
    return m_parcours->courante();
}

void Frmmain::appliquerApparence()
{
    m_volet->appliquerApparence();
    m_fiches->appliquerPolices();
    m_fond->charger();
}

void Frmmain::dire(const QString &message)
{
    m_pied->dire(message);
}

void Frmmain::oublierIndice()
{
    m_pied->oublierIndice();
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
    if (m_parcours->estOuvert())
        QTimer::singleShot(0, this, [this] { m_parcours->actualiser({}); });
}

bool Frmmain::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::WindowActivate)
        m_pied->animer(true);
    else if (evenement->type() == QEvent::WindowDeactivate)
        m_pied->animer(false);
    else if (evenement->type() == QEvent::Paint && !std::exchange(m_peinte, true))
        // The list is on screen; only now is there time for the first sheet.
        QTimer::singleShot(0, m_parcours, &Parcours::montrerPremiere);
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
    QStringList question{texte(Txt::VoulezVousQuitter) + u' ' + titre() + QStringLiteral(" ?")};
    question << Forme::Brouillons();
    if (!Messages::Demander(this, question.join(u'\n'))) {
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
