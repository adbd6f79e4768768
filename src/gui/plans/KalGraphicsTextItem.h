#pragma once

#include <QColor>
#include <QFont>
#include <QGraphicsTextItem>

class QTextDocument;

// A text on a plan or photo: font family, size, bold, italic, underline and
// colour, the same properties the plan texts store. Every change is told
// through the signals the editors' text tools listen to.
class KalGraphicsTextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 20 };
    // Bits of the stored text properties.
    enum Property { Bold = 1, Italic = 2, Underline = 4 };

    explicit KalGraphicsTextItem(QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }

    void setTextColor(const QColor &color);
    QColor textColor() const { return defaultTextColor(); }
    void setFontFamily(const QString &family);
    QString fontFamily() const { return font().family(); }
    void setFontSize(int pointSize);
    int fontSize() const { return font().pointSize(); }
    void setTextProperties(int properties);
    int textProperties() const;
    void setBold(bool on);
    void setItalic(bool on);
    void setUnderline(bool on);

    // Draws the text alone: no selection frame, no cursor.
    void paintContent(QPainter *painter);
    // The selection frame with corner handles, shared by the editors' items.
    static void paintHandles(QPainter *painter, const QRectF &frame);

signals:
    void textBold(bool on);
    void textItalic(bool on);
    void textUnderline(bool on);
    void colorChanged(QColor *color);
    void fontFamilyChanged(const QString &family);
    void fontSizeChanged(int pointSize);
    void textDocumentChanged(QTextDocument *document);

protected:
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    void announceFont();
    QColor m_announcedColor;
};
