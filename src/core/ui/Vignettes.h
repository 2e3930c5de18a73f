#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <functional>

/// Pictures of files at the size in which they are shown, decoded beside the window's work and kept.
namespace Vignettes {

/// Hands over the picture: at once when it is known, else from the event loop; null for a file that is no
/// picture. Nothing is handed over once `receveur` is gone.
void Demander(QObject *receveur, const QString &chemin, const QSize &taille,
    const std::function<void(const QImage &)> &recevoir);

/// The picture when it is known already.
const QImage *Connue(const QString &chemin, const QSize &taille);

}
