#include "db/files/Conversion.h"

#include "core/Outil.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <algorithm>
#include <array>
#include <limits>

namespace {

using Conversion::Avance;
using Conversion::Code;
using Conversion::Ecarte;
using Conversion::Echouee;
using Conversion::Fini;
using Conversion::Rapport;
using Conversion::TableLue;

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Conversion)
};

struct NomDeCode
{
    Code code;
    const char *nom;
};
constexpr std::array Codes{NomDeCode{Code::Abimee, "abimee"}, NomDeCode{Code::Chiffree, "chiffree"},
    NomDeCode{Code::Etrangere, "etrangere"}, NomDeCode{Code::Existe, "existe"},
    NomDeCode{Code::Ecriture, "ecriture"}};

Code codeDe(const QString &nom)
{
    const auto trouve = std::find_if(
        Codes.begin(), Codes.end(), [&](const NomDeCode &n) { return nom == QLatin1String(n.nom); });
    return trouve == Codes.end() ? Code::Abimee : trouve->code;
}

QString nomDe(Code code)
{
    const auto trouve
        = std::find_if(Codes.begin(), Codes.end(), [&](const NomDeCode &n) { return n.code == code; });
    return trouve == Codes.end() ? QString() : QLatin1String(trouve->nom);
}

QJsonObject objet(const Avance &a)
{
    return {{"avance", a.pourCent}};
}

QJsonObject objet(const TableLue &t)
{
    return {{"table", t.nom}, {"rangees", t.rangees}};
}

QJsonObject objet(const Ecarte &e)
{
    return {{"ecarte", e.sorte}, {"table", e.table}, {"quoi", QJsonArray::fromStringList(e.quoi)}};
}

QJsonObject objet(const Fini &f)
{
    return {{"fini", f.nature}};
}

QJsonObject objet(const Echouee &e)
{
    return {{"erreur", nomDe(e.code)}, {"details", e.details}};
}

using Cles = std::initializer_list<std::pair<const char *, QJsonValue::Type>>;

/// True when the object has these keys, with values of these types, and no other key.
bool aLaForme(const QJsonObject &o, Cles cles)
{
    return o.size() == static_cast<qsizetype>(cles.size())
        && std::all_of(
            cles.begin(), cles.end(), [&](const auto &c) { return o[c.first].type() == c.second; });
}

bool estUnNombre(const QJsonValue &valeur, qint64 auPlus = std::numeric_limits<qint64>::max())
{
    const qint64 nombre = valeur.toInteger(-1);
    return nombre >= 0 && nombre <= auPlus;
}

bool sontDesTextes(const QJsonArray &valeurs)
{
    return std::all_of(valeurs.begin(), valeurs.end(), [](const QJsonValue &v) { return v.isString(); });
}

QStringList textes(const QJsonArray &valeurs)
{
    QStringList textes;
    for (const auto &valeur : valeurs)
        textes << valeur.toString();
    return textes;
}

void echouer(Rapport &rapport, Code code, const QString &details)
{
    if (rapport.erreur == Code::Aucun) {
        rapport.erreur = code;
        rapport.details = details;
    }
    rapport.nature.clear();
}

/// Hears the converter out, unless the user or the limit ends it.
void suivreJusquAuBout(
    QProcess &processus, Rapport &rapport, const std::function<bool(int)> &suivre, int silenceMs)
{
    constexpr int IntervalleMs = 50;
    QDeadlineTimer limite(silenceMs);
    const auto entendre = [&] {
        while (processus.canReadLine()) {
            if (Conversion::Lire(rapport, processus.readLine()))
                limite.setRemainingTime(silenceMs);
        }
    };
    while (processus.state() != QProcess::NotRunning) {
        processus.waitForReadyRead(IntervalleMs);
        entendre();
        if (suivre && !suivre(rapport.avance)) {
            Outil::Arreter(processus);
            return echouer(rapport, Code::Annulee, Tr::tr("La conversion a été annulée."));
        }
        if (limite.hasExpired()) {
            Outil::Arreter(processus);
            return echouer(
                rapport, Code::Abimee, Tr::tr("La conversion ne finit pas : le fichier est abîmé."));
        }
    }
    entendre();
    if (!Outil::AReussi(processus) || rapport.nature.isEmpty())
        echouer(
            rapport, Code::Abimee, Tr::tr("La conversion s'est arrêtée en chemin : le fichier est abîmé."));
}

}

QByteArray Conversion::Ligne(const Annonce &annonce)
{
    const QJsonObject ligne = std::visit([](const auto &a) { return objet(a); }, annonce);
    return QJsonDocument(ligne).toJson(QJsonDocument::Compact) + '\n';
}

bool Conversion::Lire(Rapport &rapport, const QByteArray &ligne)
{
    using enum QJsonValue::Type;
    const QJsonObject o = QJsonDocument::fromJson(ligne).object();
    const QJsonArray quoi = o["quoi"].toArray();
    if (aLaForme(o, {{"avance", Double}}) && estUnNombre(o["avance"], 100))
        rapport.avance = o["avance"].toInt();
    else if (aLaForme(o, {{"table", String}, {"rangees", Double}}) && estUnNombre(o["rangees"]))
        rapport.tables.append({o["table"].toString(), o["rangees"].toInteger()});
    else if (aLaForme(o, {{"ecarte", String}, {"table", String}, {"quoi", Array}}) && sontDesTextes(quoi))
        rapport.ecartes.append({o["ecarte"].toString(), o["table"].toString(), textes(quoi)});
    else if (aLaForme(o, {{"fini", String}}))
        rapport.nature = o["fini"].toString();
    else if (aLaForme(o, {{"erreur", String}, {"details", String}}))
        echouer(rapport, codeDe(o["erreur"].toString()), o["details"].toString());
    else
        return false;
    return true;
}

QString Conversion::Partiel(const QString &nouveau)
{
    return nouveau + QStringLiteral(".partiel");
}

void Conversion::RetirerPartiel(const QString &nouveau)
{
    QFile::remove(Partiel(nouveau));
    QFile::remove(Partiel(nouveau) + QStringLiteral("-journal"));
}

Conversion::Rapport Conversion::Convertir(
    const QString &ancien, const QString &nouveau, const std::function<bool(int)> &suivre, int silenceMs)
{
    Rapport rapport;
    const bool existait = QFileInfo::exists(nouveau);
    QProcess processus;
    processus.setStandardErrorFile(QProcess::nullDevice());
    Outil::Lancer(processus, QStringLiteral("bulleo-convertir"), {ancien, nouveau});
    if (!processus.waitForStarted()) {
        echouer(rapport, Code::Absent, Tr::tr("Le programme de conversion est introuvable."));
        return rapport;
    }
    suivreJusquAuBout(processus, rapport, suivre, silenceMs);
    if (rapport.erreur == Code::Aucun)
        return rapport;
    RetirerPartiel(nouveau);
    // It may have been ended just when the new file had come into its place.
    if (!existait && rapport.erreur != Code::Existe)
        QFile::remove(nouveau);
    return rapport;
}
