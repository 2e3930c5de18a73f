#pragma once

#include "core/ui/Forme.h"
#include "model/General.h"

class Bandeau;
class Demandes;
class Fond;
class Pied;
class PileFiches;
class QBoxLayout;
class QScrollArea;
class QSplitter;
class VoletListes;

/// The browsing window: menu row, lists, and the sheet of the chosen entry.
class Frmmain : public Forme
{
    Q_OBJECT

public:
    explicit Frmmain(Demandes &demandes);

    /// What is read at the start: background, size, list of the stored kind.
    void commencer();
    /// Shows a kind of list and remembers it. Throws Error.
    void montrerTri(General::Tri tri);
    /// Shows an entry's sheet, with its list when it is another one. Throws Error.
    void montrerEntree(General::Entree entree);
    /// Shows the list of albums narrowed to some of them, under a name. Throws Error.
    void montrerSelection(const QString &libelle, const std::vector<int> &albums);
    /// What the main list shows.
    General::Liste listeMontree() const;
    /// The entry whose sheet is shown; its identifier is 0 when there is none.
    General::Entree courante() const { return m_courante; }
    /// Edits an entry's label in its list, or opens an empty line there for a new entry. Both throw Error.
    void renommerEntree(General::Entree entree);
    void ajouterEntree(General::Tri tri);
    /// Shows the list's first entry, when nothing is shown yet. Throws Error.
    void montrerPremiere();

    void actualiser(const Changements &changements) override;
    void appliquerApparence() override;
    void dire(const QString &message);
    /// Titles of the steps that undo and redo would take next; empty where there is none.
    void poserEtapes(const QString &aAnnuler, const QString &aRefaire);

Q_SIGNALS:
    /// Another sheet is shown; its entry's number is 0 when there is none.
    void entreeMontree(General::Entree entree);
    /// Another kind of list is shown.
    void triChange(int tri);

protected:
    void Traduire() override;
    void closeEvent(QCloseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    bool event(QEvent *evenement) override;

private:
    void construireCorps(QBoxLayout *page);
    void brancher();
    void raccourcis();
    void restaurerTaille();
    void memoriserTaille();

    void choisir(General::Entree entree);
    void montrerFiche(General::Entree entree);
    void retenirTri(General::Tri tri);
    void oublier();
    void renommer(General::Tri tri, int id, const QString &libelle);
    void ajouter(General::Tri tri, const QString &libelle);
    void choisirCourante();
    void choisirPremiere();
    void montrerVoisin(General::Tri tri);
    void quitterFiche();
    void annuler();
    void retablir();
    void ecrirePuisFermer();
    void ouvrirMenu();
    void apropos();

    Demandes &m_demandes;
    Bandeau *m_bandeau = nullptr;
    QSplitter *m_partage = nullptr;
    VoletListes *m_volet = nullptr;
    Fond *m_fond = nullptr;
    QScrollArea *m_defilement = nullptr;
    PileFiches *m_fiches = nullptr;
    Pied *m_pied = nullptr;
    General::Entree m_courante;
    bool m_peinte = false;
    bool m_ouverte = false; ///< the collection could be read
};
