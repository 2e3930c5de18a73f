#pragma once

#include "model/ListeEntrees.h"

/// The lines of the reference catalogue for a view: title and tome of each, its series besides. The filter finds them by
/// whatever the catalogue's list knows of them.
class ListeCatalogue : public ListeEntrees
{
    Q_OBJECT

public:
    static constexpr int RoleSerie = Qt::UserRole + 1;

    using ListeEntrees::ListeEntrees;

    QVariant data(const QModelIndex &index, int role) const override;
};
