#pragma once

#include "model/ListeEntrees.h"

#include <QListView>
#include <QTimer>

/// A list of entries: rows of one height over the model, renamed in place with F2 or a double click. Walking
/// with the arrow keys announces only where the walk has come to.
class VueListe : public QListView
{
    Q_OBJECT

public:
    explicit VueListe(const QString &nom, QWidget *parent = nullptr);

    ListeEntrees &modele() { return m_modele; }
    /// Refills the list; the current entry and the place of the view are kept when they can be. An entry that is not
    /// in the list any more leaves it without a current line.
    void remplir(General::Tri tri, Entrees entrees);
    /// Makes an entry the current one and shows it, without announcing it.
    void choisir(int id);
    int choisie() const { return m_modele.id(currentIndex()); }
    /// An entry was chosen here, and is about to be announced.
    bool vaAnnoncer() const { return m_annonce.isActive(); }
    /// The entry that the last filling left in the place of the one that was current; 0 when there is none.
    int remplacante() const;
    /// Goes to a neighbour of the current entry, as an arrow key does; false where there is none.
    bool avancer(int pas);
    /// Shows only the lines that hold this text; the current entry comes back when its line does.
    void filtrer(const QString &texte);
    /// Shows only the lines of these entries, likewise; all of them without any.
    void restreindre(std::vector<int> ids);
    /// Edits the label of an entry in place; false when it is not in this list.
    bool renommer(int id);
    /// Opens an empty line for the name of a new entry.
    void ajouter();

Q_SIGNALS:
    void entreeChoisie(General::Entree entree);
    /// The context menu is asked for, at this place on the screen; the number is 0 beside the lines.
    void menuDemande(General::Entree entree, const QPoint &point);
    void suppressionDemandee(General::Entree entree);

protected:
    void contextMenuEvent(QContextMenuEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;
    void currentChanged(const QModelIndex &courant, const QModelIndex &precedent) override;
    void closeEditor(QWidget *editeur, QAbstractItemDelegate::EndEditHint suite) override;

private:
    void retrouver();
    bool estEnVue() const;

    ListeEntrees m_modele;
    QTimer m_annonce;
    bool m_muette = false;
    int m_retenue = 0; ///< the entry that was current last, shown or not
    int m_rang = -1; ///< where it stood before the last filling
};
