#include "webimport/DetailBDNet.h"

#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

using namespace CreationBDNet;

constexpr QSize TailleCadre(180, 240);
constexpr Txt Libelles[NombreDeChamps] = {Txt::TitreDeLAlbum, Txt::NumeroAbrege, Txt::DateDeParution,
    Txt::TitreDeLaSerie, Txt::Genre, Txt::Dessinateur, Txt::Scenariste, Txt::Editeur, Txt::Prix};
constexpr Txt Cases[] = {Txt::Broche, Txt::Couleur, Txt::Integrale};

}

DetailBDNet::DetailBDNet(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("Detail"));
    auto *page = new QHBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Theme::Grand);
    page->addWidget(construireChamps(), 1);
    page->addWidget(construireImages(), 0, Qt::AlignTop);
    Traduire();
}

QWidget *DetailBDNet::construireChamps()
{
    auto *zone = new QWidget(this);
    auto *grille = new QGridLayout(zone);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setVerticalSpacing(Theme::Petit);
    grille->setColumnStretch(1, 1);
    const auto ajouter = [&](QWidget *champ) {
        auto *libelle = new QLabel(zone);
        libelle->setForegroundRole(QPalette::PlaceholderText);
        libelle->setBuddy(champ);
        const int rang = grille->rowCount();
        grille->addWidget(libelle, rang, 0);
        grille->addWidget(champ, rang, 1);
        return libelle;
    };
    for (int i = 0; i < NombreDeChamps; ++i) {
        m_champs.push_back(nommer(new QLineEdit(zone), QStringLiteral("Dataa"), i));
        m_libelles.push_back(ajouter(m_champs.back()));
    }
    auto *cases = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        m_cases[i] = nommer(new QCheckBox(zone), QStringLiteral("InfoSupp"), i);
        cases->addWidget(m_cases[i]);
    }
    cases->addStretch(1);
    grille->addLayout(cases, grille->rowCount(), 1);
    m_histoire = nommer(new QPlainTextEdit(zone), QStringLiteral("Histoire"));
    m_histoire->setTabChangesFocus(true);
    m_libelleHistoire = ajouter(m_histoire);
    m_libelleHistoire->setAlignment(Qt::AlignTop);
    grille->setRowStretch(grille->rowCount() - 1, 1);
    return zone;
}

QWidget *DetailBDNet::construireImages()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(Theme::Petit);
    for (int i = 0; i < 2; ++i) {
        m_cadres[i] = nommer(new CadreImage(zone), QStringLiteral("Photo%1").arg(i + 1));
        m_cadres[i]->setFixedSize(TailleCadre);
        colonne->addWidget(m_cadres[i]);
    }
    return zone;
}

void DetailBDNet::montrer(const Importation::Resultat &resultat)
{
    const AnalysePage::Page &page = resultat.page;
    const QString valeurs[NombreDeChamps] = {page.titre, page.tome, page.date, page.serie, page.genre,
        page.dessinateurs, page.scenariste, page.editeur, page.prix};
    for (int i = 0; i < NombreDeChamps; ++i) {
        m_champs[static_cast<std::size_t>(i)]->setText(valeurs[i]);
        m_champs[static_cast<std::size_t>(i)]->setCursorPosition(0);
    }
    m_cases[0]->setChecked(resultat.broche);
    m_cases[1]->setChecked(resultat.couleur);
    m_histoire->clear();
    for (int i = 0; i < 2; ++i) {
        m_photos[i] = resultat.photos[i];
        m_cadres[i]->montrer(m_photos[i]);
    }
    designer(Titre);
}

CreationBDNet::Saisie DetailBDNet::saisie() const
{
    Saisie saisie;
    for (std::size_t i = 0; i < m_champs.size(); ++i)
        saisie.champs[i] = m_champs[i]->text();
    saisie.broche = m_cases[0]->isChecked();
    saisie.couleur = m_cases[1]->isChecked();
    saisie.integrale = m_cases[2]->isChecked();
    saisie.histoire = m_histoire->toPlainText();
    for (int i = 0; i < 2; ++i)
        saisie.photos[i] = m_photos[i];
    return saisie;
}

void DetailBDNet::designer(CreationBDNet::Champ champ)
{
    QLineEdit *ligne = m_champs[static_cast<std::size_t>(champ)];
    ligne->setFocus();
    ligne->selectAll();
}

void DetailBDNet::Traduire()
{
    for (std::size_t i = 0; i < m_champs.size(); ++i) {
        QString libelle = texte(Libelles[i]);
        if (i == PrixA)
            libelle += QStringLiteral(" (") + texte(Txt::Euro) + u')';
        m_libelles[i]->setText(libelle);
        m_champs[i]->setAccessibleName(libelle);
    }
    for (int i = 0; i < 3; ++i)
        libeller(m_cases[i], texte(Cases[i]));
    m_libelleHistoire->setText(texte(Txt::Resume));
    m_histoire->setAccessibleName(texte(Txt::Resume));
    for (CadreImage *cadre : m_cadres) {
        cadre->poserLegende(texte(Txt::Couverture));
        cadre->setAccessibleName(texte(Txt::Couverture));
    }
}
