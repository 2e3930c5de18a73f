#include "core/ui/PanneauWeb.h"

#include <QPointer>
#include <QTextStream>
#include <QWebEngineCertificateError>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>
#include <unistd.h>

namespace {

using Acces = FabriqueWeb::Acces;

bool estDuWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

/// A page's own data and blank frames name no place; everything else is the web, or the files of the machine.
bool estPermise(const QUrl &url, Acces acces)
{
    if (url.scheme() == QLatin1String("data") || url.scheme() == QLatin1String("about"))
        return true;
    return acces == Acces::Web ? estDuWeb(url) : url.isLocalFile();
}

/// Stands between a page and all that it asks for: pictures, frames, scripts.
class Garde : public QWebEngineUrlRequestInterceptor
{
public:
    Garde(Acces acces, QObject *parent)
        : QWebEngineUrlRequestInterceptor(parent)
        , m_acces(acces)
    {
    }
    void interceptRequest(QWebEngineUrlRequestInfo &demande) override
    {
        demande.block(!estPermise(demande.requestUrl(), m_acces));
    }

private:
    Acces m_acces;
};

/// A page that leads nowhere but to pages of its kind, opens no windows and is granted nothing.
class Page : public QWebEnginePage
{
public:
    Page(Acces acces, QWebEngineProfile *profil, QObject *parent)
        : QWebEnginePage(profil, parent)
        , m_acces(acces)
    {
        connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origine, QWebEnginePage::Feature quoi) {
                setFeaturePermission(origine, quoi, PermissionDeniedByUser);
            });
        connect(this, &QWebEnginePage::certificateError, this,
            [](QWebEngineCertificateError erreur) { erreur.rejectCertificate(); });
    }

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType, bool principale) override
    {
        return principale ? (m_acces == Acces::Web ? estDuWeb(url) : url.isLocalFile())
                          : estPermise(url, m_acces);
    }
    /// A link for a new window opens here.
    QWebEnginePage *createWindow(WebWindowType) override { return this; }
    void javaScriptAlert(const QUrl &, const QString &) override { }
    bool javaScriptConfirm(const QUrl &, const QString &) override { return false; }
    bool javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) override
    {
        return false;
    }
    void javaScriptConsoleMessage(
        JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override
    {
    }

private:
    Acces m_acces;
};

/// What a page leaves behind is forgotten with it; what it wants to download is refused.
QWebEngineProfile *profil(Acces acces, QObject *parent)
{
    auto *profil = new QWebEngineProfile(parent);
    profil->setUrlRequestInterceptor(new Garde(acces, profil));
    QWebEngineSettings *reglages = profil->settings();
    for (const auto quoi : {QWebEngineSettings::PluginsEnabled, QWebEngineSettings::JavascriptCanOpenWindows,
             QWebEngineSettings::JavascriptCanAccessClipboard, QWebEngineSettings::FullScreenSupportEnabled,
             QWebEngineSettings::LocalContentCanAccessRemoteUrls, QWebEngineSettings::PdfViewerEnabled,
             QWebEngineSettings::ScreenCaptureEnabled})
        reglages->setAttribute(quoi, false);
    reglages->setAttribute(QWebEngineSettings::JavascriptEnabled, acces == Acces::Web);
    QObject::connect(profil, &QWebEngineProfile::downloadRequested, profil,
        [](QWebEngineDownloadRequest *demande) { demande->cancel(); });
    return profil;
}

class Panneau : public QObject, public PanneauWeb
{
public:
    Panneau(Acces acces, QWidget *parent)
        : m_vue(new QWebEngineView(parent))
    {
        m_vue->setPage(new Page(acces, profil(acces, m_vue), m_vue));
        m_vue->setContextMenuPolicy(Qt::NoContextMenu);
        connect(m_vue, &QWebEngineView::urlChanged, this, [this](const QUrl &url) {
            dire(adresseChangee, url);
            direHistorique();
        });
        connect(m_vue, &QWebEngineView::loadProgress, this, [this](int pourcent) { dire(avance, pourcent); });
        connect(m_vue, &QWebEngineView::loadFinished, this, [this](bool reussi) {
            dire(chargee, reussi);
            direHistorique();
        });
    }

    ~Panneau() override
    {
        // The page goes before its profile, which the view would end first.
        if (!m_vue)
            return;
        m_vue->disconnect(this);
        delete m_vue->page();
    }

    QWidget *widget() override { return m_vue; }
    void aller(const QUrl &url) override { m_vue->load(url); }
    void reculer() override { m_vue->back(); }
    void avancer() override { m_vue->forward(); }

private:
    void direHistorique()
    {
        dire(historiqueChange, m_vue->history()->canGoBack(), m_vue->history()->canGoForward());
    }
    template <class F, class... Args>
    static void dire(const F &fonction, Args... args)
    {
        if (fonction)
            fonction(args...);
    }

    QPointer<QWebEngineView> m_vue;
};

}

/// The plug-in's entry.
class Greffon : public QObject, public FabriqueWeb
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FabriqueWeb_iid)
    Q_INTERFACES(FabriqueWeb)

public:
    Greffon()
    {
        // The engine's sandbox does not work for root, who must do without it.
        if (geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX")) {
            qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
            QTextStream(stderr) << QStringLiteral("bulleo: root, so the browser runs without its sandbox\n");
        }
    }

    std::unique_ptr<PanneauWeb> creer(Acces acces, QWidget *parent) override
    {
        return std::make_unique<Panneau>(acces, parent);
    }
};

#include "Greffon.moc"
