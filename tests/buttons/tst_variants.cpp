#include "buttontesthelpers.h"

#include "basebutton.h"
#include "basestatebutton.h"
#include "delaybutton.h"
#include "doubleclickbutton.h"
#include "iconcheckbutton.h"
#include "rotatingwaitingbutton.h"
#include "stateswitchbutton.h"
#include "svgbutton.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace buttontest;

namespace {

void tick(QObject* delayButton, int times = 1)
{
    for (int i = 0; i < times; ++i)
        QVERIFY(QMetaObject::invokeMethod(delayButton, "slotTimerout"));
}

QString writeSvg(const QTemporaryDir& dir, const QString& name, const QString& body)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"20\" viewBox=\"0 0 20 20\">");
    file.write(body.toUtf8());
    file.write("</svg>");
    return path;
}

} // namespace

class VariantsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void baseButtonReportsIdAndPosition()
    {
        QWidget window;
        window.resize(200, 100);
        auto* button = new BaseButton(7, QStringLiteral("seven"), &window);
        button->setGeometry(20, 30, 80, 30);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy clicked(button, SIGNAL(sigClicked(int, QPoint)));
        QSignalSpy pressed(button, SIGNAL(sigPressed(int, QPoint)));
        QSignalSpy plainClicked(button, SIGNAL(sigClicked(bool)));

        QCursor::setPos(button->mapToGlobal(QPoint(10, 10)));
        QTest::mouseClick(button, Qt::RightButton, {}, QPoint(10, 10));
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(clicked.count(), 0);

        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toInt(), 7);
        QCOMPARE(clicked.at(0).at(1).toPoint(), button->mapToGlobal(QPoint(0, 0)));
        QCOMPARE(plainClicked.count(), 0);
    }

    void stateButtonCycles()
    {
        BaseStateButton cycle;
        cycle.resize(80, 30);
        cycle.addButton(10, QStringLiteral("a"));
        cycle.addButton(11, QStringLiteral("b"));
        cycle.addButton(new BaseButton(12, QStringLiteral("c")));
        cycle.show();
        QVERIFY(QTest::qWaitForWindowExposed(&cycle));
        QSignalSpy spy(&cycle, SIGNAL(sigClicked(int, QPoint)));
        const QList<int> expectedShown{11, 12, 10};
        for (int i = 0; i < 3; ++i) {
            const int shown = cycle.currentButtonId();
            QCursor::setPos(cycle.getButton(shown)->mapToGlobal(QPoint(5, 5)));
            QTest::mouseClick(cycle.getButton(shown), Qt::LeftButton, {}, QPoint(5, 5));
            QCOMPARE(spy.at(i).at(0).toInt(), shown);
            QCOMPARE(cycle.currentButtonId(), expectedShown.at(i));
            QVERIFY(cycle.getButton(cycle.currentButtonId())->isVisible());
            QVERIFY(!cycle.getButton(shown)->isVisible());
        }
        QCOMPARE(cycle.getButton(12)->geometry(), cycle.rect());

        cycle.setCurrentButtonId(99);
        QCOMPARE(cycle.currentButtonId(), 10);
        cycle.setCurrentButtonId(12);
        cycle.clickCurrentButton();
        QCOMPARE(spy.last().at(0).toInt(), 12);
        QCOMPARE(cycle.currentButtonId(), 10);
    }

    void delayButtonCountsDownAndSwallowsClicks()
    {
        PressRecorder parent;
        auto* button = new DelayButton(&parent);
        button->resize(80, 30);
        button->setText(QStringLiteral("go"));
        button->setMaxCount(3);
        QSignalSpy started(button, &DelayButton::sigDelayButtonClicked);
        QSignalSpy finished(button, &DelayButton::sigDelayButtonTimeout);

        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(started.count(), 1);
        tick(button, 2);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(started.count(), 1);
        QCOMPARE(parent.presses, 0);
        QCOMPARE(finished.count(), 0);

        tick(button);
        QCOMPARE(finished.count(), 1);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(started.count(), 2);

        button->resetDelayButton();
        QCOMPARE(finished.count(), 1);
        // A count of 0 still locks the button until the timer ticks.
        button->setMaxCount(0);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(started.count(), 3);
        tick(button);
        QCOMPARE(finished.count(), 2);
    }

    void waitingButtonSwallowsClicksAndPaintsItsRing()
    {
        PressRecorder parent;
        auto* button = new RotatingWaitingButton(&parent);
        button->resize(40, 40);
        button->setWaitingTime(50);
        button->setRotateColor(Qt::red, Qt::red);
        QSignalSpy timeout(button, &RotatingWaitingButton::sigWaitingTimeout);
        QSignalSpy clicked(button, &QPushButton::clicked);

        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QVERIFY(button->isWaiting());
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(parent.presses, 0);
        // Side 40 - (2 * 2 + 10) = 26: the ring passes 13 pixels from the centre.
        const QImage image = render(button);
        for (const QPoint& p : {QPoint(7, 20), QPoint(33, 20), QPoint(20, 7), QPoint(20, 33)})
            QVERIFY2(image.pixelColor(p).red() > 200 && image.pixelColor(p).green() < 80,
                     qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
        QVERIFY(image.pixelColor(20, 20).red() < 200 || image.pixelColor(20, 20).green() > 80);

        QVERIFY(timeout.wait(5000));
        QVERIFY(!button->isWaiting());
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(clicked.count(), 2);
        button->stopWaiting();
    }

    void doubleClickButton()
    {
        DoubleClickButton button;
        QSignalSpy spy(&button, &DoubleClickButton::doubleClicked);
        QTest::mouseDClick(&button, Qt::RightButton, {}, QPoint(5, 5));
        QTest::mouseDClick(&button, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(spy.count(), 1);
    }

    void iconCheckButtonUsesShippedIcons()
    {
        IconCheckButton button;
        button.setText(QString());
        // Inside the disc, clear of the tick: icon pixel (8, 3) of the centred 16 x 16 icon.
        const QColor enabled = pixel(&button, 26, 6);
        button.setDisable(true);
        const QColor disabled = pixel(&button, 26, 6);
        // A coloured check mark, and a grey one when disabled.
        QVERIFY(enabled.hsvSaturation() > 100);
        QVERIFY(disabled.hsvSaturation() < 30);
        QVERIFY(disabled != QColor(241, 241, 241));
    }

    void svgButtonStatesAndRecolouring()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString nested = writeSvg(dir, QStringLiteral("nested.svg"),
                                        QStringLiteral("<g fill=\"#000000\"><g fill=\"#000000\">"
                                                       "<rect width=\"20\" height=\"20\"/></g></g>"));
        const QString pathFill = writeSvg(dir, QStringLiteral("path.svg"),
                                          QStringLiteral("<g><path fill=\"#000000\" d=\"M0 0H20V20H0Z\"/></g>"));
        QWidget parent;
        auto* button = new SvgButton(&parent);
        button->resize(40, 40);
        QVERIFY(near(pixel(button, 20, 20), parent.palette().color(QPalette::Window)));

        button->setBackgroundColor(Qt::darkBlue, Qt::darkGreen, Qt::darkRed, Qt::gray);
        QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
        sendEnter(button);
        QVERIFY(near(pixel(button, 20, 20), Qt::darkGreen));
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(20, 20));
        QCOMPARE(spy.count(), 1);
        QVERIFY(near(pixel(button, 20, 20), Qt::darkRed));
        sendLeave(button);
        QVERIFY(near(pixel(button, 20, 20), Qt::darkBlue));
        QTest::mousePress(button, Qt::LeftButton, {}, QPoint(20, 20));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(90, 20));
        QCOMPARE(spy.count(), 1);
        QVERIFY(near(pixel(button, 20, 20), Qt::darkGreen));

        // Only g elements that carry fill are recoloured, in memory: the file stays as it was.
        button->setBackgroundColor(Qt::white, Qt::white, Qt::white, Qt::white);
        button->setSvgWidgetRect(20, 20);
        QCoreApplication::processEvents();
        button->setSvgColor(QStringLiteral("#ff0000"));   // no path yet: nothing happens
        button->setSvgPath(nested);
        QVERIFY(near(pixel(button, 20, 20), Qt::black));
        QVERIFY(near(pixel(button, 5, 5), Qt::white));
        button->setSvgColor(QStringLiteral("#ff0000"));
        QVERIFY(near(pixel(button, 20, 20), Qt::red));
        button->setSvgColor(QStringLiteral("#00ff00"));
        QVERIFY(near(pixel(button, 20, 20), Qt::green));

        button->setSvgPath(pathFill);
        button->setSvgColor(QStringLiteral("#ff0000"));
        QVERIFY(near(pixel(button, 20, 20), Qt::black));
        QFile file(nested);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("ff0000"));
    }

    void switchButtonShowsSwitchPictures()
    {
        StateSwitchButton button(QStringLiteral("power"));
        button.resize(button.sizeHint());
        const auto greenPixels = [&button] {
            const QImage image = render(&button);
            int count = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    count += near(image.pixelColor(x, y), QColor(0, 187, 101), 10);
            return count;
        };
        QCOMPARE(greenPixels(), 0);
        button.setChecked(true);
        QVERIFY(greenPixels() > 100);
    }
};

QObject* createVariantsTest()
{
    return new VariantsTest;
}

#include "tst_variants.moc"
