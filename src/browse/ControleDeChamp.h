#pragma once

#include "model/Fiche.h"

#include <QObject>

class QImage;
class QWidget;

/// The control of a field on a sheet: it shows the value, and tells what the user does. There is one class for each kind
/// of control, and the sheets know them by this one alone. It belongs to its widget.
class ControleDeChamp : public QObject
{
    Q_OBJECT

public:
    /// The control that the field table names for the field.
    static ControleDeChamp *Fabriquer(const Champs::Champ &champ, QWidget *parent);
    /// A frame beside the control of a field, for a picture that its value may name.
    static ControleDeChamp *FabriquerCadre(const Champs::Champ &champ, QWidget *parent);

    const Champs::Champ &champ() const { return m_champ; }
    QWidget *controle() const { return m_controle; }

    void montrer(const ValeurDeChamp &valeur);
    /// Takes caption and words from the texts in force.
    virtual void Traduire();

    /// Whether the value can be changed on the control itself. What opens a form, the form refuses.
    virtual void permettre(bool) { }

    /// The control says itself what it is, and has no caption beside it.
    virtual bool seNomme() const { return false; }
    /// It takes part in the user's font and colour.
    virtual bool aDesLettres() const { return true; }
    /// The context menu on it is that of its value, else that of the entry.
    virtual bool aUnMenu() const { return true; }

    /// What was typed and waits to be written: it is told now, given up, or there is some. A receiver that throws
    /// leaves it waiting.
    virtual void annoncer() { }
    virtual void oublier() { }
    virtual bool enAttente() const { return false; }

Q_SIGNALS:
    /// A value was entered on the control itself. Edits of one `visite` are one, unless it is 0.
    void saisie(const QString &saisie, int visite);
    /// The value is to be entered or chosen in a form of its own.
    void editionVoulue();
    /// A picture file is to be chosen, or was given, or a picture without a file was; or the one shown is to be opened.
    void imageVoulue();
    void fichierDonne(const QString &chemin);
    void imageDonnee(const QImage &image);
    void ouvertureVoulue();

protected:
    ControleDeChamp(const Champs::Champ &champ, QWidget *controle);
    virtual void afficher(const ValeurDeChamp &valeur) = 0;

private:
    const Champs::Champ &m_champ;
    QWidget *m_controle;
};
