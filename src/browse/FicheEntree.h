#pragma once

#include "browse/General.h"
#include "core/ui/Carte.h"

class QLabel;

/// The card of an entry: its kind, its name, and how many albums it has.
class FicheEntree : public Carte
{
    Q_OBJECT

public:
    explicit FicheEntree(QWidget *parent = nullptr);

    void montrer(General::Entree entree, const QString &nom, int albums);

private:
    QLabel *m_genre = nullptr;
    QLabel *m_nom = nullptr;
    QLabel *m_albums = nullptr;
};
