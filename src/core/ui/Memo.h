#pragma once

#include <QPlainTextEdit>
#include <QTimer>

/// A text of several lines that is written as one types: a short pause after the last key announces it, and
/// so does leaving. What was announced in vain stays waiting. Its lines are broken to fit, unless a word is so long that
/// this would take its time.
class Memo : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit Memo(QWidget *parent = nullptr);

    /// Shows a text, unless what was typed here still waits.
    void montrer(const QString &valeur);
    bool enAttente() const { return m_enAttente; }
    /// Gives up what waits: it will be announced no more.
    void oublier();
    /// Announces what waits. A receiver that throws leaves it waiting.
    void annoncer();

Q_SIGNALS:
    /// `visite` is the same from entering the field to leaving it.
    void modifie(const QString &texte, int visite);

protected:
    bool event(QEvent *evenement) override;
    void insertFromMimeData(const QMimeData *donnees) override;
    void focusInEvent(QFocusEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;

private:
    QString texte() const;
    void poser(const QString &texte);

    QTimer m_pause;
    int m_visite = 1;
    bool m_enAttente = false;
    bool m_annonce = false; ///< what waited is being written
    bool m_montre = false; ///< the change of text comes from here
};
