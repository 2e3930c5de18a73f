#include "browse/Pied.h"

#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "model/General.h"
#include "model/Montant.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRandomGenerator>

Pied::Pied(QWidget *parent)
    : QWidget(parent)
{
    auto *ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(Theme::Moyen, 3, Theme::Moyen, 3);
    ligne->setSpacing(Theme::Grand);
    m_message = nommer(new QLabel(this), QStringLiteral("Message"));
    m_anim = nommer(new QLabel(this), QStringLiteral("Anim"));
    m_totaux = nommer(new QLabel(this), QStringLiteral("Totaux"));
    for (QLabel *label : {m_message, m_anim, m_totaux}) {
        label->setFont(Theme::Taille(font(), 0.85));
        label->setTextFormat(Qt::PlainText);
    }
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_totaux->setForegroundRole(QPalette::PlaceholderText);
    ligne->addWidget(m_message, 1);
    ligne->addWidget(m_anim);
    ligne->addWidget(m_totaux);
    m_timer.setParent(this);
    m_timer.setObjectName(QStringLiteral("Timer1"));
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &Pied::changerCouleur);
    m_anim->setVisible(!Reglages::courant().booleen(Cle::MenuVu));
}

void Pied::dire(const QString &message)
{
    m_message->setText(message);
}

void Pied::poserTotaux()
{
    const General::Totaux totaux = General::LireTotaux();
    QStringList parties{tr("%n album(s)", nullptr, static_cast<int>(totaux.albums)),
        tr("%n série(s)", nullptr, static_cast<int>(totaux.series))};
    if (totaux.valeur > 0)
        parties << tr("valeur %1").arg(Montant::Montrer(totaux.valeur) + u' ' + texte(Txt::Euro));
    if (General::EstEnLectureSeule())
        parties.prepend(tr("lecture seule"));
    m_totaux->setText(parties.join(QStringLiteral(" · ")));
}

void Pied::oublierIndice()
{
    if (!Reglages::courant().booleen(Cle::MenuVu))
        Reglages::courant().ecrire(Cle::MenuVu, true);
    animer(false);
    m_anim->hide();
}

void Pied::animer(bool actif)
{
    if (actif && !Reglages::courant().booleen(Cle::MenuVu))
        m_timer.start();
    else
        m_timer.stop();
}

/// A new shade of pure red, never the one that it has; one that can be read in the dark, there.
void Pied::changerCouleur()
{
    QPalette palette = m_anim->palette();
    const int courante = palette.color(QPalette::WindowText).red();
    int rouge = courante;
    while (rouge == courante)
        rouge = QRandomGenerator::global()->bounded(Theme::EstSombre(this->palette()) ? 170 : 0, 256);
    palette.setColor(QPalette::WindowText, QColor(rouge, 0, 0));
    m_anim->setPalette(palette);
}

void Pied::Traduire()
{
    m_anim->setText(texte(Txt::CliquezPourMenuContextuel));
}
