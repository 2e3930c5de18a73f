#pragma once

#include <QLineEdit>
#include <functional>

/// A line that completes what is typed at its end when it can only mean one name: it shows that name as it is written,
/// the added letters selected. Typing goes on over them; Delete, Backspace and Escape take the name away and leave what
/// was typed; with Tab, Enter or a click elsewhere the line keeps what it shows.
class LigneCompletee : public QLineEdit
{
    Q_OBJECT

public:
    /// The one name that a typed text means and begins, whatever case and accents; empty when there is none, or several.
    using Chercher = std::function<QString(const QString &saisie)>;
    explicit LigneCompletee(Chercher chercher, QWidget *parent = nullptr);

    /// True while the line shows a name that was not typed so.
    bool estCompletee() const;

    /// The name among these that alone holds a text and begins with it, all of them folded; empty when there is none.
    /// `plies` are the names as they compare, in the same order.
    static QString SeulNom(const QStringList &noms, const QStringList &plies, const QString &saisie);

protected:
    void keyPressEvent(QKeyEvent *evenement) override;
    void mousePressEvent(QMouseEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;

private:
    void suivre(const QString &texte);
    void montrer(const QString &nom);
    void retirer();
    void tenir();

    Chercher m_chercher;
    QString m_saisie; ///< what was typed
    QString m_nom; ///< the name that is shown for it; empty without one
    qsizetype m_tenue = 0; ///< letters of that name that what was typed stands for
};
