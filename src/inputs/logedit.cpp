#include "logedit.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

LogEdit::LogEdit(QWidget* parent)
    : QTextEdit(parent)
{
    document()->setMaximumBlockCount(80);
    document()->setUndoRedoEnabled(false); // a log is never undone; don't keep its history
    setReadOnly(true);
}

void LogEdit::ChangeTextColor(color_text_e color, QString& text)
{
    switch (color) {
    case TextRed:
        ChangeText_UseRed(text);
        break;
    case TextBlue:
        ChangeText_UseBlue(text);
        break;
    case TextGreen:
        ChangeText_UseGreen(text);
        break;
    case TextYellow:
        ChangeText_UseYellow(text);
        break;
    default:
        ChangeText_UseBlack(text);
        break;
    }
}

void LogEdit::ChangeText_UseBlack(QString& text)
{
    appendColored(text, QColor(0, 0, 0));
}

void LogEdit::ChangeText_UseBlue(QString& text)
{
    appendColored(text, QColor(0, 0, 255));
}

void LogEdit::ChangeText_UseGreen(QString& text)
{
    appendColored(text, QColor(0, 255, 0));
}

void LogEdit::ChangeText_UseRed(QString& text)
{
    appendColored(text, QColor(255, 0, 0));
}

void LogEdit::ChangeText_UseYellow(QString& text)
{
    appendColored(text, QColor(222, 156, 83));
}

void LogEdit::appendColored(QString& text, const QColor& color)
{
    StringToHtmlFilter(text);
    StringToHtml(text, color);
    const int start = textCursor().position();
    insertHtml(text);

    // Rich text turns <br> into line separators inside one block, which the block cap would
    // never count. Each break becomes a block boundary, so the cap keeps the newest lines.
    const QTextCursor end = textCursor();
    QTextCursor scan(document());
    scan.setPosition(qMin(start, end.position()));
    for (;;) {
        QTextCursor separator = document()->find(QString(QChar::LineSeparator), scan);
        if (separator.isNull() || separator.selectionEnd() > end.position())
            break;
        separator.insertBlock();
        scan = separator;
    }
}

void LogEdit::StringToHtml(QString& text, QColor color)
{
    const QString rgb = QString::number(color.rgb() & 0xffffff, 16).rightJustified(6, QLatin1Char('0'));
    text = QStringLiteral("<span style=\" color:#%1;\">%2</span>").arg(rgb, text);
}

// The order matters: "&" first, so the entities added later are not escaped again. Every
// space becomes an em space, and CR and LF each become a break (CR LF gives two).
void LogEdit::StringToHtmlFilter(QString& text)
{
    text.replace(QLatin1Char('&'), QLatin1String("&amp;"))
        .replace(QLatin1Char('>'), QLatin1String("&gt;"))
        .replace(QLatin1Char('<'), QLatin1String("&lt;"))
        .replace(QLatin1Char('"'), QLatin1String("&quot;"))
        .replace(QLatin1Char('\''), QLatin1String("&#39;"))
        .replace(QLatin1Char(' '), QLatin1String("&emsp;"))
        .replace(QLatin1Char('\n'), QLatin1String("<br>"))
        .replace(QLatin1Char('\r'), QLatin1String("<br>"));
}
