#pragma once

#include "core/Annonces.h"
#include "core/Formes.h"

#include <QWidget>

/// Base of every form: it puts its captions in when it is first shown and at each change of language, and
/// Escape closes it, F1 opens its page of the help. It stands within the screen with its frame. A form shows values and tells its wishes; Bureau answers them.
class Forme : public QWidget
{
    Q_OBJECT

public:
    using Nom = Formes::Nom;

    explicit Forme(const QString &nom, QWidget *parent = nullptr);

    /// Begins afresh, whenever the form is shown anew. Throws Error.
    virtual void charger() { }
    /// Shows the collection as it is after these changes. Throws Error.
    virtual void actualiser(const Changements &) { }
    /// Fonts, colours or background are others in the settings.
    virtual void appliquerApparence() { }
    /// What would be lost if the program were left now, in one line; empty when nothing would.
    virtual QString brouillon() const { return {}; }
    /// The same of all forms, shown or not.
    static QStringList Brouillons();

protected:
    /// Takes all captions and tool tips from the texts in force.
    virtual void Traduire() = 0;

    bool event(QEvent *evenement) override;
    static bool EstEntree(const QKeyEvent &evenement);
    /// Enter presses the button that has the keyboard, and leaves boxes to tick alone; false without one.
    bool presserSousLeClavier();

    void changeEvent(QEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void cadrer();

    int m_patience = 0;
};
