#pragma once

#include "core/photos/KalPictureStore.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QSqlDatabase>
#include <QStringList>
#include <QTransform>

class KalProject;

// The rules of the project's plan library: import of pictures and PDFs,
// new versions of a plan, deletion. Each change is one counted transaction
// and marks the project modified; each failure is shown through KalPrompt
// and leaves no row and no temporary file behind.
class KalPlans
{
    Q_DECLARE_TR_FUNCTIONS(KalPlans)

public:
    explicit KalPlans(KalProject *project);

    struct Import
    {
        QList<qint64> planInfoIds; // the new sheets, in file order
        QStringList failed;        // files that were not imported
        bool canceled = false;     // the user stopped the conversion
    };
    // Each file becomes a plan on its own; a failing file does not stop the
    // others, a canceled conversion does.
    Import addFiles(const QStringList &files);
    // A new sheet named `name` (empty: after the file), dated `date` (null:
    // by the file). Its plan_info id, or -1 after the failure was shown
    // (-2: canceled).
    qint64 addFile(const QString &file, const QString &name = QString(), const QDate &date = QDate());

    // Stores `file` into the sheet's plan row, dates the sheet by the file
    // and moves its markers and texts to the new size. False after the
    // failure was shown; nothing changed then.
    bool newVersion(qint64 planInfoId, const QString &file);
    // A new version whose drawing moved on the sheet, in two steps: the
    // picture is prepared (converted, fitted, not stored) so that the user can
    // point at reference spots on it; storing it then moves the markers and
    // texts by `mapping` (old plan pixels to the prepared picture's pixels).
    struct Version
    {
        KalStoredPicture picture;
        QDate date;
    };
    // False after the failure was shown, or when canceled.
    bool loadVersion(const QString &file, Version *version);
    // Picture, date and moved rows in one transaction; false after the
    // failure was shown, nothing changed then.
    bool storeVersion(qint64 planInfoId, const Version &version, const QTransform &mapping);

    // The question after a new version; true: open the plan editor.
    static bool askOpenEditor();

    // Confirms (one plan / several plans, then per plan by the number of
    // its defects) and deletes what the user agreed to. The ids deleted.
    QList<qint64> removeAsked(const QList<qint64> &planInfoIds);
    // Deletes the sheet, its picture, markers and texts and clears the
    // defects' reference to it, without asking. False with a reason.
    bool remove(qint64 planInfoId, QString *error);
    // Name, index and date of a sheet. False with a reason.
    bool setInfo(qint64 planInfoId, const QString &name, const QString &index, const QDate &date, QString *error);
    // Locates the defect on the sheet (its plan_info and plan ids). False with a reason.
    bool assign(qint64 defectId, qint64 planInfoId, QString *error);
    // The sheet's plan row id; -1 when there is no such sheet.
    qint64 planIdOf(qint64 planInfoId) const;
    // The sheet the defect is located on as stored; -1 for none.
    qint64 planInfoIdOfDefect(qint64 defectId) const;

    // Defects located on the sheet; -1 on a database error.
    int defectCount(qint64 planInfoId) const;

    // A new version and an assignment need exactly one chosen plan: false
    // after telling the user (none, several) under `title`.
    static bool checkOneSelected(int selected, const QString &title);

    // A suffix of "pdf" in any case.
    static bool isPdf(const QString &file);
    // For KalPictureStore::shrink(): moves markers and texts of the sheets
    // showing a shrunk plan picture.
    static KalPictureStore::ShrinkHook shrinkHook(QSqlDatabase db);

private:
    enum Prepared { Ready, Failed, Canceled };
    Prepared preparePicture(const QString &file, KalStoredPicture *picture, QDate *date);
    bool writeNewSheet(const KalStoredPicture &picture, const QString &name, const QDate &date, qint64 *planInfoId,
                       QString *error);
    // Without `mapping` the rows follow the change of size.
    bool writeNewVersion(qint64 planInfoId, const KalStoredPicture &picture, const QDate &date, QString *error,
                         const QTransform *mapping = nullptr);
    void reselectModels();

    KalProject *m_project;
};
