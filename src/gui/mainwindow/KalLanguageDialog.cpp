#include "KalLanguageDialog.h"

#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

KalLanguageDialog::KalLanguageDialog(bool restartEnabled, QWidget *parent)
    : QDialog(parent)
    , m_restartEnabled(restartEnabled)
{
    setObjectName(QStringLiteral("KalLanguageDialog"));
    setWindowTitle(tr("Sprachauswahl"));

    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(tr("Sprache wählen"), this);
    label->setObjectName(QStringLiteral("lblChooseLanguage"));
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    layout->addWidget(label);

    m_rbGerman = new QRadioButton(tr("Deutsch"), this);
    m_rbGerman->setObjectName(QStringLiteral("rbGerman"));
    m_rbSpanish = new QRadioButton(tr("Spanisch"), this);
    m_rbSpanish->setObjectName(QStringLiteral("rbSpanish"));
    m_rbEnglish = new QRadioButton(tr("Englisch (Großbritannien)"), this);
    m_rbEnglish->setObjectName(QStringLiteral("rbEnglish"));
    m_rbEnglishUsa = new QRadioButton(tr("Englisch (USA)"), this);
    m_rbEnglishUsa->setObjectName(QStringLiteral("rbEnglishUsa"));
    for (QRadioButton *b : {m_rbGerman, m_rbSpanish, m_rbEnglish, m_rbEnglishUsa})
        layout->addWidget(b);

    auto *note = new QLabel(tr("Die gewählte Sprache wird nach einem Neustart der Anwendung aktiviert."), this);
    note->setObjectName(QStringLiteral("lblNote"));
    note->setWordWrap(true);
    layout->addSpacing(8);
    layout->addWidget(note);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::accepted, this, &KalLanguageDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &KalLanguageDialog::reject);
    layout->addWidget(buttons);

    const Choice stored = storedChoice();
    // A language the program has no texts for runs in German, the
    // language of its own texts.
    const int button = buttonFor(stored.language, stored.country);
    setCheckedButton(button >= 0 ? Button(button) : German);
    setMinimumWidth(340);
}

KalLanguageDialog::Choice KalLanguageDialog::choiceOf(Button button)
{
    switch (button) {
    case German:
        return {QLocale::German, QLocale::Germany};
    case Spanish:
        return {QLocale::Spanish, QLocale::Spain};
    case English:
        return {QLocale::English, QLocale::UnitedKingdom};
    case EnglishUsa:
        return {QLocale::English, QLocale::UnitedStates};
    }
    return {QLocale::German, QLocale::Germany};
}

int KalLanguageDialog::buttonFor(int language, int country)
{
    // German and Spanish go by the language alone, English by both.
    if (language == QLocale::German)
        return German;
    if (language == QLocale::Spanish)
        return Spanish;
    if (language == QLocale::English && country == QLocale::UnitedKingdom)
        return English;
    if (language == QLocale::English && country == QLocale::UnitedStates)
        return EnglishUsa;
    return -1;
}

KalLanguageDialog::Choice KalLanguageDialog::storedChoice()
{
    const KalSettings::LocaleChoice stored = KalSettings::chosenLanguageAndCountry();
    return {stored.language, stored.country};
}

KalLanguageDialog::Button KalLanguageDialog::checkedButton() const
{
    if (m_rbSpanish->isChecked())
        return Spanish;
    if (m_rbEnglish->isChecked())
        return English;
    if (m_rbEnglishUsa->isChecked())
        return EnglishUsa;
    return German;
}

void KalLanguageDialog::setCheckedButton(Button button)
{
    switch (button) {
    case German:
        m_rbGerman->setChecked(true);
        break;
    case Spanish:
        m_rbSpanish->setChecked(true);
        break;
    case English:
        m_rbEnglish->setChecked(true);
        break;
    case EnglishUsa:
        m_rbEnglishUsa->setChecked(true);
        break;
    }
}

void KalLanguageDialog::accept()
{
    const bool anyChecked =
        m_rbGerman->isChecked() || m_rbSpanish->isChecked() || m_rbEnglish->isChecked() || m_rbEnglishUsa->isChecked();
    if (!anyChecked) {
        QDialog::reject();
        return;
    }
    const Choice before = storedChoice();
    const Choice chosen = choiceOf(checkedButton());
    QSettings settings;
    settings.setValue(QStringLiteral("Language"), chosen.language);
    settings.setValue(QStringLiteral("Country"), chosen.country);
    settings.sync();
    m_changed = before.language != chosen.language || before.country != chosen.country;

    if (m_changed && m_restartEnabled) {
        KalPrompt::Message m;
        m.icon = KalPrompt::Question;
        m.title = tr("Sprache wurde geändert");
        m.text = tr("Soll das Programm jetzt neu gestartet werden?") + QStringLiteral("\n") +
                 tr("(Die neue Spracheinstellung erfordert einen Programm-Neustart)");
        m.buttons = {{KalPrompt::AcceptCustom, tr("Jetzt neu starten")},
                     {KalPrompt::RejectCustom, tr("Später neu starten")}};
        m_restartRequested = KalPrompt::ask(m) == 0;
    }
    QDialog::accept();
}
