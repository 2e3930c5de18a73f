#include "core/Dates.h"

#include "core/Texte.h"
#include "core/Traduction.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

using Dates::Partielle;

namespace {

/// Month names of all shipped languages as a search compares them, with their numbers.
const QHash<QString, int> &mois()
{
    static const QHash<QString, int> noms = [] {
        QHash<QString, int> table;
        for (const auto langue : {QLocale::French, QLocale::English, QLocale::German, QLocale::Spanish,
                 QLocale::Italian, QLocale::Dutch}) {
            const QLocale locale(langue);
            for (int m = 1; m <= 12; ++m) {
                for (const auto forme : {QLocale::LongFormat, QLocale::ShortFormat}) {
                    for (QString nom : {locale.monthName(m, forme), locale.standaloneMonthName(m, forme)})
                        table.insert(Texte::Plier(nom.remove(u'.')), m);
                }
            }
        }
        return table;
    }();
    return noms;
}

int moisDe(const QString &nom)
{
    return mois().value(Texte::Plier(QString(nom).remove(u'.')), 0);
}

std::optional<Partielle> verifier(const Partielle &date)
{
    if (date.annee == 0 || date.mois > 12)
        return std::nullopt;
    if (date.jour > 0 && !QDate::isValid(date.annee, date.mois, date.jour))
        return std::nullopt;
    return date;
}

/// Day, month and year by the places where a pattern has them; place 0 is none.
struct Ecriture
{
    QRegularExpression motif;
    int jour;
    int mois;
    int annee;
};

const std::vector<Ecriture> &ecritures()
{
    const auto motif = [](const char *texte) {
        return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(texte)),
            QRegularExpression::UseUnicodePropertiesOption);
    };
    static const std::vector<Ecriture> toutes{
        {motif(R"((\d{1,2})[/.](\d{1,2})[/.](\d{4}))"), 1, 2, 3},
        {motif(R"((\d{4})-(\d{1,2})-(\d{1,2}))"), 3, 2, 1},
        {motif(R"((\d{1,2})[/.](\d{4}))"), 0, 1, 2},
        {motif(R"((\d{4})-(\d{1,2}))"), 0, 2, 1},
        {motif(R"((\d{4}))"), 0, 0, 1},
        {motif(R"((\d{1,2})(?:er|\.)?\s+(?:de\s+)?(\p{L}+\.?)\s+(?:de\s+)?(\d{4}))"), 1, 2, 3},
        {motif(R"((\p{L}+\.?)\s+(?:de\s+)?(\d{4}))"), 0, 1, 2},
    };
    return toutes;
}

}

std::optional<Partielle> Dates::Lire(const QString &texte)
{
    const QString net = texte.trimmed();
    for (const Ecriture &ecriture : ecritures()) {
        const auto lue = ecriture.motif.match(net);
        if (!lue.hasMatch())
            continue;
        const QString nomDuMois = ecriture.mois > 0 ? lue.captured(ecriture.mois) : QString();
        bool nombre = false;
        int numero = nomDuMois.toInt(&nombre);
        if (!nombre)
            numero = moisDe(nomDuMois);
        if (ecriture.mois > 0 && numero == 0)
            return std::nullopt;
        const int jour = ecriture.jour > 0 ? lue.captured(ecriture.jour).toInt() : 0;
        if (ecriture.jour > 0 && jour == 0)
            return std::nullopt;
        return verifier({jour, numero, lue.captured(ecriture.annee).toInt()});
    }
    return std::nullopt;
}

std::optional<QDate> Dates::LireJour(const QString &texte)
{
    const auto date = Lire(texte);
    if (!date)
        return std::nullopt;
    return QDate(date->annee, std::max(date->mois, 1), std::max(date->jour, 1));
}

QString Dates::Ecrire(const QDate &date)
{
    return Traduction::courant().locale().toString(date, QStringLiteral("dd MMMM yyyy"));
}
