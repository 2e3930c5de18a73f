#include "entry/FormulaireAlbum.h"

#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/ChoisirImage.h"
#include "core/ui/ListeChoix.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCheckBox>
#include <QDate>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using ChampsDeCreation::ChampDeCreation;
using ChampsDeCreation::Maniere;

namespace {

constexpr int PremiereAnnee = 1827;
constexpr QSize TailleCadre(150, 200);
constexpr int LargeurTome = 90;
constexpr int LargeurPrix = 120;
constexpr int HauteurMemo = 70;

/// What the forms ask for.
std::vector<const ChampDeCreation *> demandes()
{
    std::vector<const ChampDeCreation *> champs;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (champ.controle)
            champs.push_back(&champ);
    }
    return champs;
}

int largeurDe(const ChampDeCreation &champ)
{
    switch (champ.champ->regle) {
    case Champs::Regle::Tome:
        return LargeurTome;
    case Champs::Regle::Prix:
        return LargeurPrix;
    default:
        return QWIDGETSIZE_MAX;
    }
}

}

FormulaireAlbum::FormulaireAlbum(bool date, QWidget *parent)
    : QWidget(parent)
    , m_avecDate(date)
{
    auto *page = new QHBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Theme::Grand);
    page->addWidget(construireChamps(), 1);
    page->addWidget(construireImages(), 0, Qt::AlignTop);
    connect(champ<ListeChoix>(Rubrique::Serie), &QComboBox::currentTextChanged, this,
        &FormulaireAlbum::suivreSerie);
    connect(
        champ<QLineEdit>(Rubrique::Tome), &QLineEdit::textEdited, this, [this] { m_tomePropose = false; });
    m_vide = m_depart = album();
    Traduire();
}

QWidget *FormulaireAlbum::fabriquer(const ChampDeCreation &champ)
{
    switch (champ.maniere) {
    case Maniere::Choix: {
        auto *choix = new ListeChoix(this);
        connect(choix, &QComboBox::currentTextChanged, this, &FormulaireAlbum::change);
        return choix;
    }
    case Maniere::Case: {
        auto *boite = new QCheckBox(this);
        connect(boite, &QCheckBox::toggled, this, &FormulaireAlbum::change);
        return boite;
    }
    case Maniere::Memo: {
        auto *memo = new QPlainTextEdit(this);
        memo->setTabChangesFocus(true);
        memo->setMinimumHeight(HauteurMemo);
        connect(memo, &QPlainTextEdit::textChanged, this, &FormulaireAlbum::change);
        return memo;
    }
    case Maniere::Image:
        return new CadreImage(this);
    case Maniere::Ligne:
    case Maniere::Date:
        break;
    }
    auto *ligne = new QLineEdit(this);
    ligne->setMaximumWidth(largeurDe(champ));
    connect(ligne, &QLineEdit::textChanged, this, &FormulaireAlbum::oterRefus);
    connect(ligne, &QLineEdit::textChanged, this, &FormulaireAlbum::change);
    return ligne;
}

void FormulaireAlbum::ajouter(QGridLayout *grille, const ChampDeCreation &champ)
{
    QWidget *controle = m_champs[champ.rubrique]
        = nommer(fabriquer(champ), QString::fromLatin1(champ.controle));
    if (champ.maniere == Maniere::Case) {
        m_ligneCases->addWidget(controle);
        return;
    }
    auto *libelle = m_libelles[champ.rubrique] = new QLabel(this);
    libelle->setForegroundRole(QPalette::PlaceholderText);
    libelle->setBuddy(controle);
    const int rang = grille->rowCount();
    const bool memo = champ.maniere == Maniere::Memo;
    grille->addWidget(libelle, rang, 0, memo ? Qt::AlignTop : Qt::AlignVCenter);
    grille->addWidget(champ.maniere == Maniere::Date ? construireDate(controle) : controle, rang, 1);
    if (memo)
        grille->setRowStretch(rang, 1);
}

QWidget *FormulaireAlbum::construireChamps()
{
    auto *zone = new QWidget(this);
    auto *grille = new QGridLayout(zone);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(Theme::Moyen);
    grille->setVerticalSpacing(Theme::Petit);
    grille->setColumnStretch(1, 1);
    for (const ChampDeCreation *champ : demandes()) {
        if (champ->maniere == Maniere::Image)
            continue;
        if (champ->maniere == Maniere::Case && !m_ligneCases) {
            m_ligneCases = new QHBoxLayout;
            m_ligneCases->setSpacing(Theme::Moyen);
            grille->addLayout(m_ligneCases, grille->rowCount(), 1);
        }
        ajouter(grille, *champ);
    }
    m_ligneCases->addStretch(1);
    return zone;
}

/// A date may be put together of day, month and year beside its line.
QWidget *FormulaireAlbum::construireDate(QWidget *champ)
{
    auto *zone = new QWidget(this);
    auto *ligne = new QHBoxLayout(zone);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->addWidget(champ, 1);
    if (!m_avecDate)
        return zone;
    m_jour = nommer(new QComboBox(zone), QStringLiteral("Jour"));
    m_mois = nommer(new QComboBox(zone), QStringLiteral("MoisParu"));
    m_annee = nommer(new QComboBox(zone), QStringLiteral("Annee"));
    m_jour->addItem(QString());
    for (int jour = 1; jour <= 31; ++jour)
        m_jour->addItem(QStringLiteral("%1").arg(jour, 2, 10, QLatin1Char('0')));
    m_annee->addItem(QString());
    for (int annee = QDate::currentDate().year() + 1; annee >= PremiereAnnee; --annee)
        m_annee->addItem(QString::number(annee));
    for (QComboBox *choix : {m_jour, m_mois, m_annee}) {
        choix->setMaxVisibleItems(14);
        ligne->addWidget(choix);
        connect(choix, &QComboBox::activated, this, &FormulaireAlbum::composerDate);
    }
    return zone;
}

QWidget *FormulaireAlbum::construireImages()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    for (const auto &[rubrique, nom] : {std::pair(Rubrique::Photo1, QStringLiteral("ImageRecto")),
             std::pair(Rubrique::Photo2, QStringLiteral("ImageVerso"))}) {
        const ChampDeCreation &champ = ChampsDeCreation::De(rubrique);
        auto *cadre = nommer(new CadreImage(zone), QString::fromLatin1(champ.controle));
        m_champs[rubrique] = cadre;
        m_images[rubrique].clear();
        cadre->setFixedSize(TailleCadre);
        cadre->setAcceptDrops(true);
        cadre->setFocusPolicy(Qt::StrongFocus);
        auto *bouton = m_boutons[rubrique] = nommer(new QPushButton(zone), nom);
        colonne->addWidget(cadre);
        colonne->addWidget(bouton);
        const auto choisir = [this, rubrique = rubrique] { choisirImage(rubrique); };
        connect(bouton, &QPushButton::clicked, this, choisir);
        connect(cadre, &CadreImage::actionnee, this, choisir);
        connect(cadre, &CadreImage::ouvertureDemandee, this, choisir);
        connect(cadre, &CadreImage::retraitDemande, this,
            [this, rubrique = rubrique] { poserImage(rubrique, {}); });
        connect(cadre, &CadreImage::fichierDepose, this,
            [this, rubrique = rubrique](const QString &fichier) { prendreImage(rubrique, fichier); });
    }
    return zone;
}

void FormulaireAlbum::Traduire()
{
    for (const auto &[rubrique, controle] : m_champs) {
        const QString libelle = texte(ChampsDeCreation::De(rubrique).libelle);
        controle->setAccessibleName(libelle);
        if (auto *boite = qobject_cast<QCheckBox *>(controle))
            boite->setText(libelle);
        if (const auto devant = m_libelles.find(rubrique); devant != m_libelles.end())
            devant->second->setText(libelle);
    }
    const std::map<Rubrique, QString> faces{
        {Rubrique::Photo1, tr("Couverture ...")}, {Rubrique::Photo2, tr("Dos ...")}};
    for (const auto &[rubrique, face] : faces) {
        libeller(m_boutons.at(rubrique), face);
        champ<CadreImage>(rubrique)->poserLegende(tr("Déposez une image ici"));
        champ<CadreImage>(rubrique)->poserRetrait(texte(Txt::SupprimerLImage));
        champ<CadreImage>(rubrique)->setAccessibleName(face);
    }
    if (!m_avecDate)
        return;
    m_jour->setAccessibleName(tr("Jour"));
    m_mois->setAccessibleName(texte(Txt::Mois));
    m_annee->setAccessibleName(tr("Année"));
    const int choisi = std::max(0, m_mois->currentIndex());
    m_mois->clear();
    m_mois->addItem(QString());
    for (int mois = 1; mois <= 12; ++mois)
        m_mois->addItem(Traduction::courant().locale().monthName(mois));
    m_mois->setCurrentIndex(choisi);
}

void FormulaireAlbum::composerDate()
{
    champ<QLineEdit>(Rubrique::Dateparu)
        ->setText(Saisie::ComposerDate(
            m_jour->currentIndex(), m_mois->currentIndex(), m_annee->currentText().toInt()));
}

/// A known series proposes its next tome; with any other text the one that was proposed for it goes.
void FormulaireAlbum::suivreSerie()
{
    // Not the text that was announced: the line may have completed it since.
    const auto *serie = champ<ListeChoix>(Rubrique::Serie);
    const QString texte = serie->currentText().trimmed();
    if (serie->findText(texte, Qt::MatchFixedString) >= 0)
        Q_EMIT serieChoisie(texte);
    else
        proposerTome(std::nullopt);
}

void FormulaireAlbum::choisirImage(Rubrique rubrique)
{
    const QString chemin = ChoisirImage(this);
    if (!chemin.isEmpty())
        prendreImage(rubrique, chemin);
}

void FormulaireAlbum::prendreImage(Rubrique rubrique, const QString &chemin)
{
    if (const auto refus = Saisie::VerifierTexte(rubrique, chemin))
        Q_EMIT refusee(*refus);
    else
        poserImage(rubrique, chemin);
}

void FormulaireAlbum::poserImage(Rubrique rubrique, const QString &chemin)
{
    m_images[rubrique] = chemin;
    champ<CadreImage>(rubrique)->montrer(chemin);
    oterRefus();
    Q_EMIT change();
}

QString FormulaireAlbum::lire(const ChampDeCreation &quoi) const
{
    switch (quoi.maniere) {
    case Maniere::Choix:
        return champ<QComboBox>(quoi.rubrique)->currentText().trimmed();
    case Maniere::Case:
        return QLatin1String(
            ChampsDeCreation::TexteDeCase(quoi, champ<QCheckBox>(quoi.rubrique)->isChecked()));
    case Maniere::Memo:
        return champ<QPlainTextEdit>(quoi.rubrique)->toPlainText();
    case Maniere::Image:
        return m_images.at(quoi.rubrique);
    case Maniere::Ligne:
    case Maniere::Date:
        break;
    }
    return champ<QLineEdit>(quoi.rubrique)->text().trimmed();
}

void FormulaireAlbum::ecrire(const ChampDeCreation &quoi, const QString &texte)
{
    switch (quoi.maniere) {
    case Maniere::Choix:
        return champ<QComboBox>(quoi.rubrique)->setEditText(texte);
    case Maniere::Case:
        return champ<QCheckBox>(quoi.rubrique)
            ->setChecked(texte == QLatin1String(ChampsDeCreation::TexteDeCase(quoi, true)));
    case Maniere::Memo:
        return champ<QPlainTextEdit>(quoi.rubrique)->setPlainText(texte);
    case Maniere::Image:
        return;
    case Maniere::Ligne:
    case Maniere::Date:
        break;
    }
    champ<QLineEdit>(quoi.rubrique)->setText(texte);
    champ<QLineEdit>(quoi.rubrique)->setCursorPosition(0);
}

Album FormulaireAlbum::album() const
{
    Album album;
    for (const ChampDeCreation *quoi : demandes())
        album[quoi->rubrique] = lire(*quoi);
    return album;
}

void FormulaireAlbum::poser(const Album &album)
{
    for (const ChampDeCreation *quoi : demandes())
        ecrire(*quoi, album[quoi->rubrique]);
    m_tomePropose = false;
    m_depart = this->album();
    oterRefus();
}

bool FormulaireAlbum::aUneSaisie() const
{
    Album saisi = album();
    if (m_tomePropose)
        saisi[Rubrique::Tome] = m_depart[Rubrique::Tome];
    return saisi != m_depart;
}

void FormulaireAlbum::viderImages()
{
    for (const Rubrique photo : {Rubrique::Photo1, Rubrique::Photo2})
        poserImage(photo, {});
}

void FormulaireAlbum::vider()
{
    viderImages();
    poser({});
    if (m_avecDate) {
        for (QComboBox *choix : {m_jour, m_mois, m_annee})
            choix->setCurrentIndex(0);
    }
    m_champs.at(Rubrique::Titre)->setFocus();
}

void FormulaireAlbum::proposer(const Saisie::Choix &choix)
{
    for (const auto &[rubrique, noms] : choix)
        champ<ListeChoix>(rubrique)->proposer(noms);
}

void FormulaireAlbum::proposerTome(std::optional<int> tome)
{
    auto *ligne = champ<QLineEdit>(Rubrique::Tome);
    if (!ligne->text().isEmpty() && !m_tomePropose)
        return;
    ligne->setText(tome ? QString::number(*tome) : QString());
    m_tomePropose = tome.has_value();
}

void FormulaireAlbum::montrerRefus(const Saisie::Refus &refus)
{
    oterRefus();
    const auto bouton = m_boutons.find(refus.rubrique);
    m_refuse = bouton != m_boutons.end() ? bouton->second : m_champs.at(refus.rubrique);
    QPalette rouge = m_refuse->palette();
    rouge.setColor(QPalette::Mid, Theme::Rouge(palette()));
    rouge.setColor(QPalette::Text, Theme::Rouge(palette()));
    rouge.setColor(QPalette::ButtonText, Theme::Rouge(palette()));
    m_refuse->setPalette(rouge);
    m_refuse->setFocus();
}

void FormulaireAlbum::oterRefus()
{
    if (!m_refuse)
        return;
    m_refuse->setPalette({});
    m_refuse = nullptr;
    Q_EMIT refusOte();
}
