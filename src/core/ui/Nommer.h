#pragma once

#include <QString>
#include <QWidget>

/// Gives a control its name.
template <class T>
T *nommer(T *objet, const QString &nom)
{
    objet->setObjectName(nom);
    return objet;
}

/// Gives an element of a control array its name: "Tris(0)".
template <class T>
T *nommer(T *objet, const QString &nom, int rang)
{
    return nommer(objet, QStringLiteral("%1(%2)").arg(nom).arg(rang));
}

/// Puts a caption on a button or label, for eyes and for assistive tools.
template <class T>
void libeller(T *controle, const QString &texte)
{
    controle->setText(texte);
    controle->setAccessibleName(texte);
}

/// Puts a tool tip on a control that shows no text of its own.
inline void expliquer(QWidget *controle, const QString &texte)
{
    controle->setToolTip(texte);
    controle->setAccessibleName(texte);
}
