#include "db/conversion/Cellules.h"

#include <cmath>
#include <limits>
#include <optional>

namespace {

using Cellules::Convertie;
using Cellules::Perte;
using Cellules::Valeur;

constexpr double MontantExact = 900'719'925'474.0; // beyond it a REAL has no room for four decimals
constexpr double Decimales = 10'000.0;
constexpr int ChiffresSurs = 15;

bool estVide(const QString &cellule)
{
    return cellule.trimmed().isEmpty();
}

/// A flag as the old engine shows it to a field of another type.
QString nombreDuDrapeau(const QString &drapeau)
{
    return drapeau == QLatin1String("0") ? drapeau : QStringLiteral("-1");
}

std::optional<double> nombre(const QString &cellule)
{
    bool compris = false;
    const double valeur = cellule.trimmed().replace(u',', u'.').toDouble(&compris);
    return compris && std::isfinite(valeur) ? std::optional(valeur) : std::nullopt;
}

Convertie entier(const QString &cellule)
{
    if (estVide(cellule))
        return {};
    const auto valeur = nombre(cellule);
    using Limites = std::numeric_limits<qint32>;
    if (!valeur || *valeur != std::trunc(*valeur) || *valeur < Limites::min() || *valeur > Limites::max())
        return {{}, Perte::Nombre};
    return {static_cast<qint64>(*valeur)};
}

Convertie booleen(const QString &cellule)
{
    constexpr qint64 Vrai = -1;
    constexpr qint64 Faux = 0;
    if (estVide(cellule))
        return {Faux};
    const auto valeur = nombre(cellule);
    return {!valeur || *valeur == 0.0 ? Faux : Vrai, valeur ? Perte::Aucune : Perte::Nombre};
}

Convertie montant(const QString &cellule)
{
    if (estVide(cellule))
        return {};
    const auto valeur = nombre(cellule);
    if (!valeur)
        return {{}, Perte::Nombre};
    if (std::abs(*valeur) > MontantExact)
        return {*valeur, Perte::Montant};
    return {std::round(*valeur * Decimales) / Decimales};
}

Convertie texte(const QString &cellule, TableJet::Sorte sorte)
{
    if (cellule.isEmpty())
        return {};
    // A number is written as a person would, not with all the decimals of its type.
    if (sorte == TableJet::Sorte::Reel) {
        if (const auto valeur = nombre(cellule))
            return {QByteArray::number(*valeur, 'g', ChiffresSurs)};
    }
    return {cellule.toUtf8()};
}

}

Convertie Cellules::Convertir(const QString &cellule, TableJet::Sorte sorte, Schema::Type type)
{
    const QString c = sorte == TableJet::Sorte::Booleen ? nombreDuDrapeau(cellule) : cellule;
    switch (type) {
    case Schema::Type::Cle:
    case Schema::Type::Entier:
        return entier(c);
    case Schema::Type::Booleen:
        return booleen(c);
    case Schema::Type::Montant:
        return montant(c);
    case Schema::Type::Texte:
    case Schema::Type::Nom:
        return texte(c, sorte);
    }
    Q_UNREACHABLE();
}
