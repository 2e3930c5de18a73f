#pragma once

#include "acts/Saisie.h"
#include "core/Txt.h"
#include "core/ui/Forme.h"

class FormulaireAlbum;
class QBoxLayout;
class QLabel;
class QPushButton;

/// What both creation forms share: the fields, the line that says what is refused, and the buttons.
class FormeCreation : public Forme
{
    Q_OBJECT

public:
    /// Reads the choice lists; the form is emptied. Throws Error.
    virtual void charger();

Q_SIGNALS:
    void albumCree(int num);

protected:
    FormeCreation(const QString &nom, Txt titre, bool date);

    void Traduire() override;
    void keyPressEvent(QKeyEvent *evenement) override;

    FormulaireAlbum *formulaire() const { return m_formulaire; }
    /// Where a form puts what it has beside the fields.
    QBoxLayout *corps() const { return m_corps; }
    void dire(const QString &ligne);

private:
    QWidget *construirePied();
    void creer();

    Txt m_titre;
    FormulaireAlbum *m_formulaire = nullptr;
    QBoxLayout *m_corps = nullptr;
    QLabel *m_entete = nullptr;
    QLabel *m_refus = nullptr;
    QPushButton *m_creer = nullptr;
    QPushButton *m_mini = nullptr;
    QPushButton *m_quit = nullptr;
};
