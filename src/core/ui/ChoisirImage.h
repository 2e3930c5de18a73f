#pragma once

#include <QString>

class QWidget;

/// Asks for a picture file to attach; empty when the user gave up.
QString ChoisirImage(QWidget *parent);

/// What it offers: the given text, with every kind of picture that is read, as Messages::OuvrirFichier takes it.
QString FiltreDImages();
/// Where it begins: the folder of the last picture, else the user's pictures, else those of the collection.
QString DossierDImages();
