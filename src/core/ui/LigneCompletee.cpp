#include "core/ui/LigneCompletee.h"

#include "core/Texte.h"

#include <QKeyEvent>

namespace {

/// The letters at the beginning of a name that a text stands for: "oe" for one letter of "œuvre", "be" for two of "Bé".
qsizetype lettresTenues(const QString &nom, const QString &saisie)
{
    const qsizetype voulues = Texte::Plier(saisie).size();
    qsizetype tenues = 0;
    while (tenues < nom.size() && Texte::Plier(nom.left(tenues)).size() < voulues)
        ++tenues;
    return tenues;
}

}

LigneCompletee::LigneCompletee(Chercher chercher, QWidget *parent)
    : QLineEdit(parent)
    , m_chercher(std::move(chercher))
{
    // The first to hear of it: who listens besides reads the line as it is completed.
    connect(this, &QLineEdit::textEdited, this, &LigneCompletee::suivre);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (m_nom.isEmpty() || text() != m_nom)
            tenir();
    });
}

QString LigneCompletee::SeulNom(const QStringList &noms, const QStringList &plies, const QString &saisie)
{
    const QString plie = Texte::Plier(saisie);
    qsizetype seul = -1;
    for (qsizetype i = 0; i < plies.size(); ++i) {
        if (!plies[i].contains(plie))
            continue;
        if (seul >= 0)
            return {};
        seul = i;
    }
    return seul >= 0 && plies[seul].startsWith(plie) ? noms[seul] : QString();
}

bool LigneCompletee::estCompletee() const
{
    return !m_nom.isEmpty() && text() == m_nom && cursorPosition() == m_tenue;
}

void LigneCompletee::suivre(const QString &texte)
{
    const QString debut = m_nom.left(m_tenue);
    QString saisie = texte;
    if (!m_nom.isEmpty() && texte.startsWith(debut))
        saisie = m_saisie + texte.mid(debut.size());
    const bool allongee = saisie.size() > m_saisie.size() && cursorPosition() == texte.size();
    m_saisie = saisie;
    m_nom.clear();
    const QString nom = allongee && !saisie.trimmed().isEmpty() ? m_chercher(saisie) : QString();
    if (!nom.isEmpty())
        montrer(nom);
    else if (saisie != texte)
        setText(saisie);
}

void LigneCompletee::montrer(const QString &nom)
{
    m_nom = nom;
    m_tenue = lettresTenues(nom, m_saisie);
    setText(nom);
    setSelection(static_cast<int>(nom.size()), static_cast<int>(m_tenue - nom.size()));
}

/// Back to what was typed, told as an edit.
void LigneCompletee::retirer()
{
    m_nom.clear();
    setText(m_saisie);
    Q_EMIT textEdited(m_saisie);
}

/// What stands in the line is what counts as typed from now on.
void LigneCompletee::tenir()
{
    m_nom.clear();
    m_saisie = text();
}

void LigneCompletee::keyPressEvent(QKeyEvent *evenement)
{
    const int touche = evenement->key();
    const bool efface = touche == Qt::Key_Escape || touche == Qt::Key_Delete || touche == Qt::Key_Backspace;
    if (efface && estCompletee() && (touche == Qt::Key_Escape || hasSelectedText()))
        return retirer();
    QLineEdit::keyPressEvent(evenement);
    // The cursor left the place where typing goes on.
    if (!estCompletee())
        tenir();
}

void LigneCompletee::mousePressEvent(QMouseEvent *evenement)
{
    QLineEdit::mousePressEvent(evenement);
    if (!estCompletee())
        tenir();
}

void LigneCompletee::focusOutEvent(QFocusEvent *evenement)
{
    if (evenement->reason() != Qt::PopupFocusReason && evenement->reason() != Qt::ActiveWindowFocusReason)
        tenir();
    QLineEdit::focusOutEvent(evenement);
}
