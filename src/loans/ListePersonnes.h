#pragma once

#include "acts/Preter.h"
#include "loans/Prets.h"

#include <QStandardItemModel>
#include <QTreeView>

/// The borrowers: name, first name and telephone, each changed in its place by F2 or a double click; Tab goes on to the
/// next one.
class ListePersonnes : public QTreeView
{
    Q_OBJECT

public:
    explicit ListePersonnes(QWidget *parent = nullptr);

    /// Shows these; what is being typed and the current line stay.
    void remplir(const std::vector<Prets::Emprunteur> &gens);
    /// The current one; nothing when there is none, or it has no name yet.
    std::optional<Prets::Emprunteur> personne() const;

    /// Opens a line for a new person, who is told of once he has a name.
    void ajouter();
    /// That line is this person's from now on.
    void attribuer(int id);
    void Traduire();

Q_SIGNALS:
    /// Something else stands in the cell. Told from the event loop.
    void saisie(int id, Preter::Donnee donnee, const QString &texte);
    void nouvelle(const QString &nom);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers touches) override;
    void closeEditor(QWidget *editeur, QAbstractItemDelegate::EndEditHint suite) override;

private:
    void signaler(const QModelIndex &cellule, const QList<int> &roles);
    void ajouterLigne(const Prets::Emprunteur &personne);
    int ligneDe(int id) const;
    void oterSansNom();

    QStandardItemModel m_modele;
    bool m_muette = false; ///< while it is filled
};
