#include "model/Especes.h"

#include <array>

using namespace Especes;

const Espece &Especes::De(Feuille feuille)
{
    static constexpr std::array Fiches{&Album, &Serie, &Auteur, &Editeur, &ExLibris, &Presse, &Coll};
    return *Fiches[static_cast<std::size_t>(feuille)];
}

QString Especes::Colonnes(const Espece &espece)
{
    QStringList noms{QLatin1String(espece.cle), QLatin1String(espece.nom)};
    if (espece.suite)
        noms << QLatin1String(espece.suite);
    return noms.join(QStringLiteral(", "));
}

QString Especes::Lecture(const Rangs &rangs)
{
    return QStringLiteral("SELECT * From %1 where %2 = ?")
        .arg(QLatin1String(rangs.table), QLatin1String(rangs.cle));
}
