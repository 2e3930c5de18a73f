#pragma once

#include "model/ListeEntrees.h"

#include <QListView>
#include <unordered_map>
#include <vector>

/// Albums as a shelf: their covers in order, with tome and title. What a cover needs is read when it comes
/// into view, so that a publisher's twenty thousand albums cost no more than those on screen.
class Etagere : public QListView
{
    Q_OBJECT

public:
    explicit Etagere(QWidget *parent = nullptr);

    void montrer(const Entrees &albums);

Q_SIGNALS:
    void albumDemande(int num);

private:
    class Dessin;

    /// Reads what the visible albums lack, outside of painting.
    void lireManquants();

    ListeEntrees m_modele;
    std::unordered_map<int, General::Volume> m_volumes;
    std::vector<int> m_manquants;
};
