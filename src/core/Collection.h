#pragma once

#include "core/Courant.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>
#include <optional>
#include <vector>

class Error;

/// One changed row of the collection: before and after. No "before" is a new row, no "after" a deleted one.
struct Changement
{
    using Ligne = std::vector<QVariant>;

    QString table;
    qint64 cle = 0; ///< row number, which is the identifier in the tables of entries
    std::optional<Ligne> avant;
    std::optional<Ligne> apres;
};

/// What one user action changed, in the order in which it happened.
using Changements = std::vector<Changement>;

/// The collection as the forms know it: it tells them when something in it has changed.
class Collection : public QObject, public Courant<Collection>
{
    Q_OBJECT

public:
    /// Asked when the file is in use by another program; true tries again. Without it the opening fails.
    std::function<bool(const Error &)> reessayer;

    /// Announces changes from the event loop, once the action that made them is over.
    void annoncer(const Changements &changements);

Q_SIGNALS:
    void changee(const Changements &changements);
};
