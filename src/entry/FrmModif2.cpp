#include "entry/FrmModif2.h"

#include "acts/Demandes.h"
#include "core/ui/Nommer.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int LargeurSaisie = 360;

}

FrmModif2::FrmModif2(Demandes &demandes)
    : FormeModification(demandes, QStringLiteral("FrmModif2"))
{
    m_saisie = nommer(new QLineEdit(this), QStringLiteral("TSaisie"));
    m_saisie->setMinimumWidth(LargeurSaisie);
    corps()->addWidget(m_saisie);
    connect(m_saisie, &QLineEdit::textEdited, this, [this] { refuser({}); });
    FrmModif2::Traduire();
}

void FrmModif2::Traduire()
{
    FormeModification::Traduire();
    m_saisie->setAccessibleName(Ecrire::LibelleDe(edition()));
}

void FrmModif2::proposer()
{
    m_saisie->setText(edition().affichee);
    m_depart = m_saisie->text();
    m_saisie->selectAll();
    m_saisie->setFocus();
}

void FrmModif2::valider()
{
    // The caption may say less than what is stored: left as it is, it is not written.
    if (m_saisie->text() == m_depart) {
        close();
        return;
    }
    const Ecrire::Resultat resultat = Ecrire::EcrireSaisie(edition(), m_saisie->text());
    if (!resultat.refus.isEmpty()) {
        refuser(resultat.refus);
        m_saisie->setFocus();
        return;
    }
    close();
    if (!resultat.avis.isEmpty())
        Q_EMIT m_demandes.message(resultat.avis);
}
