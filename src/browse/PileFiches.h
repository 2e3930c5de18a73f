#pragma once

#include "acts/Ecrire.h"
#include "core/ui/Forme.h"

#include <QStackedWidget>
#include <map>

class Accueil;
class FicheAlbum;
class FicheEntite;
class FicheForme;

/// The sheets of all kinds, one on top: each is made when it is first needed. What a sheet wishes, the pile
/// announces.
class PileFiches : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PileFiches(QWidget *parent);

    /// Shows an entry's sheet; false when the entry is gone. Throws Error.
    bool montrer(General::Entree entree);
    /// Shows that there is nothing to show, or how to begin a collection that is empty.
    void vider(bool vierge);
    /// Writes what was typed into the texts of the sheet shown and still waits. Throws Error.
    void ecrireMemos();
    bool memosEnAttente() const;
    void oublierMemos();
    /// Slideshow of the album's covers.
    void poserDefilement(bool defile);
    void AppliquerPolices();
    void Traduire();

Q_SIGNALS:
    void formeDemandee(Forme::Nom forme);
    void entreeDemandee(General::Entree entree);
    void editionDemandee(const Edition &edition);
    void menuDemande(const Edition &edition, const QPoint &point);
    void imageDemandee(const Edition &edition);
    void dit(const QString &message);

private:
    bool montrerAlbum(int num);
    void inscrire(FicheForme *fiche);
    FicheForme *montree() const;

    FicheAlbum *m_album = nullptr;
    std::map<Champs::Feuille, FicheEntite *> m_entites;
    Accueil *m_accueil = nullptr;
    bool m_defile = false;
};
