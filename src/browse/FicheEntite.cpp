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
    auto *page = new QGridLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setHorizontalSpacing(Theme::Grand);
    page->setVerticalSpacing(Theme::Petit);
    m_genre = nommer(new TitreGroupe(this), QStringLiteral("GenreEntree"));
    page->addWidget(m_genre, 0, 0, 1, 2);
    page->addWidget(creer(m_plan.titre), 1, 0, 1, 2);
    agrandirPolice(m_plan.titre, TailleDuTitre);
    if (m_plan.images)
        page->addWidget(construireImages(), 2, 0, 2, 1, Qt::AlignTop);
    page->addWidget(construireGroupes(), 2, 1);
    page->addWidget(construireMemos(), 3, 1);
    m_nombre = nommer(new TitreGroupe(this), QStringLiteral("NombreAlbums"));
    page->addWidget(m_nombre, 4, 0, 1, 2);
    m_albums = nommer(new Etagere(this), QLatin1String(m_plan.etagere ? m_plan.etagere : "Etagere"));
    constexpr int ToutLeReste = 1000;
    page->addWidget(m_albums, 5, 0, 1, 2);
    page->setRowStretch(5, ToutLeReste);
    page->setRowStretch(6, 1);
    page->setColumnStretch(1, 1);
    connect(m_albums, &Etagere::albumDemande, this, [this](int num) {
        Q_EMIT m_demandes.entree({General::Tri::Albums, num});
    });
    FicheEntite::Traduire();
    AppliquerPolicesFiche();
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

TitreGroupe *FicheEntite::titreDe(Txt texte)
{
    auto *titre = new TitreGroupe(this);
    m_titres.emplace_back(titre, texte);
    return titre;
}

QWidget *FicheEntite::construireGroupes()
{
    auto *zone = new QWidget(this);
    auto *colonnes = new QHBoxLayout(zone);
    colonnes->setContentsMargins(0, 0, 0, 0);
    colonnes->setSpacing(Theme::Grand);
    for (const std::vector<Plan::Groupe> *groupes : {&m_plan.gauche, &m_plan.droite}) {
        auto *colonne = new QVBoxLayout;
        colonne->setSpacing(0);
        for (const Plan::Groupe &groupe : *groupes) {
            colonne->addWidget(titreDe(groupe.titre));
            auto *grille = new QGridLayout;
            grille->setContentsMargins(0, Theme::Fin, 0, 0);
            grille->setHorizontalSpacing(Theme::Petit);
            grille->setVerticalSpacing(1);
            for (const char *champ : groupe.champs)
                ajouterLigne(grille, champ);
            m_grilles.push_back(grille);
            colonne->addLayout(grille);
        }
        if (groupes == &m_plan.droite && m_plan.feuille == Feuille::Auteur)
            construireMetiers(colonne);
        if (groupes == &m_plan.droite && m_plan.feuille == Feuille::ExLibris) {
            colonne->addWidget(titreDe(Txt::ExLibris));
            colonne->addWidget(creer("TypeExlibris"));
        }
        colonne->addStretch(1);
        colonnes->addLayout(colonne, 1);
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
}

QWidget *FicheEntite::construireMemos()
{
    auto *zone = new QWidget(this);
    auto *grille = new QGridLayout(zone);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(Theme::Grand);
    grille->setVerticalSpacing(Theme::Fin);
    int colonne = 0;
    for (const Plan::Memo &memo : m_plan.memos) {
        grille->addWidget(titreDe(memo.titre), 0, colonne);
        QWidget *champ = creer(memo.champ);
        champ->setFixedHeight(HauteurMemo);
        grille->addWidget(champ, 1, colonne);
        grille->setColumnStretch(colonne++, 1);
    }
    return zone;
}

void FicheEntite::Traduire()
{
    FicheForme::Traduire();
    m_genre->setText(texte(General::ListeDe(m_tri).bouton));
    for (const auto &[titre, numero] : m_titres)
        titre->setText(texte(numero));
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
