#pragma once

#include "core/ui/PanneauWeb.h"

#include <QWidget>

/// A place for a web page. The browser engine is a plug-in, loaded when the first page is wanted, so that the
/// start never pays for it; where the plug-in is missing, the place stays empty.
class VueWeb : public QWidget
{
    Q_OBJECT

public:
    VueWeb(FabriqueWeb::Acces acces, QWidget *parent);
    ~VueWeb() override;

    /// Loads the engine, if it is not yet; false where there is none.
    bool preparer();
    void aller(const QUrl &url);
    void reculer();
    void avancer();

Q_SIGNALS:
    void adresseChangee(const QUrl &url);
    void avance(int pourcent);
    void chargee(bool reussi);
    void historiqueChange(bool peutReculer, bool peutAvancer);

private:
    FabriqueWeb::Acces m_acces;
    std::unique_ptr<PanneauWeb> m_panneau;
};
