#include "core/ui/Raccourcis.h"

#include <QAction>
#include <QWidget>
#include <array>

using Formes::Nom;

namespace {

struct Raccourci
{
    Nom forme;
    QKeyCombination touche;
};
constexpr std::array Table{
    Raccourci{Nom::Manuelle, Qt::CTRL | Qt::Key_N},
    Raccourci{Nom::Recherche, Qt::CTRL | Qt::SHIFT | Qt::Key_F},
    Raccourci{Nom::Impression, Qt::CTRL | Qt::Key_P},
    Raccourci{Nom::Pret, Qt::CTRL | Qt::Key_L},
    Raccourci{Nom::Stats, Qt::CTRL | Qt::Key_T},
};

}

QKeySequence Raccourcis::De(Nom forme)
{
    for (const Raccourci &raccourci : Table) {
        if (raccourci.forme == forme)
            return raccourci.touche;
    }
    return {};
}

void Raccourcis::Poser(QWidget &fenetre, const std::function<void(Nom)> &demander)
{
    for (const Raccourci &raccourci : Table) {
        auto *action = new QAction(&fenetre);
        action->setShortcut(raccourci.touche);
        QObject::connect(
            action, &QAction::triggered, &fenetre, [demander, forme = raccourci.forme] { demander(forme); });
        fenetre.addAction(action);
    }
}

QString Raccourcis::Avec(const QString &texte, const QKeySequence &touche)
{
    return touche.isEmpty() ? texte
                            : QStringLiteral("%1 (%2)").arg(texte, touche.toString(QKeySequence::NativeText));
}
