#include "KalCliExportPhotos.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalPrompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

using namespace KalCli;

namespace {

// Longest caption part of a name in UTF-8 bytes: far below the 255 bytes
// file systems allow, with room for the number and the extension.
constexpr int kCaptionBytes = 120;

QString cleanCaption(const QString &caption)
{
    QString text;
    for (const QChar c : caption) {
        const bool reserved = QStringLiteral("<>:\"/\\|?*").contains(c);
        text += (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format || reserved)
                    ? QLatin1Char('_')
                    : c;
    }
    text.replace(QStringLiteral(".."), QStringLiteral("_"));
    text = text.simplified();
    // Windows drops trailing dots and blanks; it also reserves device names.
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    static const QRegularExpression device(QStringLiteral("^(CON|PRN|AUX|NUL|COM[0-9]|LPT[0-9])(\\..*)?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    if (device.match(text).hasMatch())
        text.prepend(QLatin1Char('_'));
    QString capped;
    for (int i = 0; i < text.size(); ++i) {
        const int step = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        const QString next = text.mid(i, step);
        if ((capped + next).toUtf8().size() > kCaptionBytes)
            break;
        capped += next;
        i += step - 1;
    }
    return capped.trimmed();
}

struct Photo
{
    QString caption;
    QVariant imageId; // null: the photo's picture is missing
};

// The defect's photos in list order; false (reason shown) when they cannot be read.
bool listPhotos(QSqlDatabase &db, const QString &file, const QString &number, QList<Photo> *photos)
{
    if (!db.isOpen()) {
        KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nkonnte nicht geöffnet werden:\n%2")
                                                   .arg(QDir::toNativeSeparators(file), db.lastError().text()));
        return false;
    }
    const qint64 defectId = kalCliFindDefect(db, number);
    if (defectId < 0)
        return false;
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT p.caption, i.id FROM photo_info p LEFT JOIN image i ON i.id = p.image_id "
                                 "WHERE p.defect_id = :defect_id ORDER BY p.pos, p.id"));
    query.bindValue(QStringLiteral(":defect_id"), defectId);
    if (!query.exec()) {
        KalPrompt::critical(tr("Datenbankfehler"), query.lastError().text());
        return false;
    }
    while (query.next())
        photos->append({query.value(0).toString(), query.value(1)});
    return true;
}

QByteArray pictureBytes(QSqlDatabase &db, const QVariant &imageId)
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT image FROM image WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), imageId);
    return query.exec() && query.next() ? query.value(0).toByteArray() : QByteArray();
}

// Writes through a temporary file that only takes the name when no file has
// it: nothing half-written, nothing replaced.
bool writeNew(const QString &dir, const QString &name, const QByteArray &data)
{
    const QString target = dir + QLatin1Char('/') + name;
    const QString temporary = dir + QStringLiteral("/.kal_export.%1.tmp").arg(QCoreApplication::applicationPid());
    QFile out(temporary);
    bool ok = out.open(QIODevice::WriteOnly | QIODevice::Truncate) && out.write(data) == data.size() && out.flush();
    out.close();
    ok = ok && KalFileOps::syncFile(temporary);
    QString reason = out.errorString();
    if (ok) {
        const KalFileOps::InstallResult installed = KalFileOps::installNew(temporary, target);
        if (installed == KalFileOps::Installed)
            return true;
        reason = installed == KalFileOps::AlreadyExists
                     ? tr("Die Datei existiert bereits und wird nicht überschrieben.")
                     : tr("Die Datei konnte nicht angelegt werden.");
    }
    QFile::remove(temporary);
    KalPrompt::critical(
        tr("Dateifehler"),
        tr("Das Foto %1 konnte nicht exportiert werden.\n%2").arg(QDir::toNativeSeparators(target), reason));
    return false;
}

} // namespace

QString kalCliPhotoFileName(int position, const QString &caption, const QString &extension)
{
    const QString text = cleanCaption(caption);
    const QString prefix = QStringLiteral("%1").arg(position, 2, 10, QLatin1Char('0'));
    return (text.isEmpty() ? prefix : prefix + QLatin1Char(' ') + text) + extension;
}

int kalCliExportPhotos(const QString &file, const QStringList &options)
{
    const Options parsed = parseOptions(options, {QStringLiteral("--defect"), QStringLiteral("--output")});
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    if (!parsed.values.contains(QStringLiteral("--defect")))
        return usageError(QStringLiteral("export-photos needs --defect NUMBER"));
    const QString output = parsed.values.value(QStringLiteral("--output"));
    if (output.isEmpty())
        return usageError(QStringLiteral("export-photos needs --output DIR"));
    if (fileMissing(file))
        return Failed;
    const QString dir = QFileInfo(output).absoluteFilePath();
    bool listed = false;
    int failed = 0;
    // One picture in memory at a time, however many the defect has.
    kalCliReadOnly(file, [&](QSqlDatabase &db) {
        QList<Photo> photos;
        if (!(listed = listPhotos(db, file, parsed.values.value(QStringLiteral("--defect")), &photos)))
            return;
        if (!QDir().mkpath(dir) || !QFileInfo(dir).isDir()) {
            KalPrompt::critical(tr("Dateifehler"),
                                tr("Der Ordner %1 konnte nicht angelegt werden.").arg(QDir::toNativeSeparators(dir)));
            listed = false;
            return;
        }
        for (int i = 0; i < photos.size(); ++i) {
            const QByteArray data =
                photos.at(i).imageId.isNull() ? QByteArray() : pictureBytes(db, photos.at(i).imageId);
            const QString extension = data.startsWith("\x89PNG") ? QStringLiteral(".png") : QStringLiteral(".jpg");
            const QString name = kalCliPhotoFileName(i + 1, photos.at(i).caption, extension);
            if (data.isEmpty()) {
                KalPrompt::critical(tr("Fehler"), tr("Zum Foto %1 ist kein Bild gespeichert.").arg(name));
                ++failed;
            } else if (writeNew(dir, name, data)) {
                out(QDir::toNativeSeparators(dir + QLatin1Char('/') + name));
            } else {
                ++failed;
            }
        }
        KalFileOps::syncDirectory(dir);
    });
    if (!listed)
        return Failed;
    return failed == 0 ? Success : Failed;
}
