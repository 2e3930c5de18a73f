#include "pictures/Acquereur.h"

#include "core/Error.h"

Acquereur::Acquereur(std::unique_ptr<Numeriseur> numeriseur, QObject *parent)
    : QObject(parent)
    , m_numeriseur(std::move(numeriseur))
{
}

Acquereur::~Acquereur()
{
    m_annule = true;
    if (m_fil)
        m_fil->wait();
}

/// Runs a work in the thread; what it returns is run here, once the thread is done.
template <class Travail>
void Acquereur::lancer(Travail travail)
{
    Q_ASSERT(!m_fil);
    m_annule = false;
    auto suite = std::make_shared<std::function<void()>>();
    m_fil.reset(QThread::create([this, travail, suite] {
        try {
            *suite = travail();
        } catch (const Error &e) {
            *suite = [this, raison = e.message()] { Q_EMIT echouee(raison); };
        } catch (const std::exception &e) {
            *suite = [this, raison = QString::fromUtf8(e.what())] { Q_EMIT echouee(raison); };
        }
    }));
    connect(m_fil.get(), &QThread::finished, this, [this, suite] {
        m_fil.release()->deleteLater();
        (*suite)();
    });
    m_fil->start();
}

void Acquereur::lister()
{
    lancer([this]() -> std::function<void()> {
        return [this, sources = m_numeriseur->sources()] { Q_EMIT listee(sources); };
    });
}

void Acquereur::acquerir(const QString &source)
{
    lancer([this, source]() -> std::function<void()> {
        const QImage image = m_numeriseur->acquerir(source, [this](int pourcent) {
            Q_EMIT avance(pourcent);
            return !m_annule;
        });
        return [this, image] { Q_EMIT acquise(image); };
    });
}
