#pragma once

#include "browse/FicheForme.h"
#include "model/ChargerAuteurs.h"

#include <optional>

class Etagere;
class QBoxLayout;
class QCheckBox;
class QGridLayout;
class TitreGroupe;

/// The sheet of a series, author, publisher, ex-libris, press item or collection, laid out by a plan: head,
/// pictures, groups of fields, texts, and the albums on a shelf.
class FicheEntite : public FicheForme
{
    Q_OBJECT

public:
    FicheEntite(Champs::Feuille feuille, Demandes &demandes, QWidget *parent);

    void montrer(General::Entree entree, const Valeurs &valeurs, const Entrees &albums);
    /// The trades area of an author.
    void montrerMetiers(const ChargerAuteurs::ZoneMetiers &metiers);

protected:
    void Traduire() override;
    void remontrer() override;
    void disposer(Disposition disposition) override;
    int largeurDesImages() const override;

private:
    struct Plan;
    static const Plan &PlanDe(Champs::Feuille feuille);

    QWidget *construireImages();
    QWidget *construireGroupes();
    QWidget *construireMemos();
    void construireMetiers(QBoxLayout *colonne);

    const Plan &m_plan;
    QGridLayout *m_page = nullptr;
    QWidget *m_images = nullptr;
    QWidget *m_groupes = nullptr;
    QWidget *m_zoneMemos = nullptr;
    QBoxLayout *m_colonnes = nullptr;
    std::vector<QGridLayout *> m_grilles;
    QLabel *m_genre = nullptr;
    QLabel *m_nombre = nullptr;
    TitreGroupe *m_metier = nullptr;
    QCheckBox *m_metiers[2] = {};
    ChargerAuteurs::ZoneMetiers m_metiersLus{};
    Etagere *m_albums = nullptr;
    General::Tri m_tri = General::Tri::Albums;
};
