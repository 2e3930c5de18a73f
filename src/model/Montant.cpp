#include "model/Montant.h"

#include "core/Traduction.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

constexpr double Maximum = 900719925474.0;
constexpr int ParGroupe = 3;
constexpr int Decimales = 4;

bool sontDesChiffres(QStringView texte)
{
    return std::all_of(texte.begin(), texte.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// The figures before the decimal sign; nothing when they are not grouped by three.
std::optional<QString> degrouper(const QString &entier, QChar groupe)
{
    const QStringList groupes = entier.split(groupe);
    for (qsizetype i = 0; i < groupes.size(); ++i) {
        const qsizetype taille = groupes[i].size();
        const bool bonne = i > 0
            ? taille == ParGroupe
            : groupes.size() == 1 || (taille >= 1 && taille <= ParGroupe && !groupes[i].startsWith(u'0'));
        if (!bonne || !sontDesChiffres(groupes[i]))
            return std::nullopt;
    }
    return groupes.join(QString());
}

/// The amount when one sign groups and the other one stands before the decimals.
std::optional<double> lire(const QString &net, QChar groupe, QChar decimal)
{
    const QStringList parties = net.split(decimal);
    const auto entier = degrouper(parties.first(), groupe);
    const QString decimales = parties.value(1);
    if (parties.size() > 2 || !entier || !sontDesChiffres(decimales) || (*entier + decimales).isEmpty())
        return std::nullopt;
    const double valeur = (*entier + u'.' + decimales).toDouble();
    return valeur <= Maximum ? std::optional(valeur) : std::nullopt;
}

}

std::vector<double> Montant::Lectures(const QString &saisie)
{
    QString net = saisie;
    net.remove(texte(Txt::Euro)).removeIf([](QChar c) { return c.isSpace(); });
    const double signe = net.startsWith(u'-') ? -1 : 1;
    if (signe < 0)
        net.remove(0, 1);
    const auto parVirgule = lire(net, u'.', u',');
    const auto parPoint = lire(net, u',', u'.');
    if (!parVirgule && !parPoint)
        return {};
    if (!parVirgule || !parPoint || *parVirgule == *parPoint)
        return {signe * (parVirgule ? *parVirgule : *parPoint)};
    // One sign before three figures: it groups them where the language groups by it.
    const QString groupe = Traduction::courant().locale().groupSeparator();
    const QString present = net.contains(u'.') ? QStringLiteral(".") : QStringLiteral(",");
    if (groupe == present)
        return {signe * std::max(*parVirgule, *parPoint)};
    return {signe * std::max(*parVirgule, *parPoint), signe * std::min(*parVirgule, *parPoint)};
}

std::optional<double> Montant::Lire(const QString &saisie)
{
    const std::vector<double> lectures = Lectures(saisie);
    return lectures.size() == 1 ? std::optional(lectures.front()) : std::nullopt;
}

QString Montant::Ecrire(double montant)
{
    QLocale locale = Traduction::courant().locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    int decimales = 0;
    for (double reste = montant; decimales < Decimales && std::abs(reste - std::round(reste)) > 1e-9;
         ++decimales)
        reste *= 10;
    // Three of them could be read as a group again.
    return locale.toString(montant, 'f', decimales == ParGroupe ? Decimales : decimales);
}

QString Montant::Montrer(double montant)
{
    QLocale locale = Traduction::courant().locale();
    const bool desMille = locale.toString(1000).size() > 4;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QString texte = locale.toString(montant, 'f', 2);
    const qsizetype debut = montant < 0 ? 1 : 0;
    const qsizetype fin = texte.indexOf(locale.decimalPoint());
    // The platform leaves the first four figures together in languages that do not group a thousand alone.
    if (fin - debut > ParGroupe + 1 || desMille) {
        for (qsizetype i = fin - ParGroupe; i > debut; i -= ParGroupe)
            texte.insert(i, locale.groupSeparator());
    }
    return texte;
}
