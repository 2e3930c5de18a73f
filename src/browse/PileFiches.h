#pragma once

#include "model/General.h"

#include <QStackedWidget>
#include <map>

class Accueil;
class Demandes;
class FicheAlbum;
class FicheEntite;
class FicheForme;

/// The sheets of all kinds, one on top: each is made when it is first needed.
class PileFiches : public QStackedWidget
{
    Q_OBJECT

public:
    PileFiches(Demandes &demandes, QWidget *parent);

    /// Shows an entry's sheet; false when the entry is gone. Throws Error.
    bool montrer(General::Entree entree);
    /// Shows that there is nothing to show, or how to begin a collection that is empty.
    void vider(bool vierge);
    /// Writes what was typed into the texts of the sheet shown and still waits. Throws Error.
    void ecrireMemos();
    bool memosEnAttente() const;
    void oublierMemos();
    /// Whether values can be changed on the sheets, from the next one shown on.
    void permettre(bool permis) { m_permis = permis; }
    /// Slideshow of the album's covers.
    void poserDefilement(bool defile);
    void appliquerPolices();
    void Traduire();
    /// Goes through the groups of the sheet shown; false when there is none.
    bool allerAuGroupe(int pas);

    /// The room of what is shown, not of the largest.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    int heightForWidth(int largeur) const override;

private:
    bool montrerAlbum(int num);
    bool montrerEntite(General::Entree entree);
    FicheForme *montree() const;

    Demandes &m_demandes;
    FicheAlbum *m_album = nullptr;
    std::map<Champs::Feuille, FicheEntite *> m_entites;
    Accueil *m_accueil = nullptr;
    bool m_defile = false;
    bool m_permis = true;
};
