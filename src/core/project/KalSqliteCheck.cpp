#include "KalSqliteCheck.h"

#include "core/project/KalPrompt.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTimer>
#include <QVariant>
#include <sqlite3.h>

KalSqliteCheck::Versions KalSqliteCheck::versions()
{
    Versions result;
    result.libraryVersion = QString::fromLatin1(sqlite3_libversion());
    result.librarySourceId = QString::fromLatin1(sqlite3_sourceid());
    const QString connection = QStringLiteral("KALSQLITECHECK");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(QStringLiteral(":memory:"));
        if (db.open()) {
            QSqlQuery query(db);
            if (query.exec(QStringLiteral("SELECT sqlite_version(), sqlite_source_id()")) && query.next()) {
                result.driverVersion = query.value(0).toString();
                result.driverSourceId = query.value(1).toString();
            }
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return result;
}

QString KalSqliteCheck::mismatchText(const Versions &versions)
{
    if (!versions.driverVersion.isEmpty() && versions.driverVersion == versions.libraryVersion &&
        versions.driverSourceId == versions.librarySourceId)
        return QString();
    const QString unknown = tr("unbekannt");
    const auto describe = [&unknown](const QString &version, const QString &sourceId) {
        return QStringLiteral("%1 (%2)").arg(version.isEmpty() ? unknown : version,
                                             sourceId.isEmpty() ? unknown : sourceId);
    };
    return tr("Der SQLite-Treiber von Qt (QSQLITE) verwendet SQLite %1, das Programm aber SQLite %2.\n"
              "Projektdateien werden deshalb nicht geöffnet, damit sie nicht beschädigt werden.\n"
              "Bitte installieren Sie einen SQLite-Treiber für Qt, der die SQLite-Bibliothek des Systems "
              "verwendet, oder wenden Sie sich an den Softwarehersteller.")
        .arg(describe(versions.driverVersion, versions.driverSourceId),
             describe(versions.libraryVersion, versions.librarySourceId));
}

bool KalSqliteCheck::verify()
{
    const QString text = mismatchText(versions());
    if (text.isEmpty())
        return true;
    KalPrompt::critical(tr("Fehler"), text);
    return false;
}

bool KalSqliteCheck::verifyOrQuit()
{
    if (verify())
        return true;
    QTimer::singleShot(0, QCoreApplication::instance(), [] { QCoreApplication::exit(1); });
    return false;
}
