#pragma once

#include "core/ui/FormeOutil.h"
#include "webimport/Importation.h"

class AccesBDNet;
class Demandes;
class DetailBDNet;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QToolButton;
class VueWeb;

/// Creation from the pages of the online catalogue: a browser to find an album's page, and the fields that the
/// page gives. Where there is no browser, the page's address is enough.
class BDNet : public FormeOutil
{
    Q_OBJECT

public:
    explicit BDNet(Demandes &demandes);

    void charger() override;
    QString brouillon() const override;

protected:
    void Traduire() override;
    void closeEvent(QCloseEvent *evenement) override;

private:
    void construireBarre(QBoxLayout *page);
    void construireVues(QBoxLayout *page);
    void construirePied();
    void brancher();

    void allerA(const QString &adresse);
    void suivreAdresse();
    void poserAdresse(const QUrl &url);
    void poserCharge(const QString &quoi, int pourcent);
    void analyser();
    void montrerResultat(const Importation::Resultat &resultat);
    void montrerEchec(const QString &raison);
    void occuper(bool occupe);
    void creer();
    void abandonner();
    void revenir();
    void suivreReglages();
    void allerAccueil();
    void poserVue(bool detail);
    bool estSurDetail() const;

    Demandes &m_demandes;
    Importation m_importation;
    bool m_navigateur = false; ///< there is a browser
    QToolButton *m_accueil = nullptr;
    QToolButton *m_navigation[2] = {};
    QLineEdit *m_adresse = nullptr;
    QPushButton *m_analyse = nullptr;
    QStackedWidget *m_vues = nullptr;
    VueWeb *m_web = nullptr;
    AccesBDNet *m_acces = nullptr;
    DetailBDNet *m_detail = nullptr;
    QLabel *m_chargement = nullptr;
    QPushButton *m_creer = nullptr;
    QPushButton *m_revenir = nullptr;
};
