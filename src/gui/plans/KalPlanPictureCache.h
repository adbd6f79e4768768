#pragma once

#include <QImage>
#include <QString>
#include <QVector>
#include <memory>

class KalProject;

// A decoded plan ([0]) and its halved copies ([k] halved k times), made as
// views need them.
struct KalPlanPictureLevels
{
    QVector<QImage> levels;
};

// The main window's plan panel and the plan editor show the same large
// plans: a plan of 70 megapixels costs 280 MB decoded, so every view of the
// same plan version shares one decoded copy and its reduced copies. The plan
// loaded last is kept for the next view even when none shows it.
class KalPlanPictureCache
{
public:
    // The picture of the `plan` row; decoded only when no copy of its
    // current version is alive. Null with a reason when unreadable;
    // `decoded` tells whether this call decoded it.
    static std::shared_ptr<KalPlanPictureLevels> load(KalProject *project, qint64 planId, QString *error,
                                                      bool *decoded = nullptr);
    // Forgets the kept copy (the project was closed); views keep theirs.
    static void release();
};
