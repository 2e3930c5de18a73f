#include "model/Fiche.h"

#include "core/Texte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/Montant.h"

#include <QCoreApplication>
#include <QStringList>
#include <array>

using namespace Champs;

namespace {

constexpr std::array Formats{Txt::FormatNormal, Txt::GrandFormat, Txt::FormatItalienne, Txt::AutreFormat};
constexpr std::array Couleurs{Txt::Couleur, Txt::NoirEtBlanc, Txt::Infographie};
constexpr std::array Parutions{Txt::Quotidienne, Txt::Hebdomadaire, Txt::BiMensuelle, Txt::Mensuelle,
    Txt::Bimestrielle, Txt::Trimestrielle, Txt::Semestrielle, Txt::Annuelle};
/// The kinds of ex-libris, by number.
constexpr std::array Types{Txt::ExLibris, Txt::PorteFolio, Txt::Serigraphie, Txt::MarquePage,
    Txt::Litographie, Txt::Affiche, Txt::Poster, Txt::Autres};

/// The captions of a field that takes one of a few values; the first one's number is `premier`.
struct Mots
{
    std::span<const Txt> textes;
    int premier = 0;
};
Mots motsDe(Vue vue)
{
    switch (vue) {
    case Vue::Format:
        return {Formats};
    case Vue::Couleur:
        return {Couleurs, 1};
    case Vue::Parution:
        return {Parutions};
    case Vue::Type:
        return {Types};
    default:
        return {};
    }
}

/// The word of a stored number; empty for none, and for a number that has no word.
QString motDe(Vue vue, const QVariant &stockee)
{
    const Mots mots = motsDe(vue);
    const int rang = stockee.toInt() - mots.premier;
    const bool connu = stockee.isValid() && rang >= 0 && rang < static_cast<int>(mots.textes.size());
    return connu ? texte(mots.textes[static_cast<std::size_t>(rang)]) : QString();
}

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Fiche)
};

QString nombreOuRien(const QVariant &valeur)
{
    const int nombre = valeur.toInt();
    return nombre == 0 ? QString() : QString::number(nombre);
}

QString prix(const QVariant &valeur)
{
    if (!valeur.isValid() || valeur.toDouble() == 0.0)
        return {};
    return Montant::Montrer(valeur.toDouble()) + u' ' + texte(Txt::Euro);
}

/// Grades are shown by stars; what is no grade is shown as it is.
QString note(const QVariant &valeur)
{
    bool nombre = false;
    const int grade = valeur.toString().trimmed().toInt(&nombre);
    return nombre ? QString::number(grade) : valeur.toString().trimmed();
}

QString nomDe(const Champ &champ, int id, const QVariant &stockee)
{
    if (champ.source->lien == Sources::Lien::Tous)
        return Sources::LireNomsLies(*champ.source, id);
    return Sources::LireNom(*champ.source, stockee.toInt());
}

bool aUnSchema(const QString &adresse)
{
    return adresse.startsWith(QLatin1String("http://"), Qt::CaseInsensitive)
        || adresse.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

std::optional<QVariant> entier(const QString &saisie, const QVariant &siVide)
{
    if (saisie.isEmpty())
        return siVide;
    bool sur = false;
    const int valeur = saisie.toInt(&sur);
    return sur ? std::optional<QVariant>(valeur) : std::nullopt;
}

}

std::optional<Valeurs> Fiche::Lire(Feuille feuille, int id)
{
    const Base base;
    Valeurs valeurs;
    bool trouvee = false;
    for (const Especes::Rangs &rangs : Especes::De(feuille).fiche) {
        const auto rs = base.read(Especes::Lecture(rangs), {id});
        trouvee = trouvee || !rs.AtEnd();
        for (const Champ &champ : Tous) {
            if (champ.feuille != feuille || qstrcmp(champ.table, rangs.table) != 0)
                continue;
            ValeurDeChamp &valeur = valeurs[QLatin1String(champ.nom)];
            if (champ.colonne && !rs.AtEnd())
                valeur.stockee = rs.Fields(QLatin1String(champ.colonne));
            valeur.affichee
                = champ.source ? nomDe(champ, id, valeur.stockee) : Afficher(champ, valeur.stockee);
        }
    }
    return trouvee ? std::optional(valeurs) : std::nullopt;
}

QString Fiche::Afficher(const Champ &champ, const QVariant &stockee)
{
    switch (champ.vue) {
    case Vue::Tome:
        return nombreOuRien(stockee);
    case Vue::Prix:
        return prix(stockee);
    case Vue::Etoiles:
        return note(stockee);
    case Vue::Case:
        return texte(stockee.toBool() ? Txt::Oui : Txt::Non);
    case Vue::Format:
    case Vue::Couleur:
    case Vue::Type:
        return motDe(champ.vue, stockee);
    case Vue::Memo:
        return Texte::EstVide(stockee.toString()) ? QString() : stockee.toString();
    case Vue::Cote:
        return stockee.isValid() ? QStringLiteral("%1").arg(stockee.toInt(), 2, 10, QLatin1Char('0'))
                                 : QString();
    case Vue::Parution: {
        // The number stands first, its word beside it.
        const QString mot = motDe(champ.vue, stockee);
        return mot.isEmpty() ? stockee.toString() : stockee.toString() + QStringLiteral(" - ") + mot;
    }
    case Vue::Texte:
    case Vue::Nom:
    case Vue::Lien:
    case Vue::Dedicace:
    case Vue::Image:
        break;
    }
    return stockee.toString().trimmed();
}

std::vector<Fiche::Option> Fiche::Options(const Champ &champ)
{
    const Mots mots = motsDe(champ.vue);
    std::vector<Option> options;
    options.reserve(mots.textes.size());
    for (int i = 0; i < static_cast<int>(mots.textes.size()); ++i)
        options.push_back({mots.premier + i, Afficher(champ, mots.premier + i)});
    return options;
}

std::optional<QVariant> Fiche::Verifier(const Champ &champ, const QString &saisie)
{
    if (champ.vue == Vue::Memo)
        return saisie;
    const QString net = Texte::EstVide(saisie) ? QString() : Texte::UneLigne(saisie);
    if (&champ == &DuNom(champ.feuille) && !Texte::EstUnNom(net))
        return std::nullopt;
    switch (champ.regle) {
    case Regle::Titre:
        return Texte::Couper(net, LongueurTitre);
    case Regle::Tome: {
        const auto tome = entier(net.left(LongueurTome), 0);
        return tome && tome->toInt() >= 0 ? tome : std::nullopt;
    }
    case Regle::Nombre:
    case Regle::Identifiant:
        return entier(net, {});
    case Regle::Pages:
        return net.isEmpty() || LireMontant(net) ? std::optional<QVariant>(net) : std::nullopt;
    case Regle::Prix: {
        if (net.isEmpty())
            return QVariant();
        const auto valeur = LireMontant(net);
        return valeur ? std::optional<QVariant>(*valeur) : std::nullopt;
    }
    case Regle::Http:
        return net.isEmpty() || aUnSchema(net) ? net : QStringLiteral("http://") + net;
    case Regle::Drapeau:
        return QVariant(net != QLatin1String("0") && !net.isEmpty());
    case Regle::Texte:
        break;
    }
    return net;
}

QString Fiche::RaisonDuRefus(const Champ &champ, const QString &saisie)
{
    if (&champ == &DuNom(champ.feuille))
        return Tr::tr("Il manque un nom.");
    const bool montant = champ.regle == Regle::Prix || champ.regle == Regle::Pages;
    if (const auto lectures = Montant::Lectures(saisie); montant && lectures.size() > 1)
        return Tr::tr("« %1 » peut se lire %2 ou %3 : écrivez l'un des deux.")
            .arg(saisie.trimmed(), Montant::Ecrire(lectures[0]), Montant::Ecrire(lectures[1]));
    switch (champ.regle) {
    case Regle::Tome:
        return Tr::tr("Le numéro est un nombre entier de 0 à 999.");
    case Regle::Prix:
        return Tr::tr("Le prix est un nombre, comme 12,50.");
    case Regle::Pages:
        return Tr::tr("Le nombre de pages est un nombre.");
    default:
        return Tr::tr("Il faut ici un nombre entier.");
    }
}

bool Fiche::Existe(Feuille feuille, int id, const char *table)
{
    const Base base;
    const auto fiche = Especes::De(feuille).fiche;
    const auto rangs = std::find_if(fiche.begin(), fiche.end(),
        [table](const Especes::Rangs &r) { return !table || qstrcmp(r.table, table) == 0; });
    return !base.read(Especes::Lecture(*rangs), {id}).AtEnd();
}

std::optional<double> Fiche::LireMontant(const QString &saisie)
{
    return Montant::Lire(saisie);
}

QString Fiche::MotDeLaNote(int note)
{
    static constexpr std::array Mots{
        Txt::TresMauvaise, Txt::Mauvaise, Txt::Moyenne, Txt::Passable, Txt::Excellente};
    return texte(Mots[static_cast<std::size_t>(note >= 1 && note <= 5 ? note - 1 : 0)]);
}
