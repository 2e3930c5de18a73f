#include "core/Traduction.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Texte.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

struct Entree
{
    int indice;
    const char *texte;
};

constexpr Entree Francais[] = {
#include "core/Textes.inc"
};

const QString Separateur = QStringLiteral(":#:");
const QString FichierCourant = QStringLiteral("defaut.lng");
const QString DossierLangues = QStringLiteral("langues");
const QString LangueParDefaut = QStringLiteral("Français.lng");

QLocale localeDe(const QString &code)
{
    const QLocale locale(code);
    return code.isEmpty() || locale.language() == QLocale::C ? QLocale(QLocale::French, QLocale::France)
                                                             : locale;
}

QByteArray lireFichier(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw Error(QCoreApplication::translate("Traduction", "Le fichier de langue ne peut pas être lu."),
            chemin, fichier.errorString());
    return fichier.readAll();
}

/// "langue = de" gives "de"; any other line nothing.
QString codeDeLangue(const QString &ligne)
{
    constexpr qsizetype LongueurMax = 40;
    if (ligne.size() > LongueurMax)
        return {};
    const QStringList parties = ligne.split(u'=');
    const bool nomme = parties.size() == 2 && parties[0].trimmed() == QLatin1String("langue");
    return nomme ? parties[1].trimmed() : QString();
}

}

Traduction::Traduction()
{
    chargerDefauts();
}

void Traduction::chargerDefauts()
{
    m_textes.fill({});
    m_locale = localeDe({});
    combler();
}

void Traduction::combler()
{
    for (const Entree &entree : Francais) {
        QString &texte = m_textes[static_cast<std::size_t>(entree.indice)];
        if (texte.isEmpty())
            texte = QString::fromUtf8(entree.texte);
    }
}

void Traduction::chargerFichier(const QString &chemin)
{
    const QByteArray octets = lireFichier(chemin);
    m_textes.fill({});
    m_locale = localeDe({});
    try {
        lire(octets, chemin);
    } catch (const Error &) {
        combler();
        throw;
    }
}

void Traduction::lire(const QByteArray &octets, const QString &chemin)
{
    bool aucune = true;
    const QString contenu = Texte::Decoder(octets);
    for (const auto &ligne : QStringView(contenu).tokenize(u'\n')) {
        const qsizetype coupe = ligne.indexOf(Separateur);
        if (coupe < 0) {
            const QString code = codeDeLangue(ligne.trimmed().toString());
            if (!code.isEmpty())
                m_locale = localeDe(code);
            continue;
        }
        bool sur = false;
        const int indice = ligne.left(coupe).trimmed().toInt(&sur);
        if (!sur || indice < 0 || indice >= Nombre)
            throw Error(QCoreApplication::translate(
                            "Traduction", "Le fichier de langue a un indice qui n'est pas valable."),
                chemin, ligne.left(40).toString());
        const QStringView reste = ligne.mid(coupe + Separateur.size());
        const qsizetype fin = reste.indexOf(Separateur);
        QString texte = (fin < 0 ? reste : reste.left(fin)).toString();
        m_textes[static_cast<std::size_t>(indice)] = texte.remove(u'\t').trimmed();
        aucune = false;
    }
    if (aucune)
        throw Error(
            QCoreApplication::translate("Traduction", "Ce fichier n'est pas un fichier de langue."), chemin);
}

void Traduction::chargerCourante()
{
    const QString chemin = CheminCourant();
    if (QFileInfo::exists(chemin))
        chargerFichier(chemin);
    else
        chargerDefauts();
}

QString Traduction::CheminCourant()
{
    return Dossier::courant().chemin(FichierCourant);
}

QStringList Traduction::Langues()
{
    return QDir(Dossier::courant().chemin(DossierLangues))
        .entryList({QStringLiteral("*.lng")}, QDir::Files, QDir::Name | QDir::LocaleAware);
}

QString Traduction::LangueCourante()
{
    const QString choisie = Reglages::courant().texte(Cle::Langue);
    const QStringList langues = Langues();
    QFile courante(CheminCourant());
    if (courante.open(QIODevice::ReadOnly)) {
        const QByteArray octets = courante.readAll();
        for (const QString &nom : langues) {
            QFile fichier(Dossier::courant().chemin(DossierLangues + u'/' + nom));
            if (fichier.size() == octets.size() && fichier.open(QIODevice::ReadOnly)
                && fichier.readAll() == octets)
                return nom;
        }
    }
    return langues.contains(choisie) ? choisie : LangueParDefaut;
}

void Traduction::choisir(const QString &fichier)
{
    const QString source = Dossier::courant().chemin(DossierLangues + u'/' + fichier);
    const QString cible = CheminCourant();
    const QByteArray octets = lireFichier(source);
    QSaveFile copie(cible);
    if (!copie.open(QIODevice::WriteOnly) || copie.write(octets) != octets.size() || !copie.commit())
        throw Error(QCoreApplication::translate("Traduction", "Le fichier de langue ne peut pas être écrit."),
            cible, copie.errorString());
    Reglages::courant().ecrire(Cle::Langue, fichier);
    chargerFichier(cible);
}

QString texte(Txt t)
{
    return Traduction::courant().texte(t);
}

QString titre()
{
    return QStringLiteral("Bulleo V1.2");
}
