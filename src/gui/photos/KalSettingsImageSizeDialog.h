#pragma once

#include "core/photos/KalPictureStore.h"

#include <QDialog>
#include <QString>

#include <memory>

class KalProject;

namespace Ui {
class KalSettingsImageSizeDialog;
}

// The longest side of stored photos or plans. Lowering it offers to shrink
// the pictures already stored, after an optional backup of the project file.
class KalSettingsImageSizeDialog : public QDialog
{
    Q_OBJECT

public:
    using Kind = KalPictureStore::Kind;

    // Without an open project only the setting is written.
    KalSettingsImageSizeDialog(Kind kind, KalProject *project, QWidget *parent = nullptr);
    ~KalSettingsImageSizeDialog() override;

    static QString shrinkQuestionText(Kind kind, int count);
    static QString backupCheckBoxText();

private slots:
    void slotAccepted();
    void slotDefault();

private:
    void shrinkStoredPictures(int size);
    bool makeBackup(QString *backupName);

    Kind m_kind;
    KalProject *m_project;
    std::unique_ptr<Ui::KalSettingsImageSizeDialog> m_ui;
};
