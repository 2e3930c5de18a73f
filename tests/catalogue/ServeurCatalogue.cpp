#include "catalogue/ServeurCatalogue.h"

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QStringEncoder>
#include <QTcpSocket>

namespace {

/// An album as its page shows it.
struct Fiche
{
    QString titre;
    QString serie;
    QString tome;
    QString couverture; ///< piece of the path
    QString prix = QStringLiteral("12,50 &euro;");
    QString dessinateurs = QStringLiteral("Christophe");
    QString album = QStringLiteral(" cartonné en couleur");
};

const QHash<QString, Fiche> &fiches()
{
    static const QHash<QString, Fiche> toutes{
        {"cosinus", {"L'Idée fixe du savant Cosinus", "Le Savant Cosinus", "1", "/cosinus_cg"}},
        {"fenouillard",
            {"La Famille Fenouillard", "Fenouillard", "2", "/fenouillard_cg", "9.5 &euro;", "Christophe",
                " broché"}},
        {"sansimage", {"Sans image", "Essais", "3", "/absente_cg"}},
        {"fausseimage", {"Fausse image", "Essais", "4", "/html_cg"}},
        {"evasion", {"../../evasion", "Essais", "5", "/evasion_cg"}},
        {"ouverte", {"Sans <b fin", "Essais", "6", "/ouverte_cg"}},
        {"cher", {"Trop cher", "Essais", "7", "/cher_cg", "à débattre &euro;"}},
        {"occidentale", {"Été à Orléans, œuvre", "Essais", "8", "/ete_cg"}},
    };
    return toutes;
}

QString page(const Fiche &f)
{
    return QStringLiteral("<html><head><title>BDNet</title></head><body>\r\n"
                          "<h1>Série&nbsp;<span>%2 (tome %3)</span></h1>\r\n"
                          "<h2>%1</h2>\r\n"
                          "<p><span class=\"t\">Dessinateurs : </span><a href=\"/a\">%6</a></p>\r\n"
                          "<p>Scénariste : <a href=\"/s\">Georges Colomb</a></p>\r\n"
                          "<p>Genre : <a href=\"/g\">Humour</a></p>\r\n"
                          "<p>Editeur :\r\n<a href=\"/e\" >Armand Colin</a></p>\r\n"
                          "<p>Public :\r\n<a href=\"/p\" >Tous publics</a></p>\r\n"
                          "<p><span>Parution : </span>novembre 1899<span></span></p>\r\n"
                          "<p><span class=\"infoliste\">Album%7</span></p>\r\n"
                          "<p><span>Prix public : </span>%5</p>\r\n"
                          "<img src=\"/img/couvpage%4.jpg\">\r\n"
                          "</body></html>\r\n")
        .arg(f.titre, f.serie, f.tome, f.couverture, f.prix, f.dessinateurs, f.album);
}

QString accueil()
{
    QString liens;
    QStringList noms = fiches().keys();
    noms.sort();
    noms << QStringLiteral("grosse") << QStringLiteral("sansfin") << QStringLiteral("renvoi")
         << QStringLiteral("boucle") << "fichier";
    for (const QString &nom : noms)
        liens += QStringLiteral("<li><a href=\"/catalogue_detail_%1.html\">%1</a></li>\n").arg(nom);
    return QStringLiteral("<html><head><title>BDNet</title></head><body><h1>BDNet</h1><ul>\n%1</ul>"
                          "<p><a href=\"file:///etc/hostname\">fichier</a></p></body></html>\n")
        .arg(liens);
}

QByteArray dessin(const QByteArray &nom)
{
    const bool petite = nom.endsWith("_pg.jpg");
    QImage image(petite ? QSize(150, 200) : QSize(300, 400), QImage::Format_RGB32);
    image.fill(QColor::fromHsv(static_cast<int>(qHash(nom) % 360), 120, 200));
    QPainter p(&image);
    p.fillRect(image.rect().adjusted(20, 20, -20, -image.height() / 2), petite ? Qt::white : Qt::black);
    p.end();
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
        envoyer(client, "text/html; charset=utf-8", accueil().toUtf8());
    else if (chemin.startsWith("/img/couvpage/html"))
        envoyer(client, "text/html", "<html>404, dit en beau</html>");
    else if (chemin.startsWith("/img/couvpage/absente"))
        envoyer(client, "text/plain", "absente", 404);
    else if (chemin.startsWith("/img/couvpage"))
        envoyer(client, "image/jpeg", dessin(chemin));
    else if (nom == QLatin1String("grosse"))
        envoyer(client, "text/html",
            QByteArray("<p>").repeated(Grosse / 3) + page(fiches()[QStringLiteral("cosinus")]).toUtf8());
    else if (nom == QLatin1String("enorme"))
        envoyer(client, "text/html", QByteArray("<p> </p>\n").repeated(3 << 20));
    else if (nom == QLatin1String("sansfin"))
        parlerSansFin(client);
    else if (nom == QLatin1String("renvoi"))
        renvoyer(client, "/catalogue_detail_cosinus.html");
    else if (nom == QLatin1String("boucle"))
        renvoyer(client, chemin);
    else if (nom == QLatin1String("fichier"))
        renvoyer(client, "file:///etc/hostname");
    else if (!fiches().contains(nom))
        envoyer(client, "text/plain", "rien", 404);
    else if (nom == QLatin1String("occidentale"))
        envoyer(client, "text/html",
            QStringEncoder(QStringEncoder::Latin1)(page(fiches()[nom]).replace(QChar(0x153), QChar(0x9C))));
    else
        envoyer(client, "text/html; charset=utf-8", page(fiches()[nom]).toUtf8());
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
