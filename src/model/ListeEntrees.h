#pragma once

#include "model/Entrees.h"
#include "model/General.h"

#include <QAbstractListModel>
#include <QIcon>

/// The lines of one list for a view: text, key ("N 12", in Qt::UserRole) and icon of each.
class ListeEntrees : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Replaces all lines. `tri` is the kind of the entries.
    void remplir(General::Tri tri, Entrees entrees);
    void vider() { remplir(m_tri, {}); }
    /// Shows only the lines that hold this text, whatever case and accents; all of them for a blank one.
    void filtrer(const QString &texte);
    /// Shows only the lines of these entries, besides; all of them without any.
    void restreindre(std::vector<int> ids);
    /// What stands before the number in a key: "N " unless told otherwise.
    void poserPrefixe(const QString &prefixe) { m_prefixe = prefixe; }
    /// Opens an empty line at the end, number 0, for a new entry to be named in; closing it takes it away.
    QModelIndex ouvrirNeuve();
    void fermerNeuve();
    bool aUneNeuve() const { return m_neuve; }
    /// The icon of every line, and the one of albums that are lent.
    void poserIcones(const QIcon &icone, const QIcon &pretee);
    /// Numbers of the lent albums, in rising order.
    void poserPretes(std::vector<int> numeros);

    General::Tri tri() const { return m_tri; }
    int id(const QModelIndex &index) const
    {
        return index.isValid() && !estNeuve(index) ? m_entrees.id(ligneDe(index.row())) : 0;
    }
    QModelIndex indexDe(int id) const;
    /// The entries shown.
    std::vector<int> visibles() const;
    const Entrees &entrees() const { return m_entrees; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &valeur, int role) override;

Q_SIGNALS:
    /// A label was edited; of the new line, with number 0. The line keeps its text until the collection says
    /// that it has changed.
    void renommageDemande(General::Tri tri, int id, const QString &libelle);

private:
    bool estPretee(int id) const;
    int lignesLues() const;
    bool estNeuve(const QModelIndex &index) const { return m_neuve && index.row() == lignesLues(); }
    int ligneDe(int rang) const { return m_filtree ? m_visibles[static_cast<std::size_t>(rang)] : rang; }
    void plier();
    void chercher();

    General::Tri m_tri = General::Tri::Albums;
    Entrees m_entrees;
    Entrees m_plies; ///< the texts as a search compares them; made by the first search
    QString m_filtre;
    std::vector<int> m_seulement; ///< the entries that may show, in rising order; all when it is empty
    bool m_filtree = false;
    bool m_neuve = false;
    std::vector<int> m_visibles; ///< lines shown while filtered
    QString m_prefixe = QStringLiteral("N ");
    std::vector<int> m_pretes;
    QIcon m_icone;
    QIcon m_iconePretee;
};
