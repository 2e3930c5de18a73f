#include "core/Outil.h"

#include <QCoreApplication>

void Outil::Lancer(QProcess &processus, const QString &nom, const QStringList &arguments)
{
    processus.start(QCoreApplication::applicationDirPath() + u'/' + nom, arguments);
}

void Outil::Arreter(QProcess &processus)
{
    processus.kill();
    processus.waitForFinished();
}

bool Outil::AReussi(const QProcess &processus)
{
    return processus.state() == QProcess::NotRunning && processus.error() != QProcess::FailedToStart
        && processus.exitStatus() == QProcess::NormalExit && processus.exitCode() == 0;
}
