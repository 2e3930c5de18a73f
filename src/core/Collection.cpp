#include "core/Collection.h"

#include <QMetaObject>

void Collection::annoncer(const Changements &changements)
{
    QMetaObject::invokeMethod(
        this, [this, changements] { Q_EMIT changee(changements); }, Qt::QueuedConnection);
}
