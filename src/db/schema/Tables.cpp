#include "db/schema/Tables.h"

using Schema::Table;

namespace {

const Table *chercher(const QString &nom)
{
    for (const Table &table : Schema::Definitions()) {
        if (nom.compare(QLatin1String(table.nom), Qt::CaseInsensitive) == 0)
            return &table;
    }
    return nullptr;
}

}

const std::vector<Schema::Table> &Schema::Definitions()
{
    using enum Type;
    static const std::vector<Table> toutes{
        {"Album",
            {{"Num", Cle}, {"NAlbum", Entier}, {"NumSerie", Entier}, {"NGenre", Entier}, {"NEdit", Entier},
                {"NDessin", Entier}, {"NScen", Entier}, {"NColor", Entier}, {"QualBD", Entier},
                {"EtatBD", Entier}, {"NbPage", Texte}, {"ISBN", Texte}, {"ISSN", Texte}, {"Histoire", Texte},
                {"Commentaire", Texte}, {"NPays", Entier}, {"DepotL", Texte}, {"Dateparu", Texte},
                {"NCouverture", Entier}, {"DPret", Texte}, {"NPret", Entier}, {"DA", Texte},
                {"PrixA", Montant}, {"Broche", Booleen}, {"Couleur", Entier}, {"Integrale", Booleen},
                {"SerieLim", Booleen}, {"EDitOrig", Booleen}, {"HSerie", Booleen}, {"Coffret", Booleen, 2}}},
        {"LAlbums",
            {{"NAlbum", Cle}, {"TAlbum", Nom}, {"Photo1", Texte}, {"Photo2", Texte}, {"Histoire", Texte},
                {"dedi1", Texte}, {"dedi2", Texte}, {"LieuD", Texte}, {"DateD", Texte}, {"EtatD", Texte}}},
        {"Serie",
            {{"NSerie", Cle}, {"Nom", Nom}, {"NGenre", Entier}, {"NEditeur", Entier}, {"NoteG", Entier},
                {"NoteD", Entier}, {"NoteS", Entier}, {"cote", Entier}, {"SiteWeb1", Texte},
                {"SiteWeb2", Texte}, {"Commentaire", Texte}, {"Histoire", Texte}, {"Photo1", Texte},
                {"Photo2", Texte}}},
        {"Auteurs",
            {{"NAuteur", Cle}, {"Nom", Nom}, {"Prenom", Nom}, {"SurNom", Nom}, {"DateNaiss", Texte},
                {"LieuNaiss", Texte}, {"NPays", Entier}, {"web1", Texte}, {"web2", Texte}, {"Photo1", Texte},
                {"Photo2", Texte}, {"Commentaire", Texte}, {"Dessin", Booleen}, {"Scena", Booleen},
                {"Color", Booleen}}},
        {"Editeur",
            {{"NEdit", Cle}, {"Nom", Nom}, {"adresse1", Texte}, {"adresse2", Texte}, {"ville", Texte},
                {"CP", Texte}, {"NPays", Entier}, {"Tel", Texte}, {"Site", Texte}, {"Photo1", Texte},
                {"Photo2", Texte}}},
        {"Genre", {{"NGenre", Cle}, {"Nom", Nom}}},
        {"Coll", {{"NColl", Cle}, {"Nom", Nom}}},
        {"Pays", {{"NPays", Cle}, {"Nom", Nom}}},
        {"Pret", {{"NPret", Cle}, {"Nom", Nom}, {"Prenom", Nom}, {"Tel", Texte}}},
        {"Librairie", {{"NLibrairie", Cle}, {"Nom", Nom}}},
        {"ExLibris",
            {{"NExLibris", Cle}, {"Nom", Nom}, {"NSerie", Entier}, {"NDessin", Entier},
                {"NLibrairie", Entier}, {"TypeExlibris", Entier}, {"DAchat", Texte}, {"PrixA", Montant},
                {"Comm", Texte}, {"Dedicace", Booleen}, {"Signe", Booleen}, {"Photo1", Texte},
                {"Photo2", Texte}}},
        {"PresseBD",
            {{"NPressBD", Cle}, {"Nom", Nom}, {"NPresseBD", Entier}, {"NEdit", Entier}, {"Parution", Entier},
                {"DepotLegale", Texte}, {"Reliure", Booleen}, {"HS", Booleen}, {"PrixA", Montant},
                {"DAchat", Texte}, {"Comm", Texte}, {"Photo1", Texte}, {"Photo2", Texte}}},
        {"Inter", {{"NInter", Cle}, {"Nom", Nom}, {"Prenom", Nom}}},
        {"Metier", {{"NMetier", Cle}, {"Nom", Nom}}},
        {"SerieAlbums", {{"NSerie", Entier}, {"NAlbum", Entier}, {"NumeroAlbum2", Texte, 2}}},
        {"GenreAlbums", {{"NGenre", Entier}, {"NAlbum", Entier}}},
        {"EditeurAlbums", {{"NEdit", Entier}, {"NAlbum", Entier}}},
        {"CollAlbums", {{"NColl", Entier}, {"NAlbum", Entier}}},
        {"PaysAlbum", {{"NPays", Entier}, {"NAlbum", Entier}}},
        {"AuteursAlbums",
            {{"NAuteur", Entier}, {"NAlbum", Entier}, {"Dessin", Booleen}, {"Scena", Booleen},
                {"Color", Booleen}}},
        {"InterMetier", {{"NAlbum", Entier}, {"NInter", Entier}, {"NMetier", Entier}}},
        {"CotesAlbum", {{"NAlbum", Entier}, {"Mois", Texte}, {"Cotes", Texte}}},
    };
    return toutes;
}

const Schema::Table &Schema::DefinitionDuCatalogue()
{
    // Its texts are coded, so none of them is a name to the collation.
    using enum Type;
    static const Table bd{"BD",
        {{"Numero", Cle}, {"Titre", Texte}, {"Tome", Entier}, {"Serie", Texte}, {"Dateparu", Texte},
            {"Genre", Texte}, {"Dessin", Texte}, {"Scena", Texte}, {"Editeur", Texte}, {"Couleur", Booleen},
            {"Integrale", Booleen}, {"Carton", Texte}}};
    return bd;
}

QStringList Schema::Tables(int palier)
{
    QStringList noms;
    for (const Table &table : Definitions()) {
        if (table.depuis <= palier)
            noms << QLatin1String(table.nom);
    }
    return noms;
}

QStringList Schema::Colonnes(const QString &table)
{
    QStringList noms;
    if (const Table *trouvee = chercher(table)) {
        for (const Colonne &colonne : trouvee->colonnes)
            noms << QLatin1String(colonne.nom);
    }
    return noms;
}

QVariantList Schema::Blanc(const QString &table)
{
    QVariantList valeurs;
    if (const Table *trouvee = chercher(table)) {
        for (const Colonne &colonne : trouvee->colonnes) {
            const bool texte = colonne.type == Type::Texte || colonne.type == Type::Nom;
            valeurs << (texte                       ? QVariant(QStringLiteral(" "))
                    : colonne.type == Type::Booleen ? QVariant(false)
                                                    : QVariant(0));
        }
    }
    return valeurs;
}
