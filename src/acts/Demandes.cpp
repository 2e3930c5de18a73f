#include "acts/Demandes.h"

#include <QMetaMethod>

QStringList Demandes::malBranchees() const
{
    QStringList noms;
    for (int i = staticMetaObject.methodOffset(); i < staticMetaObject.methodCount(); ++i) {
        const QMetaMethod methode = staticMetaObject.method(i);
        // The number in front is what SIGNAL() puts there.
        const QByteArray signal = QByteArray::number(QSIGNAL_CODE) + methode.methodSignature();
        if (methode.methodType() == QMetaMethod::Signal && receivers(signal) != 1)
            noms << QString::fromLatin1(methode.name());
    }
    return noms;
}
