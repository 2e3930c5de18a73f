#include "webimport/Telechargement.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

QUrl Telechargement::AdresseDe(const QString &texte)
{
    const QString nette = texte.trimmed();
    return QUrl(
        nette.contains(QLatin1String("://")) ? nette : QStringLiteral("http://") + nette, QUrl::TolerantMode);
}

bool Telechargement::EstDuWeb(const QUrl &url)
{
    const bool duWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return duWeb && url.isValid() && !url.host().isEmpty();
}

Telechargement::Telechargement(QObject *parent)
    : Telechargement(Limites(), parent)
{
}

Telechargement::Telechargement(const Limites &limites, QObject *parent)
    : QObject(parent)
    , m_limites(limites)
    , m_reseau(new QNetworkAccessManager(this))
{
    m_delai.setSingleShot(true);
    connect(&m_delai, &QTimer::timeout, this, [this] { abandonner(tr("Le serveur est trop lent.")); });
}

void Telechargement::commencer(const QUrl &url)
{
    Q_ASSERT(!m_reponse);
    m_octets.clear();
    if (!EstDuWeb(url)) {
        QTimer::singleShot(
            0, this, [this] { Q_EMIT echoue(tr("Cette adresse n'est pas une adresse web.")); });
        return;
    }
    QNetworkRequest demande(url);
    // A redirection leads from http to http or https, never to a file.
    demande.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    demande.setMaximumRedirectsAllowed(m_limites.renvois);
    m_reponse = m_reseau->get(demande);
    connect(m_reponse, &QNetworkReply::readyRead, this, &Telechargement::lire);
    connect(m_reponse, &QNetworkReply::finished, this, &Telechargement::finir);
    connect(m_reponse, &QNetworkReply::downloadProgress, this, &Telechargement::avance);
    m_delai.start(m_limites.ms);
}

void Telechargement::annuler()
{
    if (m_reponse)
        abandonner({});
}

void Telechargement::lire()
{
    m_octets += m_reponse->readAll();
    if (m_octets.size() > m_limites.octets)
        abandonner(tr("Le fichier est trop gros."));
}

void Telechargement::finir()
{
    if (!m_reponse)
        return;
    if (m_reponse->error() != QNetworkReply::NoError)
        return abandonner(m_reponse->errorString());
    lire();
    if (!m_reponse)
        return;
    m_delai.stop();
    std::exchange(m_reponse, nullptr)->deleteLater();
    Q_EMIT fini(m_octets);
}

void Telechargement::abandonner(const QString &raison)
{
    m_delai.stop();
    QNetworkReply *reponse = std::exchange(m_reponse, nullptr);
    reponse->disconnect(this);
    reponse->abort();
    reponse->deleteLater();
    m_octets.clear();
    Q_EMIT echoue(raison);
}
