#pragma once

#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Reglages.h"
#include "core/Traduction.h"

#include <QTemporaryDir>

/// A sandbox: a temporary application folder with a fresh copy of the real blank collection, and the
/// program's process-wide objects set up on it for as long as it lives.
class Bac
{
public:
    /// `modele` is a complete application folder to copy instead of preparing an empty one.
    explicit Bac(const QString &modele = {});

    QString chemin(const QString &nom = {}) const;
    /// Full path of the collection.
    QString collection() const { return dossier.collection(); }
    /// Folder of what is shipped, as the build made it.
    static QString livre();

    /// Bytes of a file; empty when there is none.
    static QByteArray lire(const QString &chemin);
    static void ecrire(const QString &chemin, const QByteArray &octets);

    /// First value of a query's first row, read through the engine.
    static QVariant valeur(const QString &sql, const QVariantList &valeurs = {});
    /// Runs a statement through the engine.
    static void executer(const QString &sql, const QVariantList &valeurs = {});
    /// The same as an act of the user.
    static void agir(
        const QString &sql, const QVariantList &valeurs = {}, const QString &titre = QStringLiteral("acte"));
    /// Every row of every table with its row number, each value with its type.
    static QStringList toutLire();

private:
    QTemporaryDir m_dossier;

public:
    Dossier dossier;
    Reglages reglages;
    Traduction traduction;
    Annonces annonces;
};
