#include "reports/Rechercher.h"

#include "db/Base.h"

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
    const Especes::Espece &espece = General::EspeceDe(tri);
    const QString dansLaListe = General::ConditionDe(tri);
    return QStringLiteral("SELECT %1 From %2 where +%3 > 0 %4 order by %5 asc")
        .arg(Especes::Colonnes(espece), QLatin1String(espece.table), QLatin1String(espece.cle),
            dansLaListe.isEmpty() ? QString() : QStringLiteral("and ") + dansLaListe,
            QLatin1String(espece.nom));
}

}

Entrees Rechercher::Chercher(General::Tri tri, const QString &texte, Mode mode)
{
    const Base base;
    Comparaison comparaison(texte, mode);
    Entrees trouvees;
    for (auto rs = base.read(requete(tri)); !rs.AtEnd(); rs.MoveNext()) {
        if (comparaison.accepte(rs.Utf8(1)))
            General::AjouterLigne(trouvees, rs, General::EspeceDe(tri).libelle);
    }
    return trouvees;
}
