#pragma once

#include "core/Courant.h"

#include <QLockFile>
#include <QString>
#include <memory>

/// The application folder, where the collection and all that belongs to it lives.
class Dossier : public Courant<Dossier>
{
public:
    /// What the collection and the reference catalogue are called.
    inline static const QString Collection = QStringLiteral("bd.mdb");
    inline static const QString Catalogue = QStringLiteral("BDbase.bd");

    /// `racine` is the application folder, `livre` the folder of what is shipped with the program.
    Dossier(const QString &racine, const QString &livre);

    /// The folder to use: the one asked for; else the executable's own when it holds a collection; else the
    /// per-user data folder.
    static QString Choisir(const QString &demande);
    /// The folder of what is shipped: beside the executable in a build tree, else the installed one.
    static QString Livre();

    /// Full path of a file given relative to the application folder, "\" or "/" between the parts. Each part
    /// is matched without regard to case when it exists.
    QString chemin(const QString &nom) const;
    QString racine() const { return m_racine; }
    QString livre() const { return m_livre; }
    QString collection() const { return chemin(Collection); }
    QString catalogue() const { return chemin(Catalogue); }
    /// True when a path leads to this file, by whatever link or letter case.
    static bool EstLeFichier(const QString &chemin, const QString &fichier);

    /// False when another running program holds this folder. The lock of a dead process is taken over.
    bool verrouiller();
    /// True when the lock was that of a dead process: the last run did not end by itself.
    bool finBrutale() const { return m_finBrutale; }

private:
    QString m_racine;
    QString m_livre;
    std::unique_ptr<QLockFile> m_verrou;
    bool m_finBrutale = false;
};
