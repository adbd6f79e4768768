#pragma once

#include <QObject>
#include <QVector>

class KalTableView;
class QSplitter;

// The defect table of the main window: which columns a format shows, how the
// splitter divides table and plan panel, and the default column widths,
// spread over the width the table really has. Widths and splitter are laid
// out only once the table is shown (before that it has no real size), and
// follow the window until the user sizes a column or moves the splitter.
// Stored column widths win over the defaults.
class KalDefectTableLayout : public QObject
{
    Q_OBJECT

public:
    KalDefectTableLayout(KalTableView *table, QSplitter *splitter, QObject *parent);

    // Shows the columns of `format` (1 compact, 2 all) and lays them out.
    void apply(int format);
    // Lays out again what still follows the window; for its resize event.
    void refit();
    // Whether the columns still have the default widths laid out here.
    bool showsDefaults() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void placeSplitter();
    void spreadDefaultWidths();
    // Model columns of the format's fields, in grid order, and their widths.
    QVector<int> shownColumns() const;
    QVector<int> shownWidths() const;

    KalTableView *m_table;
    QSplitter *m_splitter;
    int m_format = 1;
    bool m_columnsFollow = false;
    bool m_splitterFollows = true;
    bool m_layingOut = false;
    QVector<int> m_spreadWidths; // as last laid out here
};
