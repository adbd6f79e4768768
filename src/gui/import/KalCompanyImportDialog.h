#pragma once

#include "core/import/KalCompanyImport.h"

#include <QDialog>
#include <QVector>
#include <memory>

class KalAddressFile;
class KalProject;
class QPushButton;

namespace Ui {
class KalCompanyImportDialog;
}

// Shows the companies a source offers, lets the user pick them and points
// out those the project has already. For an address file it first shows a
// preview whose separator, character set, caption row and column mapping
// the user can correct; it names the field each column fills, how it is
// read, and the columns that are not taken over.
class KalCompanyImportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalCompanyImportDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalCompanyImportDialog() override;

    void setAddressFile(std::shared_ptr<KalAddressFile> file, const QString &displayPath);
    void setCompanies(const QVector<KalCompanyRecord> &companies, const QString &displayPath);

    // The candidates as listed, and which of them duplicate a project
    // company (or an earlier candidate).
    QVector<KalCompanyRecord> companies() const { return m_companies; }
    QVector<int> duplicateRows() const { return m_duplicates; }
    bool isChecked(int row) const;
    void setChecked(int row, bool checked);
    QVector<KalCompanyRecord> checkedCompanies() const;

    QVector<qint64> insertedIds() const { return m_insertedIds; }

    // Column mapping of the preview: which company field a file column fills.
    void setColumnMapping(int column, int field);

private slots:
    void slotImport();
    void slotCheckAll();
    void slotCheckNone();

private slots:
    void slotSeparatorChanged(int index);
    void slotEncodingChanged(int index);
    void slotHeaderToggled(bool on);

private:
    void fillPreview();
    void fillPreviewColumn(int column);
    void showUnmapped();
    void refreshCompanies();
    void fillCompanyList();
    void updateImportButton();

    std::unique_ptr<Ui::KalCompanyImportDialog> m_ui;
    KalProject *m_project;
    std::shared_ptr<KalAddressFile> m_file;
    QVector<KalCompanyRecord> m_companies;
    QVector<int> m_duplicates;
    QVector<qint64> m_insertedIds;
    bool m_filling = false;
    QPushButton *m_pbImport = nullptr;
};
