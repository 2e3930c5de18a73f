#pragma once

#include "browse/ListeEntrees.h"

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
    /// Refills the list; the current entry and the place of the view are kept when they can be.
    void remplir(General::Tri tri, Entrees entrees);
    /// Makes an entry the current one and shows it, without announcing it.
    void choisir(int id);
    int choisie() const { return m_modele.id(currentIndex()); }

Q_SIGNALS:
    void entreeChoisie(General::Entree entree);

protected:
    void currentChanged(const QModelIndex &courant, const QModelIndex &precedent) override;

private:
    ListeEntrees m_modele;
    QTimer m_annonce;
    bool m_muette = false;
};
