#include "KalLog.h"

Q_LOGGING_CATEGORY(kalSqlLog, "pellwick.sql", QtWarningMsg)
Q_LOGGING_CATEGORY(kalSpellLog, "pellwick.spell", QtWarningMsg)
