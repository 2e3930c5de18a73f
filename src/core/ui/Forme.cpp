#include "core/ui/Forme.h"

#include <QEvent>
#include <QKeyEvent>

Forme::Forme(const QString &nom, QWidget *parent)
    : QWidget(parent, Qt::Window)
{
    setObjectName(nom);
}

void Forme::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange)
        Traduire();
    QWidget::changeEvent(evenement);
}

void Forme::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evenement);
}
