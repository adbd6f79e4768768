#pragma once

#include <QImage>
#include <QSqlDatabase>
#include <QString>

class KalSqlTableModel;

// What a table model needs from the project it belongs to: the connection,
// ids for new rows, counted transactions, the modified flag, its sibling
// models and stored thumbnails. Keeps the model free of the project's
// lifecycle code.
class KalModelHost
{
public:
    virtual ~KalModelHost() = default;

    virtual QSqlDatabase database() const = 0;
    // Ids of tables without AUTOINCREMENT; -1 on failure.
    virtual qint64 nextId(const QString &table) = 0;
    virtual bool beginTransaction() = 0;
    virtual bool commitTransaction() = 0;
    virtual bool rollbackTransaction() = 0;
    // A row was written: the project has unsaved changes.
    virtual void markModified() = 0;
    // The model of another table; null when there is none.
    virtual KalSqlTableModel *model(const QString &table) const = 0;
    virtual QImage imageThumbnail(qint64 imageId) const = 0;
    virtual QImage planThumbnail(qint64 planId) const = 0;
};
