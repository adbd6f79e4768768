#pragma once

#include "support/KalTestProject.h"

#include <QObject>

class KalScriptedPrompt;
class KalSqlTableModel;

class TstTableView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void deleteAsksPerTable_data();
    void deleteAsksPerTable();
    void selectionAndDeleteThroughProxy();
    void setModelDataMarksOnlyRealChanges_data();
    void setModelDataMarksOnlyRealChanges();
    void cellEditsAreWrittenUnlessTheOwnerDecides_data();
    void cellEditsAreWrittenUnlessTheOwnerDecides();
    void invalidDateInGridWarnsOnce_data();
    void invalidDateInGridWarnsOnce();
    void editorsPerColumn_data();
    void editorsPerColumn();
    void columnWidthsPerTableAndFormat();
    void emptyTableHint();
    void cornerButtons();
    void statusColourPressReportsId();
    void colourAndCameraCellsArePainted();
    void iconsAreCompiledIn();

private:
    KalSqlTableModel *model(const QString &table) const { return m_fx.model(table); }
    qint64 insertDefect(const QString &number, const QVariantMap &extra = {});
    qint64 insertCompany(const QString &name);
    int count(const QString &sql) { return m_fx.value(sql).toInt(); }

    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_fx;
};
