#pragma once

#include <QDialog>

// A short fixed explanation with an icon and a close button.
class KalShortHelpDialog : public QDialog
{
    Q_OBJECT

public:
    enum Topic { ImportFromSiteJournal, ImportFromMobile };
    explicit KalShortHelpDialog(Topic topic, QWidget *parent = nullptr);

    static QString titleOf(Topic topic);
    static QString textOf(Topic topic);

signals:
    void closeClicked();
};
