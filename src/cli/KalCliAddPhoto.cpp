#include "KalCliAddPhoto.h"

#include "cli/KalCli.h"
#include "cli/KalCliProgress.h"
#include "cli/KalCliProject.h"
#include "core/photos/KalPhotos.h"
#include "core/project/KalProject.h"

using namespace KalCli;

int kalCliAddPhoto(const QString &file, const QStringList &options)
{
    QString number;
    bool numberGiven = false;
    QStringList images;
    for (int i = 0; i < options.size(); ++i) {
        const QString &arg = options.at(i);
        if (arg == QLatin1String("--defect")) {
            if (i + 1 >= options.size())
                return usageError(QStringLiteral("--defect needs a value"));
            number = options.at(++i);
            numberGiven = true;
        } else if (arg.startsWith(QLatin1String("--"))) {
            return usageError(QStringLiteral("unknown argument '%1'").arg(arg));
        } else {
            images << arg;
        }
    }
    if (!numberGiven)
        return usageError(QStringLiteral("add-photo needs --defect NUMBER"));
    if (images.isEmpty())
        return usageError(QStringLiteral("add-photo needs at least one image file"));
    if (fileMissing(file))
        return Failed;

    KalProject project;
    if (!kalCliOpenForWriting(project, file))
        return Failed;
    const qint64 defectId = kalCliFindDefect(project.database(), number);
    if (defectId < 0) {
        project.closeProject();
        return Failed;
    }
    KalProgress::install(new KalCliProgress);
    const KalPhotoImport result = KalPhotos(&project).addFiles(defectId, images);
    const int saved = result.photoInfoIds.isEmpty() ? int(KalProject::NotSaved) : project.saveProject();
    project.closeProject();
    if (saved == KalProject::Saved) {
        for (qint64 id : result.photoInfoIds)
            out(QString::number(id));
    }
    if (saved == KalProject::SaveFailed || (saved == KalProject::NotSaved && !result.photoInfoIds.isEmpty()))
        return Failed;
    return result.failedFiles.isEmpty() ? Success : Failed;
}
