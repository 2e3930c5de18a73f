#pragma once

#include <QTcpServer>
#include <QTimer>

/// A small online catalogue on the loopback: a home page, albums' pages in the mark-up that the import reads,
/// their covers, and pages that a hostile or broken server might give.
class ServeurCatalogue : public QTcpServer
{
    Q_OBJECT

public:
    /// Listens on a port of the loopback, any free one for 0.
    explicit ServeurCatalogue(quint16 port = 0);

    /// "http://127.0.0.1:port" and a path behind it.
    QString adresse(const QString &chemin = {}) const;

private:
    void accueillir();
    void repondre(QTcpSocket *client, const QByteArray &chemin);
    void envoyer(QTcpSocket *client, const QByteArray &type, const QByteArray &corps, int code = 200);
    void renvoyer(QTcpSocket *client, const QByteArray &ou);
    void parlerSansFin(QTcpSocket *client);
};
