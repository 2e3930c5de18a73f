#include "core/ui/ListeChoix.h"

#include "core/Texte.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace {

constexpr int RolePlie = Qt::UserRole + 1;

/// Compares folded texts and completes with the name as it is written.
class Completion : public QCompleter
{
public:
    using QCompleter::QCompleter;

    QStringList splitPath(const QString &saisie) const override { return {Texte::Plier(saisie)}; }
    QString pathFromIndex(const QModelIndex &index) const override
    {
        return index.data(Qt::DisplayRole).toString();
    }
};

}

ListeChoix::ListeChoix(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setMaxVisibleItems(14);
    auto *completion = new Completion(this);
    completion->setCompletionRole(RolePlie);
    completion->setFilterMode(Qt::MatchContains);
    completion->setCaseSensitivity(Qt::CaseInsensitive);
    completion->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(completion);
    proposer({});
}

void ListeChoix::proposer(const QStringList &noms)
{
    const QString saisie = currentText();
    // A new model makes its first line the current one for a moment.
    const QSignalBlocker muette(this);
    auto *modele = new QStandardItemModel(this);
    for (const QString &nom : noms) {
        auto *ligne = new QStandardItem(nom);
        ligne->setData(Texte::Plier(nom), RolePlie);
        modele->appendRow(ligne);
    }
    // The list takes the model that it owns and drops the one before; the completion only borrows it.
    setModel(modele);
    completer()->setModel(modele);
    setCurrentIndex(-1);
    setEditText(saisie);
}
