#pragma once

#include "core/ui/Forme.h"

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// A form of one tool: a heading, what the tool shows, and a foot with its buttons.
class FormeOutil : public Forme
{
    Q_OBJECT

public:
    /// What the foot holds beside the button that closes the form.
    enum Element { Rien = 0, Mini = 1, Progression = 2 };

protected:
    FormeOutil(const QString &nom, const QSize &taille, int elements = Mini);

    /// What stands between heading and foot.
    QVBoxLayout *corps() const { return m_corps; }
    /// A button of the form's own, at the right of the foot; the form is about the one with the accent.
    QPushButton *ajouterAuPied(const QString &nom, bool accent = false);
    /// A line above the foot, where the form answers.
    QLabel *ajouterMessage();
    /// The heading; the window bears it, too.
    void poserTitre(const QString &titre);

    QProgressBar *progression() const { return m_progression; }
    QPushButton *annuler() const { return m_annuler; }

    /// The captions of the foot; forms go on from here.
    void Traduire() override;
    void showEvent(QShowEvent *evenement) override;

private:
    QVBoxLayout *m_page = nullptr;
    QVBoxLayout *m_corps = nullptr;
    QHBoxLayout *m_boutons = nullptr;
    QHBoxLayout *m_gauche = nullptr;
    QLabel *m_titre = nullptr;
    QProgressBar *m_progression = nullptr;
    QPushButton *m_annuler = nullptr;
    QPushButton *m_mini = nullptr;
    QPushButton *m_quit = nullptr;
    bool m_ordonnee = false;
};
