#include "KalTextEditor.h"
#include "ui_KalTextEditor.h"

#include "core/project/KalPrompt.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QIntValidator>
#include <QSettings>

namespace {

const char *const kFamilyKey = "MarkerText/StandardMarkerTextFontFamily";
const char *const kSizeKey = "MarkerText/StandardMarkerTextFontSize";
const char *const kColorKey = "MarkerText/StandardMarkerTextColor";
const char *const kPropertiesKey = "MarkerText/StandardMarkerTextProperties";

const int kSizes[] = {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 32, 36, 40, 48, 56, 64, 72, 96, 120, 160, 200};

KalTextEditor::ColorChooser &colorChooser()
{
    static KalTextEditor::ColorChooser chooser;
    return chooser;
}

} // namespace

KalTextEditor::KalTextEditor(Mode mode, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalTextEditor>())
    , m_mode(mode)
{
    m_ui->setupUi(this);
    const QString titles[] = {tr("Text eingeben"), tr("Text bearbeiten"), tr("Symbol erstellen"),
                              tr("Standardeinstellungen Plantexte")};
    setWindowTitle(titles[mode]);
    fillFontBoxes(m_ui->cbxFontFamily, m_ui->cbxFontSize, mode == Symbol);

    connect(m_ui->tbBold, &QToolButton::toggled, this, &KalTextEditor::slotTextBold);
    connect(m_ui->tbItalic, &QToolButton::toggled, this, &KalTextEditor::slotTextItalic);
    connect(m_ui->tbUnderline, &QToolButton::toggled, this, &KalTextEditor::slotTextUnderline);
    connect(m_ui->cbxFontFamily, &QComboBox::currentTextChanged, this, &KalTextEditor::slotTextFontFamily);
    connect(m_ui->cbxFontSize, &QComboBox::currentTextChanged, this, &KalTextEditor::slotTextSize);
    connect(m_ui->teText, &QTextEdit::textChanged, this, &KalTextEditor::slotTextChanged);
    connect(m_ui->pbColor, &QPushButton::clicked, this, &KalTextEditor::colorClicked);
    connect(m_ui->pbPresets, &QPushButton::clicked, this, &KalTextEditor::presetsClicked);
    connect(m_ui->pbOk, &QPushButton::clicked, this, &KalTextEditor::okClicked);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &KalTextEditor::reject);

    if (mode == PlanTextDefaults) {
        m_ui->lblInfo->setText(
            tr("Legen Sie die Standardeinstellungen für die automatisch im Plan erzeugten Mängeltexte fest. Sie "
               "können einzelne Texte im Plan ändern, indem Sie im Planeditor einen Doppelklick auf den Text "
               "ausführen. Den Planeditor öffnen Sie, indem Sie den Mangel in der Tabelle auswählen und einen "
               "Doppelklick auf den Plan ausführen.\n"));
        m_ui->teText->setReadOnly(true);
        Values sample = storedDefaults();
        sample.text = tr("0001: Mangelbeschreibung");
        setValues(sample);
    } else {
        m_ui->lblInfo->hide();
        Values start = storedDefaults();
        if (mode == Symbol)
            start.family = m_ui->cbxFontFamily->itemText(0);
        setValues(start);
    }
    m_ui->teText->setFocus();
}

KalTextEditor::~KalTextEditor() = default;

void KalTextEditor::fillFontBoxes(QComboBox *families, QComboBox *sizes, bool symbolFontsFirst)
{
    QStringList installed = QFontDatabase().families();
    if (symbolFontsFirst) {
        // The symbol fonts first; the installed ones follow for systems
        // without them.
        const QStringList symbolFonts{QStringLiteral("Wingdings"), QStringLiteral("Webdings")};
        for (const QString &family : symbolFonts)
            installed.removeAll(family);
        installed = symbolFonts + installed;
    }
    families->addItems(installed);
    for (int size : kSizes)
        sizes->addItem(QString::number(size));
    sizes->setValidator(new QIntValidator(1, 999, sizes));
}

KalTextEditor::Values KalTextEditor::factoryDefaults()
{
    return Values();
}

KalTextEditor::Values KalTextEditor::storedDefaults()
{
    const Values factory;
    const QSettings settings;
    Values values;
    values.family = settings.value(QLatin1String(kFamilyKey), factory.family).toString();
    bool ok = false;
    const int size = settings.value(QLatin1String(kSizeKey), factory.size).toInt(&ok);
    values.size = ok && size > 0 ? size : factory.size;
    const QColor color(settings.value(QLatin1String(kColorKey), factory.color.name()).toString());
    values.color = color.isValid() ? color : factory.color;
    values.properties = settings.value(QLatin1String(kPropertiesKey), 0).toInt() & 7;
    return values;
}

void KalTextEditor::setValues(const Values &values)
{
    m_loading = true;
    if (m_ui->cbxFontFamily->findText(values.family) < 0)
        m_ui->cbxFontFamily->insertItem(0, values.family);
    m_ui->cbxFontFamily->setCurrentText(values.family);
    m_ui->cbxFontSize->setCurrentText(QString::number(values.size));
    m_ui->tbBold->setChecked(values.properties & 1);
    m_ui->tbItalic->setChecked(values.properties & 2);
    m_ui->tbUnderline->setChecked(values.properties & 4);
    m_color = values.color;
    m_ui->teText->setPlainText(values.text);
    m_loading = false;
    showFormat();
}

KalTextEditor::Values KalTextEditor::values() const
{
    Values values;
    values.text = m_ui->teText->toPlainText();
    values.family = m_ui->cbxFontFamily->currentText();
    values.size = qMax(1, m_ui->cbxFontSize->currentText().toInt());
    values.color = m_color;
    values.properties = (m_ui->tbBold->isChecked() ? 1 : 0) + 2 * (m_ui->tbItalic->isChecked() ? 1 : 0) +
                        4 * (m_ui->tbUnderline->isChecked() ? 1 : 0);
    return values;
}

void KalTextEditor::showFormat()
{
    // The text field shows the text as it will look.
    const Values current = values();
    QFont font(current.family);
    font.setPointSize(current.size);
    font.setBold(current.properties & 1);
    font.setItalic(current.properties & 2);
    font.setUnderline(current.properties & 4);
    const bool loading = m_loading;
    m_loading = true;
    m_ui->teText->setFont(font);
    m_ui->teText->document()->setDefaultFont(font);
    QPalette palette = m_ui->teText->palette();
    palette.setColor(QPalette::Text, current.color);
    m_ui->teText->setPalette(palette);
    m_ui->pbColor->setStyleSheet(QStringLiteral("color: %1").arg(current.color.name()));
    m_loading = loading;
}

void KalTextEditor::markChanged()
{
    if (m_loading)
        return;
    m_changed = true;
    showFormat();
}

void KalTextEditor::slotTextBold(bool)
{
    markChanged();
}

void KalTextEditor::slotTextItalic(bool)
{
    markChanged();
}

void KalTextEditor::slotTextUnderline(bool)
{
    markChanged();
}

void KalTextEditor::slotTextFontFamily(const QString &)
{
    markChanged();
}

void KalTextEditor::slotTextSize(const QString &)
{
    markChanged();
}

void KalTextEditor::slotTextChanged()
{
    if (!m_loading)
        m_changed = true;
}

void KalTextEditor::setColorChooser(const ColorChooser &chooser)
{
    colorChooser() = chooser;
}

QColor KalTextEditor::chooseColor(const QColor &initial, QWidget *parent, const QString &title)
{
    if (colorChooser())
        return colorChooser()(initial, parent, title);
    return QColorDialog::getColor(initial, parent, title);
}

void KalTextEditor::colorClicked()
{
    const QColor color = chooseColor(m_color, this, tr("Textfarbe wählen"));
    if (!color.isValid() || color == m_color)
        return;
    m_color = color;
    markChanged();
}

void KalTextEditor::presetsClicked()
{
    Values preset = m_mode == PlanTextDefaults ? factoryDefaults() : storedDefaults();
    preset.text = m_ui->teText->toPlainText();
    setValues(preset);
    m_changed = true;
}

void KalTextEditor::okClicked()
{
    const Values chosen = values();
    if (m_mode == PlanTextDefaults) {
        QSettings settings;
        settings.setValue(QLatin1String(kFamilyKey), chosen.family);
        settings.setValue(QLatin1String(kSizeKey), chosen.size);
        settings.setValue(QLatin1String(kColorKey), chosen.color.name());
        settings.setValue(QLatin1String(kPropertiesKey), chosen.properties);
    } else if (m_mode == EditText && chosen.text.isEmpty()) {
        const bool consent = KalPrompt::yesNo(
            tr("Text"), tr("Sie haben den kompletten Text gelöscht.\nDas Textelement im Plan wird dann ebenfalls "
                           "gelöscht.\nWenn Sie den Planeditor verlassen und für diesen Mangel erneut aufrufen, wird "
                           "automatisch ein neues Textelement mit der Mangelbeschreibung erzeugt.\n\nWollen Sie das "
                           "Textelement im Plan wirklich löschen?"));
        if (!consent)
            return;
        m_textDeleted = true;
    }
    accept();
}

void KalTextEditor::reject()
{
    if (m_changed) {
        KalPrompt::Message message;
        message.icon = KalPrompt::Question;
        message.title = tr("Änderungen verwerfen");
        message.text = tr("Möchten Sie die Änderungen tatsächlich verwerfen?");
        message.buttons = {{KalPrompt::Yes, {}}, {KalPrompt::No, {}}};
        if (KalPrompt::ask(message) != 0)
            return;
    }
    QDialog::reject();
}
