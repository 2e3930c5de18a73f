#pragma once

#include "core/ui/FormeOutil.h"
#include "model/General.h"
#include "pictures/Acquereur.h"

class BoiteImage;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;

/// The picture workshop: a picture comes from a scanner, a file or the clipboard, is turned and mirrored, and
/// becomes a file or a picture of the album that the main window shows.
class Acquisition : public FormeOutil
{
    Q_OBJECT

public:
    Acquisition();

    void charger() override;
    /// The entry that the main window shows: an album takes the picture.
    void poserCourante(General::Entree entree);

protected:
    void Traduire() override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void closeEvent(QCloseEvent *evenement) override;

private:
    void construireOutils(QBoxLayout *page);
    void construireBoites(QBoxLayout *page);
    void brancher();

    void agir(int rang);
    void numeriser();
    void ouvrir();
    void ouvrirFichier(const QString &chemin);
    void enregistrer();
    void tourner(double angle);
    void refleter(Qt::Orientation sens);
    void coller();
    void utiliser(int rang);
    void poserImage(const QImage &image, const QString &fichier);
    void montrerSources(const std::vector<Numeriseur::Source> &sources);
    void nommerAbsence();
    void occuper(bool occupe);
    void poserEtat();

    Acquereur m_acquereur;
    QString m_fichier; ///< where the picture came from or went to; empty for none
    General::Entree m_courante;
    bool m_occupee = false;
    std::vector<QToolButton *> m_outils;
    QLabel *m_libelleSources = nullptr;
    QComboBox *m_sources = nullptr;
    BoiteImage *m_photo = nullptr;
    BoiteImage *m_destination = nullptr;
    QLabel *m_libelleDestination = nullptr;
    QLabel *m_album = nullptr;
    std::vector<QPushButton *> m_utiliser;
};
