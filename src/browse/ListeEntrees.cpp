#include "browse/ListeEntrees.h"

void ListeEntrees::remplir(General::Tri tri, Entrees entrees)
{
    beginResetModel();
    m_tri = tri;
    m_entrees = std::move(entrees);
    endResetModel();
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
    const int rang = m_entrees.rang(id);
    return rang < 0 ? QModelIndex() : index(rang);
}

bool ListeEntrees::estPretee(int id) const
{
    return m_tri == General::Tri::Albums && std::binary_search(m_pretes.begin(), m_pretes.end(), id);
}

int ListeEntrees::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entrees.size();
}

QVariant ListeEntrees::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_entrees.texte(index.row());
    case Qt::UserRole:
        return QStringLiteral("N %1").arg(m_entrees.id(index.row()));
    case Qt::DecorationRole:
        return estPretee(m_entrees.id(index.row())) ? m_iconePretee : m_icone;
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
    if (role != Qt::EditRole || !index.isValid() || valeur.toString() == m_entrees.texte(index.row()))
        return false;
    Q_EMIT renommageDemande(m_tri, m_entrees.id(index.row()), valeur.toString());
    return true;
}
