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

/// A group that has this part of what it needs, in percent, is at ease.
constexpr int AisanceDUnGroupe = 135;
constexpr qreal PartDeLaHauteur = 0.5;
constexpr int Colonnes = 3;
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
    m_page = ouvrirPage();
    m_entete = construireEnTete();
    m_couverture = construireCouverture();
    m_groupes[0] = construireColonneGauche();
    m_groupes[1] = construireColonneDroite();
    m_zoneMemos = construireMemos();

    m_defilement.setInterval(DefilementMs);
    connect(&m_defilement, &QTimer::timeout, this, [this] { montrerFace(!m_dos); });
    FicheAlbum::Traduire();
    AppliquerPolicesFiche();
    redisposer();
    agrandir(0);
}

void FicheAlbum::disposer(Disposition disposition)
{
    const bool large = disposition == Disposition::Large;
    const bool etroite = disposition == Disposition::Etroite;
    // Beside the cover or below it, the second group beside the first or below it, the texts below all.
    const int colonne = etroite ? 0 : 1;
    const int ligne = etroite ? 2 : 1;
    const int suite = large ? ligne : ligne + 1;
    const int reste = Colonnes - colonne;
    m_page->addWidget(m_entete, 0, 0, 1, Colonnes);
    m_page->addWidget(m_couverture, 1, 0, large ? 2 : etroite ? 1 : 3, etroite ? Colonnes : 1, Qt::AlignTop);
    m_page->addWidget(m_groupes[0], ligne, colonne, 1, large ? 1 : reste);
    m_page->addWidget(m_groupes[1], suite, large ? 2 : colonne, 1, large ? 1 : reste);
    m_page->addWidget(m_zoneMemos, suite + 1, colonne, 1, reste);
    for (int i = 0; i < Colonnes; ++i)
        m_page->setColumnStretch(i, i == colonne || (large && i == 2) ? 1 : 0);
    for (int i = 0; i <= 4; ++i)
        m_page->setRowStretch(i, i == suite + 1 ? 1 : 0);
    m_sousTitre->setDirection(large ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_colonneCouverture->setDirection(etroite ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_colonneCouverture->setSpacing(etroite ? Theme::Grand : Theme::Fin);
    rangerMemos(etroite);
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

    m_sousTitre = new QBoxLayout(QBoxLayout::LeftToRight);
    m_sousTitre->setContentsMargins(Theme::Fin, 0, 0, 0);
    m_sousTitre->setSpacing(Theme::Fin);
    lignes->addLayout(m_sousTitre);
    auto *serie = new QHBoxLayout;
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
    auto *voisins = new QHBoxLayout;
    voisins->setSpacing(Theme::Petit);
    voisins->addWidget(m_precedent);
    voisins->addWidget(m_suivant);
    voisins->addStretch(1);
    m_sousTitre->addLayout(serie, 1);
    m_sousTitre->addLayout(voisins);

    for (const auto &[lien, voisin] :
        {std::pair(m_precedent, &InfosAlbum::precedent), std::pair(m_suivant, &InfosAlbum::suivant)})
        connect(lien, &QToolButton::clicked, this, [this, voisin = voisin] {
            Q_EMIT m_demandes.entree({General::Tri::Albums, (m_fiche.infos.*voisin)->num});
        });
    return zone;
}

QWidget *FicheAlbum::construireCouverture()
{
    auto *zone = new QWidget(this);
    m_colonneCouverture = new QBoxLayout(QBoxLayout::TopToBottom, zone);
    m_colonneCouverture->setContentsMargins(0, 0, 0, 0);
    m_colonneCouverture->setSpacing(Theme::Fin);
    auto *images = new QVBoxLayout;
    images->setSpacing(Theme::Fin);
    m_colonneCouverture->addLayout(images);

    m_zoneImage = nommer(new QWidget(zone), QStringLiteral("SSResizer3"));
    auto *faces = new QStackedLayout(m_zoneImage);
    int rang = 0;
    for (const char *champ : {"Photo1", "Photo2"}) {
        m_faces[rang] = qobject_cast<CadreImage *>(creer(champ));
        faces->addWidget(m_faces[rang++]);
    }
    images->addWidget(m_zoneImage);

    m_rectoVerso = bouton(zone, QStringLiteral("RectoVerso"), QStringLiteral("retourner"));
    m_agrandir = bouton(zone, QStringLiteral("Agrandir"), QStringLiteral("agrandir"));
    m_retrecir = bouton(zone, QStringLiteral("Retrecir"), QStringLiteral("retrecir"));
    auto *boutons = new QHBoxLayout;
    boutons->addStretch(1);
    for (QToolButton *b : {m_rectoVerso, m_agrandir, m_retrecir})
        boutons->addWidget(b);
    boutons->addStretch(1);
    images->addLayout(boutons);
    images->addStretch(1);
    m_colonneCouverture->addLayout(construireSerie(), 1);
    connect(m_rectoVerso, &QToolButton::clicked, this, [this] { montrerFace(!m_dos); });
    connect(m_agrandir, &QToolButton::clicked, this, [this] { agrandir(1); });
    connect(m_retrecir, &QToolButton::clicked, this, [this] { agrandir(-1); });
    return zone;
}

/// The grades, and the series with its holes.
QLayout *FicheAlbum::construireSerie()
{
    auto *colonne = new QVBoxLayout;
    colonne->setSpacing(Theme::Fin);
    QGridLayout *notes = ouvrirGroupe(colonne, Txt::Appreciations);
    ajouterLigne(notes, "EtatBD");
    ajouterLigne(notes, "Qualite");

    m_titreSerie = titreDe(Txt::Serie);
    colonne->addWidget(m_titreSerie);
    colonne->addSpacing(Theme::Fin);
    m_bande = nommer(new BandeSerie(this), QStringLiteral("Bande"));
    marquer(m_bande);
    colonne->addWidget(m_bande);
    m_manquants = nommer(new QLabel(this), QStringLiteral("Manquants"));
    m_manquants->setForegroundRole(QPalette::PlaceholderText);
    m_manquants->setWordWrap(true);
    colonne->addWidget(m_manquants);
    colonne->addStretch(1);
    connect(m_bande, &BandeSerie::albumDemande, this, [this](int num) {
        Q_EMIT m_demandes.entree({General::Tri::Albums, num});
    });
    return colonne;
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
    m_grilleDesCases = new QGridLayout;
    m_grilleDesCases->setContentsMargins(0, Theme::Fin, 0, 0);
    m_grilleDesCases->setVerticalSpacing(3);
    for (const char *champ : {"LEditionOri", "LBrochee", "LIntegral", "LSerieLim", "LHorsSerie", "LCoffret"})
        m_cases.push_back(creer(champ));
    rangerCases(2);
    colonne->addLayout(m_grilleDesCases);
}

void FicheAlbum::rangerCases(int colonnes)
{
    if (std::exchange(m_colonnesDesCases, colonnes) == colonnes)
        return;
    for (int i = 0; i < static_cast<int>(m_cases.size()); ++i)
        m_grilleDesCases->addWidget(m_cases[static_cast<std::size_t>(i)], i / colonnes, i % colonnes);
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
    QWidget *zone = creerMemos({{"Hist", Txt::Resume}, {"Infos", Txt::Commentaires}});
    for (const auto &[titre, memo] : memos()) {
        memo->setMinimumHeight(HauteurMemo);
        memo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
    return zone;
}

void FicheAlbum::Traduire()
{
    FicheForme::Traduire();
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
    m_tomeSur->setText(serie && infos.tome > 0
            ? tr("tome %1 · %n possédé(s)", nullptr, infos.possedes).arg(infos.tome)
            : QString());
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
    const int derniere = static_cast<int>(std::size(Largeurs)) - 1;
    m_taille = std::clamp(m_taille + pas, 0, derniere);
    redisposer();
    poserCouverture();
    m_agrandir->setEnabled(m_taille < derniere);
    m_retrecir->setEnabled(m_taille > 0);
}

/// The cover takes its part of what a wide sheet does not need; in height, it leaves the grades and the series on screen.
void FicheAlbum::poserCouverture()
{
    const int base = largeurDesImages();
    const int besoin = base + 2 * (Theme::Grand + largeurDUnGroupe() * AisanceDUnGroupe / 100);
    const int haute = static_cast<int>(window()->height() * PartDeLaHauteur / ProportionImage);
    const int large = std::min({base + (contentsRect().width() - besoin) / 2, 2 * base, haute});
    const int largeur = std::max(base, large);
    const QSize taille(largeur, static_cast<int>(largeur * ProportionImage));
    m_zoneImage->setFixedSize(taille);
    // The hidden face gets its size, too: its picture is decoded for it.
    for (CadreImage *face : m_faces)
        face->resize(taille);
}

void FicheAlbum::resizeEvent(QResizeEvent *evenement)
{
    FicheForme::resizeEvent(evenement);
    poserCouverture();
    const bool deux = std::all_of(m_cases.begin(), m_cases.end(), [this](const QWidget *boite) {
        return 2 * boite->sizeHint().width() + Theme::Petit <= m_groupes[1]->width();
    });
    rangerCases(deux ? 2 : 1);
}
