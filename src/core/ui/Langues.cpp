#include "core/ui/Langues.h"

#include "core/Traduction.h"

#include <QFileInfo>
#include <QMenu>

void RemplirLangues(QMenu &menu, const std::function<void(const QString &fichier)> &choisie)
{
    menu.clear();
    const QString courante = Traduction::LangueCourante();
    const QStringList langues = Traduction::Langues();
    for (const QString &fichier : langues) {
        QAction *action = menu.addAction(QFileInfo(fichier).completeBaseName());
        action->setObjectName(fichier);
        action->setCheckable(true);
        action->setChecked(fichier == courante);
        QObject::connect(action, &QAction::triggered, &menu, [choisie, fichier] { choisie(fichier); });
    }
}
