#include "reports/Rechercher.h"

#include "db/Base.h"
#include "db/schema/Tables.h"

namespace {

/// What is compared: the text in capitals. Names are most often plain letters, which need no decoding.
class Comparaison
{
public:
    Comparaison(const QString &texte, Rechercher::Mode mode)
        : m_voulu(texte.toUpper())
        , m_debut(mode == Rechercher::Mode::Debut)
    {
    }

    bool accepte(std::string_view nom)
    {
        if (m_voulu.isEmpty())
            return true;
        m_nom = QString::fromUtf8(nom.data(), static_cast<qsizetype>(nom.size())).toUpper();
        return m_debut ? m_nom.startsWith(m_voulu) : m_nom.contains(m_voulu);
    }

private:
    QString m_voulu;
    bool m_debut;
    QString m_nom;
};

/// The list's own query, limited to true entries; the "+" lets the index of the names go on giving the order.
QString requete(General::Tri tri)
{
    const QString table = General::TableDe(tri);
    const QStringList champs = Schema::Champs(table);
    QString condition = QStringLiteral("+%1 > 0 ").arg(champs[0]);
    if (General::GenreDe(tri).feuille == Champs::Feuille::Auteur)
        condition += QStringLiteral("and %1 = -1 ").arg(General::DrapeauDe(tri));
    return QStringLiteral("SELECT %1, %2 From %3 where %4  order by %2 asc")
        .arg(champs[0], champs[1], table, condition);
}

}

Entrees Rechercher::Chercher(General::Tri tri, const QString &texte, Mode mode)
{
    const Base base;
    Comparaison comparaison(texte, mode);
    Entrees trouvees;
    for (auto rs = base.read(requete(tri)); !rs.AtEnd(); rs.MoveNext()) {
        const std::string_view nom = rs.Utf8(1);
        if (comparaison.accepte(nom))
            trouvees.ajouter(static_cast<int>(rs.Int64(0)), nom);
    }
    return trouvees;
}
