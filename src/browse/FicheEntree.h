#pragma once

#include "browse/General.h"
#include "core/ui/Carte.h"

class Etagere;
class QLabel;

/// The card of an entry: its kind, its name, and its albums on a shelf.
class FicheEntree : public Carte
{
    Q_OBJECT

public:
    explicit FicheEntree(QWidget *parent = nullptr);

    void montrer(General::Entree entree, const QString &nom, const Entrees &albums);

Q_SIGNALS:
    void entreeDemandee(General::Entree entree);

private:
    QLabel *m_genre = nullptr;
    QLabel *m_nom = nullptr;
    QLabel *m_albums = nullptr;
    Etagere *m_etagere = nullptr;
};
