#include "core/project/KalUpdateCheck.h"
#include "support/KalTestSettings.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A web server on the loopback interface that answers every request the
// same way, including not at all.
class VersionServer : public QObject
{
public:
    enum Mode { Answer, Silent };

    explicit VersionServer(const QByteArray &response, Mode mode = Answer)
        : m_response(response)
        , m_mode(mode)
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection()) {
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                    m_request += socket->readAll();
                    if (!m_request.contains("\r\n\r\n") || m_mode == Silent)
                        return;
                    ++m_requests;
                    socket->write(m_response);
                    socket->disconnectFromHost();
                });
            }
        });
        m_server.listen(QHostAddress::LocalHost);
    }

    QString url(const char *path = "/version.json") const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(QLatin1String(path));
    }
    int requests() const { return m_requests; }
    QByteArray request() const { return m_request; }

private:
    QTcpServer m_server;
    QByteArray m_response;
    Mode m_mode;
    QByteArray m_request;
    int m_requests = 0;
};

QByteArray httpAnswer(const QByteArray &status, const QByteArray &body, bool withLength = true)
{
    QByteArray answer = "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\nConnection: close\r\n";
    if (withLength)
        answer += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
    return answer + "\r\n" + body;
}

const QByteArray kNewer = "{\"version\": \"2.10\", \"url\": \"https://example.org/pellwick/download\"}";

} // namespace

// The update check asks a small version file whether a newer program exists
// and turns every way that can go wrong into a message.
class TstUpdateCheck : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // Runs one check of `url` against installed version 2.9 and returns its
    // result; fails the test when no result comes.
    KalUpdateCheck::Result check(const QString &url, int timeoutMs = 5000)
    {
        QSettings().setValue(KalUpdateCheck::urlSettingKey(), url);
        KalUpdateCheck checker;
        checker.setInstalledVersion(QStringLiteral("2.9"));
        checker.setTimeout(timeoutMs);
        QSignalSpy spy(&checker, &KalUpdateCheck::finished);
        if (!checker.start())
            return {};
        if (!spy.wait(15000) || spy.count() != 1)
            return {};
        return spy.first().first().value<KalUpdateCheck::Result>();
    }

    QString writeFile(const QString &name, const QByteArray &content)
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return QString();
        return QUrl::fromLocalFile(file.fileName()).toString();
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        // A proxy from the environment would take loopback requests elsewhere.
        for (const char *name : {"http_proxy", "HTTP_PROXY", "https_proxy", "HTTPS_PROXY", "all_proxy"})
            qunsetenv(name);
        QVERIFY(m_dir.isValid());
    }

    void compareVersions_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<int>("order");
        QTest::newRow("two-digit minor is newer") << "0.10"
                                                  << "0.9" << true << 1;
        QTest::newRow("missing part counts as zero") << "0.1"
                                                     << "0.1.0" << true << 0;
        QTest::newRow("zero parts after the end") << "1.0.0.0"
                                                  << "1" << true << 0;
        QTest::newRow("fourth part decides") << "1.0.0.1"
                                             << "1" << true << 1;
        QTest::newRow("major beats long minor") << "2"
                                                << "1.99.99" << true << 1;
        QTest::newRow("older by patch") << "1.2.3"
                                        << "1.2.4" << true << -1;
        QTest::newRow("leading zeros are numbers") << "01.002"
                                                   << "1.2" << true << 0;
        QTest::newRow("spaces around") << " 1.2 "
                                       << "1.2" << true << 0;
        QTest::newRow("letters") << "1.2beta"
                                 << "1.2" << false << 0;
        QTest::newRow("empty") << ""
                               << "1" << false << 0;
        QTest::newRow("double dot") << "1..2"
                                    << "1.2" << false << 0;
        QTest::newRow("negative") << "-1"
                                  << "1" << false << 0;
        QTest::newRow("trailing dot") << "1.2."
                                      << "1.2" << false << 0;
        QTest::newRow("too long to be a number") << "1.99999999999"
                                                 << "1.2" << false << 0;
        QTest::newRow("second invalid") << "1.2"
                                        << "v1.2" << false << 0;
    }
    void compareVersions()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, valid);
        QFETCH(int, order);
        bool ok = !valid;
        QCOMPARE(KalUpdateCheck::compareVersions(a, b, &ok), order);
        QCOMPARE(ok, valid);
        if (valid)
            QCOMPARE(KalUpdateCheck::compareVersions(b, a), -order);
    }

    void interpretAnswer_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("downloadUrl");
        using C = KalUpdateCheck;
        QTest::newRow("newer with https page")
            << kNewer << int(C::NewerAvailable) << "https://example.org/pellwick/download";
        QTest::newRow("newer with http page") << QByteArray("{\"version\":\"3\",\"url\":\"http://example.org/\"}")
                                              << int(C::NewerAvailable) << "http://example.org/";
        QTest::newRow("same version") << QByteArray("{\"version\":\"2.9.0\",\"url\":\"https://x.org/\"}")
                                      << int(C::UpToDate) << "";
        QTest::newRow("server behind") << QByteArray("{\"version\":\"2.8.7\"}") << int(C::UpToDate) << "";
        QTest::newRow("newer without page") << QByteArray("{\"version\":\"3.0\"}") << int(C::Failed) << "";
        QTest::newRow("newer with ftp page")
            << QByteArray("{\"version\":\"3.0\",\"url\":\"ftp://x.org/p.exe\"}") << int(C::Failed) << "";
        QTest::newRow("newer with script page")
            << QByteArray("{\"version\":\"3.0\",\"url\":\"javascript:alert(1)\"}") << int(C::Failed) << "";
        QTest::newRow("newer with file page")
            << QByteArray("{\"version\":\"3.0\",\"url\":\"file:///etc/passwd\"}") << int(C::Failed) << "";
        QTest::newRow("version as number")
            << QByteArray("{\"version\":2.10,\"url\":\"https://x.org/\"}") << int(C::Failed) << "";
        QTest::newRow("version with words")
            << QByteArray("{\"version\":\"neu\",\"url\":\"https://x.org/\"}") << int(C::Failed) << "";
        QTest::newRow("array") << QByteArray("[\"3.0\",\"https://x.org/\"]") << int(C::Failed) << "";
        QTest::newRow("html page") << QByteArray("<html><body>Not here</body></html>") << int(C::Failed) << "";
        QTest::newRow("empty") << QByteArray() << int(C::Failed) << "";
        QTest::newRow("cut off") << kNewer.left(20) << int(C::Failed) << "";
    }
    void interpretAnswer()
    {
        QFETCH(QByteArray, body);
        QFETCH(int, outcome);
        QFETCH(QString, downloadUrl);
        const KalUpdateCheck::Result result = KalUpdateCheck::interpretAnswer(body, QStringLiteral("2.9"));
        QCOMPARE(int(result.outcome), outcome);
        QCOMPARE(result.downloadUrl.toString(), downloadUrl);
        QVERIFY(!result.text.isEmpty());
    }

    void server_data()
    {
        QTest::addColumn<QByteArray>("response");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("textPart");
        using C = KalUpdateCheck;
        QTest::newRow("200 newer") << httpAnswer("200 OK", kNewer) << int(C::NewerAvailable) << "2.10";
        QTest::newRow("200 same") << httpAnswer("200 OK", "{\"version\":\"2.9\"}") << int(C::UpToDate)
                                  << "aktuelle Version 2.9";
        QTest::newRow("200 without length") << httpAnswer("200 OK", kNewer, false) << int(C::NewerAvailable) << "2.10";
        QTest::newRow("404") << httpAnswer("404 Not Found", "gone") << int(C::Failed) << "Status 404";
        QTest::newRow("500 with a version body")
            << httpAnswer("500 Internal Server Error", kNewer) << int(C::Failed) << "Status 500";
        QTest::newRow("204 empty") << httpAnswer("204 No Content", "", false) << int(C::Failed) << "Status 204";
        QTest::newRow("garbage") << httpAnswer("200 OK", "\x01\x02garbage\xff") << int(C::Failed) << "nicht lesbar";
        QTest::newRow("not http at all") << QByteArray("SSH-2.0-OpenSSH\r\n") << int(C::Failed) << "nicht erreichbar";
        const QByteArray big = "{\"version\":\"3.0\",\"pad\":\"" + QByteArray(70 * 1024, 'x') + "\"}";
        QTest::newRow("too big, announced") << httpAnswer("200 OK", big) << int(C::Failed) << "größer als 64 KB";
        QTest::newRow("too big, streamed") << httpAnswer("200 OK", big, false) << int(C::Failed) << "größer als 64 KB";
    }
    void server()
    {
        QFETCH(QByteArray, response);
        QFETCH(int, outcome);
        QFETCH(QString, textPart);
        VersionServer server(response);
        const KalUpdateCheck::Result result = check(server.url());
        QVERIFY2(result.text.contains(textPart), qPrintable(result.text));
        QCOMPARE(int(result.outcome), outcome);
        // Qt retries a garbled answer on a fresh connection; that is its affair.
        QVERIFY(server.requests() >= 1);
        QVERIFY(server.request().startsWith("GET /version.json "));
    }

    void silentServerTimesOut()
    {
        VersionServer server(QByteArray(), VersionServer::Silent);
        const KalUpdateCheck::Result result = check(server.url(), 300);
        QCOMPARE(int(result.outcome), int(KalUpdateCheck::Failed));
        QVERIFY2(result.text.contains(QStringLiteral("nicht innerhalb von 0")), qPrintable(result.text));
    }

    void refusedConnection()
    {
        QString url;
        {
            VersionServer closed(QByteArray{});
            url = closed.url();
        }
        const KalUpdateCheck::Result result = check(url);
        QCOMPARE(int(result.outcome), int(KalUpdateCheck::Failed));
        QVERIFY2(result.text.contains(QStringLiteral("abgelehnt")), qPrintable(result.text));
        QVERIFY(!result.detailText.isEmpty());
    }

    void fileUrls_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("exists");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("textPart");
        using C = KalUpdateCheck;
        QTest::newRow("newer") << kNewer << true << int(C::NewerAvailable) << "2.10";
        QTest::newRow("same") << QByteArray("{\"version\":\"2.9.0\"}") << true << int(C::UpToDate) << "2.9";
        QTest::newRow("missing") << QByteArray() << false << int(C::Failed) << "nicht vorhanden";
        QTest::newRow("garbage") << QByteArray("version=3") << true << int(C::Failed) << "nicht lesbar";
        QTest::newRow("too big") << QByteArray(200 * 1024, ' ') << true << int(C::Failed) << "größer als 64 KB";
    }
    void fileUrls()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, exists);
        QFETCH(int, outcome);
        QFETCH(QString, textPart);
        const QString name = QStringLiteral("version-%1.json").arg(QTest::currentDataTag());
        const QString url = exists ? writeFile(name, content) : QUrl::fromLocalFile(m_dir.filePath(name)).toString();
        QVERIFY(!url.isEmpty());
        const KalUpdateCheck::Result result = check(url);
        QVERIFY2(result.text.contains(textPart), qPrintable(result.text));
        QCOMPARE(int(result.outcome), outcome);
    }

    void settingDecidesWhatIsAsked_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("textPart");
        QTest::newRow("empty") << "" << int(KalUpdateCheck::NotConfigured) << "keine Update-Quelle";
        QTest::newRow("blank") << "   " << int(KalUpdateCheck::NotConfigured) << "keine Update-Quelle";
        QTest::newRow("ftp") << "ftp://example.org/v.json" << int(KalUpdateCheck::Failed) << "keine http-";
        QTest::newRow("no scheme") << "example.org/v.json" << int(KalUpdateCheck::Failed) << "keine http-";
        QTest::newRow("http without host") << "http:///v.json" << int(KalUpdateCheck::Failed) << "keine http-";
    }
    void settingDecidesWhatIsAsked()
    {
        QFETCH(QString, setting);
        QFETCH(int, outcome);
        QFETCH(QString, textPart);
        const KalUpdateCheck::Result result = check(setting);
        QCOMPARE(int(result.outcome), outcome);
        QVERIFY2(result.text.contains(textPart), qPrintable(result.text));
    }

    void oneCheckAtATime()
    {
        VersionServer server(QByteArray(), VersionServer::Silent);
        QSettings().setValue(KalUpdateCheck::urlSettingKey(), server.url());
        KalUpdateCheck checker;
        checker.setTimeout(300);
        QSignalSpy spy(&checker, &KalUpdateCheck::finished);
        QVERIFY(checker.start());
        QVERIFY(checker.isRunning());
        QVERIFY(!checker.start());
        QVERIFY(spy.wait(15000));
        QVERIFY(!checker.isRunning());
        // The second start was refused, not queued: one answer only.
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 1);
        QVERIFY(checker.start());
        QVERIFY(spy.wait(15000));
        QCOMPARE(spy.count(), 2);
    }

    void destroyedWhileWaiting()
    {
        VersionServer server(QByteArray(), VersionServer::Silent);
        QSettings().setValue(KalUpdateCheck::urlSettingKey(), server.url());
        auto *checker = new KalUpdateCheck;
        QVERIFY(checker->start());
        QTRY_VERIFY(!server.request().isEmpty());
        delete checker; // must neither crash nor report to a dead object
        QCoreApplication::processEvents();
    }
};

QTEST_GUILESS_MAIN(TstUpdateCheck)
#include "tst_updatecheck.moc"
