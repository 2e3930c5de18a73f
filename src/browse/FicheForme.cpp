#include "browse/FicheForme.h"

#include "acts/Demandes.h"
#include "acts/Joindre.h"
#include "browse/ControleDeChamp.h"
#include "core/Traduction.h"
#include "core/ui/Legende.h"
#include "core/ui/Liens.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QEvent>
#include <QGridLayout>
#include <QImage>

using namespace Champs;

namespace {

/// A group is wide enough where a date stands whole.
const QString ValeurLongue = QStringLiteral("30 septembre 2025");
constexpr int LargeurMinimale = 400;

void habiller(QWidget *valeur, const QFont &police)
{
    QPalette palette;
    if (Theme::CouleurChoisie().isValid()) {
        for (const auto role : {QPalette::Text, QPalette::WindowText})
            palette.setColor(role, Theme::CouleurChoisie());
    }
    valeur->setFont(police);
    valeur->setPalette(palette);
}

}

FicheForme::FicheForme(Feuille feuille, const QString &nom, Demandes &demandes, QWidget *parent)
    : Carte(parent)
    , m_demandes(demandes)
    , m_feuille(feuille)
{
    setObjectName(nom);
}

QWidget *FicheForme::creer(const char *nom)
{
    return placer(ControleDeChamp::Fabriquer(champ(nom), this))->controle();
}

QWidget *FicheForme::creerCadre(const char *nom)
{
    return placer(ControleDeChamp::FabriquerCadre(champ(nom), this))->controle();
}

/// What the user does to a control is written at once, or asked for in a form of its own.
ControleDeChamp *FicheForme::placer(ControleDeChamp *place)
{
    m_controles.push_back(place);
    if (std::exchange(m_groupeOuvert, false))
        marquer(place->controle());
    const auto edition = [this, place] { return editionDe(&place->champ(), place->controle()); };
    connect(place, &ControleDeChamp::saisie, this,
        [this, place](const QString &saisie, int visite) { ecrire(&place->champ(), saisie, visite); });
    connect(
        place, &ControleDeChamp::editionVoulue, this, [=, this] { Q_EMIT m_demandes.edition(edition()); });
    connect(place, &ControleDeChamp::imageVoulue, this, [=, this] { Q_EMIT m_demandes.image(edition()); });
    connect(place, &ControleDeChamp::fichierDonne, this,
        [edition](const QString &chemin) { Joindre::Poser(edition(), chemin); });
    connect(place, &ControleDeChamp::imageDonnee, this,
        [edition](const QImage &image) { Joindre::PoserImage(edition(), image); });
    connect(place, &ControleDeChamp::ouvertureVoulue, this,
        [edition] { Liens::OuvrirImage(edition().affichee); });
    return place;
}

ControleDeChamp *FicheForme::controleDe(const char *nom) const
{
    const auto trouve = std::find_if(m_controles.begin(), m_controles.end(),
        [voulu = &champ(nom)](const ControleDeChamp *controle) { return &controle->champ() == voulu; });
    Q_ASSERT_X(trouve != m_controles.end(), "FicheForme", nom);
    return *trouve;
}

const Champ &FicheForme::champ(const char *nom) const
{
    const Champ *champ = Chercher(m_feuille, nom);
    Q_ASSERT_X(champ, "FicheForme", nom);
    return *champ;
}

Edition FicheForme::editionDe(const Edite &quoi, const QWidget *controle) const
{
    Edition edition{m_entree, quoi};
    edition.place = QRect(controle->mapToGlobal(QPoint()), controle->size());
    const Champ *champ = Ecrire::ChampDe(edition);
    if (!champ)
        return edition;
    if (const auto valeur = m_valeurs.find(QLatin1String(champ->nom)); valeur != m_valeurs.end()) {
        edition.affichee = valeur->second.affichee;
        edition.stockee = valeur->second.stockee;
    }
    return edition;
}

Edition FicheForme::editionSous(const QWidget *sous) const
{
    for (const ControleDeChamp *place : m_controles) {
        const QWidget *controle = place->controle();
        if (place->aUnMenu() && (controle == sous || controle->isAncestorOf(sous)))
            return editionDe(&place->champ(), controle);
    }
    return editionDe(nullptr, this);
}

void FicheForme::contextMenuEvent(QContextMenuEvent *evenement)
{
    const bool souris = evenement->reason() == QContextMenuEvent::Mouse;
    const QWidget *sous = souris ? childAt(evenement->pos()) : QApplication::focusWidget();
    if (!sous)
        sous = this;
    const QPoint point = souris ? evenement->globalPos() : sous->mapToGlobal(sous->rect().bottomLeft());
    if (m_entree.id > 0)
        Q_EMIT m_demandes.menu(editionSous(sous), point);
}

void FicheForme::ecrire(const Edite &quoi, const QString &saisie, int visite)
{
    Ecrire::Resultat resultat;
    try {
        resultat = Ecrire::EcrireSaisie(editionDe(quoi, this), saisie, visite);
    } catch (...) {
        remontrer();
        throw;
    }
    if (!resultat.refus.isEmpty())
        remontrer();
    const QString mot = resultat.refus.isEmpty() ? resultat.avis : resultat.refus;
    if (!mot.isEmpty())
        Q_EMIT m_demandes.message(mot);
}

void FicheForme::ecrireMemos()
{
    for (ControleDeChamp *controle : m_controles)
        controle->annoncer();
}

void FicheForme::oublierMemos()
{
    for (ControleDeChamp *controle : m_controles)
        controle->oublier();
}

void FicheForme::permettre(bool permis)
{
    for (ControleDeChamp *controle : m_controles)
        controle->permettre(permis);
}

bool FicheForme::memosEnAttente() const
{
    return std::any_of(m_controles.begin(), m_controles.end(),
        [](const ControleDeChamp *controle) { return controle->enAttente(); });
}

void FicheForme::ajouterLigne(QGridLayout *grille, const char *nom)
{
    ControleDeChamp *place = placer(ControleDeChamp::Fabriquer(champ(nom), this));
    const int rang = grille->rowCount();
    grille->addWidget(place->controle(), rang, 1);
    if (place->seNomme())
        return;
    auto *libelle = new QLabel(this);
    libelle->setForegroundRole(QPalette::PlaceholderText);
    libelle->setBuddy(place->controle());
    m_libelles[place] = libelle;
    grille->addWidget(libelle, rang, 0);
    grille->setColumnStretch(1, 1);
}

QGridLayout *FicheForme::ouvrirPage()
{
    auto *page = new QGridLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setHorizontalSpacing(Theme::Grand);
    page->setVerticalSpacing(Theme::Petit);
    return page;
}

TitreGroupe *FicheForme::titreDe(Txt texte)
{
    auto *titre = new TitreGroupe(this);
    m_titres.emplace_back(titre, texte);
    m_groupeOuvert = true;
    return titre;
}

void FicheForme::marquer(QWidget *premier)
{
    m_premiers.push_back(premier);
    m_groupeOuvert = false;
}

QGridLayout *FicheForme::ouvrirGroupe(QBoxLayout *colonne, Txt titre)
{
    colonne->addWidget(titreDe(titre));
    auto *grille = new QGridLayout;
    grille->setContentsMargins(0, Theme::Fin, 0, 0);
    grille->setHorizontalSpacing(Theme::Petit);
    grille->setVerticalSpacing(1);
    colonne->addLayout(grille);
    return grille;
}

QWidget *FicheForme::creerMemos(const std::vector<std::pair<const char *, Txt>> &memos)
{
    auto *zone = new QWidget(this);
    m_grilleDesMemos = new QGridLayout(zone);
    m_grilleDesMemos->setContentsMargins(0, 0, 0, 0);
    m_grilleDesMemos->setHorizontalSpacing(Theme::Grand);
    m_grilleDesMemos->setVerticalSpacing(Theme::Fin);
    for (const auto &[champ, titre] : memos) {
        TitreGroupe *ligne = titreDe(titre);
        m_memos.emplace_back(ligne, creer(champ));
    }
    rangerMemos(false);
    return zone;
}

void FicheForme::rangerMemos(bool enColonne)
{
    for (int i = 0; i < static_cast<int>(m_memos.size()); ++i) {
        const auto [titre, memo] = m_memos[static_cast<std::size_t>(i)];
        m_grilleDesMemos->addWidget(titre, enColonne ? 2 * i : 0, enColonne ? 0 : i);
        m_grilleDesMemos->addWidget(memo, enColonne ? 2 * i + 1 : 1, enColonne ? 0 : i);
        m_grilleDesMemos->setColumnStretch(i, i == 0 || !enColonne ? 1 : 0);
    }
}

int FicheForme::largeurDUnGroupe() const
{
    int libelle = 0;
    for (const auto &[controle, etiquette] : m_libelles)
        libelle = std::max(libelle, etiquette->sizeHint().width());
    return libelle + Theme::Petit + 2 * Legende::MargeLaterale
        + QFontMetrics(Theme::PoliceChoisie()).horizontalAdvance(ValeurLongue);
}

void FicheForme::redisposer()
{
    const int place = contentsRect().width();
    const int groupe = Theme::Grand + largeurDUnGroupe();
    const auto voulue = place >= largeurDesImages() + 2 * groupe ? Disposition::Large
        : place >= largeurDesImages() + groupe                   ? Disposition::Moyenne
                                                                 : Disposition::Etroite;
    if (m_disposition == voulue)
        return;
    m_disposition = voulue;
    disposer(voulue);
}

void FicheForme::resizeEvent(QResizeEvent *evenement)
{
    Carte::resizeEvent(evenement);
    redisposer();
}

QSize FicheForme::minimumSizeHint() const
{
    return {LargeurMinimale, Carte::minimumSizeHint().height()};
}

/// What the keyboard can come to, in its order.
std::vector<QWidget *> FicheForme::auClavier() const
{
    std::vector<QWidget *> tous;
    for (QWidget *suivant = nextInFocusChain(); suivant != this; suivant = suivant->nextInFocusChain()) {
        const bool accessible = suivant->isVisible() && suivant->isEnabled();
        if (isAncestorOf(suivant) && accessible && suivant->focusPolicy() & Qt::TabFocus)
            tous.push_back(suivant);
    }
    return tous;
}

void FicheForme::allerAuGroupe(int pas)
{
    const std::vector<QWidget *> tous = auClavier();
    const auto rangDe = [&tous](const QWidget *cherche) {
        return std::find_if(tous.begin(), tous.end(),
            [cherche](const QWidget *w) { return w == cherche || (cherche && cherche->isAncestorOf(w)); });
    };
    std::vector<std::vector<QWidget *>::const_iterator> debuts;
    for (const QWidget *premier : m_premiers)
        debuts.push_back(rangDe(premier));
    std::erase(debuts, tous.end());
    if (debuts.empty())
        return;
    std::sort(debuts.begin(), debuts.end());
    const QWidget *la = QApplication::focusWidget();
    const auto ici = la && isAncestorOf(la) ? rangDe(la) : tous.end();
    const auto avant = std::lower_bound(debuts.begin(), debuts.end(), ici);
    const auto apres = std::upper_bound(debuts.begin(), debuts.end(), ici);
    const auto voulu = pas < 0  ? (avant == debuts.begin() ? debuts.end() : avant) - 1
        : apres == debuts.end() ? debuts.begin()
                                : apres;
    (**voulu)->setFocus(Qt::TabFocusReason);
}

void FicheForme::Traduire()
{
    for (const auto &[titre, numero] : m_titres) {
        titre->setText(texte(numero));
        titre->setToolTip(tr("Groupe suivant : F6, précédent : Maj+F6"));
    }
    for (ControleDeChamp *controle : m_controles)
        controle->Traduire();
    for (const auto &[controle, libelle] : m_libelles)
        libelle->setText(texte(controle->champ().libelle));
}

void FicheForme::alignerLibelles(const std::vector<QGridLayout *> &grilles)
{
    int largeur = 0;
    for (QGridLayout *grille : grilles) {
        for (int rang = 0; rang < grille->rowCount(); ++rang) {
            if (const QLayoutItem *libelle = grille->itemAtPosition(rang, 0))
                largeur = std::max(largeur, libelle->sizeHint().width());
        }
    }
    for (QGridLayout *grille : grilles)
        grille->setColumnMinimumWidth(0, largeur);
}

void FicheForme::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange)
        Traduire();
    Carte::changeEvent(evenement);
}

void FicheForme::AppliquerPolicesFiche()
{
    for (const ControleDeChamp *place : m_controles) {
        if (!place->aDesLettres())
            continue;
        const auto facteur = m_facteurs.find(place);
        const QFont police = Theme::PoliceChoisie();
        habiller(place->controle(),
            facteur == m_facteurs.end() ? police : Theme::Taille(police, facteur->second, QFont::Bold));
    }
    for (QWidget *valeur : m_inscrites)
        habiller(valeur, Theme::PoliceChoisie());
    if (m_disposition)
        redisposer();
}

void FicheForme::agrandirPolice(const char *nom, qreal facteur)
{
    m_facteurs[controleDe(nom)] = facteur;
}

void FicheForme::inscrire(QWidget *valeur)
{
    m_inscrites.push_back(valeur);
    if (m_groupeOuvert)
        marquer(valeur);
    habiller(valeur, Theme::PoliceChoisie());
}

void FicheForme::montrerValeurs(General::Entree entree, const Valeurs &valeurs)
{
    // What was typed here belongs to the entry that the sheet has shown.
    if (entree != m_entree)
        ecrireMemos();
    m_entree = entree;
    if (&valeurs != &m_valeurs)
        m_valeurs = valeurs;
    for (ControleDeChamp *controle : m_controles) {
        const auto valeur = valeurs.find(QString::fromLatin1(controle->champ().nom));
        controle->montrer(valeur == valeurs.end() ? ValeurDeChamp() : valeur->second);
    }
}
