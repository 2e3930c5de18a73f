#pragma once

#include "entry/FormeCreation.h"
#include "model/ListeEntrees.h"

class Demandes;
class QCheckBox;
class QLineEdit;
class QListView;

/// Creation from the reference catalogue: an album picked from its list fills the fields.
class Facile : public FormeCreation
{
    Q_OBJECT

public:
    explicit Facile(Demandes &demandes);

    void charger() override;

protected:
    void Traduire() override;

private:
    QWidget *construireCatalogue();
    void choisir(const QModelIndex &index);

    ListeEntrees m_modele;
    QLineEdit *m_filtre = nullptr;
    QListView *m_liste = nullptr;
    QLabel *m_nombre = nullptr;
    QPushButton *m_sel = nullptr;
    QCheckBox *m_carton = nullptr;
};
