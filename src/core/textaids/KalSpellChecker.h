#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>
#include <memory>

class Hunspell;
class QLocale;
class QTextCodec;

// One Hunspell dictionary plus the user's own word list. One checker exists
// per program run (created at start-up) and is shared by every text field.
class KalSpellChecker : public QObject
{
    Q_OBJECT
public:
    // `dictionaryBase` without extension: base + ".aff"/".dic" (upper-case
    // ".AFF"/".DIC" is used when that is what exists). An empty
    // `userDictionary` means no personal word list.
    KalSpellChecker(const QString &dictionaryBase, const QString &userDictionary, QObject *parent = nullptr);
    ~KalSpellChecker() override;

    enum Status { Ok, MissingFile, OutOfMemory, InitFailed };
    Status status() const { return m_status; }
    bool isValid() const { return m_status == Ok; }
    // The start-up message for a checker that is not valid.
    QString errorText() const;

    QString encoding() const { return m_encoding; }
    QString userDictionary() const { return m_userDictionary; }

    // Answers from the words already checked in this run; the answer is
    // forgotten when the word list changes (ignoreWord, addToUserDict).
    bool spell(const QString &word) const;
    QStringList suggest(const QString &word) const;
    // Accepted for the rest of this run only.
    void ignoreWord(const QString &word);
    // Accepted now and in later runs. False (after telling the user) when the
    // user dictionary cannot be written; the word is accepted for this run.
    bool addToUserDict(const QString &word);

    // Spell checking switched on ("SpellCheckerActive").
    bool isActive() const { return m_active; }
    // Switches marking on or off, stores the setting when `store` is set and
    // asks every spell-checked field to mark its text again.
    void setActive(bool active, bool store = true);

    struct Word
    {
        int position;
        QString text;
    };
    // The checkable words of a text with their positions. Commas stay inside
    // a word ("1,5") but are trimmed from its ends.
    static QVector<Word> words(const QString &text);
    // Whether a word is worth checking at all (not one character, not an
    // escape sequence).
    static bool isCheckable(const QString &word);
    // True when the word should be marked: checker active and word unknown.
    bool isMisspelled(const QString &word) const;
    // The words of a text that should be marked, at their positions, in one
    // pass over the text. Empty while the checker is off or not valid.
    QVector<Word> misspelledWords(const QString &text) const;

    // The checker of this run; null when none was created.
    static KalSpellChecker *instance();
    // Takes ownership; replaces (and deletes) the previous one.
    static void setInstance(KalSpellChecker *checker);

    // "DE", "ES", "EN" or "USA" for a locale (German for anything else).
    static QString languageCode(const QLocale &locale);
    // Dictionary base path ("<program folder>/../Dictionaries/pym_DE").
    static QString dictionaryBase(const QString &programDir, const QLocale &locale);
    // The user's dictionary folder (writable data location + "/Dictionaries").
    static QString userDictionaryFolder();
    static QString userDictionaryPath(const QLocale &locale);
    // Resolves base + extension, trying the extension in lower and upper case.
    static QString dictionaryFile(const QString &base, const QString &extension);

    // Start-up: creates the user's dictionary folder (message when that
    // fails), creates the checker for the locale, installs it as instance()
    // and switches it on or off by "SpellCheckerActive". Problems with the
    // dictionary are kept for reportStartUpProblems(). Returns instance().
    static KalSpellChecker *startUp(const QString &programDir, const QLocale &locale);
    // Shows the kept dictionary problems (once the main window exists).
    static void reportStartUpProblems();
    static QStringList pendingStartUpProblems();

    // The main window's toggle: switches the function and the setting; shows
    // "Das Modul Rechtschreibprüfung ist nicht geladen!" and returns false
    // when there is no usable checker.
    static bool switchSpellChecking(bool on);
    // Text for the toggle action: what choosing it will do.
    static QString toggleActionText(bool active);

signals:
    void rehighlightAllSpellCheckerWidgets();
    void activeChanged(bool active);

private:
    void readEncoding(const QString &affPath);
    void loadUserDictionary();
    std::string toDictionary(const QString &word) const;
    QString fromDictionary(const std::string &word) const;
    bool askDictionary(const QString &word) const;

    std::unique_ptr<Hunspell> m_hunspell;
    Status m_status = InitFailed;
    QString m_missingFile;
    QString m_encoding;
    QTextCodec *m_codec = nullptr;
    QString m_userDictionary;
    bool m_active = true;
    // Highlighting asks for the same words on every keystroke; Hunspell is
    // asked once per distinct word.
    mutable QHash<QString, bool> m_checked;
};
