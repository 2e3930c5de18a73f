#include "db/conversion/Convertisseur.h"

#include "db/conversion/Echec.h"
#include "db/conversion/Jet.h"
#include "db/conversion/Neuve.h"

#include <QFileInfo>
#include <algorithm>
#include <optional>

namespace {

using Cellules::Perte;
using Conversion::Code;
using Conversion::Ecarte;
using Convertisseur::Dire;

/// One table of the new file, and where the old one has it.
struct Paire
{
    const Schema::Table *cible;
    std::unique_ptr<TableJet> source;
    std::vector<std::optional<std::size_t>> champs; ///< of the old table, for each of the new one
};

/// Says the percentage when it has changed. Writing the rows is nearly all of the work, checking them the rest.
class Progression
{
public:
    Progression(qint64 total, const Dire &dire)
        : m_total(std::max<qint64>(total, 1))
        , m_dire(dire)
    {
    }
    void avancer()
    {
        constexpr qint64 PartDesLignes = 95;
        dire(static_cast<int>(std::min(++m_faites * PartDesLignes / m_total, PartDesLignes)));
    }
    void dire(int pourCent)
    {
        if (pourCent != m_dite)
            m_dire(Conversion::Avance{pourCent});
        m_dite = pourCent;
    }

private:
    qint64 m_total;
    const Dire &m_dire;
    qint64 m_faites = 0;
    int m_dite = -1;
};

bool memeNom(const QString &nom, const char *autre)
{
    return nom.compare(QLatin1String(autre), Qt::CaseInsensitive) == 0;
}

std::optional<std::size_t> trouverChamp(const TableJet &table, const char *nom)
{
    const auto &champs = table.champs();
    const auto trouve
        = std::find_if(champs.begin(), champs.end(), [&](const auto &c) { return memeNom(c.nom, nom); });
    if (trouve == champs.end() || trouve->sorte == TableJet::Sorte::Illisible)
        return std::nullopt;
    return static_cast<std::size_t>(trouve - champs.begin());
}

Ecarte ecarte(const char *sorte, const Schema::Table &table, const QStringList &quoi)
{
    return {QLatin1String(sorte), QLatin1String(table.nom), quoi};
}

/// The tables of the new file that the old one has; the fields and tables without a counterpart are said.
class Rapprochement
{
public:
    Rapprochement(const Jet &jet, const Dire &dire)
        : m_jet(jet)
        , m_dire(dire)
    {
    }

    std::vector<Paire> rapprocher(const std::vector<Schema::Table> &tables) const
    {
        std::vector<Paire> paires;
        for (const Schema::Table &table : tables) {
            if (m_jet.contient(QLatin1String(table.nom)))
                paires.push_back(apparier(table));
            else if (table.depuis == Version::PremierPalier)
                m_dire(ecarte("tableManquante", table, {}));
        }
        direInconnues(tables);
        return paires;
    }

private:
    Paire apparier(const Schema::Table &table) const
    {
        Paire paire{&table, m_jet.ouvrir(QLatin1String(table.nom)), {}};
        std::vector<bool> pris(paire.source->champs().size());
        for (const Schema::Colonne &champ : table.colonnes) {
            paire.champs.push_back(trouverChamp(*paire.source, champ.nom));
            if (paire.champs.back())
                pris[*paire.champs.back()] = true;
        }
        for (std::size_t i = 0; i < pris.size(); ++i) {
            if (!pris[i])
                m_dire(ecarte("champInconnu", table, {paire.source->champs()[i].nom}));
        }
        return paire;
    }

    void direInconnues(const std::vector<Schema::Table> &tables) const
    {
        for (const QString &nom : m_jet.tables()) {
            const bool connue = std::any_of(
                tables.begin(), tables.end(), [&](const auto &t) { return memeNom(nom, t.nom); });
            if (!connue)
                m_dire(Ecarte{QStringLiteral("tableInconnue"), nom, {compter(nom)}});
        }
    }

    /// What is left out anyway may be damaged.
    QString compter(const QString &table) const
    {
        try {
            return QString::number(m_jet.ouvrir(table)->rangees());
        } catch (const Echec &) {
            return QStringLiteral("?");
        }
    }

    const Jet &m_jet;
    const Dire &m_dire;
};

/// The rows of one table, carried over.
class Report
{
public:
    Report(Paire &paire, Neuve &neuve, const Dire &dire)
        : m_paire(paire)
        , m_neuve(neuve)
        , m_dire(dire)
    {
    }

    void reporter(Progression &progression)
    {
        m_neuve.commencer(*m_paire.cible);
        qint64 gardees = 0;
        while (m_paire.source->suivante()) {
            gardees += reporterLigne();
            progression.avancer();
        }
        if (m_neuve.compter() != gardees)
            throw Echec(Code::Ecriture,
                QStringLiteral("La table %1 n'a pas été écrite en entier.")
                    .arg(QLatin1String(m_paire.cible->nom)));
        m_dire(Conversion::TableLue{QLatin1String(m_paire.cible->nom), gardees});
    }

private:
    const Schema::Colonne &champ(std::size_t i) const { return m_paire.cible->colonnes[i]; }

    /// True when the row is kept.
    bool reporterLigne()
    {
        m_rangee.clear();
        m_pertes.clear();
        for (std::size_t i = 0; i < m_paire.champs.size(); ++i)
            reporterCellule(i);
        const bool cle = champ(0).type == Schema::Type::Cle;
        if (cle && !std::holds_alternative<qint64>(m_rangee[0])) {
            m_dire(ecarte("identifiant", *m_paire.cible, contenu()));
            return false;
        }
        if (!m_neuve.ajouter(m_rangee)) {
            m_dire(ecarte("double", *m_paire.cible, contenu()));
            return false;
        }
        for (const Ecarte &perte : m_pertes)
            m_dire(perte);
        return true;
    }

    void reporterCellule(std::size_t i)
    {
        const auto source = m_paire.champs[i];
        const QString cellule = source ? m_paire.source->cellule(*source) : QString();
        const auto sorte = source ? m_paire.source->champs()[*source].sorte : TableJet::Sorte::Texte;
        const Cellules::Convertie convertie = Cellules::Convertir(cellule, sorte, champ(i).type);
        m_rangee.push_back(convertie.valeur);
        if (convertie.perte == Perte::Aucune)
            return;
        m_pertes.push_back(ecarte(convertie.perte == Perte::Montant ? "montant" : "nombre", *m_paire.cible,
            {m_paire.source->cellule(m_paire.champs[0].value_or(0)), QLatin1String(champ(i).nom), cellule}));
    }

    /// All that the row says, so that nothing is lost with it.
    QStringList contenu() const
    {
        const auto &source = *m_paire.source;
        QStringList cellules;
        for (std::size_t i = 0; i < m_paire.champs.size(); ++i) {
            const auto rang = m_paire.champs[i];
            const QString cellule = rang ? source.cellule(*rang) : QString();
            const bool pose
                = rang && (source.champs()[*rang].sorte != TableJet::Sorte::Booleen || cellule != u'0');
            if (pose && !cellule.isEmpty())
                cellules << QLatin1String(champ(i).nom) + u'=' + cellule;
        }
        return cellules;
    }

    Paire &m_paire;
    Neuve &m_neuve;
    const Dire &m_dire;
    std::vector<Cellules::Valeur> m_rangee;
    std::vector<Ecarte> m_pertes; ///< to say when the row is kept
};

Neuve::Nature natureDe(const Jet &jet)
{
    if (jet.contient(QStringLiteral("Album")))
        return Neuve::Nature::Collection;
    if (jet.contient(QLatin1String(Schema::DefinitionDuCatalogue().nom)))
        return Neuve::Nature::Catalogue;
    throw Echec(Code::Etrangere, QStringLiteral("Le fichier n'a ni albums ni catalogue de référence."));
}

}

void Convertisseur::Convertir(const QString &ancien, const QString &nouveau, const Dire &dire)
{
    const QFileInfo place(nouveau);
    if (place.exists() || place.isSymLink())
        throw Echec(Code::Existe, QStringLiteral("Le nouveau fichier existe déjà."));
    const Jet jet(ancien);
    const Neuve::Nature nature = natureDe(jet);
    const bool collection = nature == Neuve::Nature::Collection;
    const std::vector<Schema::Table> catalogue{Schema::DefinitionDuCatalogue()};
    std::vector<Paire> paires
        = Rapprochement(jet, dire).rapprocher(collection ? Schema::Definitions() : catalogue);

    qint64 total = 0;
    for (const Paire &paire : paires)
        total += paire.source->rangees();
    Progression progression(total, dire);
    Neuve neuve(nouveau, nature);
    for (Paire &paire : paires)
        Report(paire, neuve, dire).reporter(progression);
    neuve.achever();
    progression.dire(100);
    dire(Conversion::Fini{collection ? QStringLiteral("collection") : QStringLiteral("catalogue")});
}
