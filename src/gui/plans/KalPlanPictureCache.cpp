#include "KalPlanPictureCache.h"

#include "core/photos/KalPictureStore.h"
#include "core/project/KalProject.h"

#include <QCryptographicHash>
#include <QHash>
#include <QSqlQuery>
#include <QVariant>

namespace {

struct Cache
{
    QHash<QString, std::weak_ptr<KalPlanPictureLevels>> alive;
    std::shared_ptr<KalPlanPictureLevels> last;
};

Cache &cache()
{
    static Cache instance;
    return instance;
}

// A new version rewrites the same row: its size, length and thumbnail tell
// it apart without reading the picture itself.
QString versionKey(KalProject *project, qint64 planId)
{
    QSqlQuery query(project->database());
    query.prepare(QStringLiteral("SELECT plan_width, plan_height, length(plan), thumbnail FROM plan WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), planId);
    if (!query.exec() || !query.next())
        return QString();
    const QByteArray thumbnail = QCryptographicHash::hash(query.value(3).toByteArray(), QCryptographicHash::Sha1);
    return QStringLiteral("%1:%2:%3x%4:%5:%6")
        .arg(project->database().connectionName())
        .arg(planId)
        .arg(query.value(0).toInt())
        .arg(query.value(1).toInt())
        .arg(query.value(2).toLongLong())
        .arg(QString::fromLatin1(thumbnail.toHex()));
}

} // namespace

std::shared_ptr<KalPlanPictureLevels> KalPlanPictureCache::load(KalProject *project, qint64 planId, QString *error,
                                                                bool *decoded)
{
    if (decoded)
        *decoded = false;
    Cache &c = cache();
    const QString key = versionKey(project, planId);
    if (!key.isEmpty()) {
        if (std::shared_ptr<KalPlanPictureLevels> shared = c.alive.value(key).lock())
            return shared;
    }
    // The copy kept for nobody goes before the next is decoded, so two large
    // plans are not held at once for nobody.
    c.last.reset();
    QImage picture = KalPictureStore(project->database(), KalPictureStore::Kind::Plan).load(planId, error);
    if (decoded)
        *decoded = true;
    if (picture.isNull())
        return nullptr;
    auto levels = std::make_shared<KalPlanPictureLevels>();
    levels->levels.append(std::move(picture));
    // Expired entries go before a new one comes.
    for (auto it = c.alive.begin(); it != c.alive.end();)
        it = it.value().expired() ? c.alive.erase(it) : std::next(it);
    if (!key.isEmpty()) {
        c.alive.insert(key, levels);
        c.last = levels;
    }
    return levels;
}

void KalPlanPictureCache::release()
{
    cache().last.reset();
}
