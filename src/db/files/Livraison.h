#pragma once

#include <QByteArray>
#include <QString>

/// What is shipped, brought into the application folder.
namespace Livraison {

/// Fills a new or empty folder from what is shipped and adds what a folder with a collection lacks. When what is
/// shipped has changed since the last time, each file that the user left as it came is replaced by its new
/// version; "empreintes.txt", shipped beside, says how each ever came. A folder that holds files but no
/// collection is left alone: an empty one must never hide a lost one. Throws Error when a file cannot be
/// written; the one that was there is then as it was.
void Preparer();

/// Digest of the rows of a reference catalogue, SHA-256 in hexadecimal: the bytes of its file depend on the machine
/// that made it. Throws Error.
QByteArray EmpreinteDuCatalogue(const QString &chemin);

}
