#include "core/ui/Forme.h"

#include "core/ui/Aide.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QShortcut>

Forme::Forme(const QString &nom, QWidget *parent)
    : QWidget(parent, Qt::Window)
{
    setObjectName(nom);
    auto *aide = new QShortcut(QKeySequence::HelpContents, this);
    connect(aide, &QShortcut::activated, this, [this] { Aide::Ouvrir(objectName()); });
}

QStringList Forme::Brouillons()
{
    QStringList lignes;
    for (const QWidget *fenetre : QApplication::topLevelWidgets()) {
        const auto *forme = qobject_cast<const Forme *>(fenetre);
        const QString ligne = forme ? forme->brouillon() : QString();
        if (!ligne.isEmpty())
            lignes << ligne;
    }
    lignes.sort();
    return lignes;
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
