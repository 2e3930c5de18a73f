#pragma once

#include "acts/Ecrire.h"
#include "core/ui/FormeOutil.h"
#include "loans/Prets.h"

#include <QStandardItemModel>

class Demandes;
class QBoxLayout;
class QLabel;
class QPushButton;
class QTreeView;

/// Who has which albums: the borrowers, what the chosen one has (or all that is lent), how to end and begin a
/// loan.
class Pret : public FormeOutil
{
    Q_OBJECT

public:
    explicit Pret(Demandes &demandes);

    void charger() override;
    void actualiser(const Changements &changements) override;
    /// The entry that the main window shows: an album can be lent from here.
    void poserCourante(General::Entree entree);

protected:
    void Traduire() override;
    void entrer() override;
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void construireListes(QBoxLayout *page);
    void brancher();
    QTreeView *construireListe(const QString &nom, QStandardItemModel &modele);
    void remplirPersonnes();
    void remplirPrets();
    void choisirPersonne();
    void choisirPret();
    void poserCible(const QString &cible);
    void supprimer();
    void preter();
    int personne() const;
    int pret() const;

    Demandes &m_demandes;
    QStandardItemModel m_personnes;
    QStandardItemModel m_prets;
    QLabel *m_titres[2] = {};
    QLabel *m_nombre = nullptr;
    QTreeView *m_lPers = nullptr;
    QTreeView *m_lPret = nullptr;
    QPushButton *m_tous = nullptr;
    QPushButton *m_preter = nullptr;
    QPushButton *m_del = nullptr;
    General::Entree m_courante;
};
