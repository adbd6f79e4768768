#pragma once

#include <QString>
#include <QStringList>

// "export-photos --defect NUMBER --output DIR": writes the defect's stored
// photos, bytes unchanged, in list order as "01 Caption.jpg" into DIR. Reads
// the project without a working copy, never writes outside DIR and never
// replaces a file. Returns a KalCli::ExitCode.
int kalCliExportPhotos(const QString &file, const QStringList &options);

// The file name of the photo at 1-based `position` with `caption`, safe on
// every platform: no separators, "..", control or reserved characters or
// device names; umlauts kept; the caption capped in length.
QString kalCliPhotoFileName(int position, const QString &caption, const QString &extension);
