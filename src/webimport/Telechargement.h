#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

/// The download of one file over http or https into memory, with limits on what a server may cost: time in
/// all, bytes, redirections.
class Telechargement : public QObject
{
    Q_OBJECT

public:
    struct Limites
    {
        int ms = 20'000;
        qint64 octets = 20 << 20;
        int renvois = 5;
    };

    /// An address as it is typed: "http://" is assumed where there is no scheme.
    static QUrl AdresseDe(const QString &texte);
    /// True for an address of the web, with a host.
    static bool EstDuWeb(const QUrl &url);

    explicit Telechargement(QObject *parent = nullptr);
    Telechargement(const Limites &limites, QObject *parent);

    /// Begins; one at a time. Exactly one of `fini` and `echoue` follows.
    void commencer(const QUrl &url);
    /// Ends it with `echoue` and an empty reason.
    void annuler();

Q_SIGNALS:
    /// Bytes received so far and in all; -1 when the server does not say.
    void avance(qint64 recus, qint64 total);
    void fini(const QByteArray &octets);
    /// Why it failed, in one line for the user.
    void echoue(const QString &raison);

private:
    void lire();
    void finir();
    void abandonner(const QString &raison);

    Limites m_limites;
    QNetworkAccessManager *m_reseau;
    QNetworkReply *m_reponse = nullptr;
    QTimer m_delai;
    QByteArray m_octets;
};
