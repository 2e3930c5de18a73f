#include "model/Sources.h"

#include "core/Texte.h"
#include "db/Base.h"

using namespace Sources;

namespace {

QString requete(const Source &source)
{
    QString sql = QStringLiteral("SELECT %1 From %2 where %3 = ?")
                      .arg(Especes::Colonnes(*source.espece), QLatin1String(source.espece->table),
                          QLatin1String(source.espece->cle));
    if (source.role)
        sql += QStringLiteral(" and %1 <> 0").arg(AccesBase::NomDuRole(*source.role));
    return sql;
}

}

QString Sources::LireNom(const Source &source, int id)
{
    if (source.sansZero && id == 0)
        return {};
    const Base base;
    const auto rs = base.read(requete(source), {id});
    if (rs.AtEnd())
        return {};
    const QString nom = rs.Fields(1).toString().trimmed();
    const QString prenom = source.prenom == Prenom::Sans ? QString() : rs.Fields(2).toString().trimmed();
    if (prenom.isEmpty())
        return nom;
    return source.prenom == Prenom::Apres ? Texte::NomPrenom(nom, prenom)
                                          : prenom + QStringLiteral(", ") + nom;
}

QString Sources::LireNomsLies(const Source &source, int album)
{
    const Base base;
    QStringList noms;
    const QString sql = QStringLiteral("SELECT %1 From %2 where NAlbum = ? order by %1 asc")
                            .arg(QLatin1String(source.espece->cle), QLatin1String(source.espece->liens));
    for (auto liens = base.read(sql, {album}); !liens.AtEnd(); liens.MoveNext())
        noms << LireNom(source, liens.Fields(0).toInt());
    noms.removeAll(QString());
    return noms.join(QStringLiteral(", "));
}

std::unordered_map<int, QString> Sources::LireTousLesNomsLies(const Source &source)
{
    const Base base;
    const QString sql = QStringLiteral("SELECT %1, NAlbum From %2 order by %1 asc")
                            .arg(QLatin1String(source.espece->cle), QLatin1String(source.espece->liens));
    std::unordered_map<int, QString> noms;
    std::unordered_map<int, QString> parAlbum;
    for (auto liens = base.read(sql); !liens.AtEnd(); liens.MoveNext()) {
        const auto [nom, neuf] = noms.try_emplace(liens.Fields(0).toInt());
        if (neuf)
            nom->second = LireNom(source, nom->first);
        QString &texte = parAlbum[liens.Fields(1).toInt()];
        if (!nom->second.isEmpty())
            texte += (texte.isEmpty() ? QString() : QStringLiteral(", ")) + nom->second;
    }
    return parAlbum;
}
