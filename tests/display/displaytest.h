#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

// Helpers shared by the display tests.
namespace displaytest {

inline QImage render(QWidget* widget)
{
    return widget->grab().toImage();
}

// True when the pixel is within a small tolerance of the colour (antialiasing, blending).
inline bool near(QRgb pixel, const QColor& expected, int tolerance = 12)
{
    return qAbs(qRed(pixel) - expected.red()) <= tolerance && qAbs(qGreen(pixel) - expected.green()) <= tolerance
        && qAbs(qBlue(pixel) - expected.blue()) <= tolerance;
}

// Collects the text of every log line while alive.
class LogCapture
{
public:
    LogCapture() { m_previous = qInstallMessageHandler(capture); active() = this; }
    ~LogCapture() { active() = nullptr; qInstallMessageHandler(m_previous); }
    QStringList lines;

private:
    static LogCapture*& active()
    {
        static LogCapture* current = nullptr;
        return current;
    }
    static void capture(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        if (active())
            active()->lines.append(message);
    }
    QtMessageHandler m_previous = nullptr;
};

} // namespace displaytest

QObject* createLinesTest();
QObject* createLabelsTest();
QObject* createIndicatorsTest();
QObject* createCodesTest();
QObject* createMeterTest();
