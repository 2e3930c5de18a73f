#include "core/ui/Clarte.h"

#include "core/Reglages.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QTimer>
#include <utility>

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Objet = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Section = QStringLiteral("org.freedesktop.appearance");
const QString Choix = QStringLiteral("color-scheme");
/// The desktop is asked when the first window is there.
constexpr int AttenteMs = 500;
constexpr unsigned PreferenceSombre = 1;

/// The portal wraps its values once or twice, after its version.
unsigned nombreDe(QVariant valeur)
{
    while (valeur.canConvert<QDBusVariant>())
        valeur = valeur.value<QDBusVariant>().variant();
    return valeur.toUInt();
}

/// Where there is no portal the platform's own palette tells.
bool paletteSombre()
{
    const QPalette p = QGuiApplication::palette();
    return p.color(QPalette::Window).lightness() < p.color(QPalette::WindowText).lightness();
}

}

Clarte::Clarte(QObject *parent)
    : QObject(parent)
    , m_sombre(paletteSombre() || Reglages::courant().booleen(Cle::BureauSombre))
{
    // Finding the bus may take longer than all the rest of a start: until it has answered, last time's answer holds.
    QTimer::singleShot(AttenteMs, this, &Clarte::demander);
}

void Clarte::demander()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(Service, Objet, Interface, QStringLiteral("SettingChanged"), this,
        SLOT(recevoir(QString, QString, QDBusVariant)));
    QDBusMessage demande = QDBusMessage::createMethodCall(Service, Objet, Interface, QStringLiteral("Read"));
    demande << Section << Choix;
    auto *attente = new QDBusPendingCallWatcher(bus.asyncCall(demande), this);
    connect(attente, &QDBusPendingCallWatcher::finished, this, [this, attente] {
        const QDBusPendingReply<QDBusVariant> reponse = *attente;
        attente->deleteLater();
        if (!reponse.isError())
            noter(nombreDe(reponse.value().variant()) == PreferenceSombre);
    });
}

void Clarte::noter(bool sombre)
{
    Reglages::courant().ecrire(Cle::BureauSombre, sombre);
    if (sombre == std::exchange(m_sombre, sombre))
        return;
    Q_EMIT change();
}

void Clarte::recevoir(const QString &section, const QString &cle, const QDBusVariant &valeur)
{
    if (section != Section || cle != Choix)
        return;
    noter(nombreDe(valeur.variant()) == PreferenceSombre);
}
