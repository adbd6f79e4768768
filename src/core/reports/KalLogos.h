#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QSqlDatabase>
#include <QString>

// One logo of the print header: the picture row (-1: none) and where it stands.
struct KalLogo
{
    enum Align { Left = 0, Center = 1, Right = 2 };
    qint64 imageId = -1;
    int align = Left;

    bool isSet() const { return imageId > 0; }
};

// The two logos of the printed lists: their pictures in the table `image`,
// their ids and alignments in the master record, and the two machine
// settings for their printed height and place. Failed statements are
// reported through the SQL error report before a call returns.
class KalLogos
{
    Q_DECLARE_TR_FUNCTIONS(KalLogos)

public:
    enum Which { First = 0, Second = 1 };

    explicit KalLogos(QSqlDatabase db);

    // The stored logo; none for NULL, 0, a negative id or an id without a
    // picture row. False when the master record could not be read.
    bool read(Which which, KalLogo *logo) const;
    // Writes id and alignment; a logo without picture is stored as the new
    // project stores it (NULL for the first, 0 for the second).
    bool write(Which which, const KalLogo &logo);

    // Stores the picture file by the shared picture rule; the new row id, or
    // -1 with `error` set (not a picture, truncated, too many pixels).
    qint64 append(const QString &path, QString *error);
    bool remove(qint64 imageId);
    // The stored picture; null when there is none or it cannot be decoded.
    QImage image(qint64 imageId) const;

    // "Logo/LogoPrintHeight" in millimetres (never below 0) and
    // "Logo/printLogosUnderHeader".
    static int printHeight();
    static void setPrintHeight(int millimetres);
    static bool underHeader();
    static void setUnderHeader(bool under);

private:
    bool imageExists(qint64 imageId) const;

    QSqlDatabase m_db;
};
