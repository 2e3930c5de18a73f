#pragma once

#include "core/Formes.h"

#include <QKeySequence>
#include <functional>

class QWidget;

/// The keys that open forms, and how they are told of.
namespace Raccourcis {

/// The key of a form; none for most.
QKeySequence De(Formes::Nom forme);
/// Lets these keys wish for their forms in a window.
void Poser(QWidget &fenetre, const std::function<void(Formes::Nom)> &demander);
/// A text for a tool tip with its key behind it, when there is one.
QString Avec(const QString &texte, const QKeySequence &touche);

}
