#pragma once

#include "acts/Ecrire.h"

#include <QMenu>

class Demandes;

/// The context menu of lists and sheets: the commands that can act where it was asked for.
class Pop : public QMenu
{
    Q_OBJECT

public:
    explicit Pop(Demandes &demandes);

    /// Opens on a value of a sheet, or on an entry when the edition names no field.
    void ouvrir(const Edition &edition, const QPoint &point);
    /// Asks for a picture file and makes it that of the field; a dedication that is a note is asked about first.
    /// Throws Error.
    void choisirImage(const Edition &edition);
    /// Deletes an entry, once the user has agreed. Throws Error.
    void supprimer(General::Entree entree);

private:
    /// Adds a command under the name that it bears.
    template <class Geste>
    QAction *commande(const char *nom, const QString &libelle, Geste geste);
    void remplir();
    void remplirEntree();
    void remplirPret(General::Entree album);
    void remplirCopie(const QString &texte);
    void remplirValeur();
    void remplirImage();

    Demandes &m_demandes;
    Edition m_edition;
    QMenu *m_langues = nullptr;
};
