#pragma once

#include "core/import/KalCompanyImport.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

class KalPrompt;
class KalProgress;

// The questions of an update about records deleted on one side, each with
// its "Alle weiteren ... genauso behandeln" box. A ticked box answers every
// later question of the same kind for the rest of this run (one object per
// run); nothing of it is remembered beyond.
class KalDataImportQuestions
{
    Q_DECLARE_TR_FUNCTIONS(KalDataImportQuestions)

public:
    enum Kind {
        DeleteCompany,
        DeleteReport,
        DeleteDefect,
        DeletePhoto,
        RestoreCompany,
        RestoreDefect,
        RestorePhoto,
        KindCount
    };

    // `progress` (may be null) is told before each question, so it does not cover it.
    KalDataImportQuestions(KalPrompt *prompt, KalProgress *progress);

    // True when the user chose to delete / import again.
    bool askCompany(Kind kind, const KalCompanyRecord &company);
    bool askReport(const QString &reportNumber);
    bool askDefect(Kind kind, const QString &defectNumber);
    bool askPhoto(Kind kind, const QString &caption, const QDate &date);

    // `pattern` with %1, %2, ... replaced in one pass, so a value holding
    // "%1" stays as it is.
    static QString fill(const QString &pattern, const QStringList &values);

private:
    bool ask(Kind kind, const QStringList &values);

    KalPrompt *m_prompt;
    KalProgress *m_progress;
    int m_all[KindCount]; // -1 ask, 0 "Nein" for all, 1 yes for all
};
