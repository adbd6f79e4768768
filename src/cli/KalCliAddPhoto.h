#pragma once

#include <QString>
#include <QStringList>

// "add-photo --defect NUMBER IMAGE...": stores the images as photos of the
// defect as the photo list does, and saves the project with backups. Exit 1
// when any image failed; the others stay. Returns a KalCli::ExitCode.
int kalCliAddPhoto(const QString &file, const QStringList &options);
