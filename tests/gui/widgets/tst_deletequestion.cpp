#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QSqlQuery>
#include <QToolButton>
#include <QtTest>

#include <memory>

// The grid's delete question names what goes: one row or how many.
class TestDeleteQuestion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void questionCountsTheRows_data();
    void questionCountsTheRows();

private:
    int count(const QString &table) const;

    std::unique_ptr<KalProject> m_project;
    KalScriptedPrompt *m_prompt = nullptr;
};

void TestDeleteQuestion::initTestCase()
{
    KalTestSettings::isolate();
    m_prompt = KalScriptedPrompt::install();
    m_project = std::make_unique<KalProject>();
    QVERIFY(m_project->newProject());
}

void TestDeleteQuestion::cleanupTestCase()
{
    m_project->closeProject();
    m_project.reset();
}

int TestDeleteQuestion::count(const QString &table) const
{
    QSqlQuery q(m_project->database());
    if (!q.exec(QStringLiteral("SELECT COUNT(*) FROM %1").arg(table)) || !q.next())
        return -1;
    return q.value(0).toInt();
}

void TestDeleteQuestion::questionCountsTheRows_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");

    const QString statusWarning = QStringLiteral("Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet "
                                                 "ist, verlieren diese Mängel ihren Status!\n");
    QTest::newRow("one defect") << "defect" << 1 << "Eintrag entfernen"
                                << "Soll der gewählte Eintrag tatsächlich entfernt werden?";
    QTest::newRow("three defects") << "defect" << 3 << "Einträge entfernen"
                                   << "Sollen die 3 gewählten Einträge tatsächlich entfernt werden?";
    QTest::newRow("one status") << "status" << 1 << "Status löschen"
                                << statusWarning + "Soll der gewählte Status tatsächlich gelöscht werden?";
    QTest::newRow("two statuses") << "status" << 2 << "Status löschen"
                                  << statusWarning + "Sollen die 2 gewählten Status tatsächlich gelöscht werden?";
}

void TestDeleteQuestion::questionCountsTheRows()
{
    QFETCH(QString, table);
    QFETCH(int, rows);
    QFETCH(QString, title);
    QFETCH(QString, text);

    QSqlQuery q(m_project->database());
    for (int i = 0; i < 4; ++i) {
        QVERIFY(q.prepare(QStringLiteral("INSERT INTO defect (id, number, description) VALUES (:id, :n, 'x')")));
        q.bindValue(QStringLiteral(":id"), m_project->nextId(QStringLiteral("defect")));
        q.bindValue(QStringLiteral(":n"), QString::number(i + 1));
        QVERIFY(q.exec());
    }
    KalSqlTableModel *model = m_project->model(table);
    QVERIFY(model->select());
    const int before = count(table);
    QVERIFY(before > rows);

    KalTableView view;
    view.setModel(model);
    QList<qint64> ids;
    for (int row = 0; row < rows; ++row)
        ids << model->data(model->index(row, model->fieldIndex(QStringLiteral("id")))).toLongLong();
    QCOMPARE(view.selectIds(ids), rows);

    m_prompt->clear();
    m_prompt->queueAnswer(QStringLiteral("Ja"));
    view.deleteButton()->click();

    QCOMPARE(m_prompt->titles(), QStringList{title});
    QCOMPARE(m_prompt->texts(), QStringList{text});
    QCOMPARE(count(table), before - rows);
}

QTEST_MAIN(TestDeleteQuestion)
#include "tst_deletequestion.moc"
