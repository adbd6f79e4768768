#pragma once

#include "gui/plans/KalGraphicsTextItem.h"

// A text on a plan, stored as one `marker_text` row; edited through the text
// editor dialog (double click), not in place.
class KalMarkerTextItem : public KalGraphicsTextItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 31 };

    explicit KalMarkerTextItem(QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }

    qint64 rowId() const { return m_rowId; }
    void setRowId(qint64 id) { m_rowId = id; }

private:
    qint64 m_rowId = -1;
};
