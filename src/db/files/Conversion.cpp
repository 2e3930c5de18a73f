#include "db/files/Conversion.h"

#include "core/Outil.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <array>

namespace {

using Conversion::Code;
using Conversion::Rapport;

struct Textes
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

struct Echappement
{
    char16_t signe;
    char16_t lettre;
};
constexpr std::array Echappements{
    Echappement{u'\\', u'\\'}, Echappement{u'\t', u't'}, Echappement{u'\n', u'n'}, Echappement{u'\r', u'r'}};

QString echapper(const QString &partie)
{
    QString ligne;
    ligne.reserve(partie.size());
    for (const QChar c : partie) {
        const auto trouve = std::find_if(Echappements.begin(), Echappements.end(),
            [c](const Echappement &e) { return c == QChar(e.signe); });
        if (trouve == Echappements.end())
            ligne += c;
        else
            ligne += QStringLiteral("\\") + QChar(trouve->lettre);
    }
    return ligne;
}

QString retablir(const QString &ligne)
{
    QString partie;
    partie.reserve(ligne.size());
    for (qsizetype i = 0; i < ligne.size(); ++i) {
        if (ligne[i] != u'\\' || i + 1 == ligne.size()) {
            partie += ligne[i];
            continue;
        }
        const auto trouve = std::find_if(Echappements.begin(), Echappements.end(),
            [c = ligne[i + 1]](const Echappement &e) { return c == QChar(e.lettre); });
        partie += trouve == Echappements.end() ? ligne[i + 1] : QChar(trouve->signe);
        ++i;
    }
    return partie;
}

QStringList decouper(const QByteArray &ligne)
{
    QString texte = QString::fromUtf8(ligne);
    if (texte.endsWith(u'\n'))
        texte.chop(1);
    QStringList parties = texte.split(u'\t');
    for (QString &partie : parties)
        partie = retablir(partie);
    return parties;
}

Code codeDe(const QString &nom)
{
    for (const NomDeCode &n : Codes) {
        if (nom == QLatin1String(n.nom))
            return n.code;
    }
    return Code::Abimee;
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
            Conversion::lire(rapport, processus.readLine());
            limite.setRemainingTime(silenceMs);
        }
    };
    while (processus.state() != QProcess::NotRunning) {
        processus.waitForReadyRead(IntervalleMs);
        entendre();
        if (suivre && !suivre(rapport.avance)) {
            Outil::Arreter(processus);
            return echouer(rapport, Code::Annulee, Textes::tr("La conversion a été annulée."));
        }
        if (limite.hasExpired()) {
            Outil::Arreter(processus);
            return echouer(
                rapport, Code::Abimee, Textes::tr("La conversion ne finit pas : le fichier est abîmé."));
        }
    }
    entendre();
    if (!Outil::AReussi(processus) || rapport.nature.isEmpty())
        echouer(rapport, Code::Abimee,
            Textes::tr("La conversion s'est arrêtée en chemin : le fichier est abîmé."));
}

}

QByteArray Conversion::Ligne(const QStringList &parties)
{
    QStringList echappees;
    for (const QString &partie : parties)
        echappees << echapper(partie);
    return echappees.join(u'\t').toUtf8() + '\n';
}

bool Conversion::lire(Rapport &rapport, const QByteArray &ligne)
{
    const QStringList parties = decouper(ligne);
    const QString &mot = parties.first();
    bool nombre = true;
    if (mot == QLatin1String("avance") && parties.size() == 2) {
        const int avance = parties[1].toInt(&nombre);
        if (nombre)
            rapport.avance = avance;
    } else if (mot == QLatin1String("table") && parties.size() == 3) {
        const qint64 rangees = parties[2].toLongLong(&nombre);
        if (nombre)
            rapport.tables.append({parties[1], rangees});
    } else if (mot == QLatin1String("ecarte") && parties.size() >= 3) {
        rapport.ecartes.append({parties[1], parties[2], parties.mid(3)});
    } else if (mot == QLatin1String("fini") && parties.size() == 2) {
        rapport.nature = parties[1];
    } else if (mot == QLatin1String("erreur") && parties.size() == 3) {
        echouer(rapport, codeDe(parties[1]), parties[2]);
    } else {
        return false;
    }
    return nombre;
}

QString Conversion::NomDuCode(Code code)
{
    for (const NomDeCode &n : Codes) {
        if (n.code == code)
            return QLatin1String(n.nom);
    }
    return {};
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
        echouer(rapport, Code::Absent, Textes::tr("Le programme de conversion est introuvable."));
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
