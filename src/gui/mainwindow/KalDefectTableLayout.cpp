#include "KalDefectTableLayout.h"

#include "core/project/KalDefectColumns.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalTableView.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QSqlRecord>

KalDefectTableLayout::KalDefectTableLayout(KalTableView *table, QSplitter *splitter, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_splitter(splitter)
{
    m_table->installEventFilter(this);
    m_table->viewport()->installEventFilter(this);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_splitterFollows = false; });
}

void KalDefectTableLayout::apply(int format)
{
    m_format = format;
    KalSqlTableModel *model = m_table->sqlModel();
    if (!model)
        return;
    QScopedValueRollback<bool> guard(m_layingOut, true);
    const QStringList visible =
        KalDefectColumns::fields(format == 2 ? KalDefectColumns::All : KalDefectColumns::Compact);
    for (int column = 0; column < model->columnCount(); ++column)
        m_table->setColumnHidden(column, !visible.contains(model->record().fieldName(column)));
    m_columnsFollow = !m_table->restoreColumnWidths();
    m_spreadWidths.clear();
    m_splitterFollows = true;
    refit();
}

void KalDefectTableLayout::refit()
{
    if (!m_table->sqlModel() || !m_table->isVisible())
        return;
    QScopedValueRollback<bool> guard(m_layingOut, true);
    if (m_splitterFollows)
        placeSplitter();
    if (m_columnsFollow)
        spreadDefaultWidths();
}

bool KalDefectTableLayout::eventFilter(QObject *watched, QEvent *event)
{
    // Shown at last, the table has its real size.
    if (event->type() == QEvent::Show && watched == m_table)
        refit();
    // The viewport changes with the splitter and with the vertical scroll
    // bar coming and going: the defaults fill what is there.
    if (event->type() == QEvent::Resize && watched == m_table->viewport() && !m_layingOut && m_table->sqlModel() &&
        m_table->isVisible()) {
        QScopedValueRollback<bool> guard(m_layingOut, true);
        if (m_columnsFollow)
            spreadDefaultWidths();
    }
    return QObject::eventFilter(watched, event);
}

void KalDefectTableLayout::placeSplitter()
{
    // The plan panel takes what the table does not need, within reason.
    const int total = m_splitter->width();
    if (total <= 0)
        return;
    const int table = m_format == 2 ? total * 4 / 5 : total * 18 / 25;
    m_splitter->setSizes({table, total - table});
}

bool KalDefectTableLayout::showsDefaults() const
{
    return m_columnsFollow && m_table->sqlModel() && (m_spreadWidths.isEmpty() || shownWidths() == m_spreadWidths);
}

QVector<int> KalDefectTableLayout::shownWidths() const
{
    QVector<int> widths;
    for (const int column : shownColumns())
        widths << m_table->columnWidth(column);
    return widths;
}

QVector<int> KalDefectTableLayout::shownColumns() const
{
    QVector<int> columns;
    KalSqlTableModel *model = m_table->sqlModel();
    const QStringList fields =
        KalDefectColumns::fields(m_format == 2 ? KalDefectColumns::All : KalDefectColumns::Compact);
    for (const QString &field : fields) {
        const int column = model->fieldIndex(field);
        if (column >= 0)
            columns << column;
    }
    return columns;
}

void KalDefectTableLayout::spreadDefaultWidths()
{
    // Widths that are no longer those laid out here were set by the user
    // (or restored): they stay.
    if (!m_spreadWidths.isEmpty() && shownWidths() != m_spreadWidths) {
        m_columnsFollow = false;
        return;
    }
    KalSqlTableModel *model = m_table->sqlModel();
    QHeaderView *header = m_table->horizontalHeader();
    const int available = m_table->viewport()->width();
    const int charWidth = m_table->fontMetrics().averageCharWidth();
    const int descriptionColumn = model->fieldIndex(QStringLiteral("description"));
    // The description is what the list is read for: the others give way
    // to it down to their captions before it drops below its own default.
    const int descriptionMinimum = 30 * charWidth;
    const int descriptionWanted = 40 * charWidth;

    // Every column wants its default width and needs at least its caption;
    // the description takes what the others leave.
    struct Column
    {
        int column;
        int wanted;
        int minimum;
    };
    QVector<Column> others;
    int wanted = 0;
    int minimum = 0;
    for (const int column : shownColumns()) {
        if (column == descriptionColumn)
            continue;
        const QString field = model->record().fieldName(column);
        const int caption =
            header->fontMetrics().horizontalAdvance(model->headerData(column, Qt::Horizontal).toString()) + 24;
        const int width = qMax(caption, KalDefectColumns::widthChars(field) * charWidth);
        others.append({column, width, caption});
        wanted += width;
        minimum += caption;
    }
    // Too narrow for every default: the others give up width in proportion
    // to what they have above their caption.
    const int room = available - descriptionWanted;
    const int excess = wanted - minimum;
    int used = 0;
    for (const Column &c : others) {
        int width = c.wanted;
        if (room < wanted && excess > 0)
            width = c.minimum + int(qint64(c.wanted - c.minimum) * qMax(0, room - minimum) / excess);
        header->resizeSection(c.column, width);
        used += width;
    }
    if (descriptionColumn >= 0)
        header->resizeSection(descriptionColumn, qMax(descriptionMinimum, available - used));
    m_spreadWidths = shownWidths();
}
