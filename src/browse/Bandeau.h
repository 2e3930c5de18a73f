#pragma once

#include <QWidget>
#include <array>

class Demandes;
class QLabel;
class QMenu;
class QToolButton;

/// The row at the top of the main window: title, menu buttons, slideshow switch, languages.
class Bandeau : public QWidget
{
    Q_OBJECT

public:
    explicit Bandeau(Demandes &demandes, QWidget *parent);

    void Traduire();
    void poserLoop(bool actif);
    /// Titles of the steps that undo and redo would take; empty where there is none.
    void poserEtapes(const QString &aAnnuler, const QString &aRefaire);
    /// Width of the title, which stands above the lists.
    void poserLargeurTitre(int largeur);

Q_SIGNALS:
    void aideDemandee();
    void siteDemande();
    void aProposDemande();
    void loopBascule(bool actif);
    void annulationDemandee();
    void retablissementDemande();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void paintEvent(QPaintEvent *) override;

private:
    void construireMenu();
    void construireDroite();
    void agir(int rang);

    Demandes &m_demandes;
    QLabel *m_titre = nullptr;
    std::array<QToolButton *, 8> m_menu{};
    QToolButton *m_defaire = nullptr;
    QToolButton *m_refaire = nullptr;
    QString m_aAnnuler;
    QString m_aRefaire;
    QToolButton *m_loops = nullptr;
    QToolButton *m_langues = nullptr;
    QMenu *m_menuLangues = nullptr;
};
