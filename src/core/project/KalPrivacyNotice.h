#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

// Reminder that personal data of company contacts need the consent of the
// persons concerned. Shown until the user ticks "don't show again".
class KalPrivacyNotice
{
    Q_DECLARE_TR_FUNCTIONS(KalPrivacyNotice)

public:
    static QString title();
    static QString text();
    static QString settingsKey() { return QStringLiteral("Messages/DontShowDataProtectionMsg"); }
    static bool isSuppressed();
    // Shows the notice unless the user switched it off.
    static void showIfWanted();
};
