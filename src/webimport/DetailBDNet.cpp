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

using ChampsDeCreation::ChampDeCreation;
using ChampsDeCreation::Maniere;

namespace {

constexpr QSize TailleCadre(180, 240);

/// What pages have, in the order of its lines.
std::vector<const ChampDeCreation *> lignes()
{
    std::vector<const ChampDeCreation *> champs;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (champ.page.rang >= 0)
            champs.push_back(&champ);
    }
    std::ranges::sort(champs, {}, [](const ChampDeCreation *champ) { return champ->page.rang; });
    return champs;
}

/// The boxes, in the order of the forms.
std::vector<const ChampDeCreation *> cases()
{
    std::vector<const ChampDeCreation *> champs;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (champ.maniere == Maniere::Case && champ.controle)
            champs.push_back(&champ);
    }
    return champs;
}

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
    for (const ChampDeCreation *champ : lignes()) {
        auto *ligne = nommer(new QLineEdit(zone), QStringLiteral("Dataa"), champ->page.rang);
        m_champs[champ->rubrique] = ligne;
        m_libelles[champ->rubrique] = ajouter(ligne);
    }
    auto *boites = new QHBoxLayout;
    for (const ChampDeCreation *champ : cases()) {
        m_cases[champ->rubrique] = nommer(new QCheckBox(zone), QString::fromLatin1(champ->controle));
        boites->addWidget(m_cases[champ->rubrique]);
    }
    boites->addStretch(1);
    grille->addLayout(boites, grille->rowCount(), 1);
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
    for (const Rubrique photo : {Rubrique::Photo1, Rubrique::Photo2}) {
        auto *cadre = nommer(new CadreImage(zone), QString::fromLatin1(ChampsDeCreation::De(photo).controle));
        m_cadres[photo] = cadre;
        cadre->setFixedSize(TailleCadre);
        cadre->setFocusPolicy(Qt::StrongFocus);
        connect(cadre, &CadreImage::retraitDemande, this, [this, photo] {
            m_montre[photo].clear();
            m_cadres.at(photo)->montrer({});
        });
        colonne->addWidget(cadre);
    }
    return zone;
}

void DetailBDNet::montrer(const Importation::Resultat &resultat)
{
    m_montre = resultat.album;
    for (const auto &[rubrique, ligne] : m_champs) {
        ligne->setText(m_montre[rubrique]);
        ligne->setCursorPosition(0);
    }
    for (const auto &[rubrique, boite] : m_cases)
        boite->setChecked(m_montre[rubrique] == QLatin1String("1"));
    m_histoire->clear();
    for (const auto &[rubrique, cadre] : m_cadres)
        cadre->montrer(m_montre[rubrique]);
    m_depart = album();
    designer(Rubrique::Titre);
}

Album DetailBDNet::album() const
{
    Album album = m_montre;
    for (const auto &[rubrique, ligne] : m_champs)
        album[rubrique] = ligne->text().trimmed();
    for (const auto &[rubrique, boite] : m_cases)
        album[rubrique] = QLatin1String(
            ChampsDeCreation::TexteDeCase(ChampsDeCreation::De(rubrique), boite->isChecked()));
    album[Rubrique::Histoire] = m_histoire->toPlainText();
    return album;
}

void DetailBDNet::designer(Rubrique rubrique)
{
    const auto ligne = m_champs.find(rubrique);
    if (ligne == m_champs.end())
        return;
    ligne->second->setFocus();
    ligne->second->selectAll();
}

void DetailBDNet::Traduire()
{
    for (const ChampDeCreation *champ : lignes()) {
        QString libelle = texte(champ->page.libelle);
        if (champ->rubrique == Rubrique::Prix)
            libelle += QStringLiteral(" (") + texte(Txt::Euro) + u')';
        m_libelles[champ->rubrique]->setText(libelle);
        m_champs[champ->rubrique]->setAccessibleName(libelle);
    }
    for (const ChampDeCreation *champ : cases())
        libeller(m_cases[champ->rubrique], texte(champ->libelle));
    m_libelleHistoire->setText(texte(Txt::Resume));
    m_histoire->setAccessibleName(texte(Txt::Resume));
    for (const auto &[rubrique, cadre] : m_cadres) {
        cadre->poserLegende(texte(Txt::Couverture));
        cadre->poserRetrait(texte(Txt::SupprimerLImage));
        cadre->setAccessibleName(texte(Txt::Couverture));
    }
}
