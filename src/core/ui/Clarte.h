#pragma once

#include <QObject>

/// Whether the desktop wants windows in dark colours, as it says through its portal, and when that changes.
class Clarte : public QObject
{
    Q_OBJECT

public:
    explicit Clarte(QObject *parent = nullptr);

    bool sombre() const { return m_sombre; }

Q_SIGNALS:
    void change();

private Q_SLOTS:
    void recevoir(const QString &section, const QString &cle, const class QDBusVariant &valeur);

private:
    void demander();
    void noter(bool sombre);

    bool m_sombre = false;
};
