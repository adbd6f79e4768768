#pragma once

#include "core/textaids/KalCompleterStore.h"

#include <QCompleter>
#include <QStringList>

class QStringListModel;

// The auto-text list of one field ("Autotexte"): the texts typed into that
// field before, kept per user and program language in the settings.
class KalCompleter : public QCompleter
{
    Q_OBJECT
public:
    // Attached to `owner` (a line edit or a text edit). A line edit's
    // editingFinished() feeds its text into the list.
    KalCompleter(const QString &tableId, int kind, const QString &columnId, int columnNumber, QWidget *owner);
    ~KalCompleter() override;

    QString tableId() const { return m_info.tableId; }
    QString columnId() const { return m_info.columnId; }
    int kind() const { return m_info.kind; }
    int columnNumber() const { return m_info.columnNumber; }

    bool isEnabled() const { return m_enabled; }
    QStringList values() const { return m_values; }
    // What the popup shows: every line break as " | ".
    QStringList displayList() const;
    // The stored value behind a popup text.
    QString valueForDisplay(const QString &display) const;

    // Adds a text (normalised) to the list and saves it. Texts already in the
    // list are not stored twice; a disabled completer collects nothing.
    // True when the list changed.
    bool appendEntry(const QString &text);
    bool updateCompleter(const QString &text) { return appendEntry(text); }

    // Reads the list again from the settings (after the dialog changed it).
    void reload();
    static void reloadAll();

    // Opens the popup with every value, or explains the function when there
    // is nothing to offer.
    void showAllValues();

    // The "Autotexte" notice; offers the editing dialog.
    static void showExplanation(QWidget *parent);

public slots:
    // Puts the chosen popup entry into the field.
    void insertCompletion(const QString &completion);

signals:
    // For fields other than line edits: the value the user chose.
    void valueChosen(const QString &value);

private:
    void rebuildModel();
    void reloadSiblings();

    KalCompleterStore::Info m_info;
    bool m_enabled = true;
    QStringList m_values;
    QStringListModel *m_model = nullptr;
};
