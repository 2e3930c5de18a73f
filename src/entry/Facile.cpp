#include "entry/Facile.h"

#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "entry/Catalogue.h"
#include "entry/FormulaireAlbum.h"
#include "entry/LigneCatalogue.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleDessinee(1100, 660);
constexpr int LargeurCatalogue = 300;

}

Facile::Facile(Demandes &demandes)
    : FormeCreation(demandes, QStringLiteral("Facile"), TailleDessinee, Txt::CreationFacileDUnAlbum)
{
    m_modele.poserPrefixe(QStringLiteral("A"));
    // The keyboard comes to what is made first: one picks from the catalogue, then looks at the fields.
    ligne()->addWidget(construireCatalogue());
    m_carton = nommer(new QCheckBox(this), QStringLiteral("Carton"));
    construireFormulaire(false);
    QHBoxLayout *cases = formulaire()->ligneDesCases();
    cases->insertWidget(cases->count() - 1, m_carton);
    Facile::Traduire();
}

QWidget *Facile::construireCatalogue()
{
    auto *zone = new QWidget(this);
    zone->setFixedWidth(LargeurCatalogue);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    m_filtre = nommer(new QLineEdit(zone), QStringLiteral("Filtre"));
    m_filtre->setClearButtonEnabled(true);
    m_liste = nommer(new QListView(zone), QStringLiteral("LAlbum"));
    m_liste->setModel(&m_modele);
    m_liste->setUniformItemSizes(true);
    m_liste->setFont(Theme::PoliceChoisie());
    m_liste->setItemDelegate(new LigneCatalogue(m_liste));
    m_liste->setSpacing(1);
    m_liste->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_nombre = nommer(new QLabel(zone), QStringLiteral("Nombre"));
    m_nombre->setForegroundRole(QPalette::PlaceholderText);
    m_sel = nommer(new QPushButton(zone), QStringLiteral("Sel"));
    auto *pied = new QHBoxLayout;
    pied->addWidget(m_nombre, 1);
    pied->addWidget(m_sel);
    colonne->addWidget(m_filtre);
    colonne->addWidget(m_liste, 1);
    colonne->addLayout(pied);
    connect(m_filtre, &QLineEdit::textChanged, this, [this](const QString &texteDuFiltre) {
        m_modele.filtrer(texteDuFiltre);
        compter();
    });
    connect(m_filtre, &QLineEdit::returnPressed, this, [this] { m_liste->setFocus(); });
    connect(m_liste, &QListView::clicked, this, &Facile::choisir);
    connect(m_liste, &QListView::activated, this, &Facile::choisir);
    connect(m_sel, &QPushButton::clicked, this, [this] { choisir(m_liste->currentIndex()); });
    return zone;
}

void Facile::charger()
{
    FormeCreation::charger();
    Catalogue::Liste liste = Catalogue::LireAlbums();
    if (liste.illisibles > 0)
        dire(tr("%n album(s) du catalogue ne peuvent pas être décodés.", nullptr, liste.illisibles));
    if (liste.telsQuels)
        dire(tr(
            "Ce catalogue vient d'un ancien programme : ses textes sont codés, et personne n'en a la clé."));
    m_modele.remplir(General::Tri::Albums, std::move(liste.albums));
    compter();
    m_filtre->setFocus();
}

void Facile::compter()
{
    m_nombre->setText(texte(Txt::AlbumsNombre) + u' ' + QString::number(m_modele.rowCount()));
}

void Facile::vider()
{
    FormeCreation::vider();
    m_carton->setChecked(false);
    m_reference = 0;
}

void Facile::Traduire()
{
    FormeCreation::Traduire();
    m_filtre->setPlaceholderText(tr("Titre, série, auteur ou éditeur"));
    m_filtre->setAccessibleName(tr("Filtrer le catalogue"));
    m_liste->setAccessibleName(texte(Txt::ListeDesAlbums));
    libeller(m_sel, tr("Choisir"));
    libeller(m_carton, texte(Txt::Cartonnee));
    m_liste->viewport()->update();
    compter();
}

void Facile::choisir(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const int numero = m_modele.id(index);
    const auto reference = Catalogue::LireReference(numero);
    if (!reference)
        return;
    // What was chosen for the entry before is not this one's.
    if (m_reference != 0 && m_reference != numero)
        formulaire()->viderImages();
    m_reference = numero;
    formulaire()->poser(reference->album);
    m_carton->setChecked(reference->carton == QStringLiteral("cartonné"));
}
