#include "core/Collection.h"

#include <QMetaObject>

Collection::Intitule::Intitule(const QString &titre, const QVariant &lieu, int visite)
    : m_premier(!courant().m_intitule)
{
    if (m_premier)
        courant().m_intitule = Etape{titre, {}, lieu, visite};
}

Collection::Intitule::~Intitule()
{
    if (m_premier)
        courant().m_intitule.reset();
}

void Collection::annoncer(const Changements &changements)
{
    Etape etape = m_intitule.value_or(Etape());
    etape.changements = changements;
    Q_EMIT faite(etape);
    publier(changements);
}

void Collection::remplacer()
{
    Q_EMIT remplacee();
    publier({Changement()});
}

void Collection::publier(const Changements &changements)
{
    QMetaObject::invokeMethod(
        this, [this, changements] { Q_EMIT changee(changements); }, Qt::QueuedConnection);
}
