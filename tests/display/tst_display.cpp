#include "displaytest.h"

#include <QtTest/QtTest>

#include <memory>

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
