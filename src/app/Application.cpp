#include "app/Application.h"

#include "core/Error.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"

#include <QTimer>

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setApplicationVersion(QStringLiteral(VERSION));
}

bool Application::notify(QObject *objet, QEvent *evenement)
{
    try {
        return QApplication::notify(objet, evenement);
    } catch (const Error &erreur) {
        if (erreur.sorte() == Error::Sorte::Abandonnee)
            return true;
        // Told from the event loop, not from inside the handler that failed.
        QTimer::singleShot(0, this, [this, erreur] { dire(erreur); });
        return true;
    } catch (const std::exception &e) {
        const Error erreur(tr("Une erreur imprévue s'est produite."), {}, QString::fromUtf8(e.what()));
        QTimer::singleShot(0, this, [this, erreur] { dire(erreur); });
        return true;
    }
}

void Application::dire(const Error &erreur)
{
    // One box at a time: what fails while it is open is most often the same.
    if (m_dit)
        return;
    m_dit = true;
    // What a file does not permit is no error of the program.
    if (erreur.sorte() == Error::Sorte::LectureSeule)
        Messages::Informer(activeWindow(), erreur.message());
    else
        Messages::Arreter(activeWindow(), texte(Txt::UneErreurEstSurvenue) + u'\n' + erreur.message());
    m_dit = false;
}
