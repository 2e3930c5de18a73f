#pragma once

#include "core/ui/Forme.h"

#include <QWidget>
#include <array>
#include <functional>

class QLabel;
class QMenu;
class QToolButton;

/// The row at the top of the main window: title, menu buttons, slideshow switch, languages.
class Bandeau : public QWidget
{
    Q_OBJECT

public:
    explicit Bandeau(QWidget *parent = nullptr);

    void Traduire();
    /// Which forms there are; the buttons of the others are disabled and say so.
    void poserDisponibles(const std::function<bool(Forme::Nom)> &disponible);
    void poserLoop(bool actif);
    /// Titles of the steps that undo and redo would take; empty where there is none.
    void poserEtapes(const QString &aAnnuler, const QString &aRefaire);
    /// Width of the title, which stands above the lists.
    void poserLargeurTitre(int largeur);

Q_SIGNALS:
    void formeDemandee(Forme::Nom forme);
    void aideDemandee();
    void siteDemande();
    void aProposDemande();
    void sortieDemandee();
    void loopBascule(bool actif);
    void annulationDemandee();
    void retablissementDemande();
    void langueDemandee(const QString &fichier);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void paintEvent(QPaintEvent *) override;

private:
    void construireMenu();
    void construireDroite();
    void agir(int rang);

    QLabel *m_titre = nullptr;
    std::array<QToolButton *, 8> m_menu{};
    QToolButton *m_defaire = nullptr;
    QToolButton *m_refaire = nullptr;
    QString m_aAnnuler;
    QString m_aRefaire;
    QToolButton *m_loops = nullptr;
    QToolButton *m_langues = nullptr;
    QMenu *m_menuLangues = nullptr;
    std::function<bool(Forme::Nom)> m_disponible;
};
