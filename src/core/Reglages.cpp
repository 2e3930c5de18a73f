#include "core/Reglages.h"

#include "core/Error.h"
#include "core/Texte.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <array>
#include <cmath>

namespace {

enum class Type { Booleen, BooleenStrict, Entier, Nombre, Texte };

struct Reglage
{
    Cle cle;
    const char *section;
    const char *nom;
    Type type;
    const char *defaut;
};

const QString Vrai = QStringLiteral("Vrai");
const QString Faux = QStringLiteral("Faux");

constexpr std::array Table{
    Reglage{Cle::SplashAuto, "Settings", "SplashAuto", Type::Booleen, "Faux"},
    Reglage{Cle::Tris, "Settings", "Tris", Type::Entier, "0"},
    Reglage{Cle::FirstTime, "Settings", "FirstTime", Type::Nombre, "0"},
    Reglage{Cle::Loop, "Settings", "Loop", Type::Booleen, "Faux"},
    Reglage{Cle::MenuVu, "Settings", "MenuVu", Type::Booleen, "Faux"},
    Reglage{Cle::FondScreen, "Settings", "FondScreen", Type::Texte, ""},
    Reglage{Cle::RepFondScreen, "Settings", "RepFondScreen", Type::Texte, ""},
    Reglage{Cle::Defilement, "Settings", "Defilement", Type::Booleen, "Faux"},
    Reglage{Cle::Apercu, "Settings", "Apercu", Type::Entier, "1"},
    Reglage{Cle::TriImp, "Settings", "TriImp", Type::Entier, "0"},
    Reglage{Cle::Langue, "Settings", "Langue", Type::Texte, ""},
    Reglage{Cle::IniLu, "Settings", "IniLu", Type::Texte, ""},
    Reglage{Cle::RestesVus, "Settings", "RestesVus", Type::Texte, ""},
    Reglage{Cle::Splash, "Splash", "Splash", Type::Entier, "0"},
    Reglage{Cle::FontName, "Color", "FontName", Type::Texte, "Verdana"},
    Reglage{Cle::FontSize, "Color", "FontSize", Type::Nombre, "10"},
    Reglage{Cle::FontBold, "Color", "FontBold", Type::BooleenStrict, "Faux"},
    Reglage{Cle::FontItalic, "Color", "FontItalic", Type::BooleenStrict, "Faux"},
    Reglage{Cle::Forecolor, "Color", "Forecolor", Type::Entier, "0"},
    Reglage{Cle::Theme, "Color", "Theme", Type::Entier, "0"},
    Reglage{Cle::BureauSombre, "Color", "BureauSombre", Type::Booleen, "Faux"},
    Reglage{Cle::Height, "Redimension", "Height", Type::Nombre, "0"},
    Reglage{Cle::Width, "Redimension", "Width", Type::Nombre, "0"},
    Reglage{Cle::Volets, "Redimension", "Volets", Type::Texte, ""},
    Reglage{Cle::DossierImages, "Dossiers", "Images", Type::Texte, ""},
    Reglage{Cle::DossierCopies, "Dossiers", "Copies", Type::Texte, ""},
    Reglage{Cle::DossierListes, "Dossiers", "Listes", Type::Texte, ""},
    Reglage{Cle::ColonnesImp, "Impression", "Colonnes", Type::Texte, ""},
    Reglage{Cle::PorteeImp, "Impression", "Portee", Type::Entier, "0"},
    Reglage{Cle::Site, "Liens", "Site", Type::Texte, ""},
    Reglage{Cle::HoteBDNet, "BDNet", "Hote", Type::Texte, ""},
    Reglage{Cle::AccueilBDNet, "BDNet", "Accueil", Type::Texte, ""},
};

constexpr bool dansLOrdre()
{
    for (std::size_t i = 0; i < Table.size(); ++i) {
        if (static_cast<std::size_t>(Table[i].cle) != i)
            return false;
    }
    return true;
}
static_assert(dansLOrdre(), "the table has one row for each key, in the order of the keys");

const Reglage &reglage(Cle cle)
{
    return Table[static_cast<std::size_t>(cle)];
}

QString cheminDe(const Reglage &r)
{
    return QString::fromLatin1(r.section) + u'/' + QString::fromLatin1(r.nom);
}

/// The row of a key as an old settings file spells it, or nothing.
const Reglage *chercher(const QString &section, const QString &nom)
{
    const auto trouve = std::find_if(Table.begin(), Table.end(), [&](const Reglage &r) {
        return section.compare(QLatin1String(r.section), Qt::CaseInsensitive) == 0
            && nom.compare(QLatin1String(r.nom), Qt::CaseInsensitive) == 0;
    });
    return trouve == Table.end() ? nullptr : trouve;
}

/// A boolean as text, in this program's words or in those that other versions wrote.
std::optional<bool> lireBooleen(const QString &texte, Type type)
{
    if (type == Type::BooleenStrict)
        return texte == Vrai;
    for (const auto &vrai : {"Vrai", "True", "-1", "1"}) {
        if (texte.compare(QLatin1String(vrai), Qt::CaseInsensitive) == 0)
            return true;
    }
    for (const auto &faux : {"Faux", "False", "0", ""}) {
        if (texte.compare(QLatin1String(faux), Qt::CaseInsensitive) == 0)
            return false;
    }
    return std::nullopt;
}

}

Reglages::Reglages()
    : m_magasin(QStringLiteral("Bulleo"), QStringLiteral("Bulleo V1.2"))
{
}

Reglages::Reglages(const QString &fichier)
    : m_magasin(fichier, QSettings::IniFormat)
{
}

QString Reglages::brut(Cle cle) const
{
    const Reglage &r = reglage(cle);
    const QVariant valeur = m_magasin.value(cheminDe(r), QString::fromLatin1(r.defaut));
    // A text with commas that somebody wrote by hand is read as a list.
    return valeur.toStringList().join(QStringLiteral(", "));
}

void Reglages::signaler(Cle cle) const
{
    if (m_signalees.insert(cle).second && avertir)
        avertir(QCoreApplication::translate("Reglages", "Le réglage %1 (« %2 ») n'est pas valable.")
                    .arg(cheminDe(reglage(cle)), brut(cle)));
}

bool Reglages::booleen(Cle cle) const
{
    const Reglage &r = reglage(cle);
    Q_ASSERT(r.type == Type::Booleen || r.type == Type::BooleenStrict);
    if (const auto valeur = lireBooleen(brut(cle), r.type))
        return *valeur;
    signaler(cle);
    return r.defaut == Vrai;
}

int Reglages::entier(Cle cle) const
{
    Q_ASSERT(reglage(cle).type == Type::Entier);
    bool sur = false;
    const int valeur = brut(cle).trimmed().toInt(&sur);
    if (sur)
        return valeur;
    signaler(cle);
    return QString::fromLatin1(reglage(cle).defaut).toInt();
}

double Reglages::nombre(Cle cle) const
{
    Q_ASSERT(reglage(cle).type == Type::Nombre);
    bool sur = false;
    // A comma that somebody wrote by hand came back with a blank.
    const double valeur = brut(cle).remove(u' ').replace(u',', u'.').toDouble(&sur);
    if (sur && std::isfinite(valeur))
        return valeur;
    signaler(cle);
    return QString::fromLatin1(reglage(cle).defaut).toDouble();
}

QString Reglages::texte(Cle cle) const
{
    Q_ASSERT(reglage(cle).type == Type::Texte);
    return brut(cle);
}

void Reglages::ecrire(Cle cle, bool valeur)
{
    ecrire(cle, valeur ? Vrai : Faux);
}

void Reglages::ecrire(Cle cle, int valeur)
{
    ecrire(cle, QString::number(valeur));
}

void Reglages::ecrire(Cle cle, const QString &valeur)
{
    m_magasin.setValue(cheminDe(reglage(cle)), valeur);
}

int Reglages::importerIni(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw Error(QCoreApplication::translate("Reglages", "Le fichier de réglages ne peut pas être lu."),
            chemin, fichier.errorString());
    const QByteArray octets = fichier.readAll();
    const QString empreinte
        = QString::fromLatin1(QCryptographicHash::hash(octets, QCryptographicHash::Sha1).toHex());
    QStringList lus = texte(Cle::IniLu).split(u' ', Qt::SkipEmptyParts);
    if (lus.contains(empreinte))
        return 0;

    int pris = 0;
    QString section;
    const QStringList lignes = Texte::Decoder(octets).split(u'\n');
    for (const QString &entiere : lignes) {
        const QString ligne = entiere.trimmed();
        if (ligne.startsWith(u'[') && ligne.endsWith(u']'))
            section = ligne.mid(1, ligne.size() - 2).trimmed();
        const qsizetype egal = ligne.indexOf(u'=');
        if (egal <= 0 || ligne.startsWith(u';'))
            continue;
        if (const Reglage *r = chercher(section, ligne.left(egal).trimmed())) {
            ecrire(r->cle, ligne.mid(egal + 1).trimmed());
            ++pris;
        }
    }
    lus << empreinte;
    ecrire(Cle::IniLu, lus.join(u' '));
    return pris;
}
