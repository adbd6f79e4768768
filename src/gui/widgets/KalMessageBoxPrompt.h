#pragma once

#include "core/project/KalPrompt.h"

class QMessageBox;

// Messages and questions as standard modal message boxes. Standard roles
// become standard buttons so that Qt's own translations apply.
class KalMessageBoxPrompt : public KalPrompt
{
public:
    KalMessageBoxPrompt();
    int show(const Message &message) override;
    void notice(const QString &title, const QString &text, int milliseconds) override;

    // Default text of the "don't show again" check box.
    static QString dontShowAgainDefaultText();
};
