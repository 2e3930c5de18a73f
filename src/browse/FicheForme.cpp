#include "browse/FicheForme.h"

#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/Etoiles.h"
#include "core/ui/Legende.h"
#include "core/ui/Liens.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QPlainTextEdit>

using namespace Champs;

namespace {

QWidget *fabriquer(Vue vue, QWidget *parent)
{
    switch (vue) {
    case Vue::Memo: {
        auto *memo = new QPlainTextEdit(parent);
        memo->setReadOnly(true);
        memo->setTabChangesFocus(true);
        return memo;
    }
    case Vue::Etoiles:
        return new Etoiles(parent);
    case Vue::Case: {
        auto *boite = new QCheckBox(parent);
        boite->setAttribute(Qt::WA_TransparentForMouseEvents);
        boite->setFocusPolicy(Qt::NoFocus);
        return boite;
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

FicheForme::FicheForme(Feuille feuille, const QString &nom, QWidget *parent)
    : Carte(parent)
    , m_feuille(feuille)
{
    setObjectName(nom);
}

QWidget *FicheForme::creer(const char *nom)
{
    const Champ *champ = Chercher(m_feuille, nom);
    Q_ASSERT(champ);
    QWidget *controle = nommer(fabriquer(champ->vue, this), QString::fromLatin1(champ->controle));
    m_controles[nom] = controle;
    if (champ->vue == Vue::Lien)
        connect(qobject_cast<Legende *>(controle), &Legende::ouvertureDemandee, this, &Liens::Ouvrir);
    return controle;
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

void FicheForme::montrerValeurs(const Valeurs &valeurs)
{
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
        qobject_cast<QPlainTextEdit *>(controle)->setPlainText(valeur.affichee);
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
    case Vue::Parution:
        // An unknown periodicity is blank: the dots would ask for a text.
        if (valeur.affichee.isEmpty())
            qobject_cast<Legende *>(controle)->effacer();
        else
            qobject_cast<Legende *>(controle)->montrer(valeur.affichee);
        break;
    default:
        qobject_cast<Legende *>(controle)->montrer(valeur.affichee);
        break;
    }
    // The name of a control says what it is; only the description can say what it holds.
    controle->setAccessibleDescription(valeur.affichee);
}
