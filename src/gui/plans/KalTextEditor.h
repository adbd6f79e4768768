#pragma once

#include <QColor>
#include <QDialog>
#include <functional>
#include <memory>

class QComboBox;

namespace Ui {
class KalTextEditor;
}

// Edits one text of a plan or photo (text, font, size, colour, bold,
// italic, underline), creates a symbol text, or sets the defaults of the
// defect texts generated on plans.
class KalTextEditor : public QDialog
{
    Q_OBJECT

public:
    enum Mode { NewText, EditText, Symbol, PlanTextDefaults };

    struct Values
    {
        QString text;
        QString family = QStringLiteral("Arial");
        int size = 8;
        QColor color = Qt::black;
        int properties = 0; // 1 bold, 2 italic, 4 underline
    };

    explicit KalTextEditor(Mode mode, QWidget *parent = nullptr);
    ~KalTextEditor() override;

    void setValues(const Values &values);
    Values values() const;
    // After OK in an edit mode: the user emptied the text and agreed that the
    // text goes.
    bool textDeleted() const { return m_textDeleted; }

    // The stored defaults of generated plan texts, and the factory ones.
    static Values storedDefaults();
    static Values factoryDefaults();

    // Chooses a colour; an invalid colour means cancelled. Replaceable so that
    // tests can answer the colour dialog.
    using ColorChooser = std::function<QColor(const QColor &initial, QWidget *parent, const QString &title)>;
    static void setColorChooser(const ColorChooser &chooser);
    static QColor chooseColor(const QColor &initial, QWidget *parent, const QString &title);

    // Fills a family box with the installed fonts (the symbol fonts first
    // when asked) and a size box with the offered sizes; the size box takes
    // any typed size from 1 to 999. Shared by every text tool so the choices
    // are the same wherever a text is formatted.
    static void fillFontBoxes(QComboBox *families, QComboBox *sizes, bool symbolFontsFirst = false);

public slots:
    void reject() override;

private slots:
    void slotTextBold(bool on);
    void slotTextItalic(bool on);
    void slotTextUnderline(bool on);
    void slotTextFontFamily(const QString &family);
    void slotTextSize(const QString &size);
    void slotTextChanged();
    void colorClicked();
    void presetsClicked();
    void okClicked();

private:
    void showFormat();
    void markChanged();

    std::unique_ptr<Ui::KalTextEditor> m_ui;
    Mode m_mode;
    QColor m_color = Qt::black;
    bool m_changed = false;
    bool m_loading = false;
    bool m_textDeleted = false;
};
