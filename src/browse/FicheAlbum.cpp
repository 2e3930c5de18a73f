#include "browse/FicheAlbum.h"

#include "acts/Demandes.h"
#include "browse/BandeSerie.h"
#include "browse/GrilleFiche.h"
#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/Icones.h"
#include "core/ui/Legende.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"

#include <QGridLayout>
#include <QStackedLayout>
#include <QToolButton>

namespace {

constexpr int LargeursImage[] = {216, 290, 380};
constexpr qreal ProportionImage = 4.0 / 3.0;
constexpr int HauteurMemo = 84;
constexpr int HauteurDedicace = 110;
constexpr int DefilementMs = 3000;
constexpr int LargeurVoisin = 220;
constexpr qreal TailleDuTitre = 1.55;

QToolButton *bouton(QWidget *parent, const QString &nom, const QString &icone)
{
    auto *b = nommer(new QToolButton(parent), nom);
    b->setIcon(Icones::Charger(icone));
    b->setAutoRaise(true);
    return b;
}

void montrerVoisin(QToolButton &lien, const QString &titre)
{
    const QString coupe = lien.fontMetrics().elidedText(titre, Qt::ElideRight, LargeurVoisin);
    lien.setText(QString(coupe).replace(u'&', QStringLiteral("&&")));
    expliquer(&lien, titre);
}

QToolButton *lienVoisin(QWidget *parent, const QString &nom, Qt::ToolButtonStyle style)
{
    auto *b = nommer(new QToolButton(parent), nom);
    b->setAutoRaise(true);
    b->setToolButtonStyle(style);
    b->setCursor(Qt::PointingHandCursor);
    // The head keeps its height from album to album.
    QSizePolicy place = b->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    b->setSizePolicy(place);
    return b;
}

}

FicheAlbum::FicheAlbum(Demandes &demandes, QWidget *parent)
    : FicheForme(Champs::Feuille::Album, QStringLiteral("FicheAlbum"), demandes, parent)
{
    auto *page = new QGridLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setHorizontalSpacing(Theme::Grand);
    page->setVerticalSpacing(Theme::Petit);
    page->addWidget(construireEnTete(), 0, 0, 1, 3);
    page->addWidget(construireCouverture(), 1, 0, 2, 1, Qt::AlignTop);
    page->addWidget(construireColonneGauche(), 1, 1);
    page->addWidget(construireColonneDroite(), 1, 2);
    page->addWidget(construireMemos(), 2, 1, 1, 2);
    page->setColumnStretch(1, 1);
    page->setColumnStretch(2, 1);
    page->setRowStretch(2, 1);

    m_defilement.setInterval(DefilementMs);
    connect(&m_defilement, &QTimer::timeout, this, [this] { montrerFace(!m_dos); });
    FicheAlbum::Traduire();
    AppliquerPolicesFiche();
    agrandir(0);
}

QWidget *FicheAlbum::construireEnTete()
{
    auto *zone = new QWidget(this);
    auto *lignes = new QVBoxLayout(zone);
    lignes->setContentsMargins(0, 0, 0, 0);
    lignes->setSpacing(2);
    lignes->addWidget(creer("TAlbum"));
    agrandirPolice("TAlbum", TailleDuTitre);

    m_precedent = lienVoisin(zone, QStringLiteral("AlbumPrecedent"), Qt::ToolButtonTextBesideIcon);
    m_precedent->setIcon(Icones::Charger(QStringLiteral("precedent")));
    m_suivant = lienVoisin(zone, QStringLiteral("AlbumSuivant"), Qt::ToolButtonTextBesideIcon);
    m_suivant->setIcon(Icones::Charger(QStringLiteral("suivant")));
    m_suivant->setLayoutDirection(Qt::RightToLeft);
    m_tomeSur = nommer(new QLabel(zone), QStringLiteral("TomeSur"));
    m_tomeSur->setForegroundRole(QPalette::PlaceholderText);

    auto *serie = new QHBoxLayout;
    serie->setContentsMargins(Theme::Fin, 0, 0, 0);
    serie->setSpacing(Theme::Petit);
    auto *numero = new QLabel(zone);
    numero->setObjectName(QStringLiteral("LibelleNumBD"));
    numero->setForegroundRole(QPalette::BrightText);
    serie->addWidget(numero);
    QWidget *tome = creer("NumBD");
    tome->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    serie->addWidget(tome);
    QWidget *nom = creer("Serie");
    nom->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    serie->addWidget(nom);
    serie->addWidget(m_tomeSur);
    serie->addStretch(1);
    serie->addWidget(m_precedent);
    serie->addWidget(m_suivant);
    lignes->addLayout(serie);

    connect(m_precedent, &QToolButton::clicked, this, [this] {
        Q_EMIT m_demandes.entree({General::Tri::Albums, m_fiche.infos.precedent->num});
    });
    connect(m_suivant, &QToolButton::clicked, this, [this] {
        Q_EMIT m_demandes.entree({General::Tri::Albums, m_fiche.infos.suivant->num});
    });
    return zone;
}

QWidget *FicheAlbum::construireCouverture()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(Theme::Fin);

    m_zoneImage = nommer(new QWidget(zone), QStringLiteral("SSResizer3"));
    auto *faces = new QStackedLayout(m_zoneImage);
    int rang = 0;
    for (const char *champ : {"Photo1", "Photo2"}) {
        m_faces[rang] = qobject_cast<CadreImage *>(creer(champ));
        faces->addWidget(m_faces[rang++]);
    }
    colonne->addWidget(m_zoneImage);

    m_rectoVerso = bouton(zone, QStringLiteral("RectoVerso"), QStringLiteral("retourner"));
    m_agrandir = bouton(zone, QStringLiteral("Agrandir"), QStringLiteral("agrandir"));
    m_retrecir = bouton(zone, QStringLiteral("Retrecir"), QStringLiteral("retrecir"));
    auto *boutons = new QHBoxLayout;
    boutons->addStretch(1);
    for (QToolButton *b : {m_rectoVerso, m_agrandir, m_retrecir})
        boutons->addWidget(b);
    boutons->addStretch(1);
    colonne->addLayout(boutons);
    connect(m_rectoVerso, &QToolButton::clicked, this, [this] { montrerFace(!m_dos); });
    connect(m_agrandir, &QToolButton::clicked, this, [this] { agrandir(1); });
    connect(m_retrecir, &QToolButton::clicked, this, [this] { agrandir(-1); });

    QGridLayout *notes = ouvrirGroupe(colonne, Txt::Appreciations);
    ajouterLigne(notes, "EtatBD");
    ajouterLigne(notes, "Qualite");

    m_titreSerie = titreDe(Txt::Serie);
    colonne->addWidget(m_titreSerie);
    colonne->addSpacing(Theme::Fin);
    m_bande = nommer(new BandeSerie(zone), QStringLiteral("Bande"));
    colonne->addWidget(m_bande);
    m_manquants = nommer(new QLabel(zone), QStringLiteral("Manquants"));
    m_manquants->setForegroundRole(QPalette::PlaceholderText);
    m_manquants->setWordWrap(true);
    colonne->addWidget(m_manquants);
    connect(m_bande, &BandeSerie::albumDemande, this, [this](int num) {
        Q_EMIT m_demandes.entree({General::Tri::Albums, num});
    });
    return zone;
}

TitreGroupe *FicheAlbum::titreDe(Txt texte)
{
    auto *titre = new TitreGroupe(this);
    m_titres.emplace_back(titre, texte);
    return titre;
}

QGridLayout *FicheAlbum::ouvrirGroupe(QBoxLayout *colonne, Txt titre)
{
    colonne->addWidget(titreDe(titre));
    auto *grille = new QGridLayout;
    grille->setContentsMargins(0, Theme::Fin, 0, 0);
    grille->setHorizontalSpacing(Theme::Petit);
    grille->setVerticalSpacing(1);
    colonne->addLayout(grille);
    return grille;
}

QWidget *FicheAlbum::construireColonneGauche()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    QGridLayout *album = ouvrirGroupe(colonne, Txt::InformationsSurLAlbum);
    m_gauche.push_back(album);
    for (const char *champ : {"Dessin", "Scena", "Color", "Edit", "Coll", "Genre", "Pays", "DateParu"})
        ajouterLigne(album, champ);
    QGridLayout *achat = ouvrirGroupe(colonne, Txt::InformationsDAchat);
    m_gauche.push_back(achat);
    for (const char *champ : {"DA", "PrixA"})
        ajouterLigne(achat, champ);
    QGridLayout *pret = ouvrirGroupe(colonne, Txt::InformationsDePret);
    m_gauche.push_back(pret);
    for (const char *champ : {"NPret", "DPret"})
        ajouterLigne(pret, champ);
    construireDedicaces(colonne);
    colonne->addStretch(1);
    return zone;
}

QWidget *FicheAlbum::construireColonneDroite()
{
    auto *zone = new QWidget(this);
    auto *colonne = new QVBoxLayout(zone);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    QGridLayout *traits = ouvrirGroupe(colonne, Txt::Caracteristiques);
    for (const char *champ : {"ISBN", "ISSN", "DepotLegale", "NbPage", "Format", "Couleur"})
        ajouterLigne(traits, champ);
    construireCases(colonne);
    construireGrilles(colonne);
    colonne->addStretch(1);
    return zone;
}

void FicheAlbum::construireCases(QBoxLayout *colonne)
{
    constexpr int Colonnes = 2;
    auto *grille = new QGridLayout;
    grille->setContentsMargins(0, Theme::Fin, 0, 0);
    grille->setVerticalSpacing(3);
    int rang = 0;
    for (const char *champ :
        {"LEditionOri", "LBrochee", "LIntegral", "LSerieLim", "LHorsSerie", "LCoffret"}) {
        grille->addWidget(creer(champ), rang / Colonnes, rang % Colonnes);
        ++rang;
    }
    colonne->addLayout(grille);
}

void FicheAlbum::construireDedicaces(QBoxLayout *colonne)
{
    QGridLayout *grille = ouvrirGroupe(colonne, Txt::Dedicace);
    m_gauche.push_back(grille);
    for (const char *champ : {"Dedi(0)", "Dedi(1)", "LieuD", "DateD", "EtatD"})
        ajouterLigne(grille, champ);
    auto *images = new QHBoxLayout;
    int rang = 0;
    for (const char *champ : {"Dedi(0)", "Dedi(1)"}) {
        QWidget *cadre = nommer(creerCadre(champ), QStringLiteral("PhotoD"), rang++);
        cadre->setFixedHeight(HauteurDedicace);
        images->addWidget(cadre);
    }
    colonne->addLayout(images);
}

void FicheAlbum::construireGrilles(QBoxLayout *colonne)
{
    m_intervenants = new GrilleFiche(
        {QStringLiteral("NomI"), Txt::Intervenants}, {QStringLiteral("ActI"), Txt::Activite}, this);
    m_cotes
        = new GrilleFiche({QStringLiteral("Mois"), Txt::Mois}, {QStringLiteral("Cotes"), Txt::Cote}, this);
    for (const auto &[grille, titre] :
        {std::pair(m_intervenants, Txt::Intervenants), std::pair(m_cotes, Txt::Cotes)}) {
        colonne->addWidget(titreDe(titre));
        colonne->addWidget(grille);
        connect(grille, &GrilleFiche::celluleFaite, this, &FicheAlbum::inscrire);
        connect(
            grille, &GrilleFiche::celluleActionnee, this, [this, grille = grille](const Legende *cellule) {
                Q_EMIT m_demandes.edition(editionDeCellule(grille, cellule));
            });
        // The first line is made now, so that the keyboard comes to the grid before the texts below it.
        grille->montrer({});
    }
}

/// A cell is changed together with its line, which is what the collection keeps.
Edition FicheAlbum::editionDeCellule(const GrilleFiche *grille, const Legende *cellule) const
{
    const auto ligneDe = [rang = static_cast<std::size_t>(grille->rangDe(cellule))](const auto &lignes) {
        return rang < lignes.size() ? lignes[rang] : std::decay_t<decltype(lignes[rang])>();
    };
    const bool seconde = grille->estSeconde(cellule);
    const Edite quoi = grille == m_intervenants
        ? Edite(CelluleIntervenant{ligneDe(m_fiche.intervenants), seconde})
        : Edite(CelluleCote{ligneDe(m_fiche.cotes), !seconde});
    Edition edition = editionDe(quoi, cellule);
    edition.affichee = cellule->estVide() ? QString() : cellule->text();
    return edition;
}

Edition FicheAlbum::editionSous(const QWidget *controle) const
{
    for (const GrilleFiche *grille : {m_intervenants, m_cotes}) {
        if (grille->isAncestorOf(controle)) {
            if (const auto *cellule = qobject_cast<const Legende *>(controle))
                return editionDeCellule(grille, cellule);
        }
    }
    return FicheForme::editionSous(controle);
}

QWidget *FicheAlbum::construireMemos()
{
    auto *zone = new QWidget(this);
    auto *grille = new QGridLayout(zone);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(Theme::Grand);
    grille->setVerticalSpacing(Theme::Fin);
    int colonne = 0;
    for (const auto &[champ, titre] :
        {std::pair("Hist", Txt::Resume), std::pair("Infos", Txt::Commentaires)}) {
        grille->addWidget(titreDe(titre), 0, colonne);
        QWidget *memo = creer(champ);
        memo->setMinimumHeight(HauteurMemo);
        memo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        grille->addWidget(memo, 1, colonne);
        grille->setColumnStretch(colonne++, 1);
    }
    return zone;
}

void FicheAlbum::Traduire()
{
    FicheForme::Traduire();
    for (const auto &[titre, numero] : m_titres)
        titre->setText(texte(numero));
    findChild<QLabel *>(QStringLiteral("LibelleNumBD"))->setText(texte(Txt::NumeroAbrege));
    expliquer(m_rectoVerso, tr("Montrer l'autre face"));
    expliquer(m_agrandir, texte(Txt::AgrandirLaPhoto));
    expliquer(m_retrecir, texte(Txt::RetrecirLaPhoto));
    m_bande->setAccessibleName(texte(Txt::Serie));
    m_intervenants->Traduire();
    m_cotes->Traduire();
    alignerLibelles(m_gauche);
}

void FicheAlbum::montrer(const ChargerAlbums::FicheAlbum &fiche)
{
    const bool memeAlbum = fiche.num == m_fiche.num;
    m_fiche = fiche;
    montrerValeurs({General::Tri::Albums, fiche.num}, fiche.valeurs);
    std::vector<std::pair<QString, QString>> lignes;
    for (const auto &i : fiche.intervenants)
        lignes.emplace_back(i.nom, i.activite);
    m_intervenants->montrer(lignes);
    lignes.clear();
    for (const auto &c : fiche.cotes)
        lignes.emplace_back(c.mois, c.cote);
    m_cotes->montrer(lignes);
    montrerInfos(fiche.infos);
    montrerFace(memeAlbum && m_dos);
}

void FicheAlbum::montrerInfos(const InfosAlbum &infos)
{
    const bool serie = infos.possedes > 0;
    m_tomeSur->setText(serie ? QStringLiteral("%1 / %2").arg(infos.tome).arg(infos.possedes) : QString());
    m_tomeSur->setToolTip(
        serie ? tr("tome %1, %n album(s) de la série", nullptr, infos.possedes).arg(infos.tome) : QString());
    QStringList manquants;
    for (const int tome : infos.manquants)
        manquants << QString::number(tome);
    m_manquants->setText(
        manquants.isEmpty() ? QString() : tr("Manquants : %1").arg(manquants.join(QStringLiteral(", "))));
    m_manquants->setVisible(!manquants.isEmpty());
    m_bande->montrer(infos.bande, m_fiche.num);
    for (QWidget *partie : {static_cast<QWidget *>(m_titreSerie), static_cast<QWidget *>(m_bande)})
        partie->setVisible(serie);
    for (const auto &[lien, voisin] :
        {std::pair(m_precedent, infos.precedent), std::pair(m_suivant, infos.suivant)}) {
        lien->setVisible(voisin.has_value());
        if (voisin)
            montrerVoisin(*lien, voisin->titre);
    }
}

void FicheAlbum::montrerFace(bool dos)
{
    m_dos = dos && m_faces[1]->aUneImage();
    static_cast<QStackedLayout *>(m_zoneImage->layout())->setCurrentIndex(m_dos ? 1 : 0);
    m_rectoVerso->setEnabled(m_faces[1]->aUneImage());
}

void FicheAlbum::poserDefilement(bool defile)
{
    if (defile)
        m_defilement.start();
    else
        m_defilement.stop();
    montrerFace(false);
}

void FicheAlbum::agrandir(int pas)
{
    const int derniere = static_cast<int>(std::size(LargeursImage)) - 1;
    m_taille = std::clamp(m_taille + pas, 0, derniere);
    const int largeur = LargeursImage[m_taille];
    const QSize taille(largeur, static_cast<int>(largeur * ProportionImage));
    m_zoneImage->setFixedSize(taille);
    // The hidden face gets its size, too: its picture is decoded for it.
    for (CadreImage *face : m_faces)
        face->resize(taille);
    m_agrandir->setEnabled(m_taille < derniere);
    m_retrecir->setEnabled(m_taille > 0);
}
