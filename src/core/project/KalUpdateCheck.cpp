#include "KalUpdateCheck.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

namespace {

// Dotted decimal numbers only ("1", "0.10", "2.3.1"); each part fits an int
// so "0.99999999999999999999" cannot wrap around into an older version.
bool versionParts(const QString &text, QVector<int> *parts)
{
    static const QRegularExpression pattern(QStringLiteral("^[0-9]{1,9}(\\.[0-9]{1,9})*$"));
    const QString trimmed = text.trimmed();
    if (!pattern.match(trimmed).hasMatch())
        return false;
    parts->clear();
    for (const QString &part : trimmed.split(QLatin1Char('.')))
        parts->append(part.toInt());
    return true;
}

bool isWebUrl(const QUrl &url)
{
    const QString scheme = url.scheme().toLower();
    return url.isValid() && !url.host().isEmpty() &&
           (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

} // namespace

KalUpdateCheck::KalUpdateCheck(QObject *parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
    , m_timer(new QTimer(this))
    , m_installedVersion(QStringLiteral(PELLWICK_VERSION))
{
    qRegisterMetaType<KalUpdateCheck::Result>();
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, [this] {
        if (!m_reply)
            return;
        m_timedOut = true;
        m_reply->abort();
    });
}

KalUpdateCheck::~KalUpdateCheck()
{
    if (m_reply) {
        // Going away mid-check: nobody is left to hear the answer.
        disconnect(m_reply, nullptr, this, nullptr);
        m_reply->abort();
        m_reply->deleteLater();
    }
}

QString KalUpdateCheck::urlSettingKey()
{
    return QStringLiteral("Update/VersionUrl");
}

int KalUpdateCheck::compareVersions(const QString &a, const QString &b, bool *ok)
{
    QVector<int> left;
    QVector<int> right;
    const bool valid = versionParts(a, &left) && versionParts(b, &right);
    if (ok)
        *ok = valid;
    if (!valid)
        return 0;
    const int count = qMax(left.size(), right.size());
    for (int i = 0; i < count; ++i) {
        const int l = i < left.size() ? left.at(i) : 0;
        const int r = i < right.size() ? right.at(i) : 0;
        if (l != r)
            return l < r ? -1 : 1;
    }
    return 0;
}

KalUpdateCheck::Result KalUpdateCheck::interpretAnswer(const QByteArray &body, const QString &installedVersion)
{
    Result result;
    result.outcome = Failed;
    const QString unreadable = tr("Die Versionsdatei des Update-Servers ist nicht lesbar.");
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        result.text = unreadable;
        result.detailText =
            error.error != QJsonParseError::NoError ? error.errorString() : QStringLiteral("not a JSON object");
        return result;
    }
    const QJsonObject object = document.object();
    const QJsonValue version = object.value(QLatin1String("version"));
    bool ok = false;
    const int order = compareVersions(version.toString(), installedVersion, &ok);
    // A number would lose "0.10" to 0.1: only a string is a version.
    if (!version.isString() || !ok) {
        result.text = unreadable;
        result.detailText = QStringLiteral("\"version\" is no dotted version number");
        return result;
    }
    result.latestVersion = version.toString().trimmed();
    if (order <= 0) {
        result.outcome = UpToDate;
        result.text = tr("Sie verwenden die aktuelle Version %1.").arg(installedVersion);
        return result;
    }
    const QUrl url(object.value(QLatin1String("url")).toString().trimmed(), QUrl::StrictMode);
    if (!isWebUrl(url)) {
        result.text = tr("Die Version %1 ist verfügbar, aber der Update-Server nennt keine gültige "
                         "Download-Seite (http oder https).")
                          .arg(result.latestVersion);
        result.detailText = object.value(QLatin1String("url")).toString().left(200);
        return result;
    }
    result.outcome = NewerAvailable;
    result.downloadUrl = url;
    result.text = tr("Die Version %1 ist verfügbar (installiert ist %2).\nDownload-Seite: %3")
                      .arg(result.latestVersion, installedVersion, url.toDisplayString());
    return result;
}

bool KalUpdateCheck::start()
{
    if (isRunning())
        return false;
    const QString setting = QSettings().value(urlSettingKey()).toString().trimmed();
    Result early;
    if (setting.isEmpty()) {
        early.outcome = NotConfigured;
        early.text = tr("Es ist keine Update-Quelle eingerichtet (Einstellung \"%1\").").arg(urlSettingKey());
    } else {
        const QUrl url(setting, QUrl::TolerantMode);
        const QString scheme = url.scheme().toLower();
        if (isWebUrl(url) || (url.isValid() && scheme == QLatin1String("file"))) {
            startRequest(url);
            return true;
        }
        early.text = tr("Die Update-Quelle \"%1\" ist keine http-, https- oder Datei-Adresse.").arg(setting);
    }
    // Answered on the next turn of the event loop, like a network answer, so
    // callers handle both the same way.
    m_pendingResult = true;
    QTimer::singleShot(0, this, [this, early] {
        m_pendingResult = false;
        emit finished(early);
    });
    return true;
}

void KalUpdateCheck::startRequest(const QUrl &url)
{
    m_url = url;
    m_body.clear();
    m_timedOut = false;
    m_tooBig = false;
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Pellwick/%1").arg(m_installedVersion));
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
        if (length.isValid() && length.toLongLong() > kMaxAnswerBytes) {
            m_tooBig = true;
            m_reply->abort();
        }
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &KalUpdateCheck::collect);
    connect(m_reply, &QNetworkReply::finished, this, &KalUpdateCheck::complete);
    m_timer->start(m_timeoutMs);
}

void KalUpdateCheck::collect()
{
    if (!m_reply || m_tooBig || m_timedOut || !m_reply->isOpen())
        return;
    m_body += m_reply->read(kMaxAnswerBytes + 1 - m_body.size());
    // Counted while it arrives: a server that never stops sending cannot
    // fill the memory.
    if (m_body.size() > kMaxAnswerBytes) {
        m_tooBig = true;
        m_reply->abort();
    }
}

void KalUpdateCheck::complete()
{
    if (!m_reply)
        return;
    collect();
    QNetworkReply *reply = m_reply;
    m_timer->stop();
    Result result;
    const QString where = m_url.isLocalFile() ? QDir::toNativeSeparators(m_url.toLocalFile()) : m_url.toDisplayString();
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (m_tooBig) {
        result = failure(tr("Die Antwort von %1 ist größer als %2 KB und wird nicht gelesen.")
                             .arg(where)
                             .arg(kMaxAnswerBytes / 1024));
    } else if (m_timedOut) {
        result = failure(tr("%1 hat nicht innerhalb von %2 Sekunden geantwortet.")
                             .arg(where, QLocale().toString(m_timeoutMs / 1000.0, 'g', 3)));
    } else if (status.isValid() && status.toInt() != 200) {
        result = failure(tr("Der Update-Server %1 antwortete mit dem Status %2.").arg(where).arg(status.toInt()),
                         reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString());
    } else if (reply->error() != QNetworkReply::NoError) {
        result = failureFromReply();
    } else {
        result = interpretAnswer(m_body, m_installedVersion);
        result.answered = true;
    }
    m_reply = nullptr;
    reply->deleteLater();
    finish(result);
}

KalUpdateCheck::Result KalUpdateCheck::failureFromReply() const
{
    const QString where = m_url.isLocalFile() ? QDir::toNativeSeparators(m_url.toLocalFile()) : m_url.toDisplayString();
    const QString detail = m_reply->errorString();
    switch (m_reply->error()) {
    case QNetworkReply::ConnectionRefusedError:
        return failure(tr("Der Update-Server %1 hat die Verbindung abgelehnt.").arg(where), detail);
    case QNetworkReply::HostNotFoundError:
        return failure(tr("Der Update-Server %1 wurde nicht gefunden. Besteht eine Internetverbindung?").arg(where),
                       detail);
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::ContentAccessDenied:
        return failure(tr("Die Versionsdatei %1 ist nicht vorhanden oder nicht lesbar.").arg(where), detail);
    default:
        return failure(tr("Der Update-Server %1 ist nicht erreichbar.").arg(where), detail);
    }
}

KalUpdateCheck::Result KalUpdateCheck::failure(const QString &text, const QString &detail) const
{
    Result result;
    result.outcome = Failed;
    result.text = text;
    result.detailText = detail;
    return result;
}

void KalUpdateCheck::finish(const Result &result)
{
    m_body.clear();
    emit finished(result);
}
