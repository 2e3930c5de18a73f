#pragma once

#include "acts/Saisie.h"
#include "core/Txt.h"

#include <QWidget>
#include <vector>

class CadreImage;
class ListeChoix;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// The fields of a new album, the same in both creation forms.
class FormulaireAlbum : public QWidget
{
    Q_OBJECT

public:
    /// With `date` the publication date has choices of day, month and year beside it.
    FormulaireAlbum(bool date, QWidget *parent);

    Saisie::Textes textes() const;
    void poser(const Creer::Album &album, const QString &tome);
    void vider();
    void proposer(const Saisie::Choix &choix);
    /// Proposes a tome, unless the user typed one.
    void proposerTome(int tome);
    /// Puts the cursor into the field and marks it until it changes.
    void montrerRefus(const Saisie::Refus &refus);
    void oterRefus();
    void Traduire();

    /// A row below the flags, for what one of the forms has more.
    QHBoxLayout *ligneDesCases() const { return m_ligneCases; }

Q_SIGNALS:
    /// The field holds the name of a series of the collection.
    void serieChoisie(const QString &serie);
    void refusOte();

private:
    QWidget *construireChamps();
    QWidget *construireDate();
    QWidget *construireCases();
    QWidget *construireImages();
    void ajouter(QGridLayout *grille, Txt libelle, const QString &nom, QWidget *champ);
    ListeChoix *ajouterChoix(QGridLayout *grille, Txt libelle, const QString &nom);
    void composerDate();
    void choisirImage(int rang);
    void poserImage(int rang, const QString &chemin);

    bool m_avecDate;
    QLineEdit *m_titre = nullptr;
    QLineEdit *m_tome = nullptr;
    ListeChoix *m_serie = nullptr;
    QLineEdit *m_dateparu = nullptr;
    QComboBox *m_jour = nullptr;
    QComboBox *m_mois = nullptr;
    QComboBox *m_annee = nullptr;
    ListeChoix *m_editeur = nullptr;
    ListeChoix *m_genre = nullptr;
    ListeChoix *m_dessin = nullptr;
    ListeChoix *m_scena = nullptr;
    ListeChoix *m_color = nullptr;
    QLineEdit *m_prix = nullptr;
    QPlainTextEdit *m_histoire = nullptr;
    QCheckBox *m_cases[3] = {};
    QHBoxLayout *m_ligneCases = nullptr;
    CadreImage *m_cadres[2] = {};
    QPushButton *m_boutons[2] = {};
    QString m_images[2];
    std::vector<std::pair<QLabel *, Txt>> m_libelles;
    bool m_tomePropose = false;
    QWidget *m_refuse = nullptr;
};
