#pragma once

#include <QHeaderView>

// Header of every project grid: a thin grey rule below the captions.
class KalHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    explicit KalHeaderView(Qt::Orientation orientation, QWidget *parent = nullptr);

    static QString styleSheetText();
};
