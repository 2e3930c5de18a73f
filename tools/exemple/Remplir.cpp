#include "exemple/Remplir.h"

#include "core/Csv.h"
#include "core/Error.h"
#include "db/AccesBase.h"
#include "db/Base.h"
#include "db/Transaction.h"

#include <QMap>
#include <set>

namespace {

using AccesBase::Role;

/// Identifiers by name, one map for each table; a name that is met first makes its row.
class Annuaire
{
public:
    explicit Annuaire(Base &base)
        : m_base(base)
    {
    }

    int chercher(const QString &table, const QString &nom)
    {
        if (nom.isEmpty())
            return 0;
        const int connu = m_numeros[table].value(nom);
        if (connu == 0)
            throw Error(QStringLiteral("Nom inconnu de la table %1").arg(table), nom);
        return connu;
    }

    int chercherOuCreer(const QString &table, const QString &nom)
    {
        if (nom.isEmpty())
            return 0;
        int &numero = m_numeros[table][nom];
        if (numero == 0)
            numero = ajouter(table, {{QString(), nom}}, nom);
        return numero;
    }

    /// Adds a row under the next identifier; the first value is the name, the others are given by field.
    int ajouter(const QString &table, const QList<std::pair<QString, QVariant>> &valeurs, const QString &cle)
    {
        auto rs = m_base.edit(table);
        const int numero = ++m_derniers[table];
        rs.AddNew();
        rs.SetField(0, numero);
        for (const auto &[champ, valeur] : valeurs) {
            if (champ.isEmpty())
                rs.SetField(1, valeur);
            else
                rs.SetField(champ, valeur);
        }
        rs.Update();
        m_numeros[table][cle] = numero;
        return numero;
    }

private:
    Base &m_base;
    QMap<QString, QMap<QString, int>> m_numeros;
    QMap<QString, int> m_derniers;
};

class Remplissage
{
public:
    Remplissage(Base &base, const QString &sources)
        : m_base(base)
        , m_annuaire(base)
        , m_sources(sources)
    {
    }

    void tout()
    {
        lire("editeurs", [this](const Csv::Rangee &r) { editeur(r); });
        lire("auteurs", [this](const Csv::Rangee &r) { auteur(r); });
        lire("series", [this](const Csv::Rangee &r) { serie(r); });
        lire("emprunteurs", [this](const Csv::Rangee &r) { emprunteur(r); });
        lire("albums", [this](const Csv::Rangee &r) { album(r); });
        lire("intervenants", [this](const Csv::Rangee &r) { intervenant(r); });
        lire("cotes", [this](const Csv::Rangee &r) {
            lien("CotesAlbum",
                {{"NAlbum", m_annuaire.chercher(QStringLiteral("LAlbums"), r[QStringLiteral("Album")])},
                    {"Mois", r[QStringLiteral("Mois")]}, {"Cotes", r[QStringLiteral("Cotes")]}});
        });
        lire("exlibris", [this](const Csv::Rangee &r) { exLibris(r); });
        lire("presse", [this](const Csv::Rangee &r) { presse(r); });
    }

private:
    using Valeurs = QList<std::pair<QString, QVariant>>;
    struct Lien
    {
        const char *champ;
        QVariant valeur;
    };

    void lire(const char *nom, const std::function<void(const Csv::Rangee &)> &pour) const
    {
        Csv::Lire(QStringLiteral("%1/%2.csv").arg(m_sources, QLatin1String(nom)), pour);
    }

    /// Columns that go into fields of the same name as they are.
    static Valeurs textes(const Csv::Rangee &r, std::initializer_list<const char *> colonnes)
    {
        Valeurs valeurs;
        for (const char *colonne : colonnes)
            valeurs.emplace_back(QLatin1String(colonne), r[QLatin1String(colonne)]);
        return valeurs;
    }
    static Valeurs nombres(const Csv::Rangee &r, std::initializer_list<const char *> colonnes)
    {
        Valeurs valeurs;
        for (const char *colonne : colonnes)
            valeurs.emplace_back(QLatin1String(colonne), r[QLatin1String(colonne)].toInt());
        return valeurs;
    }
    static Valeurs drapeaux(const Csv::Rangee &r, std::initializer_list<const char *> colonnes)
    {
        Valeurs valeurs;
        for (const char *colonne : colonnes)
            valeurs.emplace_back(QLatin1String(colonne), r[QLatin1String(colonne)] == QLatin1String("1"));
        return valeurs;
    }
    static QVariant prix(const QString &texte)
    {
        return texte.isEmpty() ? QVariant() : QVariant(texte.toDouble());
    }

    void lien(const char *table, std::initializer_list<Lien> champs)
    {
        auto rs = m_base.edit(QLatin1String(table));
        rs.AddNew();
        for (const Lien &champ : champs)
            rs.SetField(QLatin1String(champ.champ), champ.valeur);
        rs.Update();
    }

    void editeur(const Csv::Rangee &r)
    {
        Valeurs v = textes(r, {"adresse1", "adresse2", "ville", "CP", "Tel", "Site"});
        v.prepend({QString(), r[QStringLiteral("Nom")]});
        v.emplace_back(QStringLiteral("NPays"),
            m_annuaire.chercherOuCreer(QStringLiteral("Pays"), r[QStringLiteral("Pays")]));
        m_annuaire.ajouter(QStringLiteral("Editeur"), v, r[QStringLiteral("Nom")]);
    }

    void auteur(const Csv::Rangee &r)
    {
        Valeurs v
            = textes(r, {"Nom", "Prenom", "SurNom", "DateNaiss", "LieuNaiss", "web1", "web2", "Commentaire"});
        v.emplace_back(QStringLiteral("NPays"),
            m_annuaire.chercherOuCreer(QStringLiteral("Pays"), r[QStringLiteral("Pays")]));
        const QString cle = r[QStringLiteral("Nom")] + u'|' + r[QStringLiteral("Prenom")];
        m_annuaire.ajouter(QStringLiteral("Auteurs"), v, cle);
    }

    void serie(const Csv::Rangee &r)
    {
        Valeurs v = textes(r, {"Nom", "SiteWeb1", "SiteWeb2", "Commentaire", "Histoire"});
        v += nombres(r, {"NoteG", "NoteD", "NoteS", "cote"});
        v.emplace_back(QStringLiteral("NGenre"),
            m_annuaire.chercherOuCreer(QStringLiteral("Genre"), r[QStringLiteral("Genre")]));
        v.emplace_back(QStringLiteral("NEditeur"),
            m_annuaire.chercher(QStringLiteral("Editeur"), r[QStringLiteral("Editeur")]));
        m_annuaire.ajouter(QStringLiteral("Serie"), v, r[QStringLiteral("Nom")]);
    }

    void emprunteur(const Csv::Rangee &r)
    {
        m_annuaire.ajouter(
            QStringLiteral("Pret"), textes(r, {"Nom", "Prenom", "Tel"}), r[QStringLiteral("Nom")]);
    }

    int auteurDe(const Csv::Rangee &r, const char *colonne, Role role)
    {
        const int numero = m_annuaire.chercher(QStringLiteral("Auteurs"), r[QLatin1String(colonne)]);
        if (numero > 0)
            AccesBase::PoserRole(numero, role);
        return numero;
    }

    void album(const Csv::Rangee &r)
    {
        const QString titre = r[QStringLiteral("Titre")];
        const int serie = m_annuaire.chercher(QStringLiteral("Serie"), r[QStringLiteral("Serie")]);
        const int editeur = m_annuaire.chercher(QStringLiteral("Editeur"), r[QStringLiteral("Editeur")]);
        const int genre = m_annuaire.chercherOuCreer(QStringLiteral("Genre"), r[QStringLiteral("Genre")]);
        const int pays = m_annuaire.chercherOuCreer(QStringLiteral("Pays"), r[QStringLiteral("Pays")]);
        const int dessin = auteurDe(r, "Dessin", Role::Dessin);
        const int scena = auteurDe(r, "Scena", Role::Scena);
        const int color = auteurDe(r, "Color", Role::Color);

        Valeurs v
            = textes(r, {"Dateparu", "NbPage", "DepotL", "ISBN", "DA", "Histoire", "Commentaire", "DPret"});
        v += nombres(r, {"Couleur", "NCouverture", "QualBD", "EtatBD"});
        v += drapeaux(r, {"Broche", "Integrale", "SerieLim", "EDitOrig", "HSerie", "Coffret"});
        v += Valeurs{{QString(), r[QStringLiteral("Tome")].toInt()}, {QStringLiteral("NumSerie"), serie},
            {QStringLiteral("NEdit"), editeur}, {QStringLiteral("NGenre"), genre},
            {QStringLiteral("NPays"), pays}, {QStringLiteral("NDessin"), dessin},
            {QStringLiteral("NScen"), scena}, {QStringLiteral("NColor"), color},
            {QStringLiteral("PrixA"), prix(r[QStringLiteral("PrixA")])},
            {QStringLiteral("NPret"),
                m_annuaire.chercher(QStringLiteral("Pret"), r[QStringLiteral("Emprunteur")])}};
        const int num = m_annuaire.ajouter(QStringLiteral("Album"), v, titre);

        Valeurs l = textes(r, {"Histoire", "dedi1", "dedi2", "LieuD", "DateD", "EtatD"});
        l += Valeurs{{QString(), titre.left(50)},
            {QStringLiteral("Photo1"), QStringLiteral("album-%1.jpg").arg(num)},
            {QStringLiteral("Photo2"), QStringLiteral("album-%1-dos.jpg").arg(num)}};
        m_annuaire.ajouter(QStringLiteral("LAlbums"), l, titre);
        lierAlbum(r, num, {serie, editeur, genre, pays});
        lierAuteurs(num, {dessin, scena, color});
    }

    struct Numeros
    {
        int serie, editeur, genre, pays;
    };
    void lierAlbum(const Csv::Rangee &r, int num, const Numeros &n)
    {
        if (n.serie > 0)
            lien("SerieAlbums", {{"NSerie", n.serie}, {"NAlbum", num}});
        if (n.editeur > 0)
            lien("EditeurAlbums", {{"NEdit", n.editeur}, {"NAlbum", num}});
        if (n.pays > 0)
            lien("PaysAlbum", {{"NPays", n.pays}, {"NAlbum", num}});
        const int second = m_annuaire.chercherOuCreer(QStringLiteral("Genre"), r[QStringLiteral("Genre2")]);
        for (const int genre : {n.genre, second}) {
            if (genre > 0)
                lien("GenreAlbums", {{"NGenre", genre}, {"NAlbum", num}});
        }
        const int coll = m_annuaire.chercherOuCreer(QStringLiteral("Coll"), r[QStringLiteral("Collection")]);
        if (coll > 0)
            lien("CollAlbums", {{"NColl", coll}, {"NAlbum", num}});
    }

    struct Auteurs
    {
        int dessin, scena, color;
    };
    void lierAuteurs(int num, const Auteurs &a)
    {
        for (const int auteur : std::set<int>{a.dessin, a.scena, a.color}) {
            if (auteur > 0)
                lien("AuteursAlbums",
                    {{"NAuteur", auteur}, {"NAlbum", num}, {"Dessin", auteur == a.dessin},
                        {"Scena", auteur == a.scena}, {"Color", auteur == a.color}});
        }
    }

    void intervenant(const Csv::Rangee &r)
    {
        const QString cle = r[QStringLiteral("Nom")] + u'|' + r[QStringLiteral("Prenom")];
        int &numero = m_intervenants[cle];
        if (numero == 0)
            numero = m_annuaire.ajouter(QStringLiteral("Inter"), textes(r, {"Nom", "Prenom"}), cle);
        lien("InterMetier",
            {{"NAlbum", m_annuaire.chercher(QStringLiteral("LAlbums"), r[QStringLiteral("Album")])},
                {"NInter", numero},
                {"NMetier",
                    m_annuaire.chercherOuCreer(QStringLiteral("Metier"), r[QStringLiteral("Metier")])}});
    }

    void exLibris(const Csv::Rangee &r)
    {
        Valeurs v = textes(r, {"Nom", "DAchat", "Comm"});
        v += nombres(r, {"TypeExlibris"});
        v += drapeaux(r, {"Dedicace", "Signe"});
        v += Valeurs{{QStringLiteral("PrixA"), prix(r[QStringLiteral("PrixA")])},
            {QStringLiteral("NSerie"),
                m_annuaire.chercher(QStringLiteral("Serie"), r[QStringLiteral("Serie")])},
            {QStringLiteral("NDessin"), auteurDe(r, "Dessin", Role::Dessin)},
            {QStringLiteral("NLibrairie"),
                m_annuaire.chercherOuCreer(QStringLiteral("Librairie"), r[QStringLiteral("Librairie")])}};
        m_annuaire.ajouter(QStringLiteral("ExLibris"), v, r[QStringLiteral("Nom")]);
    }

    void presse(const Csv::Rangee &r)
    {
        Valeurs v = textes(r, {"Nom", "DepotLegale", "DAchat", "Comm"});
        v += nombres(r, {"Parution"});
        v += drapeaux(r, {"Reliure", "HS"});
        v += Valeurs{{QStringLiteral("NPresseBD"), r[QStringLiteral("Numero")].toInt()},
            {QStringLiteral("PrixA"), prix(r[QStringLiteral("PrixA")])},
            {QStringLiteral("NEdit"),
                m_annuaire.chercher(QStringLiteral("Editeur"), r[QStringLiteral("Editeur")])}};
        m_annuaire.ajouter(QStringLiteral("PresseBD"), v, r[QStringLiteral("Nom")]);
    }

    Base &m_base;
    Annuaire m_annuaire;
    QString m_sources;
    QMap<QString, int> m_intervenants;
};

}

void remplirExemple(const QString &sources)
{
    Base base;
    Transaction transaction(base);
    Remplissage(base, sources).tout();
    transaction.Commit();
}
