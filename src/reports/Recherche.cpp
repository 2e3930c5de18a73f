#include "reports/Recherche.h"

#include "acts/Demandes.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Fond.h"
#include "core/ui/Icones.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using namespace General;

namespace {

constexpr QSize TailleDessinee(560, 620);

}

Recherche::Recherche(Demandes &demandes)
    : FormeOutil(QStringLiteral("Recherche"), TailleDessinee)
    , m_demandes(demandes)
{
    Fond::Tapisser(this);
    corps()->addWidget(construireCriteres());
    corps()->addWidget(construireResultat(), 1);
    connect(m_menu, &QPushButton::clicked, this, &Recherche::chercher);
    connect(m_liste, &QTreeView::clicked, this, &Recherche::aller);
    Recherche::Traduire();
}

QWidget *Recherche::construireCriteres()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(Theme::Petit);
    m_libelle = new QLabel(zone);
    m_libelle->setForegroundRole(QPalette::PlaceholderText);
    colonne->addWidget(m_libelle);
    auto *ligne = new QHBoxLayout;
    m_saisie = nommer(new QLineEdit(zone), QStringLiteral("Saisie"));
    m_saisie->setClearButtonEnabled(true);
    m_menu = nommer(new QPushButton(zone), QStringLiteral("Menu"));
    m_menu->setMinimumHeight(32);
    Theme::Accentuer(m_menu);
    ligne->addWidget(m_saisie, 1);
    ligne->addWidget(m_menu);
    colonne->addLayout(ligne);
    auto *options = new QHBoxLayout;
    m_tris = nommer(new QComboBox(zone), QStringLiteral("ListeTri"));
    for (int i = 0; i < NombreDeTris; ++i)
        m_tris->addItem(Icones::Charger(QString::fromLatin1(ListeDe(TriDe(i)).icone)), {});
    m_debut = nommer(new QCheckBox(zone), QStringLiteral("OptRec"));
    options->addWidget(m_tris);
    options->addSpacing(Theme::Moyen);
    options->addWidget(m_debut);
    options->addStretch(1);
    colonne->addLayout(options);
    return zone;
}

QWidget *Recherche::construireResultat()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(Theme::Fin);
    auto *ligne = new QHBoxLayout;
    m_resultat = new QLabel(zone);
    m_resultat->setFont(Theme::Taille(font(), 1, QFont::Bold));
    m_nombre = nommer(new QLabel(zone), QStringLiteral("Nombre"));
    m_nombre->setForegroundRole(QPalette::PlaceholderText);
    ligne->addWidget(m_resultat, 1);
    ligne->addWidget(m_nombre);
    colonne->addLayout(ligne);
    m_liste = nommer(new QTreeView(zone), QStringLiteral("Liste"));
    m_liste->setModel(&m_modele);
    m_liste->setRootIsDecorated(false);
    m_liste->setUniformRowHeights(true);
    m_liste->setAllColumnsShowFocus(true);
    m_liste->setEditTriggers(QTreeView::NoEditTriggers);
    m_liste->setAlternatingRowColors(true);
    colonne->addWidget(m_liste, 1);
    return zone;
}

void Recherche::charger()
{
    m_tris->setCurrentIndex(static_cast<int>(TriDe(Reglages::courant().entier(Cle::Tris))));
    m_modele.remplir(Tri::Albums, {});
    m_criteres.reset();
    poserNombre();
    m_saisie->selectAll();
    m_saisie->setFocus();
}

void Recherche::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::Recherche));
    m_libelle->setText(texte(Txt::RechercheParLibelle));
    m_saisie->setAccessibleName(texte(Txt::RechercheParLibelle));
    libeller(m_menu, texte(Txt::LancerLaRecherche));
    libeller(m_debut, texte(Txt::CommencantPar));
    m_debut->setToolTip(texte(Txt::CommencantPar) + QStringLiteral(" / ") + texte(Txt::Partout));
    m_tris->setAccessibleName(texte(Txt::Tris));
    for (int i = 0; i < NombreDeTris; ++i)
        m_tris->setItemText(i, texte(ListeDe(TriDe(i)).bouton));
    m_resultat->setText(texte(Txt::ResultatDeRecherche));
    m_liste->setAccessibleName(texte(Txt::ResultatDeRecherche));
    poserNombre();
}

void Recherche::chercher()
{
    m_criteres = Criteres{TriDe(m_tris->currentIndex()), m_saisie->text(),
        m_debut->isChecked() ? Rechercher::Mode::Debut : Rechercher::Mode::Partout};
    remplir();
}

/// The hits of the last search, looked for anew.
void Recherche::remplir()
{
    const QString icone = QString::fromLatin1(ListeDe(m_criteres->tri).icone);
    m_modele.poserIcones(Icones::Charger(icone), {});
    m_modele.remplir(
        m_criteres->tri, Rechercher::Chercher(m_criteres->tri, m_criteres->texte, m_criteres->mode));
    poserNombre();
}

void Recherche::poserNombre()
{
    const int nombre = m_modele.rowCount();
    if (!m_criteres)
        m_nombre->clear();
    else if (nombre == 0)
        m_nombre->setText(tr("Rien de tel"));
    else
        m_nombre->setText(texte(ListeDe(m_criteres->tri).prefixe) + u' ' + QString::number(nombre));
}

/// What was found may be renamed or gone.
void Recherche::actualiser(const Changements &changements)
{
    if (!m_criteres || !isVisible() || !Concerne(changements, m_modele.tri()))
        return;
    const int courante = m_modele.id(m_liste->currentIndex());
    remplir();
    m_liste->setCurrentIndex(m_modele.indexDe(courante));
}

void Recherche::aller(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const Entree entree{m_modele.tri(), m_modele.id(index)};
    if (Reglages::courant().entier(Cle::Tris) != static_cast<int>(entree.tri))
        Q_EMIT m_demandes.liste(entree.tri);
    Q_EMIT m_demandes.entree(entree);
}

/// Enter in the list goes to the hit, anywhere else it searches.
void Recherche::entrer()
{
    if (m_liste->hasFocus() && m_liste->currentIndex().isValid()) {
        aller(m_liste->currentIndex());
        return Q_EMIT m_demandes.forme(Nom::Frmmain);
    }
    chercher();
    if (m_modele.rowCount() > 0) {
        m_liste->setFocus();
        m_liste->setCurrentIndex(m_modele.index(0));
    }
}
