#pragma once

#include "acts/Saisie.h"

#include <QWidget>
#include <map>

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

/// The fields of a new album, the same in both creation forms.
class FormulaireAlbum : public QWidget
{
    Q_OBJECT

public:
    /// With `date` the publication date has choices of day, month and year beside it.
    FormulaireAlbum(bool date, QWidget *parent);

    /// What was entered.
    Album album() const;
    /// Fills the fields; the pictures stay.
    void poser(const Album &album);
    void viderImages();
    void vider();
    /// True when nothing stands in the fields.
    bool estVide() const { return album() == m_vide; }
    /// True when the user entered something: more than the form was filled with, or proposes.
    bool aUneSaisie() const;
    void proposer(const Saisie::Choix &choix);
    /// Proposes a tome, or none any more, unless the user typed one.
    void proposerTome(std::optional<int> tome);
    /// Puts the cursor into the field and marks it until it changes.
    void montrerRefus(const Saisie::Refus &refus);
    void oterRefus();
    void Traduire();

    /// A row below the flags, for what one of the forms has more.
    QHBoxLayout *ligneDesCases() const { return m_ligneCases; }

Q_SIGNALS:
    /// Something else stands in a field.
    void change();
    /// The field holds the name of a series of the collection.
    void serieChoisie(const QString &serie);
    /// What was picked for a field was not taken.
    void refusee(const Saisie::Refus &refus);
    void refusOte();

private:
    QWidget *construireChamps();
    QWidget *construireDate(QWidget *champ);
    QWidget *construireImages();
    QWidget *fabriquer(const ChampsDeCreation::ChampDeCreation &champ);
    void ajouter(QGridLayout *grille, const ChampsDeCreation::ChampDeCreation &champ);
    void composerDate();
    void suivreSerie();
    void choisirImage(Rubrique rubrique);
    void prendreImage(Rubrique rubrique, const QString &chemin);
    void poserImage(Rubrique rubrique, const QString &chemin);
    QString lire(const ChampsDeCreation::ChampDeCreation &champ) const;
    void ecrire(const ChampsDeCreation::ChampDeCreation &champ, const QString &texte);
    template <class T>
    T *champ(Rubrique rubrique) const
    {
        return static_cast<T *>(m_champs.at(rubrique));
    }

    bool m_avecDate;
    Album m_vide; ///< the texts of an empty form
    Album m_depart; ///< those that the form was filled with
    std::map<Rubrique, QWidget *> m_champs;
    std::map<Rubrique, QLabel *> m_libelles;
    std::map<Rubrique, QPushButton *> m_boutons; ///< of the pictures
    std::map<Rubrique, QString> m_images; ///< files, by path
    QComboBox *m_jour = nullptr;
    QComboBox *m_mois = nullptr;
    QComboBox *m_annee = nullptr;
    QHBoxLayout *m_ligneCases = nullptr;
    bool m_tomePropose = false;
    QWidget *m_refuse = nullptr;
};
