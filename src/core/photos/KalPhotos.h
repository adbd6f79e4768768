#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

class KalProject;

// What adding photo files did.
struct KalPhotoImport
{
    QList<qint64> photoInfoIds; // new photo_info rows, in the order of the files
    QStringList failedFiles;    // files that were not imported (already reported)
    bool anyPortrait = false;   // a stored photo is higher than wide
};

// One photo_info row as a caller supplies it; `pos` is not among them: a
// new photo always goes after the defect's last.
struct KalPhotoInfo
{
    qint64 imageId = -1;
    QString caption;
    QString comment;
    QDate date;
    qint64 defectId = -1;
    qint64 siteJournalId = -1; // -1: not from the site journal
    int deleteOnImport = 1;
    int siteJournalDataModified = 0;
};

// The rules of a defect's photo list, shared by the photo dialog, drag and
// drop and pellwick-cli. Each operation is one counted transaction that
// keeps the defect's image_cnt equal to its photo_info rows and marks the
// project modified. The rows are written with statements of their own:
// models over photo_info, image or defect must be selected anew afterwards.
class KalPhotos
{
    Q_DECLARE_TR_FUNCTIONS(KalPhotos)

public:
    explicit KalPhotos(KalProject *project);

    // Stores each file as a photo of `defectId`, after the defect's last
    // photo. A file that fails is reported ("Fehler Fotoimport") and leaves
    // nothing behind; the others go on. Progress goes through KalProgress.
    KalPhotoImport addFiles(qint64 defectId, const QStringList &files);
    // Adds the row for an image already stored (the site-journal import);
    // the new photo_info id, or -1 with `error` set and nothing written.
    qint64 insertPhotoInfo(const KalPhotoInfo &info, QString *error);
    // Removes the photos with their images; a photo from the site journal
    // leaves a note that it was deleted here. All or nothing.
    bool remove(const QList<qint64> &photoInfoIds, QString *error);
    // Turns the stored picture clockwise by 90, 180 or 270 degrees (-90 = 270).
    bool rotate(qint64 photoInfoId, int degrees, QString *error);
    // Stores `picture` (the editor's result) in place of the photo's picture,
    // fitted, with a new thumbnail.
    bool replacePicture(qint64 photoInfoId, const QImage &picture, QString *error);
    // Moves the photo to `newIndex` (0-based, clamped) among its defect's
    // photos and numbers their `pos` 1, 2, ... in the new order.
    bool move(qint64 photoInfoId, int newIndex, QString *error);

    // The defect's photo_info ids in `pos` order.
    QList<qint64> photoIds(qint64 defectId, QString *error) const;

private:
    qint64 addFile(qint64 defectId, const QString &file, bool *portrait);
    bool storePhoto(qint64 defectId, const QByteArray &data, const QString &file, bool *portrait, qint64 *newId,
                    QString *error);
    qint64 insertInfo(const KalPhotoInfo &info, QString *error);
    bool updateCount(qint64 defectId, QString *error);
    bool renumber(const QList<qint64> &ids, QString *error);
    bool removeOne(qint64 photoInfoId, QList<qint64> *defects, QString *error);
    bool writePicture(qint64 photoInfoId, const QImage &picture, QString *error);
    bool finish(bool ok);

    KalProject *m_project;
};
