#pragma once

#include "entry/FormeModification.h"

class Demandes;
class QLineEdit;

/// The entry of a value in one line.
class FrmModif2 : public FormeModification
{
    Q_OBJECT

public:
    explicit FrmModif2(Demandes &demandes);

protected:
    void Traduire() override;
    void proposer() override;
    void valider() override;

private:
    QLineEdit *m_saisie = nullptr;
    QString m_depart; ///< what the line began with
};
