#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Which of the fonts the editors draw their texts and symbols with are
// present, and which installed font can draw a given character. Needs a
// QGuiApplication (the font database).
class KalFontCheck
{
    Q_DECLARE_TR_FUNCTIONS(KalFontCheck)

public:
    // The fonts the plan and photo editors expect: "Arial", "Wingdings",
    // "Lucida Sans Unicode".
    static QStringList requiredFamilies();

    // A family counts as present when it is installed under its own name or
    // is served by a metric-compatible substitute (Arial by Liberation Sans
    // or Arimo), so texts keep their widths.
    static bool isInstalled(const QString &family);
    static QStringList missingFamilies(const QStringList &families = requiredFamilies());
    // Tells the user which of the required fonts are missing, with a box to
    // stop telling. Returns the missing families.
    static QStringList warnAboutMissing(const QStringList &families = requiredFamilies());

    // The first of the preferred families that is present and has a glyph for
    // every character of the text, else any installed family that has them;
    // empty when no font can draw the text.
    static QString familyFor(const QString &text, const QStringList &preferred);
    static bool canRender(const QString &family, const QString &text);
};
