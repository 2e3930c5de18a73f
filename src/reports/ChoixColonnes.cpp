#include "reports/ChoixColonnes.h"

#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int Largeur = 270;
/// The property of a box that names its column in the settings.
constexpr char NomDeColonne[] = "colonne";

QString nomDe(const Listage::Colonne &colonne)
{
    const QString nom = QLatin1String(colonne.champ->nom);
    return colonne.contraire ? nom + u'!' : nom;
}

/// All columns ticked, of all kinds of sheet: "0.TAlbum 0.NumBD 1.Nom".
QStringList mots()
{
    return Reglages::courant().texte(Cle::ColonnesImp).split(u' ', Qt::SkipEmptyParts);
}

QString debutDe(General::Tri tri)
{
    return QString::number(static_cast<int>(General::ListeDe(tri).feuille)) + u'.';
}

}

ChoixColonnes::ChoixColonnes(QWidget *parent)
    : QWidget(parent)
{
    setFixedWidth(Largeur);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    m_titre = new TitreGroupe(this);
    colonne->addWidget(m_titre);
    m_zone = new QScrollArea(this);
    m_zone->setWidgetResizable(true);
    m_zone->setFrameShape(QFrame::NoFrame);
    m_zone->setFocusPolicy(Qt::NoFocus);
    colonne->addWidget(m_zone, 1);
    auto *boutons = new QHBoxLayout;
    m_toutes = nommer(new QPushButton(this), QStringLiteral("Toutes"));
    m_aucune = nommer(new QPushButton(this), QStringLiteral("Aucune"));
    boutons->addWidget(m_toutes);
    boutons->addWidget(m_aucune);
    boutons->addStretch(1);
    colonne->addLayout(boutons);
    connect(m_toutes, &QPushButton::clicked, this, [this] { cocherToutes(true); });
    connect(m_aucune, &QPushButton::clicked, this, [this] { cocherToutes(false); });
}

void ChoixColonnes::proposer(General::Tri tri)
{
    m_tri = tri;
    m_colonnes = Listage::ColonnesDe(tri);
    m_cases.clear();
    const QStringList voulues = memorisees();
    auto *zone = new QWidget;
    auto *pile = new QVBoxLayout(zone);
    pile->setContentsMargins(0, 0, Theme::Petit, 0);
    pile->setSpacing(Theme::Fin);
    for (const Listage::Colonne &colonne : m_colonnes) {
        auto *choix
            = nommer(new QCheckBox(zone), QStringLiteral("Colonnes"), static_cast<int>(m_cases.size()));
        libeller(choix, Listage::LibelleDe(colonne));
        choix->setProperty(NomDeColonne, nomDe(colonne));
        choix->setChecked(voulues.isEmpty() ? colonne.dOffice : voulues.contains(nomDe(colonne)));
        connect(choix, &QCheckBox::clicked, this, &ChoixColonnes::memoriser);
        pile->addWidget(choix);
        m_cases.push_back(choix);
    }
    pile->addStretch(1);
    m_zone->setWidget(zone);
    // The form's ground shows through.
    for (QWidget *couche : {zone, m_zone->viewport()})
        couche->setAutoFillBackground(false);
}

/// The columns that were ticked last for this kind of sheet; none when it was never asked.
QStringList ChoixColonnes::memorisees() const
{
    QStringList noms;
    for (const QString &mot : mots()) {
        if (mot.startsWith(debutDe(m_tri)))
            noms << mot.mid(debutDe(m_tri).size());
    }
    return noms;
}

void ChoixColonnes::memoriser()
{
    QStringList gardes = mots();
    gardes.removeIf([debut = debutDe(m_tri)](const QString &mot) { return mot.startsWith(debut); });
    for (const QCheckBox *choix : m_cases) {
        if (choix->isChecked())
            gardes << debutDe(m_tri) + choix->property(NomDeColonne).toString();
    }
    Reglages::courant().ecrire(Cle::ColonnesImp, gardes.join(u' '));
    Q_EMIT change();
}

void ChoixColonnes::cocherToutes(bool cochees)
{
    for (QCheckBox *choix : m_cases)
        choix->setChecked(cochees);
    memoriser();
}

std::vector<Listage::Colonne> ChoixColonnes::choisies() const
{
    std::vector<Listage::Colonne> colonnes;
    for (std::size_t i = 0; i < m_cases.size(); ++i) {
        if (m_cases[i]->isChecked())
            colonnes.push_back(m_colonnes[i]);
    }
    return colonnes;
}

void ChoixColonnes::Traduire()
{
    m_titre->setText(texte(Txt::SelectionDesInformations));
    libeller(m_toutes, tr("Toutes"));
    libeller(m_aucune, tr("Aucune"));
    for (std::size_t i = 0; i < m_cases.size(); ++i)
        libeller(m_cases[i], Listage::LibelleDe(m_colonnes[i]));
}
