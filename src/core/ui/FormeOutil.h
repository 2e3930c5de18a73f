#pragma once

#include "core/ui/Forme.h"

#include <QPalette>
#include <functional>
#include <map>
#include <vector>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// A form of one tool: a heading, what the tool shows, and a foot with the line in which the form answers, its
/// progress and its buttons. Enter on a button is that button's; anywhere else it is the form's main button.
class FormeOutil : public Forme
{
    Q_OBJECT

public:
    /// What the foot holds beside the button that closes the form.
    enum Element { Rien = 0, Mini = 1, Progression = 2 };

protected:
    /// How much room the form leaves, in device-independent pixels, and how large its heading is.
    struct Cadre
    {
        int cotes; ///< at the left and at the right
        int bords; ///< above and below
        int ecart; ///< between heading, body and foot
        int ecartDuPied; ///< between what stands in the foot
        qreal titre; ///< times the font's size; 0 for a form whose title only the window bears
    };
    static const Cadre Large;
    static const Cadre Serre;

    /// The form takes the size that it needs when none is given.
    FormeOutil(const QString &nom, const QSize &taille, int elements = Mini, const Cadre &cadre = Large);

    /// What stands between heading and foot.
    QVBoxLayout *corps() const { return m_corps; }
    QLabel *entete() const { return m_titre; }
    /// The heading; the window bears it, too.
    void poserTitre(const QString &titre);

    /// A button of the form's own, at the right of the foot. The one with the accent is the main one.
    QPushButton *ajouterAuPied(const QString &nom, bool accent = false);
    /// The main button answers to Ctrl+Enter only: Enter alone belongs to the texts of the form.
    void reserverEntree() { m_entreeSeule = false; }

    /// Where in the foot, seen from the progress.
    enum class Cote { Avant, Apres };
    /// The line in which the form answers: above the foot, or in it. There is one.
    QLabel *ajouterMessage(const QString &nom = QStringLiteral("Message"));
    QLabel *ajouterMessageAuPied(const QString &nom, Cote cote);
    /// A word on what is under way, before the progress.
    QLabel *ajouterEtat(const QString &nom);
    /// Answers in that line, in its colour or in another one from now on.
    void dire(const QString &ligne);
    void dire(const QString &ligne, QPalette::ColorRole encre);

    QProgressBar *progression() const { return m_progression; }
    QPushButton *annuler() const { return m_annuler; }

    /// What Enter does in this field instead. The key ends there: what it begins may take the focus away, and it must
    /// not press the button that gets it.
    void surEntree(QWidget *champ, std::function<void()> acte);
    /// What Enter does where no button has the focus: the main button's work, unless a form knows better.
    virtual void entrer();

    /// The captions of the foot; forms go on from here.
    void Traduire() override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;

private:
    void construirePied(int elements, int ecart);
    void construireProgression();
    std::vector<QWidget *> boutonsDuPied() const;
    std::vector<QWidget *> auDessusDuPied() const;
    void presserPrincipal();

    QVBoxLayout *m_page = nullptr;
    QVBoxLayout *m_corps = nullptr;
    QHBoxLayout *m_boutons = nullptr;
    QHBoxLayout *m_gauche = nullptr;
    QLabel *m_titre = nullptr;
    QLabel *m_message = nullptr;
    QProgressBar *m_progression = nullptr;
    QPushButton *m_annuler = nullptr;
    QPushButton *m_principal = nullptr;
    QPushButton *m_mini = nullptr;
    QPushButton *m_quit = nullptr;
    std::map<QObject *, std::function<void()>> m_entrees;
    bool m_entreeSeule = true;
    bool m_ordonnee = false;
};
