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
    LogCapture();
    ~LogCapture();
    QStringList lines;
};

} // namespace displaytest

QObject* createLinesTest();
QObject* createLabelsTest();
QObject* createIndicatorsTest();
QObject* createCodesTest();
QObject* createMeterTest();
