#pragma once

#include "core/Txt.h"
#include "core/ui/Forme.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <functional>
#include <optional>
#include <span>
#include <vector>

class Demandes;
class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;
class QStackedWidget;
class QToolButton;

/// The launcher: large buttons to every function of the program, in five groups, and a line that says what
/// the button under the mouse does.
class Splash : public Forme
{
    Q_OBJECT

public:
    /// A button that opens a form, or without one asks for a copy: its caption, and what the line below says.
    struct Outil
    {
        Txt legende;
        Txt commentaire;
        const char *icone;
        std::optional<Nom> forme;
    };

    explicit Splash(Demandes &demandes);

    /// Marks the kind of list that the main window shows.
    void poserTri(int tri);

protected:
    void Traduire() override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;

private:
    struct Bouton
    {
        QToolButton *controle = nullptr;
        std::function<QString()> legende;
        std::function<QString()> commentaire;
        QKeySequence touche;
    };

    QWidget *construireMenu();
    QWidget *construirePages();
    QLayout *construireBoutons();
    QGridLayout *ouvrirPage();
    void construireOutils(QGridLayout *page, const QString &nom, std::span<const Outil> outils);
    void construireImport(QGridLayout *page);
    void construireTris(QGridLayout *page);
    void construireLiens(QGridLayout *page);
    QToolButton *ajouter(
        QGridLayout *page, const QString &nom, int rang, const QString &icone, const Bouton &bouton);
    void ouvrirGroupe(int groupe);
    bool marcher(QAbstractButton &bouton, const QKeyEvent &touche);
    void survoler(QAbstractButton &bouton, bool entre);
    QString commentaireDuBouton(QAbstractButton &bouton) const;

    Demandes &m_demandes;
    QStackedWidget *m_pages = nullptr;
    QLabel *m_titreGroupe = nullptr;
    QLabel *m_commentaire = nullptr;
    QLabel *m_sousTitre = nullptr;
    QButtonGroup *m_tris = nullptr;
    QButtonGroup *m_menu = nullptr;
    QPushButton *m_mini = nullptr;
    QPushButton *m_quit = nullptr;
    QCheckBox *m_auto = nullptr;
    std::vector<Bouton> m_boutons;
};
