#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QTimer;

// Asks a small version file whether a newer program exists. The file is
// JSON, {"version": "1.4.2", "url": "https://…/download"}, found at the URL
// in the setting "Update/VersionUrl" (http, https or file). Nothing is
// downloaded or installed: the caller offers the download page.
class KalUpdateCheck : public QObject
{
    Q_OBJECT

public:
    enum Outcome {
        UpToDate,
        NewerAvailable,
        NotConfigured, // no URL in the setting
        Failed         // every other way the check can end; see `text`
    };

    struct Result
    {
        Outcome outcome = Failed;
        QString latestVersion; // as the version file states it
        QUrl downloadUrl;      // http or https, only with NewerAvailable
        bool answered = false; // the server gave a complete successful answer
        QString text;          // the message to show, translated
        QString detailText;    // the technical reason, if any
    };

    static const int kDefaultTimeoutMs = 10000;
    static const int kMaxAnswerBytes = 64 * 1024;

    explicit KalUpdateCheck(QObject *parent = nullptr);
    ~KalUpdateCheck() override;

    // "Update/VersionUrl".
    static QString urlSettingKey();

    // Compares dotted numeric versions: -1, 0 or 1. Missing parts count as 0,
    // so "0.1" equals "0.1.0" and "0.10" is newer than "0.9". Returns false in
    // `ok` (and 0) when either is not a version.
    static int compareVersions(const QString &a, const QString &b, bool *ok = nullptr);

    // What a version file says, measured against `installedVersion`.
    static Result interpretAnswer(const QByteArray &body, const QString &installedVersion);

    // Starts a check of the configured URL. Returns false without doing
    // anything while a check is running; otherwise `finished` follows once,
    // also for a missing setting (then without touching the network).
    bool start();
    bool isRunning() const { return m_reply != nullptr || m_pendingResult; }

    // How long to wait for the whole answer; tests shorten it.
    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }
    // The version compared against; the program's own unless a test sets one.
    void setInstalledVersion(const QString &version) { m_installedVersion = version; }

signals:
    void finished(const KalUpdateCheck::Result &result);

private:
    void startRequest(const QUrl &url);
    void collect();
    void complete();
    void finish(const Result &result);
    Result failure(const QString &text, const QString &detail = QString()) const;
    Result failureFromReply() const;

    QNetworkAccessManager *m_network = nullptr;
    QNetworkReply *m_reply = nullptr;
    QTimer *m_timer = nullptr;
    QByteArray m_body;
    QUrl m_url;
    QString m_installedVersion;
    int m_timeoutMs = kDefaultTimeoutMs;
    bool m_timedOut = false;
    bool m_tooBig = false;
    bool m_pendingResult = false;
};

Q_DECLARE_METATYPE(KalUpdateCheck::Result)
