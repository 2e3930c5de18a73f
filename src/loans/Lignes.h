#pragma once

#include <QCollatorSortKey>
#include <QStandardItem>
#include <optional>

class QTreeView;

/// The lines of the lists of loans: each is known by its number, "N 12", and sorts by what it says.
namespace Lignes {

/// Words sort as the language in force orders them, a number before them by its value.
class Cellule : public QStandardItem
{
public:
    Cellule(const QString &texte, int id, std::optional<int> nombre = {});

    void setData(const QVariant &valeur, int role) override;
    bool operator<(const QStandardItem &autre) const override;

private:
    std::optional<int> m_nombre;
    QCollatorSortKey m_cle;
};

/// A list of them, sorted by the headings that are clicked.
void Preparer(QTreeView *liste, QStandardItemModel &modele);
/// Sorts it anew, as its heading says.
void Trier(const QTreeView *liste, QStandardItemModel &modele);

QString Cle(int id);
/// The number of the current line, 0 when there is none.
int Courante(const QTreeView *liste);
/// The number of a line, whichever of its cells.
int NumeroDe(const QModelIndex &cellule);
/// Makes the line of a number the current one; without such a line, the one that took its place.
void Retrouver(QTreeView *liste, int id, int rang);

}
