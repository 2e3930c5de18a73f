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

QString Memo::texte() const
{
    // The plain text of a document has no no-break spaces left.
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

void Memo::oublier()
{
    m_pause.stop();
    m_enAttente = false;
}

void Memo::montrer(const QString &valeur)
{
    QString montree = valeur;
    montree.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const QString avant = texte();
    const bool deuxVides = Texte::EstVide(montree) && Texte::EstVide(avant);
    if (m_enAttente || m_annonce || montree == avant || (hasFocus() && deuxVides))
        return;
    const QScopedValueRollback montre(m_montre, true);
    const int place = textCursor().position();
    setPlainText(montree);
    if (hasFocus()) {
        QTextCursor curseur = textCursor();
        curseur.setPosition(std::min(place, static_cast<int>(montree.size())));
        setTextCursor(curseur);
    }
}

void Memo::annoncer()
{
    m_pause.stop();
    if (!m_enAttente)
        return;
    // While it is written a box may come up and take the focus, which would announce it once more.
    m_enAttente = false;
    const QScopedValueRollback annonce(m_annonce, true);
    try {
        Q_EMIT modifie(texte(), m_visite);
    } catch (...) {
        m_enAttente = true;
        throw;
    }
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
