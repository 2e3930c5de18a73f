#include "model/Trouver.h"

#include "db/Base.h"

namespace {

int premier(
    const Base &base, const Especes::Espece &espece, const QString &condition, const QVariantList &valeurs)
{
    const QString sql = QStringLiteral("SELECT %1 From %2 where %3 order by %1 asc")
                            .arg(QLatin1String(espece.cle), QLatin1String(espece.table), condition);
    const auto rs = base.read(sql, valeurs);
    return rs.AtEnd() ? 0 : rs.Fields(0).toInt();
}

}

int Trouver::ParNom(const Base &base, const Especes::Espece &espece, const QString &nom)
{
    return premier(base, espece, QLatin1String(espece.nom) + QStringLiteral(" = ?"), {nom});
}

int Trouver::Personne(
    const Base &base, const Especes::Espece &espece, const QString &nom, const QString &prenom)
{
    return premier(base, espece,
        QStringLiteral("Nom = ? and trim(coalesce(Prenom, '')) = ? collate FRANCAIS"), {nom, prenom});
}

bool Trouver::Existe(const Base &base, const Especes::Espece &espece, int numero)
{
    return premier(base, espece, QLatin1String(espece.cle) + QStringLiteral(" = ?"), {numero}) > 0;
}
