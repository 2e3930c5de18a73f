#include "model/Trouver.h"

#include "core/Texte.h"
#include "db/Base.h"

using Especes::Espece;
using Especes::Libelle;

namespace {

int premier(const Base &base, const Espece &espece, const QString &condition, const QVariantList &valeurs,
    const QString &avant = {})
{
    const QString sql = QStringLiteral("SELECT %1 From %2 where %3 order by %4%1 asc")
                            .arg(QLatin1String(espece.cle), QLatin1String(espece.table), condition, avant);
    const auto rs = base.read(sql, valeurs);
    return rs.AtEnd() ? 0 : rs.Fields(0).toInt();
}

/// A text without the blanks and commas that hang on it.
QString sansRestes(const QString &texte)
{
    QStringView net = texte;
    const auto reste = [](QChar c) { return c.isSpace() || c == u','; };
    while (!net.isEmpty() && reste(net.front()))
        net = net.mid(1);
    while (!net.isEmpty() && reste(net.back()))
        net.chop(1);
    return net.toString();
}

bool aDeuxNoms(const Espece &espece)
{
    return espece.libelle == Libelle::NomPrenom || espece.libelle == Libelle::PrenomNom;
}

/// The two names on the sides of the first comma, whatever they hold.
Trouver::Noms auxVirgules(const Espece &espece, const QString &texte)
{
    const QString avant = texte.section(u',', 0, 0).trimmed();
    const QString apres = texte.section(u',', 1).trimmed();
    return espece.libelle == Libelle::PrenomNom ? Trouver::Noms{apres, avant} : Trouver::Noms{avant, apres};
}

/// The pieces between the commas that stand outside double quotes; a doubled quote is a quote.
QStringList morceaux(const QString &texte)
{
    QStringList morceaux{QString()};
    bool entreGuillemets = false;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const QChar c = texte[i];
        if (c == u'"' && entreGuillemets && texte.mid(i + 1, 1) == u'"')
            morceaux.last() += texte[++i];
        else if (c == u'"' && (entreGuillemets || morceaux.last().trimmed().isEmpty()))
            entreGuillemets = !entreGuillemets;
        else if (c == u',' && !entreGuillemets)
            morceaux << QString();
        else
            morceaux.last() += c;
    }
    return morceaux;
}

}

int Trouver::ParNom(
    const Base &base, const Espece &espece, const QString &nom, std::optional<AccesBase::Role> metier)
{
    return premier(base, espece, QLatin1String(espece.nom) + QStringLiteral(" = ?"), {nom},
        metier ? AccesBase::NomDuRole(*metier) + QStringLiteral(" = 0, ") : QString());
}

int Trouver::Personne(const Base &base, const Espece &espece, const QString &nom, const QString &prenom)
{
    return premier(base, espece,
        QStringLiteral("Nom = ? and trim(coalesce(Prenom, '')) = ? collate FRANCAIS"), {nom, prenom});
}

int Trouver::ParTexte(
    const Base &base, const Espece &espece, const QString &texte, std::optional<AccesBase::Role> metier)
{
    const QString net = aDeuxNoms(espece) ? sansRestes(texte) : texte.trimmed();
    if (aDeuxNoms(espece) && net.contains(u',')) {
        const Noms noms = auxVirgules(espece, net);
        if (const int id = Personne(base, espece, noms.nom, noms.prenom))
            return id;
    }
    return ParNom(base, espece, net, metier);
}

bool Trouver::Existe(const Base &base, const Espece &espece, int numero)
{
    return premier(base, espece, QLatin1String(espece.cle) + QStringLiteral(" = ?"), {numero}) > 0;
}

Trouver::Noms Trouver::Separer(const Espece &espece, const QString &texte)
{
    const QString ligne = Texte::UneLigne(texte);
    const QString net = aDeuxNoms(espece) ? sansRestes(ligne) : ligne;
    return aDeuxNoms(espece) && net.count(u',') == 1 ? auxVirgules(espece, net) : Noms{net};
}

QStringList Trouver::Enumerer(const Base &base, const Espece &espece, const QString &texte)
{
    const QString net = Texte::UneLigne(texte);
    if (net.isEmpty() || ParNom(base, espece, net) > 0)
        return net.isEmpty() ? QStringList() : QStringList{net};
    QStringList noms;
    for (const QString &morceau : morceaux(net)) {
        const QString nom = morceau.trimmed();
        if (!nom.isEmpty() && !noms.contains(nom, Qt::CaseInsensitive))
            noms << nom;
    }
    return noms;
}
