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
#include <array>

namespace {

constexpr int PremiereAnnee = 1827;
constexpr QSize TailleCadre(150, 200);
constexpr std::array Cases{Txt::Broche, Txt::Couleur, Txt::Integrale};

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
    connect(m_serie, &QComboBox::currentTextChanged, this, [this](const QString &serie) {
        if (m_serie->findText(serie.trimmed(), Qt::MatchFixedString) >= 0)
            Q_EMIT serieChoisie(serie);
    });
    connect(m_tome, &QLineEdit::textEdited, this, [this] { m_tomePropose = false; });
    for (QLineEdit *champ : {m_titre, m_tome, m_prix})
        connect(champ, &QLineEdit::textChanged, this, &FormulaireAlbum::oterRefus);
    Traduire();
}

void FormulaireAlbum::ajouter(QGridLayout *grille, Txt libelle, const QString &nom, QWidget *champ)
{
    auto *label = new QLabel(this);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setBuddy(champ);
    m_libelles.emplace_back(label, libelle);
    nommer(champ, nom);
    const int rang = grille->rowCount();
    const bool haut = qobject_cast<QPlainTextEdit *>(champ);
    grille->addWidget(label, rang, 0, haut ? Qt::AlignTop : Qt::AlignVCenter);
    grille->addWidget(champ, rang, 1);
}

ListeChoix *FormulaireAlbum::ajouterChoix(QGridLayout *grille, Txt libelle, const QString &nom)
{
    auto *choix = new ListeChoix(this);
    ajouter(grille, libelle, nom, choix);
    return choix;
}

QWidget *FormulaireAlbum::construireChamps()
{
    auto *zone = new QWidget(this);
    auto *grille = new QGridLayout(zone);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(Theme::Moyen);
    grille->setVerticalSpacing(Theme::Petit);
    grille->setColumnStretch(1, 1);
    ajouter(grille, Txt::TitreDeLAlbum, QStringLiteral("Titre"), m_titre = new QLineEdit(zone));
    m_serie = ajouterChoix(grille, Txt::TitreDeLaSerie, QStringLiteral("Serie"));
    ajouter(grille, Txt::NumeroAbrege, QStringLiteral("Tome"), m_tome = new QLineEdit(zone));
    m_tome->setMaximumWidth(90);
    m_dateparu = nommer(new QLineEdit(zone), QStringLiteral("Dateparu"));
    ajouter(grille, Txt::DateDeParution, QStringLiteral("ZoneDate"), construireDate());
    m_editeur = ajouterChoix(grille, Txt::NomDeLEditeur, QStringLiteral("Editeur"));
    m_genre = ajouterChoix(grille, Txt::Genre, QStringLiteral("Genre"));
    m_dessin = ajouterChoix(grille, Txt::Dessinateur, QStringLiteral("Dessin"));
    m_scena = ajouterChoix(grille, Txt::Scenariste, QStringLiteral("Scena"));
    m_color = ajouterChoix(grille, Txt::Coloriste, QStringLiteral("Color"));
    ajouter(grille, Txt::PrixDAchat, QStringLiteral("PrixA"), m_prix = new QLineEdit(zone));
    m_prix->setMaximumWidth(120);
    grille->addWidget(construireCases(), grille->rowCount(), 1);
    m_histoire = new QPlainTextEdit(zone);
    m_histoire->setTabChangesFocus(true);
    m_histoire->setMinimumHeight(70);
    ajouter(grille, Txt::Resume, QStringLiteral("Histoire"), m_histoire);
    grille->setRowStretch(grille->rowCount() - 1, 1);
    return zone;
}

QWidget *FormulaireAlbum::construireDate()
{
    auto *zone = new QWidget(this);
    auto *ligne = new QHBoxLayout(zone);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->addWidget(m_dateparu, 1);
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

QWidget *FormulaireAlbum::construireCases()
{
    auto *zone = new QWidget(this);
    m_ligneCases = new QHBoxLayout(zone);
    m_ligneCases->setContentsMargins(0, 0, 0, 0);
    m_ligneCases->setSpacing(Theme::Moyen);
    for (int i = 0; i < 3; ++i) {
        m_cases[i] = nommer(new QCheckBox(zone), QStringLiteral("InfoSupp"), i);
        m_ligneCases->addWidget(m_cases[i]);
    }
    m_ligneCases->addStretch(1);
    return zone;
}

QWidget *FormulaireAlbum::construireImages()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    const QString cadres[] = {QStringLiteral("Photo1"), QStringLiteral("Photo2")};
    const QString boutons[] = {QStringLiteral("ImageRecto"), QStringLiteral("ImageVerso")};
    for (int i = 0; i < 2; ++i) {
        m_cadres[i] = nommer(new CadreImage(zone), cadres[i]);
        m_cadres[i]->setFixedSize(TailleCadre);
        m_cadres[i]->setAcceptDrops(true);
        m_boutons[i] = nommer(new QPushButton(zone), boutons[i]);
        colonne->addWidget(m_cadres[i]);
        colonne->addWidget(m_boutons[i]);
        connect(m_boutons[i], &QPushButton::clicked, this, [this, i] { choisirImage(i); });
        connect(m_cadres[i], &CadreImage::actionnee, this, [this, i] { choisirImage(i); });
        connect(
            m_cadres[i], &CadreImage::fichierDepose, this, [this, i](const QString &f) { poserImage(i, f); });
    }
    return zone;
}

void FormulaireAlbum::Traduire()
{
    for (const auto &[label, numero] : m_libelles) {
        label->setText(texte(numero));
        label->buddy()->setAccessibleName(texte(numero));
    }
    m_dateparu->setAccessibleName(texte(Txt::DateDeParution));
    for (int i = 0; i < 3; ++i)
        libeller(m_cases[i], texte(Cases[static_cast<std::size_t>(i)]));
    const QString faces[] = {tr("Couverture ..."), tr("Dos ...")};
    for (int i = 0; i < 2; ++i) {
        libeller(m_boutons[i], faces[i]);
        m_cadres[i]->poserLegende(tr("Déposez une image ici"));
        m_cadres[i]->setAccessibleName(faces[i]);
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
    m_dateparu->setText(
        Saisie::ComposerDate(m_jour->currentIndex(), m_mois->currentIndex(), m_annee->currentText().toInt()));
}

void FormulaireAlbum::choisirImage(int rang)
{
    const QString chemin = ChoisirImage(this);
    if (!chemin.isEmpty())
        poserImage(rang, chemin);
}

void FormulaireAlbum::poserImage(int rang, const QString &chemin)
{
    m_images[rang] = chemin;
    m_cadres[rang]->montrer(chemin);
    oterRefus();
}

Saisie::Textes FormulaireAlbum::textes() const
{
    Saisie::Textes t;
    t.album.titre = m_titre->text().trimmed();
    t.album.serie = m_serie->currentText().trimmed();
    t.album.dateparu = m_dateparu->text().trimmed();
    t.album.editeur = m_editeur->currentText().trimmed();
    t.album.genre = m_genre->currentText().trimmed();
    t.album.dessin = m_dessin->currentText().trimmed();
    t.album.scena = m_scena->currentText().trimmed();
    t.album.color = m_color->currentText().trimmed();
    t.album.histoire = m_histoire->toPlainText();
    t.album.broche = m_cases[0]->isChecked();
    t.album.couleur = m_cases[1]->isChecked();
    t.album.integrale = m_cases[2]->isChecked();
    t.tome = m_tome->text().trimmed();
    t.prix = m_prix->text().trimmed();
    t.photo1 = m_images[0];
    t.photo2 = m_images[1];
    return t;
}

void FormulaireAlbum::poser(const Creer::Album &album, const QString &tome)
{
    m_titre->setText(album.titre);
    m_tome->setText(tome);
    m_tomePropose = false;
    m_serie->setEditText(album.serie);
    m_dateparu->setText(album.dateparu);
    m_editeur->setEditText(album.editeur);
    m_genre->setEditText(album.genre);
    m_dessin->setEditText(album.dessin);
    m_scena->setEditText(album.scena);
    m_color->setEditText(album.color);
    m_histoire->setPlainText(album.histoire);
    m_prix->clear();
    m_cases[0]->setChecked(album.broche);
    m_cases[1]->setChecked(album.couleur);
    m_cases[2]->setChecked(album.integrale);
    for (QLineEdit *champ : {m_titre, m_dateparu})
        champ->setCursorPosition(0);
    oterRefus();
}

void FormulaireAlbum::vider()
{
    poser({}, {});
    for (int i = 0; i < 2; ++i)
        poserImage(i, {});
    if (m_avecDate) {
        for (QComboBox *choix : {m_jour, m_mois, m_annee})
            choix->setCurrentIndex(0);
    }
    m_titre->setFocus();
}

void FormulaireAlbum::proposer(const Saisie::Choix &choix)
{
    m_serie->proposer(choix.series);
    m_editeur->proposer(choix.editeurs);
    m_genre->proposer(choix.genres);
    for (ListeChoix *auteur : {m_dessin, m_scena, m_color})
        auteur->proposer(choix.auteurs);
}

void FormulaireAlbum::proposerTome(int tome)
{
    if (!m_tome->text().isEmpty() && !m_tomePropose)
        return;
    m_tome->setText(QString::number(tome));
    m_tomePropose = true;
}

void FormulaireAlbum::montrerRefus(const Saisie::Refus &refus)
{
    m_refuse = findChild<QWidget *>(refus.champ);
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
