#pragma once

#include "entry/FormeCreation.h"
#include "entry/ListeCatalogue.h"

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
    void vider() override;

private:
    QWidget *construireCatalogue();
    void choisir(const QModelIndex &index);
    void compter();

    ListeCatalogue m_modele;
    int m_reference = 0; ///< the entry of the catalogue that filled the fields
    QLineEdit *m_filtre = nullptr;
    QListView *m_liste = nullptr;
    QLabel *m_nombre = nullptr;
    QPushButton *m_sel = nullptr;
    QCheckBox *m_carton = nullptr;
};
