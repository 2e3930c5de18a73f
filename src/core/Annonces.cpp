#include "core/Annonces.h"

#include <QMetaObject>

void Annonces::annoncer(const Changements &changements)
{
    QMetaObject::invokeMethod(
        this, [this, changements] { Q_EMIT changee(changements); }, Qt::QueuedConnection);
}

void Annonces::remplacer()
{
    numeros.clear();
    Q_EMIT remplacee();
    annoncer({Changement()});
}
