#include "KalSqlError.h"

#include "core/project/KalPrompt.h"

#include <QCoreApplication>

void kalReportSqlError(const QSqlError &error, const QString &className, const QString &functionName, int line)
{
    if (!error.isValid())
        return;
    QString text = error.driverText() + QLatin1Char('\n') + error.databaseText() + QLatin1Char('\n');
    text += QStringLiteral("Class name: %1").arg(className) + QLatin1Char('\n');
    text += QStringLiteral("Function name: %1").arg(functionName) + QLatin1Char('\n');
    text += QStringLiteral("Line: %1").arg(line);
    KalPrompt::critical(QCoreApplication::translate("KalSqlError", "Datenbankfehler"), text);
}
