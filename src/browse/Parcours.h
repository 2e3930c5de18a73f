#pragma once

#include "model/General.h"

#include <QObject>
#include <functional>

class Pied;
class PileFiches;
class VoletListes;

/// What the main window shows: which list, which of its entries, and that entry's sheet. It keeps the three together,
/// whoever chooses, and when rows change or go.
class Parcours : public QObject
{
    Q_OBJECT

public:
    Parcours(VoletListes &volet, PileFiches &fiches, Pied &pied, QObject *parent);

    /// Reads the list of the stored kind, unless the collection is one in the old format. Throws Error.
    void ouvrir();
    /// The collection could be read.
    bool estOuvert() const { return m_ouverte; }
    /// Shows a kind of list and remembers it. Throws Error.
    void montrerTri(General::Tri tri);
    /// Shows an entry's sheet, with its list when it is another one. Throws Error.
    void montrerEntree(General::Entree entree);
    /// Shows the list of albums narrowed to some of them, under a name. Throws Error.
    void montrerSelection(const std::function<QString()> &libelle, const std::vector<int> &albums);
    /// Shows the list's first entry, when nothing is shown yet. Throws Error.
    void montrerPremiere();
    /// Edits an entry's label in its list, or opens an empty line there for a new entry. Both throw Error.
    void renommerEntree(General::Entree entree);
    void ajouterEntree(General::Tri tri);
    /// True when the collection still has the entry; when not, that is said and the lists are read again. Throws Error.
    bool estLa(General::Entree entree);
    /// Goes to a neighbour of the entry shown, in the list where it stands; the keyboard stays where it is.
    bool avancer(int pas);
    /// Shows the collection as it is after these changes. Throws Error.
    void actualiser(const Changements &changements);

    /// What the main list shows.
    General::Selection listeMontree() const;
    /// The entry whose sheet is shown; its identifier is 0 when there is none.
    General::Entree courante() const { return m_courante; }

Q_SIGNALS:
    /// Another sheet is shown; its entry's number is 0 when there is none.
    void entreeMontree(General::Entree entree);
    /// Another kind of list is shown.
    void triChange(int tri);

private:
    void choisir(General::Entree entree);
    void montrerFiche(General::Entree entree);
    void retenirTri(General::Tri tri);
    void oublier();
    void renommer(General::Tri tri, int id, const QString &libelle);
    void ajouter(General::Tri tri, const QString &libelle);
    void choisirCourante();
    void choisirPremiere();
    void remontrer();
    void montrerRemplacante(General::Tri tri, int id);
    void enAccord(const std::function<void()> &geste);
    void relire();

    VoletListes &m_volet;
    PileFiches &m_fiches;
    Pied &m_pied;
    General::Entree m_courante;
    bool m_ouverte = false;
};
