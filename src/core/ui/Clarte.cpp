#include "core/ui/Clarte.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Objet = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Section = QStringLiteral("org.freedesktop.appearance");
const QString Choix = QStringLiteral("color-scheme");
/// The program's start does not wait longer for an answer.
constexpr int AttenteMs = 150;
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
    , m_sombre(paletteSombre())
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage demande = QDBusMessage::createMethodCall(Service, Objet, Interface, QStringLiteral("Read"));
    demande << Section << Choix;
    const QDBusMessage reponse = bus.call(demande, QDBus::Block, AttenteMs);
    if (reponse.type() == QDBusMessage::ReplyMessage && !reponse.arguments().isEmpty())
        m_sombre = nombreDe(reponse.arguments().constFirst()) == PreferenceSombre;
    bus.connect(Service, Objet, Interface, QStringLiteral("SettingChanged"), this,
        SLOT(recevoir(QString, QString, QDBusVariant)));
}

void Clarte::recevoir(const QString &section, const QString &cle, const QDBusVariant &valeur)
{
    if (section != Section || cle != Choix)
        return;
    m_sombre = nombreDe(valeur.variant()) == PreferenceSombre;
    Q_EMIT change();
}
