#pragma once

#include "support/KalTestProject.h"

#include <QObject>

class KalScriptedPrompt;

class TstStatusDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void listedInTheirOrder();
    void addStatus();
    void renameIsWrittenAtOnce();
    void factorySetting_data();
    void factorySetting();
    void removeUserStatuses_data();
    void removeUserStatuses();
    void colourChoice_data();
    void colourChoice();
    void widthsAndGeometryKept();

private:
    KalTestProject m_fx;
    QStringList m_factoryRows; // the status table of a new project
    KalScriptedPrompt *m_prompt = nullptr;
};
