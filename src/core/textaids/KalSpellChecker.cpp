#include "KalSpellChecker.h"

#include "core/project/KalLog.h"
#include "core/project/KalPrompt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>

#include <hunspell/hunspell.hxx>
#include <new>

namespace {
std::unique_ptr<KalSpellChecker> &currentChecker()
{
    static std::unique_ptr<KalSpellChecker> checker;
    return checker;
}

QStringList &startUpProblems()
{
    static QStringList problems;
    return problems;
}

// Hunspell refuses a .dic file whose first line is not the word count; it
// only says so on stderr, so the file is looked at beforehand.
bool looksLikeDictionary(const QString &dicPath)
{
    QFile file(dicPath);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QByteArray first = file.readLine(256).trimmed();
    if (first.startsWith("\xEF\xBB\xBF"))
        first = first.mid(3);
    bool ok = false;
    const int count = first.split('/').value(0).trimmed().toInt(&ok);
    return ok && count >= 0;
}
// Calls `found(start, length)` for every word of `text`. Letters, digits,
// underscores, commas, carets and backslashes make up words; everything else
// separates them. A comma belongs inside numbers like "1,5", not at a word's
// ends. A plain loop without copies: this runs over a whole description on
// every keystroke.
template <typename Found> void forEachWord(const QString &text, Found found)
{
    auto part = [&text, &found](int start, int end) {
        while (start < end && text.at(start) == QLatin1Char(','))
            ++start;
        while (end > start && text.at(end - 1) == QLatin1Char(','))
            --end;
        if (end > start)
            found(start, end - start);
    };
    int start = -1;
    const int size = text.size();
    for (int i = 0; i < size;) {
        uint code = text.at(i).unicode();
        int length = 1;
        if (QChar::isHighSurrogate(code) && i + 1 < size && text.at(i + 1).isLowSurrogate()) {
            code = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            length = 2;
        }
        const bool inWord = QChar::isLetterOrNumber(code) || code == '_' || code == ',' || code == '^' || code == '\\';
        if (inWord && start < 0) {
            start = i;
        } else if (!inWord && start >= 0) {
            part(start, i);
            start = -1;
        }
        i += length;
    }
    if (start >= 0)
        part(start, size);
}
} // namespace

KalSpellChecker::KalSpellChecker(const QString &dictionaryBase, const QString &userDictionary, QObject *parent)
    : QObject(parent)
    , m_encoding(QStringLiteral("ISO8859-1"))
    , m_userDictionary(userDictionary)
{
    m_codec = QTextCodec::codecForName("ISO-8859-1");
    const QString affPath = dictionaryFile(dictionaryBase, QStringLiteral("aff"));
    const QString dicPath = dictionaryFile(dictionaryBase, QStringLiteral("dic"));
    for (const QString &path : {dicPath, affPath}) {
        if (!QFileInfo::exists(path)) {
            m_status = MissingFile;
            m_missingFile = path;
            return;
        }
    }
    if (!QFileInfo(affPath).isReadable() || !looksLikeDictionary(dicPath)) {
        m_status = InitFailed;
        return;
    }
    try {
        m_hunspell.reset(new Hunspell(QFile::encodeName(affPath).constData(), QFile::encodeName(dicPath).constData()));
    } catch (const std::bad_alloc &) {
        m_status = OutOfMemory;
        return;
    } catch (...) {
        m_status = InitFailed;
        return;
    }
    m_status = Ok;
    readEncoding(affPath);
    loadUserDictionary();
}

KalSpellChecker::~KalSpellChecker() = default;

QString KalSpellChecker::errorText() const
{
    switch (m_status) {
    case Ok:
        return QString();
    case MissingFile:
        return tr("Wörterbuch-Datei %1 existiert nicht.").arg(QDir::toNativeSeparators(m_missingFile));
    case OutOfMemory:
        return tr("Speicherfehler beim Anlegen des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den "
                  "Softwarehersteller.");
    case InitFailed:
        break;
    }
    return tr("Fehler beim Initialisieren des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den "
              "Softwarehersteller.");
}

void KalSpellChecker::readEncoding(const QString &affPath)
{
    QFile file(affPath);
    if (file.open(QIODevice::ReadOnly)) {
        static const QRegularExpression set(QStringLiteral("^\\s*SET\\s+([A-Z0-9\\-]+)\\s*"),
                                            QRegularExpression::CaseInsensitiveOption);
        while (!file.atEnd()) {
            const QString line = QString::fromLatin1(file.readLine());
            const QRegularExpressionMatch match = set.match(line);
            if (match.hasMatch()) {
                m_encoding = match.captured(1);
                break;
            }
        }
    }
    QTextCodec *codec = QTextCodec::codecForName(m_encoding.toLatin1());
    if (!codec && m_encoding.startsWith(QLatin1String("ISO8859"), Qt::CaseInsensitive)) // Hunspell's spelling
        codec = QTextCodec::codecForName("ISO-8859" + m_encoding.mid(7).toLatin1());
    if (!codec) {
        qCDebug(kalSpellLog, "Unknown dictionary encoding %s, using ISO 8859-1", qPrintable(m_encoding));
        codec = QTextCodec::codecForName("ISO-8859-1");
    }
    m_codec = codec;
}

void KalSpellChecker::loadUserDictionary()
{
    if (m_userDictionary.isEmpty())
        return;
    QFile file(m_userDictionary);
    const bool exists = file.exists();
    if (!file.open(exists ? QIODevice::ReadOnly : QIODevice::ReadWrite)) {
        KalPrompt::warning(tr("Dateifehler"), tr("Anwender-Wörterbuch in %1 konnte nicht geöffnet werden")
                                                  .arg(QDir::toNativeSeparators(m_userDictionary)));
        return;
    }
    const QString content = m_codec->toUnicode(file.readAll());
    for (const QString &line : content.split(QLatin1Char('\n'))) {
        const QString word = line.trimmed();
        if (!word.isEmpty())
            m_hunspell->add(toDictionary(word));
    }
}

std::string KalSpellChecker::toDictionary(const QString &word) const
{
    return m_codec->fromUnicode(word).toStdString();
}

QString KalSpellChecker::fromDictionary(const std::string &word) const
{
    return m_codec->toUnicode(word.data(), int(word.size()));
}

bool KalSpellChecker::spell(const QString &word) const
{
    if (!m_hunspell)
        return true;
    const auto known = m_checked.constFind(word);
    if (known != m_checked.constEnd())
        return known.value();
    // Bounded, so a long session of pasted texts does not grow it for ever.
    if (m_checked.size() >= 100000)
        m_checked.clear();
    const bool result = askDictionary(word);
    m_checked.insert(QString(word.constData(), word.size()), result); // never a view into the caller's text
    return result;
}

bool KalSpellChecker::askDictionary(const QString &word) const
{
    // A character the dictionary's encoding cannot hold cannot be in it.
    QTextCodec::ConverterState state(QTextCodec::ConvertInvalidToNull | QTextCodec::IgnoreHeader);
    const QByteArray encoded = m_codec->fromUnicode(word.constData(), word.size(), &state);
    if (state.invalidChars > 0)
        return false;
    return m_hunspell->spell(encoded.toStdString());
}

QStringList KalSpellChecker::suggest(const QString &word) const
{
    QStringList list;
    if (!m_hunspell)
        return list;
    for (const std::string &suggestion : m_hunspell->suggest(toDictionary(word)))
        list << fromDictionary(suggestion);
    return list;
}

void KalSpellChecker::ignoreWord(const QString &word)
{
    if (m_hunspell && !word.isEmpty()) {
        m_hunspell->add(toDictionary(word));
        m_checked.clear(); // the word, and words built on it, may be known now
    }
}

bool KalSpellChecker::addToUserDict(const QString &word)
{
    if (word.isEmpty())
        return false;
    ignoreWord(word);
    if (m_userDictionary.isEmpty())
        return false;
    QFile file(m_userDictionary);
    bool written = false;
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        const QByteArray line = m_codec->fromUnicode(word) + '\n';
        written = file.write(line) == line.size() && file.flush();
        file.close();
        written = written && file.error() == QFileDevice::NoError;
    }
    if (!written) {
        KalPrompt::warning(tr("Dateifehler"),
                           tr("Anwender-Wörterbuch in %1 konnte nicht geöffnet werden.\n(Evtl. fehlende "
                              "Schreibrechte)\nHinzufügen des Wortes nicht möglich!")
                               .arg(QDir::toNativeSeparators(m_userDictionary)));
    }
    return written;
}

void KalSpellChecker::setActive(bool active, bool store)
{
    m_active = active;
    if (store)
        QSettings().setValue(QStringLiteral("SpellCheckerActive"), active);
    emit activeChanged(active);
    emit rehighlightAllSpellCheckerWidgets();
}

QVector<KalSpellChecker::Word> KalSpellChecker::words(const QString &text)
{
    QVector<Word> list;
    forEachWord(text, [&list, &text](int start, int length) { list.append({start, text.mid(start, length)}); });
    return list;
}

bool KalSpellChecker::isCheckable(const QString &word)
{
    return word.size() > 1 && !word.startsWith(QLatin1Char('\\'));
}

bool KalSpellChecker::isMisspelled(const QString &word) const
{
    return m_active && isValid() && isCheckable(word) && !spell(word);
}

QVector<KalSpellChecker::Word> KalSpellChecker::misspelledWords(const QString &text) const
{
    QVector<Word> found;
    if (!m_active || !isValid())
        return found;
    forEachWord(text, [this, &text, &found](int start, int length) {
        // A view into the text is enough to look a checked word up; spell()
        // keeps a copy of what it stores.
        const QString word = QString::fromRawData(text.constData() + start, length);
        if (isCheckable(word) && !spell(word))
            found.append({start, text.mid(start, length)});
    });
    return found;
}

KalSpellChecker *KalSpellChecker::instance()
{
    return currentChecker().get();
}

void KalSpellChecker::setInstance(KalSpellChecker *checker)
{
    currentChecker().reset(checker);
}

QString KalSpellChecker::languageCode(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Spanish:
        return QStringLiteral("ES");
    case QLocale::English:
        return locale.country() == QLocale::UnitedStates ? QStringLiteral("USA") : QStringLiteral("EN");
    default:
        return QStringLiteral("DE");
    }
}

QString KalSpellChecker::dictionaryBase(const QString &programDir, const QLocale &locale)
{
    return QDir::cleanPath(programDir + QStringLiteral("/../Dictionaries/pym_") + languageCode(locale));
}

QString KalSpellChecker::userDictionaryFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/Dictionaries");
}

QString KalSpellChecker::userDictionaryPath(const QLocale &locale)
{
    return userDictionaryFolder() + QStringLiteral("/kal_userDict_") + languageCode(locale) + QStringLiteral(".txt");
}

QString KalSpellChecker::dictionaryFile(const QString &base, const QString &extension)
{
    const QString lower = base + QLatin1Char('.') + extension.toLower();
    const QString upper = base + QLatin1Char('.') + extension.toUpper();
    if (QFileInfo::exists(lower))
        return lower;
    return upper;
}

KalSpellChecker *KalSpellChecker::startUp(const QString &programDir, const QLocale &locale)
{
    startUpProblems().clear();
    QString userDictionary = userDictionaryPath(locale);
    const QString folder = userDictionaryFolder();
    if (!QDir().mkpath(folder)) {
        KalPrompt::critical(tr("Fehler"), tr("Ordner %1 \nzum Speichern der Wörterbücher konnte nicht angelegt werden!")
                                              .arg(QDir::toNativeSeparators(folder)));
        userDictionary.clear();
    }
    const QString base = dictionaryBase(programDir, locale);
    for (const QString &extension : {QStringLiteral("DIC"), QStringLiteral("AFF")}) {
        const QString path = dictionaryFile(base, extension);
        if (!QFileInfo::exists(path))
            startUpProblems() << tr("Wörterbuch-Datei %1 existiert nicht.").arg(QDir::toNativeSeparators(path));
    }
    if (!startUpProblems().isEmpty()) {
        setInstance(nullptr);
        return nullptr;
    }
    auto *checker = new KalSpellChecker(base, userDictionary);
    if (!checker->isValid()) {
        startUpProblems() << checker->errorText();
        delete checker;
        setInstance(nullptr);
        return nullptr;
    }
    checker->setActive(QSettings().value(QStringLiteral("SpellCheckerActive"), true).toBool(), false);
    setInstance(checker);
    return checker;
}

QStringList KalSpellChecker::pendingStartUpProblems()
{
    return startUpProblems();
}

void KalSpellChecker::reportStartUpProblems()
{
    const QStringList problems = startUpProblems();
    startUpProblems().clear();
    for (const QString &problem : problems)
        KalPrompt::critical(tr("Fehler"), problem);
}

bool KalSpellChecker::switchSpellChecking(bool on)
{
    KalSpellChecker *checker = instance();
    if (!checker || !checker->isValid()) {
        KalPrompt::critical(tr("Fehler"), tr("Das Modul Rechtschreibprüfung ist nicht geladen!"));
        return false;
    }
    checker->setActive(on);
    return true;
}

QString KalSpellChecker::toggleActionText(bool active)
{
    return active ? tr("Rechtschreibprüfung aus") : tr("Rechtschreibprüfung ein");
}
