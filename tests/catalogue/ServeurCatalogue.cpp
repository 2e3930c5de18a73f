#include "catalogue/ServeurCatalogue.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTcpSocket>

namespace {

/// The page of an album, as the import's own tests read it; empty when there is none.
QByteArray page(const QString &nom)
{
    QFile fichier(QStringLiteral(PAGES "/%1.html").arg(nom));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

QByteArray accueil()
{
    QByteArray liens;
    for (const QString &nom : QDir(QStringLiteral(PAGES)).entryList({"*.html"}))
        liens += "<li><a href=\"/catalogue_detail_" + nom.toUtf8() + "\">" + nom.toUtf8() + "</a></li>\n";
    return "<html><head><title>BDNet</title></head><body><h1>BDNet</h1><ul>\n" + liens
        + "</ul></body></html>\n";
}

QByteArray dessin(const QByteArray &nom)
{
    const bool petite = nom.endsWith("_pg.jpg");
    QImage image(petite ? QSize(150, 200) : QSize(300, 400), QImage::Format_RGB32);
    image.fill(QColor::fromHsv(static_cast<int>(qHash(nom) % 360), 120, 200));
    QByteArray octets;
    QBuffer tampon(&octets);
    image.save(&tampon, "JPG");
    return octets;
}

}

ServeurCatalogue::ServeurCatalogue(quint16 port)
{
    connect(this, &QTcpServer::newConnection, this, &ServeurCatalogue::accueillir);
    listen(QHostAddress::LocalHost, port);
}

QString ServeurCatalogue::adresse(const QString &chemin) const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()) + chemin;
}

void ServeurCatalogue::accueillir()
{
    while (QTcpSocket *client = nextPendingConnection()) {
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        connect(client, &QTcpSocket::readyRead, this, [this, client] {
            const QByteArray demande = client->peek(1 << 14);
            if (!demande.contains("\r\n\r\n"))
                return;
            client->readAll();
            repondre(client, demande.split(' ').value(1));
        });
    }
}

void ServeurCatalogue::repondre(QTcpSocket *client, const QByteArray &chemin)
{
    constexpr int Grosse = 5 << 20;
    const QString nom = QString::fromLatin1(chemin).section("catalogue_detail_", 1).section(u'.', 0, 0);
    if (chemin == "/")
        envoyer(client, "text/html; charset=utf-8", accueil());
    else if (chemin.startsWith("/img/couvpage/html"))
        envoyer(client, "text/html", "<html>404, dit en beau</html>");
    else if (chemin.startsWith("/img/couvpage/absente"))
        envoyer(client, "text/plain", "absente", 404);
    else if (chemin.startsWith("/img/couvpage"))
        envoyer(client, "image/jpeg", dessin(chemin));
    else if (nom == "grosse")
        envoyer(client, "text/html", QByteArray("<p>").repeated(Grosse / 3) + page("cosinus"));
    else if (nom == "enorme")
        envoyer(client, "text/html", QByteArray("<p> </p>\n").repeated(3 << 20));
    else if (nom == "sansfin")
        parlerSansFin(client);
    else if (nom == "renvoi")
        renvoyer(client, "/catalogue_detail_cosinus.html");
    else if (nom == "boucle")
        renvoyer(client, chemin);
    else if (nom == "fichier")
        renvoyer(client, "file:///etc/hostname");
    else if (page(nom).isEmpty())
        envoyer(client, "text/plain", "rien", 404);
    else
        envoyer(client, nom == "occidentale" ? "text/html" : "text/html; charset=utf-8", page(nom));
}

void ServeurCatalogue::envoyer(QTcpSocket *client, const QByteArray &type, const QByteArray &corps, int code)
{
    client->write("HTTP/1.1 " + QByteArray::number(code) + " -\r\nContent-Type: " + type
        + "\r\nContent-Length: " + QByteArray::number(corps.size()) + "\r\nConnection: close\r\n\r\n"
        + corps);
    client->disconnectFromHost();
}

void ServeurCatalogue::renvoyer(QTcpSocket *client, const QByteArray &ou)
{
    client->write("HTTP/1.1 302 -\r\nLocation: " + ou + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    client->disconnectFromHost();
}

void ServeurCatalogue::parlerSansFin(QTcpSocket *client)
{
    client->write("HTTP/1.1 200 -\r\nContent-Type: text/html\r\n\r\n");
    auto *bavard = new QTimer(client);
    connect(bavard, &QTimer::timeout, client, [client] { client->write("<p>encore</p>\n"); });
    bavard->start(20);
}
