// The picture operations of the project, kept thin: KalPictureStore holds the rules.
#include "KalProject.h"

#include "core/photos/KalPictureStore.h"

namespace {

KalPictureStore photos(const KalProject &project)
{
    return KalPictureStore(project.database(), KalPictureStore::Kind::Photo);
}

} // namespace

qint64 KalProject::insertImageFromFile(const QString &path, QString *error)
{
    const qint64 id = photos(*this).insertFromFile(path, error);
    if (id > 0)
        markModified();
    return id;
}

qint64 KalProject::insertOrUpdateImage(const QImage &picture, qint64 id, QString *error)
{
    const qint64 result = photos(*this).insertOrUpdate(picture, id, error);
    if (result > 0)
        markModified();
    return result;
}

bool KalProject::deleteImage(qint64 id, QString *error)
{
    const bool ok = photos(*this).remove(id, error);
    if (ok)
        markModified();
    return ok;
}

int KalProject::countImagesLargerThan(int size, QString *error) const
{
    return photos(*this).countLargerThan(size, error);
}

KalShrinkResult KalProject::shrinkImages(int size)
{
    KalPictureStore store = photos(*this);
    store.setTransactions(&m_transactions);
    const KalShrinkResult result = store.shrink(size);
    if (result.done > 0)
        markModified();
    return result;
}

qint64 KalProject::insertPhotoInfo(const KalPhotoInfo &info, QString *error)
{
    return KalPhotos(this).insertPhotoInfo(info, error);
}
