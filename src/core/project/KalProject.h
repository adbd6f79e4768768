#pragma once

#include "core/photos/KalPhotos.h"
#include "core/photos/KalPictureStore.h"
#include "core/project/KalModelHost.h"
#include "core/project/KalTransactions.h"

#include <QCoreApplication>
#include <QImage>
#include <QMap>
#include <QObject>
#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <QVariantMap>
#include <memory>

class KalSqlTableModel;
class KalProjectModels;
struct KalOpenPlan;

// The one open project: its working copy, lock, saving with backups,
// integrity and compaction, and the table models on its connection.
class KalProject : public QObject, public KalModelHost
{
    Q_OBJECT

public:
    static QString connectionName() { return QStringLiteral("KALPROJECT"); }

    explicit KalProject(QObject *parent = nullptr);
    ~KalProject() override;

    // Untitled project on a working copy in the temporary folder.
    bool newProject();
    // False when not opened; the reason was shown already.
    bool openProject(const QString &path);
    enum SaveResult { Saved = 0, NotSaved = 1, SaveFailed = 2 };
    // Empty target: save in place; otherwise save as.
    int saveProject(const QString &target = QString());
    // False when the working copy could not be deleted.
    bool closeProject();
    // Compacts the working copy and saves; false when that failed.
    bool vacuumDatabase(bool silent = false);

    // Counted transactions on the project connection.
    bool beginTransaction() override;
    bool commitTransaction() override;
    bool rollbackTransaction() override;
    KalTransactions &transactions() { return m_transactions; }

    // Ids of tables without AUTOINCREMENT; -1 on failure.
    qint64 nextId(const QString &table) override;
    bool setIdCounter(const QString &table, qint64 value);

    bool isOpen() const { return m_open; }
    bool isWriteProtected() const { return m_writeProtected; }
    bool isUntitled() const { return m_projectPath.isEmpty(); }
    bool isModified() const { return m_modified; }
    void setModified(bool modified);
    void markModified() override { setModified(true); }

    QString projectPath() const { return m_projectPath; }
    QString workingCopyPath() const { return m_workingCopyPath; }
    QString userDataPath() const { return m_userDataPath; }
    QSqlDatabase database() const override;

    // Values read when the project was opened.
    QString fileVersion() const { return m_fileVersion; }
    int automaticImportMode() const { return m_automaticImportMode; }
    // Reads "automaticImportMode" from the file again (after an import changed it).
    int readAutomaticImportMode();
    QMap<QString, QString> tableMap() const { return m_tableMap; }

    // The models; null while no project is open.
    KalSqlTableModel *model(const QString &table) const override;
    KalProjectModels *models() const { return m_models.get(); }

    // Thumbnails of stored pictures (null image when absent).
    QImage imageThumbnail(qint64 imageId) const override;
    QImage planThumbnail(qint64 planId) const override;

    // Pictures of photos and logos in the table `image` (KalPictureStore does
    // the work): the new or kept id, or -1 with `error` set. Inserts mark
    // the project modified.
    qint64 insertImageFromFile(const QString &path, QString *error);
    qint64 insertOrUpdateImage(const QImage &picture, qint64 id, QString *error);
    bool deleteImage(qint64 id, QString *error);
    // Stored photos wider or higher than `size`; -1 with `error` set.
    int countImagesLargerThan(int size, QString *error) const;
    // A photo row for an image already stored (see KalPhotos).
    qint64 insertPhotoInfo(const KalPhotoInfo &info, QString *error);
    // Fits the stored photos into `size` in the project's transactions;
    // marks the project modified when any changed.
    KalShrinkResult shrinkImages(int size);

    // --- helpers that do not need an open project ---
    // "ok" when sound, otherwise the reason.
    static QString checkIntegrity(const QString &connectionName);
    // "ok" for a file that opening would accept as sound (header, project
    // table, version, quick check), otherwise the reason. Changes nothing on disk.
    static QString intactVerdict(const QString &file);
    // Newest backup that passes the check, or empty; `count` = existing backup files.
    static QString findNewestIntactBackup(const QString &path, int *count);
    enum RestoreResult { Restored = 0, EmptyPath = 1, FileMissing = 2, RenameFailed = 3, CopyFailed = 4 };
    static int restoreBackup(const QString &path, const QString &backup, QString *damagedNewName, QString *errorText);
    static QString backupFileName(const QString &projectPath, int slot);
    // "/kal_temp.<ticks>.<random>[.ext]" in the system temporary folder; never an existing file.
    static QString temporaryFileName(const QString &extension = QString());
    // Size as shown by the compaction notice ("%1 KB" / "%1 MB", 1 MB = 1,024,000 bytes).
    static QString sizeText(qint64 bytes);

signals:
    // After every (re)opening of the connection: views rebind to the models.
    void projectOpened();
    // Before the connection closes: views release the models.
    void projectAboutToClose();
    void modifiedChanged(bool modified);

private:
    bool openConnection(const QString &file, bool showErrors);
    void closeConnection();
    bool writeTest(const QString &connectionName, QString *errorText, QSqlError *sqlError = nullptr);
    bool writeUserDataFile(bool withProcessId);
    void buildModels();
    void dropModels();
    int reopenWorkingCopy();
    int saveInPlace();
    int saveAs(const QString &target);
    enum OpenOutcome { OpenDone, OpenStopped, OpenRestart };
    OpenOutcome openProjectStep(const QString &path, bool afterRestore);
    bool switchToWorkingCopy(KalOpenPlan &plan);
    bool writeSnapshot(const QString &targetFile, QString *errorText);
    void resetState();

    QString m_projectPath;
    QString m_workingCopyPath;
    QString m_userDataPath;
    bool m_open = false;
    bool m_writeProtected = false;
    bool m_backupsMade = false;
    bool m_modified = false;
    QString m_fileVersion;
    int m_automaticImportMode = -1;
    QMap<QString, QString> m_tableMap;
    KalTransactions m_transactions;
    std::unique_ptr<KalProjectModels> m_models;
    // A second descriptor of the working copy, opened after the connection
    // and closed only after it: lets saving copy in the kernel without ever
    // dropping SQLite's locks (closing any descriptor of a file drops them).
    int m_workingCopyFd = -1;
};
