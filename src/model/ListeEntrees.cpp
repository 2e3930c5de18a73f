#include "model/ListeEntrees.h"

#include "core/Texte.h"

namespace {

constexpr qsizetype LettresMontrees = 400;

}

void ListeEntrees::remplir(General::Tri tri, Entrees entrees)
{
    beginResetModel();
    m_tri = tri;
    m_entrees = std::move(entrees);
    m_plies = {};
    m_neuve = false;
    chercher();
    endResetModel();
}

void ListeEntrees::filtrer(const QString &texte)
{
    const QString plie = Texte::Plier(texte.trimmed());
    if (plie == m_filtre)
        return;
    beginResetModel();
    m_filtre = plie;
    chercher();
    endResetModel();
}

void ListeEntrees::restreindre(std::vector<int> ids)
{
    std::sort(ids.begin(), ids.end());
    if (ids == m_seulement)
        return;
    beginResetModel();
    m_seulement = std::move(ids);
    chercher();
    endResetModel();
}

void ListeEntrees::plier()
{
    if (m_plies.size() == m_entrees.size())
        return;
    m_plies = {};
    for (int i = 0; i < m_entrees.size(); ++i)
        m_plies.ajouter(m_entrees.id(i), Texte::Plier(m_entrees.texte(i)).toStdString());
}

void ListeEntrees::chercher()
{
    const bool parTexte = !m_filtre.isEmpty();
    m_filtree = parTexte || !m_seulement.empty();
    m_visibles.clear();
    if (!m_filtree)
        return;
    if (parTexte)
        plier();
    const std::string voulu = m_filtre.toStdString();
    for (int i = 0; i < m_entrees.size(); ++i) {
        const bool permise = m_seulement.empty()
            || std::binary_search(m_seulement.begin(), m_seulement.end(), m_entrees.id(i));
        if (permise && (!parTexte || m_plies.utf8(i).find(voulu) != std::string_view::npos))
            m_visibles.push_back(i);
    }
}

void ListeEntrees::poserIcones(const QIcon &icone, const QIcon &pretee)
{
    m_icone = icone;
    m_iconePretee = pretee;
    if (!m_entrees.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
}

void ListeEntrees::poserPretes(std::vector<int> numeros)
{
    if (m_pretes == numeros)
        return;
    m_pretes = std::move(numeros);
    if (!m_entrees.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
}

QModelIndex ListeEntrees::indexDe(int id) const
{
    const int ligne = m_entrees.rang(id);
    if (ligne < 0 || !m_filtree)
        return ligne < 0 ? QModelIndex() : index(ligne);
    const auto visible = std::lower_bound(m_visibles.begin(), m_visibles.end(), ligne);
    const bool la = visible != m_visibles.end() && *visible == ligne;
    return la ? index(static_cast<int>(visible - m_visibles.begin())) : QModelIndex();
}

std::vector<int> ListeEntrees::visibles() const
{
    std::vector<int> ids;
    ids.reserve(static_cast<std::size_t>(lignesLues()));
    for (int i = 0; i < lignesLues(); ++i)
        ids.push_back(m_entrees.id(ligneDe(i)));
    return ids;
}

bool ListeEntrees::estPretee(int id) const
{
    return m_tri == General::Tri::Albums && std::binary_search(m_pretes.begin(), m_pretes.end(), id);
}

int ListeEntrees::lignesLues() const
{
    return m_filtree ? static_cast<int>(m_visibles.size()) : m_entrees.size();
}

int ListeEntrees::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : lignesLues() + (m_neuve ? 1 : 0);
}

QModelIndex ListeEntrees::ouvrirNeuve()
{
    if (!m_neuve) {
        beginInsertRows({}, lignesLues(), lignesLues());
        m_neuve = true;
        endInsertRows();
    }
    return index(lignesLues());
}

void ListeEntrees::fermerNeuve()
{
    if (!m_neuve)
        return;
    beginRemoveRows({}, lignesLues(), lignesLues());
    m_neuve = false;
    endRemoveRows();
}

QVariant ListeEntrees::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (estNeuve(index))
        return role == Qt::DecorationRole ? QVariant(m_icone) : QVariant();
    const int ligne = ligneDe(index.row());
    switch (role) {
    case Qt::DisplayRole:
        // No line is so wide, and measuring all of a book would take its time at each painting.
        return m_entrees.debut(ligne, LettresMontrees);
    case Qt::EditRole:
        return m_entrees.texte(ligne);
    case Qt::UserRole:
        return m_prefixe + QString::number(m_entrees.id(ligne));
    case Qt::DecorationRole:
        return estPretee(m_entrees.id(ligne)) ? m_iconePretee : m_icone;
    default:
        return {};
    }
}

QVariant ListeEntrees::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("Titre");
    return {};
}

Qt::ItemFlags ListeEntrees::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

bool ListeEntrees::setData(const QModelIndex &index, const QVariant &valeur, int role)
{
    if (role != Qt::EditRole || !index.isValid() || valeur.toString() == index.data().toString())
        return false;
    Q_EMIT renommageDemande(m_tri, id(index), valeur.toString());
    return true;
}
