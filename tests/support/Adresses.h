#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// Takes the addresses of web pages, mail and files in the desktop's place, as long as it lives.
class Adresses : public QObject
{
    Q_OBJECT

public:
    Adresses()
    {
        for (const char *sorte : {"http", "mailto", "file"})
            QDesktopServices::setUrlHandler(sorte, this, "prendre");
    }
    ~Adresses() override
    {
        for (const char *sorte : {"http", "mailto", "file"})
            QDesktopServices::unsetUrlHandler(sorte);
    }
    Adresses(const Adresses &) = delete;
    Adresses &operator=(const Adresses &) = delete;

    QStringList prises;

public Q_SLOTS:
    void prendre(const QUrl &url) { prises << url.toString(); }
};
