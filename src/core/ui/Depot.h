#pragma once

#include <QObject>
#include <functional>

class QWidget;

/// Takes a file that is dropped on a window.
class Depot : public QObject
{
    Q_OBJECT

public:
    /// `recevoir` is called with the file's path from the event loop, so that what it throws is told.
    Depot(QWidget *sur, std::function<void(const QString &chemin)> recevoir);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    std::function<void(const QString &)> m_recevoir;
};
