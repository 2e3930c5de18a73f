#pragma once

#include <QWidget>

/// A page of the form of appearance. What is chosen on it holds once it is applied.
class PageApparence : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// What its tab says.
    virtual QString titre() const = 0;
    virtual void Traduire() = 0;
    /// Shows what the settings hold.
    virtual void charger() = 0;
    /// Writes what is chosen into the settings.
    virtual void valider() = 0;

Q_SIGNALS:
    /// An answer for the form's line.
    void reponse(const QString &ligne);
};
