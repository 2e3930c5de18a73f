#pragma once

#include "core/ui/FormeOutil.h"
#include "model/ListeEntrees.h"
#include "reports/Rechercher.h"

class Demandes;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

/// The search for entries of one kind by their names; a hit shows its entry in the main window.
class Recherche : public FormeOutil
{
    Q_OBJECT

public:
    explicit Recherche(Demandes &demandes);

    /// Begins anew, with the kind that the main window shows. The text of the last search is kept.
    void charger() override;
    void actualiser(const Changements &changements) override;

protected:
    void Traduire() override;
    void entrer() override;

private:
    QWidget *construireCriteres();
    QWidget *construireResultat();
    void chercher();
    void remplir();
    void poserNombre();
    void aller(const QModelIndex &index);

    Demandes &m_demandes;
    ListeEntrees m_modele;
    QLabel *m_libelle = nullptr;
    QComboBox *m_tris = nullptr;
    QLineEdit *m_saisie = nullptr;
    QCheckBox *m_debut = nullptr;
    QPushButton *m_menu = nullptr;
    QLabel *m_resultat = nullptr;
    QLabel *m_nombre = nullptr;
    QTreeView *m_liste = nullptr;

    /// What the hits shown were found by; nothing before the first search.
    struct Criteres
    {
        General::Tri tri;
        QString texte;
        Rechercher::Mode mode;
    };
    std::optional<Criteres> m_criteres;
};
