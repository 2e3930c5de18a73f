#pragma once

#include "core/Courant.h"

#include <QSettings>
#include <QString>
#include <functional>
#include <set>

/// The settings that the program keeps for each user. What a key is called, its type and its default stand
/// in one table in the source.
enum class Cle {
    SplashAuto,
    Tris,
    FirstTime,
    Loop,
    MenuVu,
    FondScreen,
    RepFondScreen,
    Defilement,
    Apercu,
    TriImp,
    Langue,
    IniLu,
    RestesVus,
    Splash,
    FontName,
    FontSize,
    FontBold,
    FontItalic,
    Forecolor,
    Theme,
    BureauSombre,
    Height,
    Width,
    Volets,
    DossierImages,
    DossierCopies,
    DossierListes,
    ColonnesImp,
    PorteeImp,
    Site,
    HoteBDNet,
    AccueilBDNet,
};

class Reglages : public Courant<Reglages>
{
public:
    /// The platform's per-user store.
    Reglages();
    /// A store in a file of its own.
    explicit Reglages(const QString &fichier);

    /// Receives, once for each key, the words that a stored value could not be understood; its default is used.
    std::function<void(const QString &)> avertir;

    /// Where the store is, for a person who wants to edit it.
    QString fichier() const { return m_magasin.fileName(); }

    bool booleen(Cle cle) const;
    int entier(Cle cle) const;
    double nombre(Cle cle) const;
    QString texte(Cle cle) const;

    void ecrire(Cle cle, bool valeur);
    void ecrire(Cle cle, int valeur);
    void ecrire(Cle cle, const QString &valeur);
    /// A literal would be taken for a boolean.
    void ecrire(Cle cle, const char *valeur) = delete;

    /// Takes the known keys of a settings file ("[section]", "key=value") into the store, once for each
    /// content ever seen. Returns how many were taken. Throws Error when the file cannot be read.
    int importerIni(const QString &chemin);

private:
    QString brut(Cle cle) const;
    void signaler(Cle cle) const;

    mutable QSettings m_magasin;
    mutable std::set<Cle> m_signalees;
};
