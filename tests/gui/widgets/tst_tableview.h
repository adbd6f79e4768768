#pragma once

#include <QObject>
#include <QVariantMap>
#include <memory>

class KalProject;
class KalScriptedPrompt;
class KalSqlTableModel;

class TstTableView : public QObject
{
    Q_OBJECT

public:
    TstTableView();
    ~TstTableView() override;

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void deleteAsksPerTable_data();
    void deleteAsksPerTable();
    void deleteRemovesEverySelectedRow();
    void selectionKeptAcrossSubmit();
    void selectionKeptAcrossSort();
    void selectionAndDeleteThroughProxy();
    void setModelDataMarksOnlyRealChanges_data();
    void setModelDataMarksOnlyRealChanges();
    void cellEditsAreWrittenUnlessTheOwnerDecides_data();
    void cellEditsAreWrittenUnlessTheOwnerDecides();
    void invalidDateIsRefused();
    void invalidDateInGridWarnsOnce_data();
    void invalidDateInGridWarnsOnce();
    void multiLineEditorWritesText();
    void editorsPerColumn_data();
    void editorsPerColumn();
    void columnWidthsPerTableAndFormat();
    void emptyTableHint();
    void cornerButtons();
    void statusColourPressReportsId();
    void colourAndCameraCellsArePainted();
    void iconsAreCompiledIn_data();
    void iconsAreCompiledIn();

private:
    KalSqlTableModel *model(const QString &table) const;
    qint64 insertRow(const QString &table, QVariantMap values);
    qint64 insertDefect(const QString &number, const QVariantMap &extra = {});
    qint64 insertCompany(const QString &name);
    int count(const QString &sql) const;

    KalScriptedPrompt *m_prompt = nullptr;
    std::unique_ptr<KalProject> m_project;
};
