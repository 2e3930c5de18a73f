#pragma once

#include <QProcess>

/// The programs of ours that stand beside this one: each does, in a process of its own, work that could bring
/// this one down.
namespace Outil {

/// Starts the one of this name. That it could not be started shows in the process.
void Lancer(QProcess &processus, const QString &nom, const QStringList &arguments);
/// Ends one that is still at work, and waits for its end.
void Arreter(QProcess &processus);
/// True when it has ended by itself and says that all went well.
bool AReussi(const QProcess &processus);

}
