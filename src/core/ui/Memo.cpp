#include "core/ui/Memo.h"

#include "core/Texte.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>

namespace {

constexpr int PauseMs = 300;
/// The time to break a word into lines grows with the square of its length: one of 400,000 signs takes half a minute.
constexpr int MotLePlusLong = 5000;

bool aUnMotSansFin(const QString &texte)
{
    int suite = 0;
    for (const QChar c : texte) {
        suite = c.isSpace() ? 0 : suite + 1;
        if (suite > MotLePlusLong)
            return true;
    }
    return false;
}

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
    poser(montree);
    if (hasFocus()) {
        QTextCursor curseur = textCursor();
        curseur.setPosition(std::min(place, static_cast<int>(montree.size())));
        setTextCursor(curseur);
    }
}

/// The long word is never broken, neither while it comes nor while it goes.
void Memo::poser(const QString &texte)
{
    const bool sansFin = aUnMotSansFin(texte);
    if (sansFin)
        setLineWrapMode(NoWrap);
    setPlainText(texte);
    if (!sansFin)
        setLineWrapMode(WidgetWidth);
}

void Memo::insertFromMimeData(const QMimeData *donnees)
{
    if (aUnMotSansFin(textCursor().block().text() + donnees->text()))
        setLineWrapMode(NoWrap);
    QPlainTextEdit::insertFromMimeData(donnees);
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
