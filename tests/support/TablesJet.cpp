#include "support/EcrivainJet.h"

#include "db/schema/Tables.h"

namespace {

using EcrivainJet::Champ;
using EcrivainJet::Table;
using EcrivainJet::Type;

Type typeDe(Schema::Type type, const QString &nom)
{
    switch (type) {
    case Schema::Type::Cle:
    case Schema::Type::Entier:
        return Type::Long;
    case Schema::Type::Booleen:
        return Type::Booleen;
    case Schema::Type::Montant:
        return Type::Monnaie;
    default:
        return nom.startsWith("Comm") || nom == "Histoire" ? Type::Memo : Type::Texte;
    }
}

}

EcrivainJet::Table EcrivainJet::DuSchema(const QString &nom)
{
    QList<Schema::Table> tables(Schema::Definitions().begin(), Schema::Definitions().end());
    tables << Schema::DefinitionDuCatalogue();
    Table table{nom, {}, {}};
    for (const Schema::Table &definie : std::as_const(tables)) {
        for (const Schema::Colonne &champ : definie.colonnes) {
            if (nom == QLatin1String(definie.nom))
                table.champs.append({champ.nom, typeDe(champ.type, champ.nom)});
        }
    }
    return table;
}

QVariantList EcrivainJet::Rangee(const Table &table, const QMap<QString, QVariant> &valeurs)
{
    QVariantList rangee;
    for (const Champ &champ : table.champs)
        rangee << valeurs.value(champ.nom);
    return rangee;
}

QString EcrivainJet::LongTexte(qsizetype longueur, char16_t premier)
{
    constexpr qsizetype Lettres = 89;
    QString texte;
    for (qsizetype i = 0; i < longueur; ++i)
        texte += QChar(static_cast<char16_t>(premier + i % Lettres));
    return texte;
}

QByteArray EcrivainJet::UneCollection(int albums)
{
    constexpr int LongueurMax = 5000;
    Table fiches = DuSchema("Album");
    Table titres = DuSchema("LAlbums");
    Table liens = DuSchema("SerieAlbums");
    for (int i = 1; i <= albums; ++i) {
        const QString histoire = LongTexte(i * 997 % LongueurMax);
        fiches.rangees << Rangee(
            fiches, {{"Num", i}, {"NAlbum", i % 7}, {"PrixA", i * 1234}, {"HSerie", i % 2}});
        titres.rangees << Rangee(
            titres, {{"NAlbum", i}, {"TAlbum", QString("L'Été n° %1").arg(i)}, {"Histoire", histoire}});
        liens.rangees << Rangee(liens, {{"NSerie", i % 5}, {"NAlbum", i}});
    }
    return Octets({{fiches, titres, liens}});
}
