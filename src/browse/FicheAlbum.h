#pragma once

#include "browse/FicheForme.h"
#include "model/ChargerAlbums.h"

#include <QTimer>

class BandeSerie;
class CadreImage;
class GrilleFiche;
class Legende;
class QBoxLayout;
class QToolButton;
class TitreGroupe;

/// The sheet of an album, laid out like a library card: head, cover and series at the left, what the album is,
/// what it cost and who has it in two columns, summary and comment below.
class FicheAlbum : public FicheForme
{
    Q_OBJECT

public:
    FicheAlbum(Demandes &demandes, QWidget *parent);

    void montrer(const ChargerAlbums::FicheAlbum &fiche);
    /// Slideshow: front and back cover take turns.
    void poserDefilement(bool defile);

protected:
    void Traduire() override;
    void disposer(Disposition disposition) override;
    int largeurDesImages() const override { return Largeurs[m_taille]; }
    void resizeEvent(QResizeEvent *evenement) override;
    Edition editionSous(const QWidget *controle) const override;

private:
    static constexpr int Largeurs[] = {216, 290, 380}; ///< of the cover, at its smallest

    QWidget *construireEnTete();
    QWidget *construireCouverture();
    QLayout *construireSerie();
    QWidget *construireColonneGauche();
    QWidget *construireColonneDroite();
    QWidget *construireMemos();
    void construireCases(QBoxLayout *colonne);
    void rangerCases(int colonnes);
    void construireDedicaces(QBoxLayout *colonne);
    void construireGrilles(QBoxLayout *colonne);
    Edition editionDeCellule(const GrilleFiche *grille, const Legende *cellule) const;

    void montrerInfos(const InfosAlbum &infos);
    void montrerFace(bool dos);
    void agrandir(int pas);
    void poserCouverture();

    ChargerAlbums::FicheAlbum m_fiche;
    QGridLayout *m_page = nullptr;
    QWidget *m_entete = nullptr;
    QWidget *m_couverture = nullptr;
    QWidget *m_groupes[2] = {};
    QWidget *m_zoneMemos = nullptr;
    QBoxLayout *m_sousTitre = nullptr;
    QBoxLayout *m_colonneCouverture = nullptr;
    QGridLayout *m_grilleDesCases = nullptr;
    std::vector<QWidget *> m_cases;
    int m_colonnesDesCases = 0;
    std::vector<QGridLayout *> m_gauche;
    QWidget *m_zoneImage = nullptr;
    QToolButton *m_rectoVerso = nullptr;
    QToolButton *m_agrandir = nullptr;
    QToolButton *m_retrecir = nullptr;
    TitreGroupe *m_titreSerie = nullptr;
    BandeSerie *m_bande = nullptr;
    QLabel *m_tomeSur = nullptr;
    QLabel *m_manquants = nullptr;
    QToolButton *m_precedent = nullptr;
    QToolButton *m_suivant = nullptr;
    CadreImage *m_faces[2] = {};
    GrilleFiche *m_intervenants = nullptr;
    GrilleFiche *m_cotes = nullptr;
    QTimer m_defilement;
    int m_taille = 0;
    bool m_dos = false;
};
