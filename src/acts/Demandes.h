#pragma once

#include "core/Formes.h"
#include "model/General.h"

struct Edition;
class QPoint;

/// What forms and sheets wish of the rest of the program, a wish a signal. Whoever wishes has a reference and emits;
/// Bureau alone answers, each wish at one place.
class Demandes : public QObject
{
    Q_OBJECT

public:
    /// The wishes that are not answered just once, by name.
    QStringList malBranchees() const;

Q_SIGNALS:
    void forme(Formes::Nom nom);
    /// An entry's sheet is to be shown, with its list when it is another one. Answered from the event loop.
    void entree(General::Entree entree);
    /// A kind of list is to be shown.
    void liste(General::Tri tri);
    /// The list of albums is to be narrowed to some of them, under a name, which is asked for again in another language.
    void selection(const std::function<QString()> &libelle, const std::vector<int> &albums);
    /// The main window is to be in front, with its list.
    void retour();

    /// A value is to be entered or chosen in a form of its own.
    void edition(const Edition &edition);
    /// A picture file is to be chosen for the field.
    void image(const Edition &edition);
    /// The context menu is asked for on a value, or beside the values when the edition names no field.
    void menu(const Edition &edition, const QPoint &point);
    /// The label of an entry is to be edited in its list.
    void renommage(General::Entree entree);
    /// A new entry is to be named in the list of its kind.
    void ajout(General::Tri tri);
    /// An entry is to be deleted, once the user has agreed.
    void suppression(General::Entree entree);
    void annulation();
    void retablissement();

    /// Something is to be said in the main window, of what was written or why nothing was.
    void message(const QString &ligne);
    void langue(const QString &fichier);
    /// Fonts, colours or background are others in the settings.
    void apparence();
    /// A copy of the collection is to be made.
    void copie();
    /// A file was dropped on the main window: a collection, or a list of albums.
    void fichier(const QString &chemin);
    /// The program is to be left, once the user has agreed.
    void sortie();
    /// The user has left it. Answered from the event loop.
    void fin();
};
