#pragma once

#include "acts/Choisir.h"
#include "entry/FormeModification.h"
#include "model/ListeEntrees.h"

class Demandes;
class LigneCompletee;
class QCalendarWidget;
class QListView;
class QToolButton;

/// The choice of an entry of another table, or of a date. What was done last counts: a pick or a typed text.
class FrmModif : public FormeModification
{
    Q_OBJECT

public:
    explicit FrmModif(Demandes &demandes);

protected:
    void Traduire() override;
    void proposer() override;
    void valider() override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void construireListe();
    void construireCalendrier();
    void RendreDateVisible(bool visible);
    void remplir();
    QString seulOffert(const QString &saisie);
    void taper();
    void resoudre();
    void choisirOffert(const QModelIndex &index);
    void prendre(const QModelIndex &index);
    void prendreJour();
    bool VerifierExist(const QString &nom) const;
    QModelIndex offertSous(const QString &nom) const;
    void ajouter();

    ListeEntrees m_modele;
    LigneCompletee *m_saisie = nullptr;
    QToolButton *m_menu = nullptr;
    QListView *m_liste = nullptr;
    QCalendarWidget *m_date = nullptr;
    Choisir::Choisie m_choisie;
    QString m_depart; ///< what the form began with
    int m_tenue = 0; ///< the entry that the field holds
    bool m_montre = false; ///< the current entry or day is set by the form, not by the user
};
