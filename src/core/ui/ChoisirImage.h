#pragma once

#include <QString>

class QWidget;

/// Asks for a picture file to attach, in the folder that the last one came from; empty when the user gave up.
QString ChoisirImage(QWidget *parent);
