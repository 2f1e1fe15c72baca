#include "libvorlin.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

QObject* createIconTextButtonTest();
QObject* createVariantsTest();
QObject* createMenusTest();

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    libVorlin::InitVorlin();
    int failures = 0;
    for (auto create : {createIconTextButtonTest, createVariantsTest, createMenusTest}) {
        QScopedPointer<QObject> test(create());
        failures += QTest::qExec(test.data(), argc, argv);
    }
    libVorlin::FreeVorlin();
    return failures;
}
