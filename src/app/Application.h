#pragma once

#include <QApplication>

class Error;

/// The application object, with the gate through which every broken operation is told to the user.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);

    /// Runs every event; an Error that nobody caught becomes a message box, and the program goes on.
    /// What the user gave up himself is not told again.
    bool notify(QObject *objet, QEvent *evenement) override;

private:
    void dire(const Error &erreur);

    bool m_dit = false;
};
