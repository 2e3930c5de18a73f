#include "loans/Pret.h"

#include "acts/Demandes.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "loans/Lignes.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(960, 540);
constexpr qsizetype LongueurSurUnBouton = 28;
const QString Personne = QStringLiteral("Pers");
const QString PretEnCours = QStringLiteral("Pret");
enum Colonne { Titre, Jours, AQui };

/// As much as a button has room for.
QString couper(const QString &texte)
{
    return texte.size() > LongueurSurUnBouton ? texte.left(LongueurSurUnBouton) + QChar(0x2026) : texte;
}

/// How a borrower is called in a sentence.
QString appeler(const Prets::Emprunteur &emprunteur)
{
    const QString nom = (emprunteur.prenom + u' ' + emprunteur.nom).trimmed();
    return nom.isEmpty() ? Pret::tr("quelqu'un qui n'est plus dans la liste") : nom;
}

}

Pret::Pret(Demandes &demandes)
    : FormeOutil(QStringLiteral("Pret"), TailleDessinee)
    , m_demandes(demandes)
{
    Fond::Tapisser(this);
    auto *listes = new QHBoxLayout;
    listes->setSpacing(Theme::Grand);
    listes->addLayout(construirePersonnes(), 2);
    listes->addLayout(construirePrets(), 3);
    corps()->addLayout(listes, 1);
    ajouterMessage()->setTextFormat(Qt::PlainText);
    m_preter = ajouterAuPied(QStringLiteral("Preter"), true);
    m_del = ajouterAuPied(QStringLiteral("Del"));
    brancher();
    Pret::Traduire();
}

QLabel *Pret::construireTitre()
{
    auto *titre = new QLabel(this);
    titre->setFont(Theme::Taille(font(), 1, QFont::Bold));
    return titre;
}

QBoxLayout *Pret::construirePersonnes()
{
    auto *colonne = new QVBoxLayout;
    colonne->setSpacing(Theme::Fin);
    m_titrePersonnes = construireTitre();
    m_lPers = nommer(new ListePersonnes(this), QStringLiteral("LPers"));
    m_tous = nommer(new QPushButton(this), QStringLiteral("Tous"));
    m_ajouter = nommer(new QPushButton(this), QStringLiteral("AjouterPersonne"));
    colonne->addWidget(m_titrePersonnes);
    colonne->addWidget(m_lPers, 1);
    auto *boutons = new QHBoxLayout;
    boutons->addWidget(m_ajouter, 1);
    boutons->addWidget(m_tous, 1);
    colonne->addLayout(boutons);
    return colonne;
}

QBoxLayout *Pret::construirePrets()
{
    auto *colonne = new QVBoxLayout;
    colonne->setSpacing(Theme::Fin);
    m_titrePrets = construireTitre();
    m_nombre = nommer(new QLabel(this), QStringLiteral("Nombre"));
    m_nombre->setForegroundRole(QPalette::PlaceholderText);
    m_lPret = nommer(new QTreeView(this), QStringLiteral("LPret"));
    Lignes::Preparer(m_lPret, m_prets);
    auto *tete = new QHBoxLayout;
    tete->addWidget(m_titrePrets, 1);
    tete->addWidget(m_nombre);
    colonne->addLayout(tete);
    colonne->addWidget(m_lPret, 1);
    return colonne;
}

void Pret::brancher()
{
    connect(m_lPers->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &Pret::choisirPersonne);
    connect(m_lPers, &QTreeView::clicked, this, &Pret::choisirPersonne);
    connect(m_lPers, &ListePersonnes::saisie, this, &Pret::ecrirePersonne);
    connect(m_lPers, &ListePersonnes::nouvelle, this, &Pret::ajouterPersonne);
    connect(m_lPret->selectionModel(), &QItemSelectionModel::currentChanged, this, &Pret::choisirPret);
    connect(m_lPret, &QTreeView::clicked, this, &Pret::choisirPret);
    connect(m_lPret, &QTreeView::doubleClicked, this, [this] {
        Q_EMIT m_demandes.entree({General::Tri::Albums, pret()});
    });
    connect(m_tous, &QPushButton::clicked, this, [this] { m_lPers->setCurrentIndex({}); });
    connect(m_ajouter, &QPushButton::clicked, m_lPers, &ListePersonnes::ajouter);
    connect(m_preter, &QPushButton::clicked, this, &Pret::preter);
    connect(m_del, &QPushButton::clicked, this, &Pret::supprimer);
}

int Pret::personne() const
{
    return Lignes::Courante(m_lPers);
}

int Pret::pret() const
{
    return Lignes::Courante(m_lPret);
}

void Pret::charger()
{
    dire({});
    m_lPers->setCurrentIndex({});
    m_lPers->remplir(Prets::LireEmprunteurs());
    remplirPrets();
    m_lPers->setFocus();
}

void Pret::actualiser(const Changements &)
{
    if (!isVisible())
        return;
    const int quoi = pret();
    const int rang = m_lPret->currentIndex().row();
    const QString cible = m_del->property("tag").toString();
    m_lPers->remplir(Prets::LireEmprunteurs());
    remplirPrets();
    if (cible == PretEnCours)
        Lignes::Retrouver(m_lPret, quoi, rang);
    poserCourante(m_courante);
}

/// Three columns when everybody's loans are shown: then one wants to know whose they are.
void Pret::remplirPrets()
{
    const int qui = personne();
    m_prets.setRowCount(0);
    for (const Prets::Pret &pret : Prets::LirePrets(qui)) {
        const QString jours = pret.jours ? tr("%n jour(s)", nullptr, *pret.jours) : QString();
        m_prets.appendRow(
            {new Lignes::Cellule(pret.titre, pret.album), new Lignes::Cellule(jours, pret.album, pret.jours),
                new Lignes::Cellule(pret.emprunteur, pret.album)});
    }
    Lignes::Trier(m_lPret, m_prets);
    m_lPret->setColumnHidden(AQui, qui > 0);
    m_nombre->setText(texte(Txt::AlbumsNombre) + u' ' + QString::number(m_prets.rowCount()));
    m_tous->setEnabled(qui > 0);
    poserCible(qui > 0 ? Personne : QString());
}

void Pret::choisirPersonne()
{
    dire({});
    remplirPrets();
    nommerPreter();
}

void Pret::choisirPret()
{
    poserCible(pret() > 0 ? PretEnCours : personne() > 0 ? Personne : QString());
}

/// What the button deletes follows what was chosen last.
void Pret::poserCible(const QString &cible)
{
    m_del->setProperty("tag", cible);
    m_del->setEnabled(!cible.isEmpty());
    libeller(m_del, cible == PretEnCours ? tr("Rendre l'album") : tr("Supprimer la personne"));
}

void Pret::ecrirePersonne(int id, Preter::Donnee donnee, const QString &texte)
{
    const bool ecrite = Preter::EcrireEmprunteur(id, donnee, texte);
    dire(ecrite ? QString() : tr("Une personne a un nom."));
    // What was written may read otherwise than it was typed, and what was refused is as before.
    m_lPers->remplir(Prets::LireEmprunteurs());
    nommerPreter();
}

void Pret::ajouterPersonne(const QString &nom)
{
    m_lPers->attribuer(Preter::AjouterEmprunteur(nom));
    choisirPersonne();
}

/// The number of albums stands in the question, since they stay marked as lent.
QString Pret::questionDuRetrait() const
{
    const QString question = texte(Txt::RetirerCettePersonne);
    const int albums = m_prets.rowCount();
    return albums == 0 ? question
                       : question + QStringLiteral("\n\n")
            + tr("%n album(s) lui restent prêtés et le resteront.", nullptr, albums);
}

void Pret::supprimer()
{
    const bool rend = m_del->property("tag").toString() == PretEnCours;
    if (!Messages::Demander(this, rend ? texte(Txt::RetirerCePret) : questionDuRetrait()))
        return;
    dire({});
    if (!rend) {
        Preter::SupprimerEmprunteur(personne());
        return m_lPers->remplir(Prets::LireEmprunteurs());
    }
    const int rang = m_lPret->currentIndex().row();
    Preter::Rendre(pret());
    m_prets.removeRow(rang);
}

void Pret::poserCourante(General::Entree entree)
{
    m_courante = entree;
    const bool album = entree.tri == General::Tri::Albums && entree.id > 0;
    m_titre = album ? General::LireTexte(entree.tri, entree.id) : QString();
    m_preter->setEnabled(album);
    nommerPreter();
}

/// The button says what it lends, and to whom when that is chosen.
void Pret::nommerPreter()
{
    const auto qui = m_lPers->personne();
    const QString quoi = couper(m_titre);
    libeller(m_preter,
        !m_preter->isEnabled() ? tr("Prêter")
            : qui              ? tr("Prêter « %1 » à %2").arg(quoi, couper(appeler(*qui)))
                               : tr("Prêter « %1 »").arg(quoi));
    m_preter->setToolTip(!m_preter->isEnabled() ? tr("Montrez d'abord un album dans la fenêtre principale")
            : qui                               ? QString()
                                                : tr("Choisir à qui l'album montré est prêté"));
}

/// Lends to the person chosen; where nobody is, one is chosen first.
void Pret::preter()
{
    const auto qui = m_lPers->personne();
    const auto tient = Prets::QuiA(m_courante.id);
    if (tient && qui && tient->id == qui->id)
        return dire(tr("« %1 » est déjà prêté à %2.").arg(m_titre, appeler(*qui)));
    if (tient && !accepterDeReprendre(*tient))
        return;
    if (!qui)
        return choisirAQui();
    Preter::PreterAlbum(m_courante.id, qui->id);
    dire(tr("« %1 » est prêté à %2.").arg(m_titre, appeler(*qui)));
}

/// Asks before an album goes from one to another.
bool Pret::accepterDeReprendre(const Prets::Emprunteur &tient)
{
    const auto qui = m_lPers->personne();
    const QString deja = tr("« %1 » est déjà prêté à %2.").arg(m_titre, appeler(tient));
    const QString question = qui ? tr("Le prêter maintenant à %1 ?").arg(appeler(*qui))
                                 : tr("Le prêter maintenant à quelqu'un d'autre ?");
    return Messages::Demander(this, deja + u'\n' + question);
}

void Pret::choisirAQui()
{
    Edition edition = Ecrire::EditionDe(m_courante, Champs::De(Champs::Feuille::Album, "NPret"));
    edition.place = QRect(m_preter->mapToGlobal(QPoint()), m_preter->size());
    Q_EMIT m_demandes.edition(edition);
}

void Pret::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::GestionDesPrets));
    m_titrePersonnes->setText(texte(Txt::ListeDesPersonnes));
    m_titrePrets->setText(texte(Txt::ListeDesPrets));
    m_lPers->Traduire();
    m_lPret->setAccessibleName(texte(Txt::ListeDesPrets));
    m_prets.setHorizontalHeaderLabels({texte(Txt::TitreDeLAlbum), tr("Dehors depuis"), texte(Txt::NomPret)});
    m_lPret->header()->setStretchLastSection(false);
    m_lPret->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_lPret->header()->setSectionResizeMode(Titre, QHeaderView::Stretch);
    libeller(m_ajouter, texte(Txt::Ajouter));
    libeller(m_tous, tr("Tous les prêts"));
    dire({});
    poserCible(m_del->property("tag").toString());
    poserCourante(m_courante);
    // The days and the count are words of the language, too.
    QTimer::singleShot(0, this, [this] { actualiser({}); });
}

/// Enter on a loan shows its album.
void Pret::entrer()
{
    if (m_lPret->hasFocus() && pret() > 0)
        Q_EMIT m_demandes.entree({General::Tri::Albums, pret()});
}

void Pret::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Delete && m_del->isEnabled())
        supprimer();
    else
        FormeOutil::keyPressEvent(evenement);
}
