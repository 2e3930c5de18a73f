#include "core/ui/Memo.h"

#include "core/Texte.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace {

constexpr int PauseMs = 300;

}

Memo::Memo(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    m_pause.setSingleShot(true);
    m_pause.setInterval(PauseMs);
    connect(&m_pause, &QTimer::timeout, this, &Memo::annoncer);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (m_montre)
            return;
        m_enAttente = true;
        m_pause.start();
    });
}

void Memo::montrer(const QString &texte)
{
    const bool deuxVides = Texte::EstVide(texte) && Texte::EstVide(toPlainText());
    if (m_enAttente || texte == toPlainText() || (hasFocus() && deuxVides))
        return;
    const QScopedValueRollback montre(m_montre, true);
    const int place = textCursor().position();
    setPlainText(texte);
    if (hasFocus()) {
        QTextCursor curseur = textCursor();
        curseur.setPosition(std::min(place, static_cast<int>(texte.size())));
        setTextCursor(curseur);
    }
}

void Memo::annoncer()
{
    m_pause.stop();
    if (!m_enAttente)
        return;
    Q_EMIT modifie(toPlainText(), m_visite);
    m_enAttente = false;
}

bool Memo::event(QEvent *evenement)
{
    // With nothing left to take back here, Ctrl+Z is the window's.
    if (evenement->type() == QEvent::ShortcutOverride) {
        const auto *touche = static_cast<QKeyEvent *>(evenement);
        const bool rienAAnnuler = touche->matches(QKeySequence::Undo) && !document()->isUndoAvailable();
        const bool rienARefaire = touche->matches(QKeySequence::Redo) && !document()->isRedoAvailable();
        if (rienAAnnuler || rienARefaire) {
            evenement->ignore();
            return false;
        }
    }
    return QPlainTextEdit::event(evenement);
}

void Memo::focusInEvent(QFocusEvent *evenement)
{
    ++m_visite;
    QPlainTextEdit::focusInEvent(evenement);
}

void Memo::focusOutEvent(QFocusEvent *evenement)
{
    QPlainTextEdit::focusOutEvent(evenement);
    if (evenement->reason() != Qt::PopupFocusReason)
        annoncer();
}
