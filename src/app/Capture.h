#pragma once

#include "app/Options.h"
#include "core/Formes.h"

#include <QObject>

class Bureau;

/// Takes the picture that was asked for on the command line, and ends the program.
class Capture : public QObject
{
    Q_OBJECT

public:
    /// Begins once the program has had the time to show its window.
    Capture(Bureau &bureau, const Options &options);

private:
    void commencer();
    void montrer(Formes::Nom nom);
    void enregistrer(Formes::Nom nom);

    Bureau &m_bureau;
    Options m_options;
};
