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
    /// Reads the choice lists. What was entered before the form was closed stands there again. Throws Error.
    void charger() override;
    QString brouillon() const override;

protected:
    FormeCreation(Demandes &demandes, const QString &nom, const QSize &taille, Txt titre);
    /// Makes the fields; with `date` the publication date has choices beside it.
    void construireFormulaire(bool date);

    void Traduire() override;
    void closeEvent(QCloseEvent *evenement) override;
    /// Empties the form.
    virtual void vider();

    FormulaireAlbum *formulaire() const { return m_formulaire; }
    /// Where a form puts what it has beside the fields.
    QHBoxLayout *ligne() const { return m_ligne; }

private:
    void creer();
    void recommencer();
    void refuser(const Saisie::Refus &refus);

    Demandes &m_demandes;
    Txt m_titre;
    FormulaireAlbum *m_formulaire = nullptr;
    QHBoxLayout *m_ligne = nullptr;
    QLabel *m_refus = nullptr;
    QPushButton *m_vider = nullptr;
    QPushButton *m_creer = nullptr;
};
