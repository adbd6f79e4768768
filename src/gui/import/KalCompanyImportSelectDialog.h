#pragma once

#include <QDialog>
#include <QVector>

class KalProject;
class QPushButton;

// "Quelle wählen": where companies are imported from. Each source asks for
// its file and then shows the import dialog for it.
class KalCompanyImportSelectDialog : public QDialog
{
    Q_OBJECT

public:
    enum Source { AddressFile = 1, ProjectFile = 2, SiteJournal = 3 };

    explicit KalCompanyImportSelectDialog(KalProject *project, QWidget *parent = nullptr);

    // Whether the import engines are part of the program.
    static bool isAvailable() { return true; }

    // Asks for the file of a source and runs its import dialog. Returns the
    // ids of the inserted companies (empty when cancelled or nothing came in).
    static QVector<qint64> importFrom(KalProject *project, Source source, QWidget *parent);

    static QString fileDialogTitle(Source source);
    static QString fileDialogFilter(Source source);

    QVector<qint64> insertedIds() const { return m_insertedIds; }

public slots:
    void slotAddressFileClicked();
    void slotProjectFileClicked();
    void slotSiteJournalClicked();

private:
    void choose(Source source);

    KalProject *m_project;
    QVector<qint64> m_insertedIds;
    QPushButton *m_pbAddressFile = nullptr;
    QPushButton *m_pbProjectFile = nullptr;
    QPushButton *m_pbSiteJournal = nullptr;
    QPushButton *m_pbCancel = nullptr;
};
