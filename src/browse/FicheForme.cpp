#include "browse/FicheForme.h"

#include "acts/Demandes.h"
#include "acts/Joindre.h"
#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/ChoixPlat.h"
#include "core/ui/Etoiles.h"
#include "core/ui/Legende.h"
#include "core/ui/Liens.h"
#include "core/ui/Memo.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QEvent>
#include <QGridLayout>

using namespace Champs;

namespace {

QWidget *fabriquer(Vue vue, QWidget *parent)
{
    switch (vue) {
    case Vue::Memo:
        return new Memo(parent);
    case Vue::Etoiles:
        return new Etoiles(parent);
    case Vue::Case:
        return new QCheckBox(parent);
    case Vue::Format:
    case Vue::Couleur:
        return new ChoixPlat(parent);
    case Vue::Parution: {
        // An unknown periodicity is blank: the dots would ask for a text.
        auto *choix = new ChoixPlat(parent);
        choix->poserPointilles(false);
        return choix;
    }
    case Vue::Image:
        return new CadreImage(parent);
    case Vue::Lien: {
        auto *lien = new Legende(parent);
        lien->poserLien(true);
        return lien;
    }
    default:
        return new Legende(parent);
    }
}

/// A grade outside 1 to 5 counts as the lowest; only a text field can have none, or hold something else.
void montrerNote(const Champ &champ, Etoiles &etoiles, const QString &affichee)
{
    bool nombre = false;
    const int note = affichee.toInt(&nombre);
    if (nombre || champ.regle == Regle::Nombre)
        etoiles.poserValeur(note >= 1 && note <= 5 ? note : 1);
    else if (affichee.isEmpty())
        etoiles.poserValeur(0);
    else
        etoiles.poserTexte(affichee);
    const QString mot = Fiche::MotDeLaNote(etoiles.valeur()) + u' ' + QString::number(etoiles.valeur());
    etoiles.setToolTip(etoiles.valeur() > 0 ? mot : QString());
}

/// The words of a choice, with their numbers behind them; the current one stays.
void proposer(const Champ &champ, ChoixPlat &choix)
{
    const QVariant courante = choix.currentData();
    choix.clear();
    for (const Fiche::Option &option : Fiche::Options(champ))
        choix.addItem(option.mot, option.valeur);
    choix.setCurrentIndex(choix.findData(courante));
}

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
    const Champ &voulu = champ(nom);
    QWidget *controle = nommer(fabriquer(voulu.vue, this), QString::fromLatin1(voulu.controle));
    m_controles[nom] = controle;
    brancher(voulu, controle);
    return controle;
}

/// What the user does to a control is written at once, or asked for in a form of its own.
void FicheForme::brancher(const Champ &champ, QWidget *controle)
{
    const Champ *quoi = &champ;
    if (auto *legende = qobject_cast<Legende *>(controle)) {
        connect(legende, &Legende::actionnee, this,
            [this, quoi, legende] { Q_EMIT m_demandes.edition(editionDe(quoi, legende)); });
        connect(legende, &Legende::ouvertureDemandee, this, &Liens::Ouvrir);
    } else if (auto *memo = qobject_cast<Memo *>(controle)) {
        connect(memo, &Memo::modifie, this,
            [this, quoi](const QString &texte, int visite) { ecrire(quoi, texte, visite); });
    } else if (auto *etoiles = qobject_cast<Etoiles *>(controle)) {
        connect(etoiles, &Etoiles::choisie, this,
            [this, quoi](int note) { ecrire(quoi, QString::number(note)); });
    } else if (auto *boite = qobject_cast<QCheckBox *>(controle)) {
        connect(boite, &QCheckBox::clicked, this,
            [this, quoi](bool coche) { ecrire(quoi, QString::number(coche ? 1 : 0)); });
    } else if (auto *choix = qobject_cast<ChoixPlat *>(controle)) {
        connect(choix, &QComboBox::activated, this,
            [this, quoi, choix] { ecrire(quoi, choix->currentData().toString()); });
    } else if (auto *cadre = qobject_cast<CadreImage *>(controle)) {
        brancherCadre(champ, cadre);
    }
}

void FicheForme::brancherCadre(const Champ &champ, CadreImage *cadre)
{
    const Champ *quoi = &champ;
    cadre->poserModifiable();
    connect(cadre, &CadreImage::fichierDepose, this,
        [this, quoi, cadre](const QString &chemin) { Joindre::Poser(editionDe(quoi, cadre), chemin); });
    connect(cadre, &CadreImage::imageCollee, this,
        [this, quoi, cadre](const QImage &image) { Joindre::PoserImage(editionDe(quoi, cadre), image); });
    connect(cadre, &CadreImage::ouvertureDemandee, this,
        [this, quoi, cadre] { Liens::OuvrirImage(editionDe(quoi, cadre).affichee); });
    // A click on an empty frame fills it; one on a picture is only a look.
    connect(cadre, &CadreImage::actionnee, this, [this, quoi, cadre] {
        if (!cadre->aUneImage())
            Q_EMIT m_demandes.image(editionDe(quoi, cadre));
    });
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

Edition FicheForme::editionSous(const QWidget *controle) const
{
    for (const auto &[nom, valeur] : m_controles) {
        if (valeur == controle || valeur->isAncestorOf(controle))
            return editionDe(&champ(nom.c_str()), valeur);
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
    for (Memo *memo : findChildren<Memo *>())
        memo->annoncer();
}

void FicheForme::oublierMemos()
{
    for (Memo *memo : findChildren<Memo *>())
        memo->oublier();
}

bool FicheForme::memosEnAttente() const
{
    const QList<Memo *> memos = findChildren<Memo *>();
    return std::any_of(memos.begin(), memos.end(), [](const Memo *memo) { return memo->enAttente(); });
}

void FicheForme::ajouterLigne(QGridLayout *grille, const char *nom)
{
    QWidget *controle = creer(nom);
    if (qobject_cast<QCheckBox *>(controle)) {
        grille->addWidget(controle, grille->rowCount(), 1); // a box says itself what it is
        return;
    }
    auto *libelle = new QLabel(this);
    libelle->setForegroundRole(QPalette::PlaceholderText);
    libelle->setBuddy(controle);
    m_libelles[nom] = libelle;
    const int rang = grille->rowCount();
    grille->addWidget(libelle, rang, 0);
    grille->addWidget(controle, rang, 1);
    grille->setColumnStretch(1, 1);
}

void FicheForme::Traduire()
{
    for (const auto &[nom, controle] : m_controles) {
        const QString libelle = texte(Chercher(m_feuille, nom.c_str())->libelle);
        controle->setAccessibleName(libelle);
        if (auto *boite = qobject_cast<QCheckBox *>(controle))
            boite->setText(libelle);
        if (Chercher(m_feuille, nom.c_str())->vue == Vue::Lien)
            controle->setToolTip(texte(Txt::CliquerPourSiteInternet));
        if (auto *choix = qobject_cast<ChoixPlat *>(controle))
            proposer(*Chercher(m_feuille, nom.c_str()), *choix);
        if (const auto trouve = m_libelles.find(nom); trouve != m_libelles.end())
            trouve->second->setText(libelle);
    }
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
    for (const auto &[nom, controle] : m_controles) {
        if (qobject_cast<CadreImage *>(controle))
            continue;
        const auto facteur = m_facteurs.find(nom);
        const QFont police = Theme::PoliceChoisie();
        habiller(controle,
            facteur == m_facteurs.end() ? police : Theme::Taille(police, facteur->second, QFont::Bold));
    }
    for (QWidget *valeur : m_inscrites)
        habiller(valeur, Theme::PoliceChoisie());
}

void FicheForme::inscrire(QWidget *valeur)
{
    m_inscrites.push_back(valeur);
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
    for (const auto &[nom, controle] : m_controles) {
        const auto valeur = valeurs.find(QString::fromStdString(nom));
        montrer(*Chercher(m_feuille, nom.c_str()), controle,
            valeur == valeurs.end() ? ValeurDeChamp() : valeur->second);
    }
}

void FicheForme::montrer(const Champ &champ, QWidget *controle, const ValeurDeChamp &valeur)
{
    switch (champ.vue) {
    case Vue::Memo:
        qobject_cast<Memo *>(controle)->montrer(valeur.affichee);
        break;
    case Vue::Etoiles:
        montrerNote(champ, *qobject_cast<Etoiles *>(controle), valeur.affichee);
        break;
    case Vue::Case:
        qobject_cast<QCheckBox *>(controle)->setChecked(valeur.stockee.toBool());
        break;
    case Vue::Image:
        qobject_cast<CadreImage *>(controle)->montrer(valeur.affichee);
        break;
    case Vue::Format:
    case Vue::Couleur:
    case Vue::Parution: {
        auto *choix = qobject_cast<ChoixPlat *>(controle);
        choix->setCurrentIndex(valeur.stockee.isValid() ? choix->findData(valeur.stockee.toInt()) : -1);
        break;
    }
    default:
        qobject_cast<Legende *>(controle)->montrer(valeur.affichee);
        break;
    }
    // The name of a control says what it is; only the description can say what it holds.
    controle->setAccessibleDescription(valeur.affichee);
}
