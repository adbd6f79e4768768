#pragma once

#include <QLoggingCategory>

// Diagnostics for developers, silent unless asked for, e.g.
// QT_LOGGING_RULES="pellwick.*.debug=true". What the user must know goes
// through KalPrompt instead.
Q_DECLARE_LOGGING_CATEGORY(kalSqlLog)
Q_DECLARE_LOGGING_CATEGORY(kalSpellLog)
