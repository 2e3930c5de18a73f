#include "core/ui/VueWeb.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QPluginLoader>
#include <QSurfaceFormat>
#include <QVBoxLayout>

// Exported by Qt Gui for its own modules: the context that all windows share. The application attribute that
// would make it costs every start some 60 ms; made here, only those pay who open a page.
extern Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);

namespace {

void partagerContexte()
{
    if (QOpenGLContext::globalShareContext())
        return;
    auto *contexte = new QOpenGLContext(qApp);
    contexte->setFormat(QSurfaceFormat::defaultFormat());
    contexte->create();
    qt_gl_set_global_share_context(contexte);
}

QString cheminDuGreffon()
{
    const QString dossier = qEnvironmentVariable(
        "BULLEO_GREFFONS", QCoreApplication::applicationDirPath() + QStringLiteral("/greffons"));
    return dossier + QStringLiteral("/bulleo_web");
}

/// The plug-in, or null where it is not installed.
FabriqueWeb *fabrique()
{
    QPluginLoader chargeur(cheminDuGreffon());
    // Looking at its file is cheap and tells whether there is one; loaded it is once.
    if (chargeur.metaData().isEmpty())
        return nullptr;
    partagerContexte();
    return qobject_cast<FabriqueWeb *>(chargeur.instance());
}

}

VueWeb::VueWeb(FabriqueWeb::Acces acces, QWidget *parent)
    : QWidget(parent)
    , m_acces(acces)
{
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
}

VueWeb::~VueWeb() = default;

bool VueWeb::preparer()
{
    if (m_panneau || !fabrique())
        return m_panneau != nullptr;
    m_panneau = fabrique()->creer(m_acces, this);
    m_panneau->adresseChangee = [this](const QUrl &url) { Q_EMIT adresseChangee(url); };
    m_panneau->avance = [this](int pourcent) { Q_EMIT avance(pourcent); };
    m_panneau->chargee = [this](bool reussi) { Q_EMIT chargee(reussi); };
    m_panneau->historiqueChange
        = [this](bool peutReculer, bool peutAvancer) { Q_EMIT historiqueChange(peutReculer, peutAvancer); };
    m_panneau->widget()->setObjectName(QStringLiteral("WebBrowser1"));
    setFocusProxy(m_panneau->widget());
    layout()->addWidget(m_panneau->widget());
    return true;
}

void VueWeb::aller(const QUrl &url)
{
    if (preparer())
        m_panneau->aller(url);
}

void VueWeb::reculer()
{
    if (m_panneau)
        m_panneau->reculer();
}

void VueWeb::avancer()
{
    if (m_panneau)
        m_panneau->avancer();
}
