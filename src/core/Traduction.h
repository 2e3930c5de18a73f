#pragma once

#include "core/Courant.h"
#include "core/Txt.h"

#include <QLocale>
#include <QString>
#include <array>

/// The numbered texts of the program in the language in force, and the rules of that language for dates,
/// numbers and month names.
class Traduction : public Courant<Traduction>
{
public:
    static constexpr int Nombre = 311;

    /// Starts with the built-in French texts.
    Traduction();

    void chargerDefauts();
    /// Replaces all texts by those of a language file ("index:#:text" lines; "langue = de" names the
    /// language). Throws Error on an index that is no number or out of range; the entries read until then
    /// stay, and those that are then empty take the built-in text.
    void chargerFichier(const QString &chemin);
    /// The texts of "defaut.lng" when the application folder has one, else the built-in ones. Throws Error.
    void chargerCourante();

    /// Full path of "defaut.lng", the copy of the language file in force.
    static QString CheminCourant();
    /// Language files of the application folder, by name.
    static QStringList Langues();
    /// Name of the language file in force: the one whose bytes equal "defaut.lng", else the stored choice,
    /// else French.
    static QString LangueCourante();
    /// Makes a language file of the folder the one in force, now and at the next start. Throws Error.
    void choisir(const QString &fichier);

    QString texte(Txt t) const { return m_textes[static_cast<std::size_t>(t)]; }
    const QLocale &locale() const { return m_locale; }

private:
    void lire(const QByteArray &octets, const QString &chemin);
    void combler();

    std::array<QString, Nombre> m_textes;
    QLocale m_locale;
};

/// A numbered text in the language in force.
QString texte(Txt t);

/// The program's title, as in the caption of every message box.
QString titre();
