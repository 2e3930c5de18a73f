#pragma once

#include "acts/Ecrire.h"
#include "core/ui/FormeOutil.h"
#include "loans/ListePersonnes.h"

class Demandes;
class QBoxLayout;
class QLabel;
class QPushButton;

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
    QBoxLayout *construirePersonnes();
    QBoxLayout *construirePrets();
    QLabel *construireTitre();
    void brancher();
    void remplirPrets();
    void choisirPersonne();
    void choisirPret();
    void poserCible(const QString &cible);
    void ecrirePersonne(int id, Preter::Donnee donnee, const QString &texte);
    void ajouterPersonne(const QString &nom);
    void supprimer();
    QString questionDuRetrait() const;
    void preter();
    bool accepterDeReprendre(const Prets::Emprunteur &tient);
    void choisirAQui();
    void nommerPreter();
    int personne() const;
    int pret() const;

    Demandes &m_demandes;
    QStandardItemModel m_prets;
    QLabel *m_titrePersonnes = nullptr;
    QLabel *m_titrePrets = nullptr;
    QLabel *m_nombre = nullptr;
    ListePersonnes *m_lPers = nullptr;
    QTreeView *m_lPret = nullptr;
    QPushButton *m_tous = nullptr;
    QPushButton *m_ajouter = nullptr;
    QPushButton *m_preter = nullptr;
    QPushButton *m_del = nullptr;
    General::Entree m_courante;
    QString m_titre; ///< of the album that can be lent; empty when there is none
};
