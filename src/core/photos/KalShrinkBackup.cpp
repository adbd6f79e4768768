#include "KalShrinkBackup.h"

#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("KalShrinkBackup", text);
}

// Room kept free beyond the copy, so the volume is not filled to the last byte.
constexpr qint64 kReserve = 1024 * 1024;

} // namespace

namespace KalShrinkBackup {

QString fileName(const QString &projectPath)
{
    return projectPath + QStringLiteral(".Backup");
}

bool create(const QString &projectPath, QString *error)
{
    if (projectPath.isEmpty()) {
        *error = tr("Das Projekt wurde noch nicht gespeichert: Es gibt keine Projektdatei, die gesichert werden kann.");
        return false;
    }
    const QString target = fileName(projectPath);
    const QString shown = QDir::toNativeSeparators(target);
    if (QFileInfo::exists(target) || QFileInfo(target).isSymLink()) {
        *error = tr("Die Datei %1 existiert bereits und wird nicht überschrieben.").arg(shown);
        return false;
    }
    const QFileInfo source(projectPath);
    if (!source.isFile()) {
        *error = tr("Die Projektdatei %1 existiert nicht.").arg(QDir::toNativeSeparators(projectPath));
        return false;
    }
    const KalEnvironment::VolumeInfo volume = KalEnvironment::volumeInfo(source.absolutePath());
    if (volume.valid && volume.bytesAvailable < source.size() + kReserve) {
        *error = tr("Auf dem Laufwerk %1 ist nicht genug Platz frei.").arg(volume.name);
        return false;
    }
    const QString temporary =
        source.absolutePath() + QStringLiteral("/.kal_backup.%1.tmp").arg(QCoreApplication::applicationPid());
    if (!KalFileOps::copyFile(projectPath, temporary)) {
        QFile::remove(temporary);
        *error = tr("Die Projektdatei konnte nicht kopiert werden.");
        return false;
    }
    switch (KalFileOps::installNew(temporary, target)) {
    case KalFileOps::Installed:
        KalFileOps::syncDirectory(source.absolutePath());
        return true;
    case KalFileOps::AlreadyExists:
        *error = tr("Die Datei %1 existiert bereits und wird nicht überschrieben.").arg(shown);
        break;
    case KalFileOps::InstallFailed:
        *error = tr("Die Datei %1 konnte nicht angelegt werden.").arg(shown);
        break;
    }
    QFile::remove(temporary);
    return false;
}

} // namespace KalShrinkBackup
