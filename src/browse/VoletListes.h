#pragma once

#include "model/General.h"

#include <QWidget>
#include <array>

class Demandes;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSplitter;
class QTabWidget;
class QToolButton;
class VueListe;

/// The left side of the main window: the nine kinds, the main list with its title and count, and below it the
/// albums and press items of the chosen entry, folded away when there are none.
class VoletListes : public QWidget
{
    Q_OBJECT

public:
    VoletListes(Demandes &demandes, QWidget *parent);

    /// Fills the main list with a kind. Throws Error.
    void montrer(General::Tri tri);
    /// What is linked to an entry of the main list, as the lower lists show it.
    struct Lies
    {
        General::Entree entree;
        QString titre;
        Entrees albums;
        Entrees presse;
    };
    /// Reads it; no list moves yet. Throws Error.
    static Lies lireLies(General::Entree entree);
    void montrerLies(Lies lies);
    void viderLies();
    /// The entry of the main list to which the lower lists belong; its number is 0 when there is none.
    General::Entree lies() const { return m_lies; }
    /// Lets each list stand on the entry whose sheet is shown, and on no other: a list that has it not has no current
    /// line.
    void accorder(General::Entree montree);
    /// The list in which an entry that is shown stands, or would.
    VueListe *listeDe(General::Entree montree) const;
    /// Reads the lists again after changes. Throws Error.
    void actualiser(const Changements &changements);

    General::Tri tri() const { return m_tri; }
    /// What the main list shows, filters regarded.
    General::Selection montree() const;
    /// Narrows the main list, of albums, to some of them, under a name that a click takes away again.
    void montrerSelection(const std::function<QString()> &libelle, const std::vector<int> &albums);
    /// Makes an entry of the main list the current one, taking away the filter that would hide it.
    void montrerLigne(int id);
    /// Puts the cursor into the line that narrows the main list.
    void filtrer();
    /// Opens an empty line in the main list, for the name of a new entry.
    void ajouter();
    /// Edits an entry's label in the list that shows it.
    void renommer(General::Entree entree);

    VueListe *liste() const { return m_liste; }
    VueListe *albums() const { return m_albums; }
    VueListe *presse() const { return m_presse; }

    void Traduire();
    void appliquerApparence();
    QByteArray etat() const;
    void poserEtat(const QByteArray &etat);

Q_SIGNALS:
    void triDemande(General::Tri tri);
    void entreeChoisie(General::Entree entree);
    void renommageDemande(General::Tri tri, int id, const QString &libelle);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    QWidget *construireTris();
    QWidget *construireTitre();
    QWidget *construireLies();
    void construireVide();
    QString raisonDuVide() const;
    void brancher();
    void remplir(General::Tri tri);
    void nommerSelection();
    void oterSelection();
    void poserPretes();
    void poserNombre();
    void replier();

    Demandes &m_demandes;
    General::Tri m_tri = General::Tri::Albums;
    bool m_remplie = false;
    General::Entree m_lies;
    std::array<QToolButton *, General::NombreDeTris> m_tris{};
    QLabel *m_titre = nullptr;
    QLabel *m_nombre = nullptr;
    QProgressBar *m_progression = nullptr;
    QLineEdit *m_filtre = nullptr;
    std::function<QString()> m_libelleSelection;
    QToolButton *m_selection = nullptr; ///< names what the list is narrowed to
    QSplitter *m_partage = nullptr;
    VueListe *m_liste = nullptr;
    VueListe *m_albums = nullptr;
    VueListe *m_presse = nullptr;
    QWidget *m_voletLies = nullptr;
    QLabel *m_titreLies = nullptr;
    QLabel *m_nombreLies = nullptr;
    QTabWidget *m_onglets = nullptr;
    QWidget *m_vide = nullptr; ///< on the main list, while it shows no line
    QLabel *m_raison = nullptr;
    QPushButton *m_ajouter = nullptr;
};
