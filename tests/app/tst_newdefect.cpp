#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalResources.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <QSqlQuery>
#include <QToolButton>
#include <QtTest>

#include <memory>

// Every way of adding a defect opens its editor; OK keeps the defect,
// Cancel takes it back without giving its id out again.
class TestNewDefect : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void editorDecidesWhetherTheDefectStays_data();
    void editorDecidesWhetherTheDefectStays();

private:
    int defectCount() const;

    std::unique_ptr<KalMainWindow> m_window;
};

void TestNewDefect::initTestCase()
{
    KalTestSettings::isolate();
    kalInitGuiResources();
    KalScriptedPrompt::install();
}

void TestNewDefect::init()
{
    QSettings().clear();
    m_window = std::make_unique<KalMainWindow>();
    m_window->resize(1000, 600);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestNewDefect::cleanup()
{
    m_window->project()->setModified(false);
    m_window.reset();
}

int TestNewDefect::defectCount() const
{
    QSqlQuery q(m_window->project()->database());
    if (!q.exec(QStringLiteral("SELECT COUNT(*) FROM defect")) || !q.next())
        return -1;
    return q.value(0).toInt();
}

void TestNewDefect::editorDecidesWhetherTheDefectStays_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("kept");

    for (const char *way : {"menu", "plus button", "double click"}) {
        QTest::addRow("%s, OK", way) << way << int(QDialogButtonBox::Ok) << 1;
        QTest::addRow("%s, Cancel", way) << way << int(QDialogButtonBox::Cancel) << 0;
    }
}

void TestNewDefect::editorDecidesWhetherTheDefectStays()
{
    QFETCH(QString, way);
    QFETCH(int, button);
    QFETCH(int, kept);

    KalTableView *view = m_window->defectTable();
    int shownWith = -1;
    QTimer answer;
    answer.setInterval(20);
    connect(&answer, &QTimer::timeout, this, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        auto *box = modal ? modal->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox")) : nullptr;
        if (!box || qstrcmp(modal->metaObject()->className(), "KalDefectEditor") != 0)
            return;
        answer.stop();
        shownWith = defectCount();
        box->button(QDialogButtonBox::StandardButton(button))->click();
    });
    answer.start();

    if (way == QLatin1String("menu"))
        m_window->findChild<QAction *>(QStringLiteral("actionAddDefect"))->trigger();
    else if (way == QLatin1String("plus button"))
        view->addButton()->click();
    else
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, view->viewport()->rect().center());

    QCOMPARE(shownWith, 1); // the editor works on a stored defect
    QCOMPARE(defectCount(), kept);
    QCOMPARE(m_window->defectModel()->rowCount(), kept);
    // The id of a taken-back defect is not given out again.
    QCOMPARE(m_window->project()->nextId(QStringLiteral("defect")), qint64(2));
}

QTEST_MAIN(TestNewDefect)
#include "tst_newdefect.moc"
