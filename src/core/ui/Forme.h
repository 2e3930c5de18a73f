#pragma once

#include "core/Annonces.h"

#include <QWidget>

/// Base of every form: it puts its captions in when it is first shown and at each change of language, and
/// Escape closes it, F1 opens its page of the help. A form shows values and announces wishes; Bureau connects them.
class Forme : public QWidget
{
    Q_OBJECT

public:
    /// The forms of the program, by the names that they bear.
    enum class Nom {
        Frmmain,
        Splash,
        Manuelle,
        Facile,
        BDNet,
        Polices,
        Textures,
        Stats,
        Impression,
        Acquisition,
        Pret,
        Restauration,
        Recherche,
        FrmModif,
        FrmModif2,
        Import,
    };
    Q_ENUM(Nom)

    explicit Forme(const QString &nom, QWidget *parent = nullptr);

protected:
    /// Takes all captions and tool tips from the texts in force.
    virtual void Traduire() = 0;

    void changeEvent(QEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
};
