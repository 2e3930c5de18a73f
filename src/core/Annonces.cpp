#include "core/Annonces.h"

#include <QMetaObject>

Annonces::Intitule::Intitule(const QString &titre, const QVariant &lieu, int visite)
    : m_premier(!courant().m_intitule)
{
    if (m_premier)
        courant().m_intitule = Etape{titre, {}, lieu, visite};
}

Annonces::Intitule::~Intitule()
{
    if (m_premier)
        courant().m_intitule.reset();
}

void Annonces::annoncer(const Changements &changements)
{
    Etape etape = m_intitule.value_or(Etape());
    etape.changements = changements;
    Q_EMIT faite(etape);
    publier(changements);
}

void Annonces::remplacer()
{
    Q_EMIT remplacee();
    publier({Changement()});
}

void Annonces::publier(const Changements &changements)
{
    QMetaObject::invokeMethod(
        this, [this, changements] { Q_EMIT changee(changements); }, Qt::QueuedConnection);
}
