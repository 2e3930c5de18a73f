#include "support/EcrivainJet.h"

#include "db/schema/Tables.h"

#include <QByteArrayList>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

namespace {

using EcrivainJet::Champ;
using EcrivainJet::Table;
using EcrivainJet::Type;

/// Where the two generations of the format differ.
struct Format
{
    int page;
    int compteur; ///< place of the row count in a data page; the rows' places follow it
    int masque; ///< length of the masked part of the header
    int tailleColonne;
    int nombre; ///< bytes of a column count or place within a row
};
constexpr Format Jet3{2048, 8, 126, 18, 1};
constexpr Format Jet4{4096, 12, 128, 25, 2};

constexpr quint32 CleDuMasque = 0x6B39DAC7;
constexpr quint32 CleDeLEssai = 0x12345678;
constexpr quint32 MemoEnPlace = 0x80000000;
constexpr quint32 MemoSurUnePage = 0x40000000;
constexpr qsizetype MemoEnPlaceMax = 64;
constexpr qsizetype MarquesDePage = 40; // room that no row takes
constexpr qsizetype RangeesParPage = 255;
const QString Catalogue = QStringLiteral("MSysObjects");

template <class Entier>
QByteArray octets(Entier valeur)
{
    QByteArray o(sizeof(Entier), '\0');
    qToLittleEndian(valeur, o.data());
    return o;
}

template <class Entier>
void poser(QByteArray &page, qsizetype position, Entier valeur)
{
    qToLittleEndian(valeur, page.data() + position);
}

/// RC4, by which the format masks its header.
void brouiller(QByteArray &page, qsizetype debut, qsizetype longueur, quint32 cle)
{
    const QByteArray c = octets(cle);
    std::array<quint8, 256> boite{};
    std::iota(boite.begin(), boite.end(), quint8(0));
    for (unsigned i = 0, j = 0; i < boite.size(); ++i) {
        j = (j + boite[i] + static_cast<quint8>(c[i % 4])) & 0xFF;
        std::swap(boite[i], boite[j]);
    }
    unsigned j = 0;
    for (qsizetype n = 0; n < longueur; ++n) {
        const auto i = static_cast<unsigned>(n + 1) & 0xFF;
        j = (j + boite[i]) & 0xFF;
        std::swap(boite[i], boite[j]);
        page[debut + n] = static_cast<char>(page[debut + n] ^ boite[(boite[i] + boite[j]) & 0xFF]);
    }
}

/// Puts rows on pages of one owner, a new page whenever one is full.
class Rangeur
{
public:
    Rangeur(QByteArrayList &pages, const Format &format, const QByteArray &proprietaire)
        : m_pages(pages)
        , m_format(format)
        , m_proprietaire(proprietaire)
    {
    }

    /// Address of the row: its page and its rank on it.
    quint32 ranger(const QByteArray &rangee)
    {
        const qsizetype place = rangee.size() + 2;
        if (m_numeros.isEmpty() || m_fin - m_debut < place || m_rang == RangeesParPage)
            ouvrir();
        QByteArray &page = m_pages[m_numeros.last()];
        m_fin -= rangee.size();
        page.replace(m_fin, rangee.size(), rangee);
        poser(page, m_debut, static_cast<quint16>(m_fin));
        m_debut += 2;
        poser(page, m_format.compteur, static_cast<quint16>(++m_rang));
        poser(page, 2, static_cast<quint16>(m_fin - m_debut));
        return static_cast<quint32>(m_numeros.last() << 8 | (m_rang - 1));
    }
    const QList<qsizetype> &numeros() const { return m_numeros; }

private:
    void ouvrir()
    {
        QByteArray page(m_format.page, '\0');
        page.replace(0, 2, "\x01\x01");
        page.replace(4, 4, m_proprietaire);
        m_numeros << m_pages.size();
        m_pages << page;
        m_debut = m_format.compteur + 2;
        m_fin = m_format.page;
        m_rang = 0;
    }

    QByteArrayList &m_pages;
    const Format &m_format;
    QByteArray m_proprietaire;
    QList<qsizetype> m_numeros;
    qsizetype m_debut = 0;
    qsizetype m_fin = 0;
    qsizetype m_rang = 0;
};

bool estVariable(Type type)
{
    return type == Type::Texte || type == Type::Memo || type == Type::Ole;
}

qsizetype largeur(Type type)
{
    static const QMap<Type, qsizetype> Largeurs{{Type::Court, 2}, {Type::Long, 4}, {Type::Monnaie, 8},
        {Type::Double, 8}, {Type::Date, 8}, {Type::Texte, 510}};
    return Largeurs.value(type);
}

QByteArray fixe(Type type, const QVariant &valeur)
{
    const bool reel = type == Type::Double || type == Type::Date;
    const auto bits = std::bit_cast<quint64>(valeur.toDouble());
    return octets(reel ? bits : static_cast<quint64>(valeur.toLongLong())).left(largeur(type));
}

/// The file as it grows.
class Ecriture
{
public:
    explicit Ecriture(const EcrivainJet::Fichier &fichier)
        : m_fichier(fichier)
        , m_format(fichier.jet3 ? Jet3 : Jet4)
        , m_memos(m_pages, m_format, "LVAL")
    {
    }

    QByteArray ecrire()
    {
        m_pages << enTete() << QByteArray(m_format.page, '\0');
        QList<Table> tables{catalogue()};
        tables << m_fichier.tables;
        for (qsizetype i = 0; i < tables.size(); ++i)
            m_pages << QByteArray();
        QList<QList<qsizetype>> pages;
        for (qsizetype i = 0; i < tables.size(); ++i)
            pages << ecrireRangees(tables[i], PremiereTable + i);
        ecrireDefinitions(tables, pages);
        return m_pages.join();
    }

private:
    static constexpr qsizetype PremiereTable = 2;

    QByteArray enTete() const
    {
        constexpr qsizetype Masque = 0x18;
        QByteArray page(m_format.page, '\0');
        page[1] = 1;
        page.replace(4, 15, "Standard Jet DB");
        page[0x14] = m_fichier.jet3 ? 0 : 1;
        poser(page, 0x3C, quint16(1252));
        poser(page, 0x3E, m_fichier.codee ? CleDeLEssai : 0U);
        brouiller(page, Masque, m_format.masque, CleDuMasque);
        return page;
    }

    Table catalogue() const
    {
        constexpr qint64 DuSysteme = 0x80000000;
        Table table{Catalogue,
            {{"Id", Type::Long}, {"Name", Type::Texte}, {"Type", Type::Court}, {"Flags", Type::Long},
                {"LvProp", Type::Ole}},
            {{PremiereTable, Catalogue, 1, DuSysteme, {}}}};
        for (qsizetype i = 0; i < m_fichier.tables.size(); ++i)
            table.rangees << QVariantList{PremiereTable + 1 + i, m_fichier.tables[i].nom, 1, 0, {}};
        return table;
    }

    QList<qsizetype> ecrireRangees(const Table &table, qsizetype definition)
    {
        Rangeur rangeur(m_pages, m_format, octets(static_cast<quint32>(definition)));
        for (const QVariantList &rangee : table.rangees)
            rangeur.ranger(this->rangee(table, rangee));
        return rangeur.numeros();
    }

    QByteArray nombre(qsizetype valeur) const
    {
        return octets(static_cast<quint16>(valeur)).left(m_format.nombre);
    }

    QByteArray texte(const QString &texte) const
    {
        if (m_fichier.jet3)
            return texte.toLatin1();
        const bool serrable = std::all_of(
            texte.begin(), texte.end(), [](QChar c) { return c.unicode() > 0 && c.unicode() < 0x100; });
        if (serrable && texte.size() > 2)
            return "\xFF\xFE" + texte.toLatin1();
        return {reinterpret_cast<const char *>(texte.utf16()), texte.size() * 2};
    }

    QByteArray memo(const QString &valeur)
    {
        QByteArray contenu = texte(valeur);
        const auto marque = [&](quint32 sorte, quint32 adresse) {
            return octets(static_cast<quint32>(contenu.size()) | sorte) + octets(adresse)
                + octets(quint32(0));
        };
        if (contenu.size() <= MemoEnPlaceMax)
            return marque(MemoEnPlace, 0) + contenu;
        const qsizetype morceau = m_format.page - MarquesDePage;
        if (contenu.size() <= morceau)
            return marque(MemoSurUnePage, m_memos.ranger(contenu));
        // From the end, for each piece begins with the address of the next one.
        quint32 suite = 0;
        for (qsizetype i = (contenu.size() - 1) / morceau; i >= 0; --i)
            suite = m_memos.ranger(octets(suite) + contenu.mid(i * morceau, morceau));
        return marque(0, suite);
    }

    QByteArray rangee(const Table &table, const QVariantList &valeurs)
    {
        QByteArray nuls((table.champs.size() + 7) / 8, '\0');
        QByteArray corps = nombre(table.champs.size());
        QByteArrayList variables;
        for (qsizetype i = 0; i < table.champs.size(); ++i) {
            const Type type = table.champs[i].type;
            const QVariant &valeur = valeurs[i];
            const bool presente = type == Type::Booleen ? valeur.toBool() : valeur.isValid();
            if (presente)
                nuls[i / 8] = static_cast<char>(nuls[i / 8] | 1 << (i % 8));
            if (!estVariable(type))
                corps += fixe(type, valeur);
            else if (!presente)
                variables << QByteArray();
            else
                variables << (type == Type::Memo ? memo(valeur.toString()) : texte(valeur.toString()));
        }
        if (variables.isEmpty())
            return corps + nuls;
        QByteArray places;
        for (const QByteArray &variable : std::as_const(variables)) {
            places.prepend(nombre(corps.size()));
            corps += variable;
        }
        return corps + nombre(corps.size()) + places + nombre(variables.size()) + nuls;
    }

    QByteArray colonne(const Champ &champ, qsizetype rang, qsizetype variable, qsizetype place) const
    {
        QByteArray c(m_format.tailleColonne, '\0');
        const bool jet3 = m_fichier.jet3;
        c[0] = static_cast<char>(champ.type);
        poser(c, jet3 ? 1 : 5, static_cast<quint16>(rang));
        poser(c, jet3 ? 3 : 7, static_cast<quint16>(variable));
        poser(c, jet3 ? 5 : 9, static_cast<quint16>(rang));
        c[jet3 ? 13 : 15] = estVariable(champ.type) ? 2 : 3;
        poser(c, jet3 ? 14 : 21, static_cast<quint16>(place));
        poser(c, jet3 ? 16 : 23, static_cast<quint16>(largeur(champ.type)));
        return c;
    }

    QByteArray definition(const Table &table, quint32 carte, quint32 carteVide) const
    {
        const bool jet3 = m_fichier.jet3;
        QByteArray colonnes;
        QByteArray noms;
        qsizetype variables = 0;
        qsizetype place = 0;
        for (qsizetype i = 0; i < table.champs.size(); ++i) {
            const Champ &champ = table.champs[i];
            colonnes += colonne(champ, i, variables, place);
            estVariable(champ.type) ? ++variables : place += largeur(champ.type);
            const QByteArray nom = jet3
                ? champ.nom.toLatin1()
                : QByteArray(reinterpret_cast<const char *>(champ.nom.utf16()), champ.nom.size() * 2);
            noms += nombre(nom.size()) + nom;
        }
        QByteArray page(jet3 ? 43 : 63, '\0');
        page.replace(0, 2, "\x02\x01");
        const qsizetype base = jet3 ? 0 : 4;
        poser(page, 12 + base, static_cast<quint32>(table.rangees.size()));
        const qsizetype compte = jet3 ? 20 : 40;
        page[compte] = 'N';
        poser(page, compte + 1, static_cast<quint16>(table.champs.size()));
        poser(page, compte + 3, static_cast<quint16>(variables));
        poser(page, compte + 5, static_cast<quint16>(table.champs.size()));
        poser(page, compte + 15, carte);
        poser(page, compte + 19, carteVide);
        page += colonnes + noms;
        poser(page, 8, static_cast<quint32>(page.size()));
        return page.leftJustified(m_format.page, '\0');
    }

    /// Which pages are a table's, one bit for each.
    QByteArray carte(const QList<qsizetype> &pages) const
    {
        constexpr qsizetype Avant = 5;
        QByteArray bits(Avant + m_pages.size() / 8 + 1, '\0');
        for (const qsizetype page : pages)
            bits[Avant + page / 8] = static_cast<char>(bits[Avant + page / 8] | 1 << (page % 8));
        return bits;
    }

    void ecrireDefinitions(const QList<Table> &tables, const QList<QList<qsizetype>> &pages)
    {
        Rangeur cartes(m_pages, m_format, octets(quint32(1)));
        const quint32 vide = cartes.ranger(carte({}));
        for (qsizetype i = 0; i < tables.size(); ++i)
            m_pages[PremiereTable + i] = definition(tables[i], cartes.ranger(carte(pages[i])), vide);
    }

    const EcrivainJet::Fichier &m_fichier;
    const Format &m_format;
    QByteArrayList m_pages;
    Rangeur m_memos;
};

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

QByteArray EcrivainJet::Octets(const Fichier &fichier)
{
    return Ecriture(fichier).ecrire();
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
