#pragma once

#include <QString>

/// The help pages: one for each form, in the folder "Help".
namespace Aide {

/// Full path of a form's page, in French or else in English; the contents for a form without one. Empty when
/// there is none.
QString Page(const QString &forme);

/// Opens a form's page in the desktop's browser. Throws Error when there is none.
void Ouvrir(const QString &forme);

}
