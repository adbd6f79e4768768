#pragma once

#include <QSqlError>
#include <QString>

// Reports a failed query to the user with where it happened. Does nothing
// for an error that is not valid.
void kalReportSqlError(const QSqlError &error, const QString &className, const QString &functionName, int line);

#define KAL_REPORT_SQL_ERROR(error, className, functionName)                                                           \
    kalReportSqlError((error), QStringLiteral(className), QStringLiteral(functionName), __LINE__)
