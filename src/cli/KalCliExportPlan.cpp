#include "KalCliExportPlan.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/plans/KalPlanPainter.h"
#include "core/project/KalPrompt.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <QSqlError>

using namespace KalCli;

namespace {

void showFailure(const QString &text, const QString &detail)
{
    KalPrompt::Message message;
    message.icon = KalPrompt::Critical;
    message.title = tr("Fehler");
    message.text = text;
    message.detailText = detail;
    KalPrompt::ask(message);
}

} // namespace

int kalCliExportPlan(const QString &file, const QStringList &options)
{
    const Options parsed = parseOptions(options, {QStringLiteral("--plan"), QStringLiteral("--output")});
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    bool ok = false;
    const qint64 planInfoId = parsed.values.value(QStringLiteral("--plan")).toLongLong(&ok);
    if (!ok)
        return usageError(QStringLiteral("export-plan needs --plan ID"));
    const QString output = parsed.values.value(QStringLiteral("--output"));
    if (output.isEmpty())
        return usageError(QStringLiteral("export-plan needs --output FILE"));
    const QByteArray format = QFileInfo(output).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return usageError(QStringLiteral("--output needs a picture suffix such as .png"));
    if (fileMissing(file))
        return Failed;

    QImage picture;
    QString error;
    bool opened = false;
    kalCliReadOnly(file, [&](QSqlDatabase &db) {
        opened = db.isOpen();
        if (!opened) {
            error = db.lastError().text();
            return;
        }
        picture = KalPlanPainter::render(db, planInfoId, &error);
    });
    if (!opened) {
        showFailure(tr("Die Datei %1 kann nicht gelesen werden.").arg(QDir::toNativeSeparators(file)), error);
        return Failed;
    }
    if (picture.isNull()) {
        showFailure(tr("Der Plan %1 kann nicht ausgegeben werden.").arg(planInfoId), error);
        return Failed;
    }
    // A temporary file beside the target, renamed over it only when complete.
    QSaveFile target(output);
    QImageWriter writer(&target, format);
    if (!target.open(QIODevice::WriteOnly) || !writer.write(picture) || !target.commit()) {
        const QString reason =
            writer.error() != QImageWriter::UnknownError ? writer.errorString() : target.errorString();
        target.cancelWriting();
        showFailure(tr("Die Datei %1 konnte nicht geschrieben werden.").arg(QDir::toNativeSeparators(output)), reason);
        return Failed;
    }
    out(QDir::toNativeSeparators(output));
    return Success;
}
