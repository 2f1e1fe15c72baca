#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QTextEdit>

// A read-only rich-text log: appends HTML-escaped messages in one of five colours and keeps
// the newest 80 blocks. Messages are not broken into lines: end them with "\n".
class VORLIN_EXPORT LogEdit : public QTextEdit
{
    Q_OBJECT
public:
    enum color_text_e {
        TextBlack = 0, // also the colour of every unknown value
        TextRed = 1,
        TextBlue = 2,
        TextGreen = 3,
        TextYellow = 4,
    };
    Q_ENUM(color_text_e)

    explicit LogEdit(QWidget* parent = nullptr);

    // Appends text in the colour; on return text holds the HTML that was inserted.
    void ChangeTextColor(color_text_e color, QString& text);

protected Q_SLOTS:
    void ChangeText_UseBlack(QString& text);
    void ChangeText_UseBlue(QString& text);
    void ChangeText_UseGreen(QString& text);
    void ChangeText_UseRed(QString& text);
    void ChangeText_UseYellow(QString& text);

private:
    void appendColored(QString& text, const QColor& color);
    static void StringToHtml(QString& text, QColor color);
    static void StringToHtmlFilter(QString& text);
};
