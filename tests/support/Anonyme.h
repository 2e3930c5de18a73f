#pragma once

#include <QDirIterator>
#include <QFile>
#include <QStringList>
#include <unistd.h>

/// Nobody in particular, as long as this lives: root is not held back by what a file's mode forbids.
class Anonyme
{
public:
    Anonyme()
    {
        if (m_racine && setresuid(65534, 65534, 0) != 0)
            qFatal("setresuid");
    }
    ~Anonyme()
    {
        if (m_racine && setresuid(0, 0, 0) != 0)
            qFatal("setresuid");
    }
    Anonyme(const Anonyme &) = delete;
    Anonyme &operator=(const Anonyme &) = delete;

    /// Gives a folder and all that is under it away to him.
    static void donner(const QString &dossier)
    {
        QStringList chemins{dossier};
        for (QDirIterator i(dossier, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                 QDirIterator::Subdirectories);
             i.hasNext();)
            chemins << i.next();
        for (const QString &chemin : std::as_const(chemins)) {
            if (geteuid() == 0 && chown(qPrintable(chemin), 65534, 65534) != 0)
                qFatal("%s", qPrintable(chemin));
        }
    }

private:
    const bool m_racine = geteuid() == 0;
};
