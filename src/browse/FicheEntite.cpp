#include "browse/FicheEntite.h"

#include "acts/Demandes.h"
#include "browse/Etagere.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"

#include <QCheckBox>
#include <QGridLayout>

using Champs::Feuille;

/// What stands where on the sheet of one kind.
struct FicheEntite::Plan
{
    struct Groupe
    {
        Txt titre;
        std::vector<const char *> champs;
    };
    struct Memo
    {
        const char *champ;
        Txt titre;
    };
    Feuille feuille;
    const char *nom;
    const char *titre; ///< field of the head
    std::vector<Groupe> gauche;
    std::vector<Groupe> droite;
    std::vector<Memo> memos;
    bool images;
    const char *etagere; ///< name of the shelf, or null
};

namespace {

constexpr QSize TailleImage(150, 200);
constexpr int HauteurMemo = 64;
constexpr qreal TailleDuTitre = 1.55;
constexpr int LigneDeLEtagere = 6;

}

const FicheEntite::Plan &FicheEntite::PlanDe(Feuille feuille)
{
    static const std::vector<Plan> plans{
        {Feuille::Serie, "FicheSerie", "Nom",
            {{Txt::InformationsSurLaSerie, {"NomGenre", "Editeur", "CoteSerie"}},
                {Txt::Appreciations, {"NoteG", "NoteD", "NoteS"}}},
            {{Txt::LiensInternet, {"SiteWeb(0)", "SiteWeb(1)"}}},
            {{"Histoire", Txt::ResumeDeLaSerie}, {"Commentaire", Txt::Commentaires}}, true, "Bande"},
        {Feuille::Auteur, "FicheAuteur", "Nom",
            {{Txt::InformationSurLesAuteurs, {"Prenom", "Surnom", "Naiss", "LieuN", "PaysN"}}},
            {{Txt::LiensInternet, {"Liens(0)", "Liens(1)"}}}, {{"CommA", Txt::Commentaires}}, true,
            "Etagere"},
        {Feuille::Editeur, "FicheEditeur", "NomE",
            {{Txt::Coordonnees, {"AdressE(0)", "AdressE(1)", "CPE", "VilleE", "PaysE"}}},
            {{Txt::LiensInternet, {"SiteE", "TelE"}}}, {}, true, "Etagere"},
        {Feuille::ExLibris, "FicheExLibris", "DescriptionX",
            {{Txt::InformationSurLesExLibris, {"SerieX", "DessinX", "Librairie", "DedicaceX", "SigneX"}}},
            {{Txt::InformationsDAchat, {"DAX", "PrixAX"}}}, {{"CommX", Txt::Commentaires}}, true, nullptr},
        {Feuille::Presse, "FichePresse", "NomP",
            {{Txt::InformationSurLesPressesBD,
                {"NumP", "EditeurP", "ParutionP", "DepotLP", "ReliureP", "HSP"}}},
            {{Txt::InformationsDAchat, {"DAP", "PrixAP"}}}, {{"CommP", Txt::Commentaires}}, true, nullptr},
        {Feuille::Coll, "FicheColl", "NomC", {}, {}, {}, false, "Albums"},
    };
    for (const Plan &plan : plans) {
        if (plan.feuille == feuille)
            return plan;
    }
    Q_UNREACHABLE();
}

FicheEntite::FicheEntite(Feuille feuille, Demandes &demandes, QWidget *parent)
    : FicheForme(feuille, QString::fromLatin1(PlanDe(feuille).nom), demandes, parent)
    , m_plan(PlanDe(feuille))
{
    m_page = ouvrirPage();
    m_genre = nommer(new TitreGroupe(this), QStringLiteral("GenreEntree"));
    m_page->addWidget(m_genre, 0, 0, 1, 2);
    m_page->addWidget(creer(m_plan.titre), 1, 0, 1, 2);
    agrandirPolice(m_plan.titre, TailleDuTitre);
    if (m_plan.images)
        m_images = construireImages();
    m_groupes = construireGroupes();
    m_zoneMemos = construireMemos();
    m_nombre = nommer(new TitreGroupe(this), QStringLiteral("NombreAlbums"));
    m_page->addWidget(m_nombre, LigneDeLEtagere - 1, 0, 1, 2);
    m_albums = nommer(new Etagere(this), QLatin1String(m_plan.etagere ? m_plan.etagere : "Etagere"));
    marquer(m_albums);
    constexpr int ToutLeReste = 1000;
    m_page->addWidget(m_albums, LigneDeLEtagere, 0, 1, 2);
    m_page->setRowStretch(LigneDeLEtagere, ToutLeReste);
    m_page->setRowStretch(LigneDeLEtagere + 1, 1);
    connect(m_albums, &Etagere::albumDemande, this, [this](int num) {
        Q_EMIT m_demandes.entree({General::Tri::Albums, num});
    });
    FicheEntite::Traduire();
    AppliquerPolicesFiche();
    redisposer();
}

void FicheEntite::disposer(Disposition disposition)
{
    const bool etroite = disposition == Disposition::Etroite;
    const bool large = disposition == Disposition::Large;
    const int colonne = etroite || !m_images ? 0 : 1;
    const int ligne = etroite ? 3 : 2;
    if (m_images)
        m_page->addWidget(m_images, 2, 0, large ? 2 : 1, 1, Qt::AlignTop | Qt::AlignLeft);
    m_page->addWidget(m_groupes, ligne, colonne, 1, 2 - colonne);
    // Below groups that stand one above the other the texts take the whole width, so that the shelf keeps its room.
    const int debut = large ? colonne : 0;
    m_page->addWidget(m_zoneMemos, ligne + 1, debut, 1, 2 - debut);
    m_page->setColumnStretch(0, colonne == 0 ? 1 : 0);
    m_page->setColumnStretch(1, 1);
    m_colonnes->setDirection(large ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    rangerMemos(etroite);
}

int FicheEntite::largeurDesImages() const
{
    return m_images ? m_images->sizeHint().width() : 0;
}

QWidget *FicheEntite::construireImages()
{
    auto *zone = new QWidget(this);
    auto *ligne = new QHBoxLayout(zone);
    ligne->setContentsMargins(0, Theme::Petit, 0, 0);
    for (const char *champ : {"Photo1", "Photo2"}) {
        QWidget *cadre = creer(champ);
        cadre->setFixedSize(TailleImage);
        ligne->addWidget(cadre);
    }
    return zone;
}

QWidget *FicheEntite::construireGroupes()
{
    auto *zone = new QWidget(this);
    m_colonnes = new QBoxLayout(QBoxLayout::LeftToRight, zone);
    m_colonnes->setContentsMargins(0, 0, 0, 0);
    m_colonnes->setSpacing(Theme::Grand);
    for (const std::vector<Plan::Groupe> *groupes : {&m_plan.gauche, &m_plan.droite}) {
        auto *colonne = new QVBoxLayout;
        colonne->setSpacing(0);
        for (const Plan::Groupe &groupe : *groupes) {
            QGridLayout *grille = ouvrirGroupe(colonne, groupe.titre);
            for (const char *champ : groupe.champs)
                ajouterLigne(grille, champ);
            m_grilles.push_back(grille);
        }
        if (groupes == &m_plan.droite && m_plan.feuille == Feuille::Auteur)
            construireMetiers(colonne);
        if (groupes == &m_plan.droite && m_plan.feuille == Feuille::ExLibris) {
            colonne->addWidget(titreDe(Txt::ExLibris));
            colonne->addWidget(creer("TypeExlibris"));
        }
        colonne->addStretch(1);
        m_colonnes->addLayout(colonne, 1);
    }
    return zone;
}

/// The trade of the list that the author was chosen from, and his two others.
void FicheEntite::construireMetiers(QBoxLayout *colonne)
{
    m_metier = nommer(new TitreGroupe(this), QStringLiteral("Metier"));
    colonne->addWidget(m_metier);
    colonne->addSpacing(Theme::Fin);
    for (int i = 0; i < 2; ++i) {
        m_metiers[i] = nommer(new QCheckBox(this), QStringLiteral("M_tiers"), i);
        inscrire(m_metiers[i]);
        connect(m_metiers[i], &QCheckBox::clicked, this, [this] {
            ecrire(Metiers(),
                ChargerAuteurs::TexteDesMetiers(m_tri, m_metiers[0]->isChecked(), m_metiers[1]->isChecked()));
        });
        colonne->addWidget(m_metiers[i]);
    }
    marquer(m_metiers[0]);
}

QWidget *FicheEntite::construireMemos()
{
    std::vector<std::pair<const char *, Txt>> voulus;
    for (const Plan::Memo &memo : m_plan.memos)
        voulus.emplace_back(memo.champ, memo.titre);
    QWidget *zone = creerMemos(voulus);
    for (const auto &[titre, memo] : memos())
        memo->setFixedHeight(HauteurMemo);
    return zone;
}

void FicheEntite::Traduire()
{
    FicheForme::Traduire();
    m_genre->setText(texte(General::ListeDe(m_tri).bouton));
    m_albums->setAccessibleName(texte(Txt::ListeDesAlbums));
    alignerLibelles(m_grilles);
}

void FicheEntite::montrer(General::Entree entree, const Valeurs &valeurs, const Entrees &albums)
{
    m_tri = entree.tri;
    m_genre->setText(texte(General::ListeDe(m_tri).bouton));
    montrerValeurs(entree, valeurs);
    m_albums->montrer(albums);
    m_albums->setVisible(!albums.empty());
    m_nombre->setText(QStringLiteral("%1 %2").arg(albums.size()).arg(texte(Txt::AlbumsUnite)));
    m_nombre->setVisible(!albums.empty());
}

void FicheEntite::remontrer()
{
    FicheForme::remontrer();
    if (m_metier)
        montrerMetiers(m_metiersLus);
}

void FicheEntite::montrerMetiers(const ChargerAuteurs::ZoneMetiers &metiers)
{
    m_metiersLus = metiers;
    m_metier->setText(texte(metiers.titre));
    for (int i = 0; i < 2; ++i) {
        libeller(m_metiers[i], texte(metiers.autres[i].libelle));
        m_metiers[i]->setChecked(metiers.autres[i].exerce);
    }
}
