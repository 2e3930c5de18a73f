#pragma once

#include <QByteArrayView>
#include <QString>

/// The texts of Jet 4 and ACE files. The library that reads these files loses what UCS-2 does not have.
namespace TexteJet {

/// A stored text: UTF-16LE, or compressed behind the mark FF FE: one byte a character, where each byte 0 changes
/// between that and UTF-16LE.
QString Lire(QByteArrayView octets);

}
