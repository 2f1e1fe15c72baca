#include "displaytest.h"

#include <QtTest/QtTest>

#include <memory>

namespace displaytest {

namespace {
LogCapture* activeCapture = nullptr;
QtMessageHandler previousHandler = nullptr;

void capture(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (activeCapture)
        activeCapture->lines.append(message);
}
} // namespace

LogCapture::LogCapture()
{
    activeCapture = this;
    previousHandler = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previousHandler);
    activeCapture = nullptr;
}

} // namespace displaytest

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    int failures = 0;
    for (auto create : {createLinesTest, createLabelsTest, createIndicatorsTest, createCodesTest, createMeterTest}) {
        std::unique_ptr<QObject> test(create());
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures;
}
