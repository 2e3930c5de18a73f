#pragma once

#include "core/ui/Forme.h"
#include "model/General.h"

#include <QTimer>

class Bandeau;
class Demandes;
class Fond;
class Parcours;
class Pied;
class PileFiches;
class QBoxLayout;
class QScrollArea;
class QSplitter;
class VoletListes;

/// The browsing window: menu row, lists, and the sheet of the chosen entry.
class Frmmain : public Forme
{
    Q_OBJECT

public:
    explicit Frmmain(Demandes &demandes);

    /// What is read at the start: background, size, list of the stored kind.
    void commencer();
    Parcours &parcours() const { return *m_parcours; }
    General::Entree courante() const;

    void appliquerApparence() override;
    void dire(const QString &message);
    /// The user knows of the context menu from now on.
    void oublierIndice();
    /// Titles of the steps that undo and redo would take next; empty where there is none.
    void poserEtapes(const QString &aAnnuler, const QString &aRefaire);

protected:
    void Traduire() override;
    void closeEvent(QCloseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    bool event(QEvent *evenement) override;

private:
    void construireCorps(QBoxLayout *page);
    void brancher();
    void raccourcis();
    void restaurerTaille();
    void memoriserTaille();

    void allerAuGroupe(int pas);
    void annuler();
    void retablir();
    void ecrirePuisFermer();
    void ouvrirMenu();
    void apropos();

    Demandes &m_demandes;
    Bandeau *m_bandeau = nullptr;
    QSplitter *m_partage = nullptr;
    VoletListes *m_volet = nullptr;
    Fond *m_fond = nullptr;
    QTimer m_diaporama; ///< leads through the list
    QScrollArea *m_defilement = nullptr;
    PileFiches *m_fiches = nullptr;
    Pied *m_pied = nullptr;
    Parcours *m_parcours = nullptr;
    bool m_peinte = false;
};
