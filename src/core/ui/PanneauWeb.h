#pragma once

#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>

class QWidget;

/// A web page in a widget, as the plug-in that knows the browser engine gives it. What it announces goes to the
/// functions that are set.
class PanneauWeb
{
public:
    virtual ~PanneauWeb() = default;

    /// Owned by its parent widget.
    virtual QWidget *widget() = 0;
    virtual void aller(const QUrl &url) = 0;
    virtual void reculer() = 0;
    virtual void avancer() = 0;

    std::function<void(const QUrl &)> adresseChangee;
    std::function<void(int pourcent)> avance;
    std::function<void(bool reussi)> chargee;
    std::function<void(bool peutReculer, bool peutAvancer)> historiqueChange;
};

/// What the plug-in makes.
class FabriqueWeb
{
public:
    virtual ~FabriqueWeb() = default;

    /// Which pages a panel may show: those of the web, or one file of this machine with its pictures.
    enum class Acces { Web, Fichier };
    virtual std::unique_ptr<PanneauWeb> creer(Acces acces, QWidget *parent) = 0;
};

#define FabriqueWeb_iid "bulleo.FabriqueWeb/1"
Q_DECLARE_INTERFACE(FabriqueWeb, FabriqueWeb_iid)
