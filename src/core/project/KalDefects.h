#pragma once

#include <QCoreApplication>
#include <QList>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class KalModelHost;
class KalSqlTableModel;

// The rules for defects, used by every window, dialog and command that adds,
// copies or removes one: what a new defect holds, how it is numbered, who
// counts as its author, which fields a copy takes over, what goes with a
// removed defect, and which values a defect may not hold.
class KalDefects
{
    Q_DECLARE_TR_FUNCTIONS(KalDefects)

public:
    explicit KalDefects(KalModelHost &host);

    // Adds a defect with the values of a new defect overridden by `values`
    // (field -> value) through the defect model and writes it. The new id, or
    // -1 with the reason shown.
    qint64 add(const QVariantMap &values = QVariantMap());
    // A new defect per source, numbered on, with the copied fields of its
    // source; all or none. The ids of the copies.
    QList<qint64> copy(const QList<qint64> &ids);

    // Field -> value of a new defect: the next number, today's date, the
    // remembered author, priority "Normal", no plan, no photos, no status,
    // not from the site journal.
    QVariantMap newDefectValues() const;
    // One past the highest numeric number, four digits at least ("0001").
    QString nextNumber() const;
    // Empty when `values` may be written; otherwise the reason. Companies and
    // statuses must exist (0 or -1 means none); the author follows isValidAuthor().
    QString validate(const QVariantMap &values) const;

    // Fields a copy takes over from its source. The number, the plan and the
    // marker position, the photos and the site-journal fields stay behind.
    static const QStringList &copiedFields();

    // The removal rule of the defect model: removes the photos of `defect`
    // with their images and its markers and texts on the plan and, for a
    // defect from the site journal, writes its tombstone. Adds the tables it
    // changed to `changedTables`.
    static bool removeDependants(KalModelHost &host, const QSqlRecord &defect, QStringList *changedTables);

    // Author initials: at most two capital letters, or none.
    static bool isValidAuthor(const QString &text);
    // What the author field lets the user type (upper case follows).
    static QString authorInputPattern() { return QStringLiteral("([a-z]|[A-Z]|){2}"); }
    // The initials last entered in this program; empty when none are remembered.
    static QString rememberedAuthor();
    // Remembers valid, non-empty initials for the next new defect.
    static void rememberAuthor(const QString &initials);

private:
    KalSqlTableModel *model() const;
    qint64 insertRow(const QVariantMap &values);

    KalModelHost &m_host;
};
