#include "db/conversion/TexteJet.h"

#include <QtEndian>

namespace {

QChar unite(QByteArrayView octets, qsizetype position)
{
    return QChar(qFromLittleEndian<quint16>(octets.data() + position));
}

QString detendre(QByteArrayView octets)
{
    QString texte;
    texte.reserve(octets.size());
    bool serre = true;
    for (qsizetype i = 0; i < octets.size();) {
        if (octets[i] == '\0') {
            serre = !serre;
            ++i;
        } else if (serre) {
            texte += QLatin1Char(octets[i]);
            ++i;
        } else if (i + 1 < octets.size()) {
            texte += unite(octets, i);
            i += 2;
        } else {
            break;
        }
    }
    return texte;
}

}

QString TexteJet::Lire(QByteArrayView octets)
{
    if (octets.startsWith("\xFF\xFE"))
        return detendre(octets.sliced(2));
    QString texte;
    texte.reserve(octets.size() / 2);
    for (qsizetype i = 0; i + 1 < octets.size(); i += 2)
        texte += unite(octets, i);
    return texte;
}
