#pragma once

#include "acts/Saisie.h"
#include "core/Txt.h"
#include "core/ui/FormeOutil.h"

class Demandes;
class FormulaireAlbum;
class QHBoxLayout;
class QPushButton;

/// What both creation forms share: the fields, and the button that makes an album of them.
class FormeCreation : public FormeOutil
{
    Q_OBJECT

public:
    /// Reads the choice lists; the form is emptied. Throws Error.
    void charger() override;

protected:
    FormeCreation(Demandes &demandes, const QString &nom, const QSize &taille, Txt titre);
    /// Makes the fields; with `date` the publication date has choices beside it.
    void construireFormulaire(bool date);

    void Traduire() override;

    FormulaireAlbum *formulaire() const { return m_formulaire; }
    /// Where a form puts what it has beside the fields.
    QHBoxLayout *ligne() const { return m_ligne; }

private:
    void creer();

    Demandes &m_demandes;
    Txt m_titre;
    FormulaireAlbum *m_formulaire = nullptr;
    QHBoxLayout *m_ligne = nullptr;
    QLabel *m_refus = nullptr;
    QPushButton *m_creer = nullptr;
};
