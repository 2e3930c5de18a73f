#pragma once

#include "entry/FormeModification.h"

class QLineEdit;

/// The entry of a value in one line.
class FrmModif2 : public FormeModification
{
    Q_OBJECT

public:
    FrmModif2();

protected:
    void Traduire() override;
    void charger() override;
    void valider() override;

private:
    QLineEdit *m_saisie = nullptr;
    QString m_depart; ///< what the line began with
};
