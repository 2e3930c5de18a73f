#include "browse/ControleDeChamp.h"

#include "core/Images.h"
#include "core/Traduction.h"
#include "core/ui/CadreImage.h"
#include "core/ui/ChoixPlat.h"
#include "core/ui/Etoiles.h"
#include "core/ui/Legende.h"
#include "core/ui/Liens.h"
#include "core/ui/Memo.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QRadioButton>

using namespace Champs;

namespace {

template <class W>
class Controle : public ControleDeChamp
{
protected:
    Controle(const Champ &champ, QWidget *parent)
        : ControleDeChamp(champ, new W(parent))
    {
    }
    W *widget() const { return static_cast<W *>(controle()); }
};

/// A value that is entered in a form of its own.
class ControleLegende : public Controle<Legende>
{
public:
    ControleLegende(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        if (champ.vue == Vue::Lien)
            widget()->poserLien(texte(Txt::CliquerPourSiteInternet));
        connect(widget(), &Legende::actionnee, this, &ControleDeChamp::editionVoulue);
        connect(widget(), &Legende::ouvertureDemandee, this, &Liens::Ouvrir);
    }

    void Traduire() override
    {
        ControleDeChamp::Traduire();
        if (champ().vue == Vue::Lien)
            widget()->poserLien(texte(Txt::CliquerPourSiteInternet));
    }

protected:
    void afficher(const ValeurDeChamp &valeur) override { widget()->montrer(valeur.affichee); }
};

class ControleMemo : public Controle<Memo>
{
public:
    ControleMemo(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        connect(widget(), &Memo::modifie, this, &ControleDeChamp::saisie);
    }

    void annoncer() override { widget()->annoncer(); }
    void oublier() override { widget()->oublier(); }
    bool enAttente() const override { return widget()->enAttente(); }

    void permettre(bool permis) override { widget()->setReadOnly(!permis); }

protected:
    void afficher(const ValeurDeChamp &valeur) override { widget()->montrer(valeur.affichee); }
};

class ControleNote : public Controle<Etoiles>
{
public:
    ControleNote(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        connect(
            widget(), &Etoiles::choisie, this, [this](int note) { Q_EMIT saisie(QString::number(note), 0); });
    }

    void permettre(bool permis) override { widget()->setEnabled(permis); }

protected:
    /// A grade outside 1 to 5 counts as the lowest; only a text field can have none, or hold something else.
    void afficher(const ValeurDeChamp &valeur) override
    {
        bool nombre = false;
        const int note = valeur.affichee.toInt(&nombre);
        if (nombre || champ().regle == Regle::Nombre)
            widget()->poserValeur(note >= 1 && note <= 5 ? note : 1);
        else if (valeur.affichee.isEmpty())
            widget()->poserValeur(0);
        else
            widget()->poserTexte(valeur.affichee);
        const int montree = widget()->valeur();
        const QString mot = Fiche::MotDeLaNote(montree) + u' ' + QString::number(montree);
        widget()->setToolTip(montree > 0 ? mot : QString());
    }
};

class ControleCase : public Controle<QCheckBox>
{
public:
    ControleCase(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        connect(widget(), &QCheckBox::clicked, this,
            [this](bool coche) { Q_EMIT saisie(QString::number(coche ? 1 : 0), 0); });
    }

    void Traduire() override { libeller(widget(), texte(champ().libelle)); }
    bool seNomme() const override { return true; }

    void permettre(bool permis) override { widget()->setEnabled(permis); }

protected:
    void afficher(const ValeurDeChamp &valeur) override { widget()->setChecked(valeur.stockee.toBool()); }
};

/// A choice among a few words, with their numbers behind them.
class ControleChoix : public Controle<ChoixPlat>
{
public:
    ControleChoix(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        // An unknown periodicity is blank: the dots would ask for a text.
        widget()->poserPointilles(champ.vue != Vue::Parution);
        connect(widget(), &QComboBox::activated, this,
            [this] { Q_EMIT saisie(widget()->currentData().toString(), 0); });
    }

    void Traduire() override
    {
        ControleDeChamp::Traduire();
        const QVariant courante = widget()->currentData();
        widget()->clear();
        for (const Fiche::Option &option : Fiche::Options(champ()))
            widget()->addItem(option.mot, option.valeur);
        widget()->setCurrentIndex(widget()->findData(courante));
    }

    void permettre(bool permis) override { widget()->setEnabled(permis); }

protected:
    void afficher(const ValeurDeChamp &valeur) override
    {
        const QVariant &stockee = valeur.stockee;
        widget()->setCurrentIndex(stockee.isValid() ? widget()->findData(stockee.toInt()) : -1);
    }
};

/// The same, with a button for each word.
class ControleBoutons : public Controle<QWidget>
{
public:
    ControleBoutons(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        constexpr int Colonnes = 2;
        auto *grille = new QGridLayout(controle());
        grille->setContentsMargins(0, Theme::Fin, 0, 0);
        grille->setSpacing(0);
        for (const Fiche::Option &option : Fiche::Options(champ)) {
            const int i = option.valeur;
            auto *bouton = nommer(new QRadioButton(controle()), QString::fromLatin1(champ.controle), i);
            grille->addWidget(bouton, i / Colonnes, i % Colonnes);
            connect(
                bouton, &QRadioButton::clicked, this, [this, i] { Q_EMIT saisie(QString::number(i), 0); });
            m_boutons.push_back(bouton);
        }
    }

    void Traduire() override
    {
        ControleDeChamp::Traduire();
        const auto options = Fiche::Options(champ());
        for (std::size_t i = 0; i < m_boutons.size(); ++i)
            libeller(m_boutons[i], options[i].mot);
    }
    bool aUnMenu() const override { return false; }

    void permettre(bool permis) override { widget()->setEnabled(permis); }

protected:
    /// No button is down for a value of no known kind.
    void afficher(const ValeurDeChamp &valeur) override
    {
        for (std::size_t i = 0; i < m_boutons.size(); ++i) {
            m_boutons[i]->setAutoExclusive(false);
            m_boutons[i]->setChecked(
                valeur.stockee.isValid() && valeur.stockee.toInt() == static_cast<int>(i));
            m_boutons[i]->setAutoExclusive(true);
        }
    }

private:
    std::vector<QRadioButton *> m_boutons;
};

/// A frame: what is dropped on it or pasted into it becomes the picture of the field.
class ControleImage : public Controle<CadreImage>
{
public:
    ControleImage(const Champ &champ, QWidget *parent)
        : Controle(champ, parent)
    {
        widget()->poserModifiable();
        connect(widget(), &CadreImage::fichierDepose, this, &ControleDeChamp::fichierDonne);
        connect(widget(), &CadreImage::imageCollee, this, &ControleDeChamp::imageDonnee);
        connect(widget(), &CadreImage::ouvertureDemandee, this, &ControleDeChamp::ouvertureVoulue);
        // A click on an empty frame fills it; one on a picture is only a look.
        connect(widget(), &CadreImage::actionnee, this, [this] {
            if (!widget()->aUneImage())
                Q_EMIT imageVoulue();
        });
    }

    void Traduire() override
    {
        ControleDeChamp::Traduire();
        widget()->poserLegende(texte(champ().libelle));
    }
    bool aDesLettres() const override { return false; }

protected:
    void afficher(const ValeurDeChamp &valeur) override { widget()->montrer(valeur.affichee); }
};

/// One beside the control of its field: it is there only while the value names a picture.
class CadreAcote : public ControleImage
{
public:
    using ControleImage::ControleImage;

protected:
    void afficher(const ValeurDeChamp &valeur) override
    {
        const bool image = Images::EstUneImage(valeur.affichee);
        widget()->setVisible(image);
        widget()->montrer(image ? valeur.affichee : QString());
    }
};

template <class C>
ControleDeChamp *faire(const Champ &champ, QWidget *parent)
{
    ControleDeChamp *controle = new C(champ, parent);
    nommer(controle->controle(), QString::fromLatin1(champ.controle));
    return controle;
}

}

ControleDeChamp::ControleDeChamp(const Champ &champ, QWidget *controle)
    : QObject(controle)
    , m_champ(champ)
    , m_controle(controle)
{
}

ControleDeChamp *ControleDeChamp::Fabriquer(const Champ &champ, QWidget *parent)
{
    switch (champ.vue) {
    case Vue::Texte:
    case Vue::Tome:
    case Vue::Prix:
    case Vue::Cote:
    case Vue::Nom:
    case Vue::Lien:
    case Vue::Dedicace:
        return faire<ControleLegende>(champ, parent);
    case Vue::Memo:
        return faire<ControleMemo>(champ, parent);
    case Vue::Etoiles:
        return faire<ControleNote>(champ, parent);
    case Vue::Case:
        return faire<ControleCase>(champ, parent);
    case Vue::Format:
    case Vue::Couleur:
    case Vue::Parution:
        return faire<ControleChoix>(champ, parent);
    case Vue::Type:
        return faire<ControleBoutons>(champ, parent);
    case Vue::Image:
        return faire<ControleImage>(champ, parent);
    }
    Q_UNREACHABLE();
}

ControleDeChamp *ControleDeChamp::FabriquerCadre(const Champ &champ, QWidget *parent)
{
    return new CadreAcote(champ, parent);
}

void ControleDeChamp::montrer(const ValeurDeChamp &valeur)
{
    afficher(valeur);
    // The name of a control says what it is; only the description can say what it holds.
    m_controle->setAccessibleDescription(valeur.affichee);
}

void ControleDeChamp::Traduire()
{
    m_controle->setAccessibleName(texte(m_champ.libelle));
}
