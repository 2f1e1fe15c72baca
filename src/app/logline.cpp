#include "logline_p.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

#include <algorithm>

namespace vorlin {

namespace {

const QStringList& messageTypeNames()
{
    static const QStringList names = {
        QStringLiteral("Debug"), QStringLiteral("Warning"), QStringLiteral("Critical"),
        QStringLiteral("Fatal"), QStringLiteral("Info"),    QStringLiteral("System"),
    };
    return names;
}

// The last two components of the source path, joined by a backslash on every platform.
QString sourcePathParts(const char* file)
{
    QString path = QString::fromLocal8Bit(file);
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    const int last = path.lastIndexOf(QLatin1Char('\\'));
    if (last <= 0)
        return path;
    const int previous = path.lastIndexOf(QLatin1Char('\\'), last - 1);
    // More than two parts: keep the folder and the file.
    return previous < 0 ? path : path.mid(previous + 1);
}

// What a thread keeps between its lines: it mostly logs from the same file, and many lines
// within a second, and formatting a date or a path costs more than the rest of a line.
struct LineCache
{
    QByteArray file;
    QString sourcePath;
    qint64 second = -1;
    QString secondText; // "yyyy-MM-dd hh:mm:ss."

    const QString& sourcePathOf(const char* name)
    {
        if (!name)
            name = "";
        if (file.isNull() || qstrcmp(name, file.constData()) != 0) {
            file = QByteArray(name);
            sourcePath = sourcePathParts(name);
        }
        return sourcePath;
    }

    const QString& textOfSecond(qint64 msecsSinceEpoch)
    {
        const qint64 current = msecsSinceEpoch / 1000;
        if (current != second) {
            second = current;
            secondText = QDateTime::fromMSecsSinceEpoch(current * 1000).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss."));
        }
        return secondText;
    }
};

// Writes into a string allocated at its final length, so a line costs one allocation.
class LineWriter
{
public:
    explicit LineWriter(QChar* out)
        : m_out(out)
    {
    }

    void put(const QChar* text, int size)
    {
        m_out = std::copy(text, text + size, m_out);
    }
    void put(const QString& text)
    {
        put(text.constData(), text.size());
    }
    void put(QLatin1String text)
    {
        for (const char c : text)
            *m_out++ = QLatin1Char(c);
    }

private:
    QChar* m_out;
};

// The decimal digits of a number, without a temporary string.
class Digits
{
public:
    explicit Digits(int number)
    {
        unsigned magnitude = number < 0 ? 0u - unsigned(number) : unsigned(number);
        do {
            m_digits[--m_first] = QLatin1Char(char('0' + magnitude % 10));
            magnitude /= 10;
        } while (magnitude != 0);
        if (number < 0)
            m_digits[--m_first] = QLatin1Char('-');
    }

    const QChar* data() const { return m_digits + m_first; }
    int size() const { return Capacity - m_first; }

private:
    static constexpr int Capacity = 12;
    QChar m_digits[Capacity];
    int m_first = Capacity;
};

} // namespace

QString formatLogLine(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    thread_local LineCache cache;
    const QStringList& names = messageTypeNames();
    const QString& typeName = (type >= 0 && type < names.size()) ? names.at(type) : names.first();
    const QString& source = cache.sourcePathOf(context.file);
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const QString& second = cache.textOfSecond(now);
    const Digits millis(int(now % 1000) + 1000); // "1zzz": the leading 1 keeps the zeros
    const Digits line(context.line);
    const QLatin1String open(" ["), at("] at "), colon(":"), dash(" - ");

    QString result(second.size() + 3 + open.size() + typeName.size() + at.size() + source.size() + colon.size()
                       + line.size() + dash.size() + text.size(),
                   Qt::Uninitialized);
    LineWriter out(result.data());
    out.put(second);
    out.put(millis.data() + 1, 3);
    out.put(open);
    out.put(typeName);
    out.put(at);
    out.put(source);
    out.put(colon);
    out.put(line.data(), line.size());
    out.put(dash);
    out.put(text);
    return result;
}

} // namespace vorlin
