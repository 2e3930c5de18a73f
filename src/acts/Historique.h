#pragma once

#include "acts/Acte.h"

#include <QUndoStack>

/// The steps that can be taken back and made again, as they were announced since the start.
class Historique : public QObject
{
    Q_OBJECT

public:
    explicit Historique(Annonces &annonces);
    ~Historique() override;

    /// Titles of the steps that come next; empty when there are none.
    QString aAnnuler() const { return m_pile.undoText(); }
    QString aRefaire() const { return m_pile.redoText(); }
    bool peutAnnuler() const { return m_pile.canUndo(); }
    bool peutRefaire() const { return m_pile.canRedo(); }

    /// Takes the last step back. Throws Error with nothing changed; a step whose rows were changed by others
    /// since is given up, so that the ones before it can still be taken back.
    void annuler();
    void refaire();
    /// Forgets all steps: another collection stands in the file.
    void oublier();

Q_SIGNALS:
    /// There are other steps than before.
    void change();
    void inscrite(const Etape &etape);
    void annulee(const Etape &etape);
    void refaite(const Etape &etape);

private:
    void prendre(const Etape &etape);
    Etape jouer(int rang, void (QUndoStack::*avancer)());
    void alleger();

    QUndoStack m_pile;
};
