#include "webimport/BDNet.h"

#include "acts/Demandes.h"
#include "acts/Saisie.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Icones.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/VueWeb.h"
#include "webimport/AccesBDNet.h"
#include "webimport/DetailBDNet.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(1000, 740);
constexpr int LargeurProgression = 180;

}

BDNet::BDNet(Demandes &demandes)
    : FormeOutil(QStringLiteral("BDNet"), TailleDessinee, Mini | Progression, Serre)
    , m_demandes(demandes)
{
    Fond::Tapisser(this);
    construireBarre(corps());
    construireVues(corps());
    construirePied();
    brancher();
    BDNet::Traduire();
    revenir();
}

void BDNet::construireBarre(QBoxLayout *page)
{
    auto *barre = new QHBoxLayout;
    m_accueil = nommer(new QToolButton(this), QStringLiteral("GotO1"));
    m_accueil->setIcon(Icones::Charger(QStringLiteral("web")));
    m_accueil->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    barre->addWidget(m_accueil);
    for (int i = 0; i < 2; ++i) {
        m_navigation[i] = nommer(new QToolButton(this), QStringLiteral("Navigation"), i);
        m_navigation[i]->setIcon(
            Icones::Charger(i == 0 ? QStringLiteral("precedent") : QStringLiteral("suivant")));
        m_navigation[i]->setEnabled(false);
        barre->addWidget(m_navigation[i]);
    }
    for (QToolButton *bouton : {m_accueil, m_navigation[0], m_navigation[1]})
        bouton->setAutoRaise(true);
    m_adresse = nommer(new QLineEdit(this), QStringLiteral("Adresse"));
    barre->addWidget(m_adresse, 1);
    m_analyse = nommer(new QPushButton(this), QStringLiteral("Analyse"));
    Theme::Accentuer(m_analyse);
    barre->addWidget(m_analyse);
    page->addLayout(barre);
}

void BDNet::construireVues(QBoxLayout *page)
{
    m_vues = new QStackedWidget(this);
    m_acces = new AccesBDNet(m_vues);
    m_web = new VueWeb(FabriqueWeb::Acces::Web, m_vues);
    m_detail = new DetailBDNet(m_vues);
    for (QWidget *vue :
        {static_cast<QWidget *>(m_acces), static_cast<QWidget *>(m_web), static_cast<QWidget *>(m_detail)})
        m_vues->addWidget(vue);
    page->addWidget(m_vues, 1);
}

void BDNet::construirePied()
{
    ajouterMessageAuPied(QStringLiteral("Refus"), Cote::Apres)->setForegroundRole(QPalette::BrightText);
    m_chargement = ajouterEtat(QStringLiteral("Lbl_Chargement"));
    progression()->setFixedWidth(LargeurProgression);
    m_creer = ajouterAuPied(QStringLiteral("BtnCreer"), true);
    m_revenir = ajouterAuPied(QStringLiteral("REvenir"));
    reserverEntree();
}

void BDNet::brancher()
{
    connect(m_accueil, &QToolButton::clicked, this, &BDNet::allerAccueil);
    connect(m_acces, &AccesBDNet::enregistre, this, &BDNet::suivreReglages);
    connect(m_acces, &AccesBDNet::refuse, this, [this](const QString &raison) { dire(raison); });
    connect(m_navigation[0], &QToolButton::clicked, m_web, &VueWeb::reculer);
    connect(m_navigation[1], &QToolButton::clicked, m_web, &VueWeb::avancer);
    connect(m_adresse, &QLineEdit::textChanged, this, [this](const QString &adresse) {
        m_analyse->setVisible(
            !estSurDetail() && Importation::EstUneFiche(Telechargement::AdresseDe(adresse)));
    });
    surEntree(m_adresse, [this] { suivreAdresse(); });
    connect(m_web, &VueWeb::adresseChangee, this, &BDNet::poserAdresse);
    connect(m_web, &VueWeb::avance, this,
        [this](int pourcent) { poserCharge(texte(Txt::ChargementEnCours), pourcent); });
    connect(m_web, &VueWeb::chargee, this, [this](bool reussi) {
        poserCharge({}, -1);
        dire(reussi ? QString() : tr("Cette page ne peut pas être montrée."));
    });
    connect(m_web, &VueWeb::historiqueChange, this, [this](bool peutReculer, bool peutAvancer) {
        m_navigation[0]->setEnabled(peutReculer);
        m_navigation[1]->setEnabled(peutAvancer);
    });
    connect(m_analyse, &QPushButton::clicked, this, &BDNet::analyser);
    connect(annuler(), &QPushButton::clicked, &m_importation, &Importation::annuler);
    connect(m_creer, &QPushButton::clicked, this, &BDNet::creer);
    connect(m_revenir, &QPushButton::clicked, this, &BDNet::abandonner);
    connect(&m_importation, &Importation::avance, this, [this](qint64 recus, qint64 total) {
        poserCharge(texte(Txt::ChargementEnCours), total > 0 ? static_cast<int>(100 * recus / total) : 0);
    });
    connect(&m_importation, &Importation::finie, this, &BDNet::montrerResultat);
    connect(&m_importation, &Importation::echouee, this, &BDNet::montrerEchec);
}

void BDNet::charger()
{
    m_navigateur = m_web->preparer();
    if (!brouillon().isEmpty())
        return;
    if (!m_importation.enCours())
        revenir();
    if (m_navigateur && m_adresse->text().isEmpty())
        allerAccueil();
    // One begins with what is missing.
    const bool sansHote = Reglages::courant().texte(Cle::HoteBDNet).isEmpty();
    (sansHote && m_acces->isVisible() ? static_cast<QWidget *>(m_acces) : m_adresse)->setFocus();
}

QString BDNet::brouillon() const
{
    if (!estSurDetail() || !m_detail->aUneSaisie())
        return {};
    return tr("« %1 » : un album commencé n'est pas encore créé, il sera perdu.")
        .arg(texte(Txt::CreationDesAlbumsAvecBDNet));
}

void BDNet::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::CreationDesAlbumsAvecBDNet));
    libeller(m_accueil, texte(Txt::VisiterLeSite));
    expliquer(m_navigation[0], texte(Txt::Precedent));
    expliquer(m_navigation[1], texte(Txt::Suivant));
    m_adresse->setAccessibleName(texte(Txt::Adresse));
    m_adresse->setPlaceholderText(tr("Adresse d'une page"));
    libeller(m_analyse, texte(Txt::Analyse));
    libeller(m_creer, texte(Txt::Creer));
    m_creer->setToolTip(tr("Ctrl+Entrée"));
    libeller(m_revenir, texte(Txt::RetourAuNavigateur));
    m_detail->Traduire();
    m_acces->Traduire();
}

bool BDNet::estSurDetail() const
{
    return m_vues->currentWidget() == m_detail;
}

void BDNet::allerA(const QString &adresse)
{
    if (adresse.trimmed().isEmpty())
        return;
    const QUrl url = Telechargement::AdresseDe(adresse);
    dire({});
    if (!Telechargement::EstDuWeb(url))
        return dire(tr("Seules les adresses du web peuvent être montrées."));
    m_adresse->setText(url.toString());
    if (m_navigateur) {
        m_vues->setCurrentWidget(m_web);
        m_web->aller(url);
    }
}

/// Enter in the address goes there, or reads the page where there is no browser.
void BDNet::suivreAdresse()
{
    if (estSurDetail())
        return;
    if (m_navigateur)
        allerA(m_adresse->text());
    else
        analyser();
}

void BDNet::poserAdresse(const QUrl &url)
{
    m_adresse->setText(url.toString());
    m_adresse->setCursorPosition(0);
}

/// Shows that something is under way; a negative number that nothing is.
void BDNet::poserCharge(const QString &quoi, int pourcent)
{
    m_chargement->setText(quoi);
    m_chargement->setVisible(pourcent >= 0);
    progression()->setVisible(pourcent >= 0);
    progression()->setRange(0, pourcent == 0 && m_importation.enCours() ? 0 : 100);
    progression()->setValue(pourcent);
    annuler()->setVisible(m_importation.enCours());
}

void BDNet::analyser()
{
    const QUrl url = Telechargement::AdresseDe(m_adresse->text());
    if (m_importation.enCours() || !Importation::EstUneFiche(url))
        return;
    dire({});
    Traduire();
    m_importation.commencer(url);
    occuper(true);
}

void BDNet::occuper(bool occupe)
{
    for (QWidget *commande : {static_cast<QWidget *>(m_analyse), static_cast<QWidget *>(m_accueil),
             static_cast<QWidget *>(m_adresse)})
        commande->setEnabled(!occupe);
    poserCharge(occupe ? texte(Txt::ChargementEnCours) : QString(), occupe ? 0 : -1);
}

void BDNet::montrerResultat(const Importation::Resultat &resultat)
{
    occuper(false);
    QStringList avis;
    if (!resultat.complet)
        avis << tr("La page n'a pas pu être lue jusqu'au bout : complétez les champs.");
    if (!resultat.sansImage.isEmpty())
        avis << tr("La couverture n'a pas pu être gardée : %1").arg(resultat.sansImage);
    dire(avis.join(u' '));
    setWindowTitle(
        resultat.complet ? QStringLiteral("terminé ...") : windowTitle() + QStringLiteral(" erreur ..."));
    m_vues->setCurrentWidget(m_detail);
    m_detail->montrer(resultat);
    poserVue(true);
}

void BDNet::montrerEchec(const QString &raison)
{
    occuper(false);
    if (raison.isEmpty())
        return;
    setWindowTitle(windowTitle() + QStringLiteral(" erreur ..."));
    dire(raison);
}

void BDNet::creer()
{
    const Album album = m_detail->album();
    if (const auto refus = Saisie::Verifier(album)) {
        dire(refus->raison);
        m_detail->designer(refus->rubrique);
        return;
    }
    const int num = Saisie::CreerAlbum(album);
    Messages::Informer(this, texte(Txt::CreationEffectuee));
    revenir();
    Q_EMIT m_demandes.liste(General::Tri::Albums);
    Q_EMIT m_demandes.entree({General::Tri::Albums, num});
}

void BDNet::allerAccueil()
{
    allerA(Reglages::courant().texte(Cle::AccueilBDNet));
}

/// What was just stored counts from now on.
void BDNet::suivreReglages()
{
    revenir();
    if (m_navigateur)
        allerAccueil();
    m_adresse->setFocus();
}

/// The way back, which gives up what was entered of this album.
void BDNet::abandonner()
{
    const QString question = tr("Cet album n'est pas encore créé. Perdre ce qui est saisi ?");
    if (!m_detail->aUneSaisie() || Messages::Demander(this, question))
        revenir();
}

/// Back to the browser, ready for the next album.
void BDNet::revenir()
{
    if (m_navigateur && !m_adresse->text().isEmpty())
        m_vues->setCurrentWidget(m_web);
    else
        m_vues->setCurrentWidget(m_acces);
    m_acces->montrer(m_navigateur);
    BDNet::Traduire();
    dire({});
    m_accueil->setEnabled(m_navigateur && !Reglages::courant().texte(Cle::AccueilBDNet).isEmpty());
    poserVue(false);
    poserCharge({}, -1);
}

/// Shows the commands of one of the two views: browser, or fields.
void BDNet::poserVue(bool detail)
{
    m_accueil->setVisible(!detail);
    for (QToolButton *bouton : m_navigation)
        bouton->setVisible(m_navigateur && !detail);
    m_adresse->setReadOnly(detail);
    m_analyse->setVisible(!detail && Importation::EstUneFiche(Telechargement::AdresseDe(m_adresse->text())));
    m_creer->setVisible(detail);
    m_revenir->setVisible(detail);
}

void BDNet::closeEvent(QCloseEvent *evenement)
{
    const bool demande = isVisible() && !brouillon().isEmpty();
    const QString question = tr("Cet album n'est pas encore créé. Fermer quand même ?") + u'\n'
        + tr("La saisie sera là à la prochaine ouverture, tant que le programme n'est pas quitté.");
    if (demande && !Messages::Demander(this, question)) {
        evenement->ignore();
        return;
    }
    m_importation.annuler();
    FormeOutil::closeEvent(evenement);
}
