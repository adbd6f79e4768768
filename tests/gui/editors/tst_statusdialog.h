#pragma once

#include "dialogs_fixture.h"

#include <QObject>

class KalScriptedPrompt;

class TstStatusDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void newProjectHasDefaults();
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
    DialogsFixture m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
};
