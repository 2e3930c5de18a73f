#include "entry/ListeCatalogue.h"

#include "entry/Catalogue.h"

QVariant ListeCatalogue::data(const QModelIndex &index, int role) const
{
    const auto ligne = [&] { return ListeEntrees::data(index, Qt::DisplayRole).toString(); };
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return Catalogue::Libelle(ligne());
    case RoleSerie:
        return Catalogue::PartieDe(ligne(), Catalogue::Partie::Serie);
    default:
        return ListeEntrees::data(index, role);
    }
}
