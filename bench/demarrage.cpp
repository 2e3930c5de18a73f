// Time from exec to the list on screen, and resident memory then: bulleo-demarrage TIMES PROGRAM [ARGUMENTS]. The
// program says "peinte" on its error output; it is ended after each run. Prints the medians.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTextStream>
#include <algorithm>
#include <vector>

namespace {

constexpr int AttenteMs = 60'000;

double residentMio(qint64 processus)
{
    QFile etat(QStringLiteral("/proc/%1/status").arg(processus));
    if (!etat.open(QIODevice::ReadOnly))
        return 0;
    const QStringList lignes = QString::fromLatin1(etat.readAll()).split(u'\n');
    for (const QString &ligne : lignes) {
        if (ligne.startsWith(QLatin1String("VmRSS:")))
            return ligne.section(u':', 1).trimmed().section(u' ', 0, 0).toDouble() / 1024;
    }
    return 0;
}

double mediane(std::vector<double> valeurs)
{
    std::sort(valeurs.begin(), valeurs.end());
    return valeurs[valeurs.size() / 2];
}

}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList mots = QCoreApplication::arguments();
    if (mots.size() < 3) {
        QTextStream(stderr) << "bulleo-demarrage TIMES PROGRAM [ARGUMENTS]\n";
        return 2;
    }
    qputenv("QT_LOGGING_RULES", "bulleo.demarrage=true");
    std::vector<double> durees;
    std::vector<double> memoires;
    for (int i = 0; i < mots[1].toInt(); ++i) {
        QProcess programme;
        QElapsedTimer chrono;
        QByteArray dit;
        chrono.start();
        programme.setReadChannel(QProcess::StandardError);
        programme.start(mots[2], mots.mid(3));
        while (
            !dit.contains("peinte") && chrono.elapsed() < AttenteMs && programme.waitForReadyRead(AttenteMs))
            dit += programme.readAllStandardError() + programme.readAllStandardOutput();
        if (!dit.contains("peinte")) {
            QTextStream(stderr) << "never painted: " << dit << '\n';
            return 1;
        }
        durees.push_back(static_cast<double>(chrono.nsecsElapsed()) / 1e6);
        memoires.push_back(residentMio(programme.processId()));
        programme.kill();
        programme.waitForFinished();
        // What was ended like this is checked at the next start, which is not what is measured.
        if (const qsizetype rang = mots.indexOf(QStringLiteral("--dossier")); rang > 0)
            QFile::remove(mots.value(rang + 1) + QStringLiteral("/.bulleo.lock"));
    }
    QTextStream(stdout) << QStringLiteral("%1 ms, %2 MiB\n")
                               .arg(mediane(durees), 0, 'f', 0)
                               .arg(mediane(memoires), 0, 'f', 0);
    return 0;
}
