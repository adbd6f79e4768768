#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalResources.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

// The defect table as the window first appears, started the way the program
// starts: window created, geometry restored, shown, then a project opened.
class TestDefectTableLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        kalInitGuiResources();
        KalScriptedPrompt::install();
        QVERIFY(m_dir.isValid());
        m_projectPath = m_dir.filePath(QStringLiteral("30 Mängel.pwp"));
        KalMainWindow maker;
        for (int i = 0; i < 30; ++i)
            QVERIFY(maker.addDefect() > 0);
        KalFileDialog::queueChoice(m_projectPath);
        QCOMPARE(maker.maybeSave(true, true), int(KalMainWindow::GoOn));
        QVERIFY(maker.closeProject(false));
    }

    void init() { QSettings().clear(); }

    void cleanup() { m_window.reset(); }

    void defaultWidthsFillTheTable_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<bool>("withProject");
        QTest::addColumn<QSize>("window"); // as stored by a previous run

        QTest::newRow("plain start, compact") << 1 << false << QSize(1300, 850);
        QTest::newRow("with project, compact") << 1 << true << QSize(1300, 850);
        QTest::newRow("plain start, all columns") << 2 << false << QSize(2300, 900);
        QTest::newRow("with project, all columns") << 2 << true << QSize(2300, 900);
    }

    void defaultWidthsFillTheTable()
    {
        QFETCH(int, format);
        QFETCH(bool, withProject);
        QFETCH(QSize, window);

        QSettings().setValue(QStringLiteral("TableView/Defect/DefectTableFormat"), format);
        storeWindowSize(window);
        start(withProject);

        KalTableView *table = m_window->defectTable();
        QTRY_COMPARE(visibleWidth(), table->viewport()->width());
        QTRY_COMPARE(table->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(cutCaptions(), QStringList());
        const int description = table->sqlModel()->fieldIndex(QStringLiteral("description"));
        for (int column = 0; column < table->model()->columnCount(); ++column)
            QVERIFY(table->columnWidth(description) >= table->columnWidth(column));

        // The plan panel beside the table gets a fair share, not the leftovers.
        const QList<int> sizes = m_window->findChild<QSplitter *>(QStringLiteral("splitter"))->sizes();
        const double planShare = double(sizes.at(1)) / (sizes.at(0) + sizes.at(1));
        QVERIFY2(planShare > 0.15 && planShare < 0.35, qPrintable(QString::number(planShare)));

        // Untouched defaults are not stored: the next start spreads them over
        // its own width.
        m_window->close();
        QVERIFY(!QSettings().contains(format == 2 ? "TableView/Defect/LongColumnWidths"
                                                  : "TableView/Defect/ShortColumnWidths"));
    }

    void storedWidthsWin()
    {
        int columns = 0;
        {
            KalMainWindow counter;
            columns = counter.defectModel()->columnCount();
        }
        QStringList widths;
        for (int column = 0; column < columns; ++column)
            widths << QString::number(60 + 5 * column);
        QSettings().setValue(QStringLiteral("TableView/Defect/ShortColumnWidths"), widths);
        start(true);
        KalTableView *table = m_window->defectTable();
        m_window->resize(m_window->width() + 200, m_window->height());
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            if (!table->isColumnHidden(column))
                QCOMPARE(table->columnWidth(column), 60 + 5 * column);
        }
    }

    void widthsSizedByTheUserStay()
    {
        storeWindowSize(QSize(1300, 850));
        start(true);
        KalTableView *table = m_window->defectTable();
        QTRY_COMPARE(visibleWidth(), table->viewport()->width());

        // Until the user sizes a column, the defaults follow the window.
        m_window->resize(m_window->width() + 150, m_window->height());
        QTRY_COMPARE(visibleWidth(), table->viewport()->width());

        const int number = table->sqlModel()->fieldIndex(QStringLiteral("number"));
        table->horizontalHeader()->resizeSection(number, 140);
        const int before = visibleWidth();
        m_window->resize(m_window->width() - 100, m_window->height());
        QCOMPARE(table->columnWidth(number), 140);
        QCOMPARE(visibleWidth(), before);
    }

private:
    // Like main(): restore, show, then carry out the command line.
    void start(bool withProject)
    {
        m_window = std::make_unique<KalMainWindow>();
        m_window->restoreWindowSettings();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        if (withProject)
            QVERIFY(m_window->openProject(m_projectPath));
    }

    static void storeWindowSize(const QSize &size)
    {
        QWidget previous;
        previous.resize(size);
        QSettings().setValue(QStringLiteral("MainWindow/Geometry"), previous.saveGeometry());
    }

    int visibleWidth() const
    {
        KalTableView *table = m_window->defectTable();
        int sum = 0;
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            if (!table->isColumnHidden(column))
                sum += table->columnWidth(column);
        }
        return sum;
    }

    QStringList cutCaptions() const
    {
        KalTableView *table = m_window->defectTable();
        QHeaderView *header = table->horizontalHeader();
        QStringList cut;
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            const QString caption = table->model()->headerData(column, Qt::Horizontal).toString();
            if (!table->isColumnHidden(column) &&
                table->columnWidth(column) < header->fontMetrics().horizontalAdvance(caption))
                cut << caption;
        }
        return cut;
    }

    QTemporaryDir m_dir;
    QString m_projectPath;
    std::unique_ptr<KalMainWindow> m_window;
};

QTEST_MAIN(TestDefectTableLayout)
#include "tst_defecttablelayout.moc"
