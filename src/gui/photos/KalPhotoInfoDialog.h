#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

class KalProject;
class KalSqlTableModel;
class QGraphicsPixmapItem;
class QGraphicsScene;
class QSortFilterProxyModel;

namespace Ui {
class KalPhotoInfoDialog;
}

// The photos of one defect: caption, comment and date edited in the list,
// a fitted preview that can be turned, adding (also by dropping files),
// removing and reordering by drag. Every change is written at once; the
// shared photo_info model gets its previous filter back on close.
class KalPhotoInfoDialog : public QDialog
{
    Q_OBJECT

public:
    KalPhotoInfoDialog(KalProject *project, qint64 defectId, QWidget *parent = nullptr);
    ~KalPhotoInfoDialog() override;

    // Number of photos of the defect as stored now.
    int photoCount() const;

    // Imports the files as "Fotos hinzufügen" does after its file dialog.
    void addFiles(const QStringList &files);
    // The same for any defect (files dropped on the defect grid): progress,
    // a message per failed file, the portrait notice once. New photo_info ids.
    static QList<qint64> importFiles(KalProject *project, qint64 defectId, const QStringList &files);

    // Texts of the removal question for `count` selected photos.
    static QString removeQuestionTitle(int count);
    static QString removeQuestionText(int count);
    static QString portraitNoticeText();

protected:
    void done(int result) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void slotAddImages();
    void slotRemoveImages();
    void slotImageSize();
    void slotStartPhotoEditor();
    void slot_rotateImageLeft();
    void slot_rotateImageRight();
    void slot_flipImage();
    void slotCurrentChanged();

private:
    void setUpList();
    void setUpPreview();
    void rotate(int degrees);
    void reload(const QList<qint64> &selectIds);
    void moveRow(qint64 photoInfoId, int newIndex);
    void showPreview();
    void fitPreview();
    void updateButtons();
    qint64 currentId() const;
    qint64 imageIdOf(qint64 photoInfoId) const;
    void restoreModel();

    KalProject *m_project;
    qint64 m_defectId;
    QPointer<KalSqlTableModel> m_model;
    QString m_previousFilter;
    bool m_restored = false;
    QSortFilterProxyModel *m_proxy = nullptr;
    QGraphicsScene *m_scene = nullptr;
    QGraphicsPixmapItem *m_pixmapItem = nullptr;
    std::unique_ptr<Ui::KalPhotoInfoDialog> m_ui;
};
