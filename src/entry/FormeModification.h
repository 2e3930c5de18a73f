#pragma once

#include "acts/Ecrire.h"
#include "core/ui/FormeOutil.h"

class Demandes;
class QPushButton;

/// What the two editing forms share: which field is edited, what is said of what was entered, and the button that
/// validates. Modal; it opens beside the field. Enter validates, Escape leaves.
class FormeModification : public FormeOutil
{
    Q_OBJECT

public:
    /// Prepares the form for a field. Throws Error.
    void editer(const Edition &edition);

protected:
    /// `lignes` is how many lines the form has room for to say something in.
    FormeModification(Demandes &demandes, const QString &nom, int lignes = 1);

    /// Shows what the field holds and what may be entered.
    virtual void proposer() = 0;
    /// Stores what was entered, and closes the form when it was taken.
    virtual void valider() = 0;

    void Traduire() override;

    const Edition &edition() const { return m_edition; }
    /// Says why nothing was written; the form stays.
    void refuser(const QString &raison);
    /// Says in the same place what validating will do.
    void prevenir(const QString &avis);

    Demandes &m_demandes;

private:
    void placer();

    Edition m_edition;
    QPushButton *m_valider = nullptr;
};
