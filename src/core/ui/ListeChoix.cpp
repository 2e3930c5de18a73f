#include "core/ui/ListeChoix.h"

#include "core/Texte.h"
#include "core/ui/LigneCompletee.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace {

constexpr int RolePlie = Qt::UserRole + 1;

/// Compares folded texts and completes with the name as it is written.
class Completion : public QCompleter
{
public:
    explicit Completion(const LigneCompletee *ligne, QObject *parent)
        : QCompleter(parent)
        , m_ligne(ligne)
    {
    }

    QStringList splitPath(const QString &saisie) const override
    {
        // What the line has completed by itself needs no list.
        return {m_ligne->estCompletee() ? QString(QChar(0xFFFF)) : Texte::Plier(saisie)};
    }
    QString pathFromIndex(const QModelIndex &index) const override
    {
        return index.data(Qt::DisplayRole).toString();
    }

private:
    const LigneCompletee *m_ligne;
};

}

ListeChoix::ListeChoix(QWidget *parent)
    : QComboBox(parent)
{
    auto *ligne = new LigneCompletee(
        [this](const QString &saisie) { return LigneCompletee::SeulNom(m_noms, m_plies, saisie); });
    setEditable(true);
    setLineEdit(ligne);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setMaxVisibleItems(14);
    auto *completion = new Completion(ligne, this);
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
    m_noms = noms;
    m_plies.clear();
    for (const QString &nom : noms) {
        m_plies << Texte::Plier(nom);
        auto *ligne = new QStandardItem(nom);
        ligne->setData(m_plies.last(), RolePlie);
        modele->appendRow(ligne);
    }
    // The list takes the model that it owns and drops the one before; the completion only borrows it.
    setModel(modele);
    completer()->setModel(modele);
    setCurrentIndex(-1);
    setEditText(saisie);
}
