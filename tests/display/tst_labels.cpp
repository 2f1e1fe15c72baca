#include "displaytest.h"

#include "batterypowerlabel.h"
#include "batteryvoltagelabel.h"
#include "colorlabel.h"
#include "colorstatuswidget.h"
#include "communicationinfolabel.h"
#include "datetimelabel.h"
#include "tiplabel.h"

#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>

using namespace displaytest;

namespace {

// Records the mouse events that reach it from its children.
class Parent : public QWidget
{
public:
    QList<QEvent::Type> received;

protected:
    void mousePressEvent(QMouseEvent* event) override { received << event->type(); }
    void mouseReleaseEvent(QMouseEvent* event) override { received << event->type(); }
};

// Exposes the icon a telemetry label paints.
template <typename Label>
class Probe : public Label
{
public:
    QImage icon()
    {
        QPixmap* icon = nullptr;
        QColor background, text, border;
        int borderWidth = 0;
        this->copyMemberValue(icon, background, text, border, borderWidth);
        return icon ? icon->toImage() : QImage();
    }
};

QImage levelIcon(const char* stem, int percent)
{
    return QImage(QStringLiteral(":/title_info/%1_%2%.png").arg(QLatin1String(stem)).arg(percent))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool sameImage(const QImage& a, const QImage& b)
{
    return !b.isNull() && a.convertToFormat(QImage::Format_ARGB32_Premultiplied) == b;
}

void click(QWidget* widget, Qt::MouseButton button)
{
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), button, button, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(5, 5), button, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

} // namespace

class LabelsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void colorLabelElidesTipsAndPaints()
    {
        const QString longText = QStringLiteral("A rather long status text that cannot fit a narrow label");
        ColorLabel label;
        label.resize(100, 30);
        label.setText(longText);
        QCOMPARE(label.GetOriginText(), longText);
        QCOMPARE(label.toolTip(), longText);
        QVERIFY(label.text() != longText);
        QVERIFY(label.text().endsWith(QChar(0x2026)));
        QVERIFY(label.fontMetrics().horizontalAdvance(label.text()) <= 88);

        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        label.resize(1000, 30); // the elision follows the width
        QCOMPARE(label.text(), longText);

        label.setEnabledToolTip(false);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &help);
        QVERIFY(!QToolTip::isVisible());
        label.setEnabledToolTip(true);
        QApplication::sendEvent(&label, &help);
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), longText);
        QToolTip::hideText();

        label.resize(60, 30);
        label.setBackgroundColor(true, QColor(10, 120, 200));
        label.setRadius(12);
        const QImage image = render(&label);
        QVERIFY(near(image.pixel(30, 15), QColor(10, 120, 200)));
        QVERIFY(!near(image.pixel(0, 0), QColor(10, 120, 200))); // rounded corner
    }

    void clicksAndThePassedOnMouse()
    {
        Parent parent;
        auto* label = new ColorLabel(QStringLiteral("x"), &parent);
        QSignalSpy clicked(label, &ColorLabel::sigClicked);
        click(label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 0); // not clickable by default
        label->enableClicked(true);
        click(label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QVERIFY(parent.received.isEmpty());
        click(label, Qt::RightButton); // passes on to the parent
        QCOMPARE(clicked.count(), 1);
        const QList<QEvent::Type> pressAndRelease{QEvent::MouseButtonPress, QEvent::MouseButtonRelease};
        QCOMPARE(parent.received, pressAndRelease);

        // The link label, a button underneath, passes every click on.
        Parent linkParent;
        auto* link = new CommunicationInfoLabel(&linkParent);
        QSignalSpy linkClicked(link, &IconTextButton::sigClicked);
        click(link, Qt::LeftButton);
        QCOMPARE(linkClicked.count(), 0);
        QCOMPARE(linkParent.received, pressAndRelease);
    }

    void statusDotFollowsTheStateTable()
    {
        ColorStatusWidget dot;
        dot.resize(40, 20);
        dot.addState(1, Qt::red, QStringLiteral("first"));
        dot.addState(2, Qt::green, QStringLiteral("connected"));
        dot.addState(2, Qt::blue, QStringLiteral("linked")); // replaces
        dot.setState(2);
        QCOMPARE(dot.stateValue(), 2);
        QCOMPARE(dot.toolTip(), QStringLiteral("linked"));
        QImage image = render(&dot);
        QVERIFY(near(image.pixel(20, 10), Qt::blue));
        QVERIFY(!near(image.pixel(5, 10), Qt::blue)); // a centred circle, not the whole width

        LogCapture log;
        dot.setState(7);
        QCOMPARE(dot.stateValue(), 7);
        QCOMPARE(log.lines, QStringList{QStringLiteral("invalid state 1%. it's not in mapColorTips.")});
        QCOMPARE(dot.toolTip(), QStringLiteral("linked"));
        image = render(&dot);
        QVERIFY(!near(image.pixel(20, 10), Qt::blue));
        QVERIFY(!near(image.pixel(20, 10), Qt::red));
    }

    void clockShowsTheTimeOfDay()
    {
        DateTimeLabel clock;
        QTRY_VERIFY_WITH_TIMEOUT(!clock.text().isEmpty(), 3000);
        const QTime shown = QTime::fromString(clock.text(), QStringLiteral("HH:mm:ss"));
        QVERIFY(shown.isValid());
        QVERIFY(qAbs(shown.secsTo(QTime::currentTime())) <= 2);
        const QString first = clock.text();
        QTRY_VERIFY_WITH_TIMEOUT(clock.text() != first, 3000); // it keeps ticking
    }

    void tipLabelPlacesItsTip_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("aligned");
        QTest::addColumn<QPoint>("expected"); // label 80 x 20 at (300, 200), tip 50 x 30
        // Each position once, with each of the four vertical placements.
        QTest::newRow("0 aligned") << 0 << true << QPoint(379, 199);
        QTest::newRow("1") << 1 << false << QPoint(249, 219);
        QTest::newRow("2 aligned") << 2 << true << QPoint(379, 189);
        QTest::newRow("3") << 3 << false << QPoint(249, 169);
    }

    void tipLabelPlacesItsTip()
    {
        QFETCH(int, position);
        QFETCH(bool, aligned);
        QFETCH(QPoint, expected);
        TipLabel label(QStringLiteral("hover me"));
        label.setGeometry(300, 200, 80, 20);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        auto* tip = new QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint);
        tip->resize(50, 30);
        label.setTipWidget(tip);
        label.setTipShowPos(TipLabel::E_TIP_SHOW_POS(position));
        label.setTipWidgetIsHAligned(aligned);
        QVERIFY(QMetaObject::invokeMethod(&label, "showTips"));
        QVERIFY(tip->isVisible());
        QCOMPARE(tip->pos(), label.mapToGlobal(QPoint(0, 0)) - QPoint(300, 200) + expected);
    }

    void tipLabelWaitsBeforeShowingAndOwnsItsTip()
    {
        QPointer<QWidget> tip = new QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint);
        {
            TipLabel label(QStringLiteral("hover me"));
            label.resize(80, 20);
            label.show();
            label.setTipWidget(tip);
            QEvent enter(QEvent::Enter);
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(&label, &enter);
            QApplication::sendEvent(&label, &leave); // left before the delay ran out
            QTest::qWait(300);
            QVERIFY(!tip->isVisible());

            QApplication::sendEvent(&label, &enter);
            QTRY_VERIFY(tip->isVisible());
            QApplication::sendEvent(&label, &leave); // not onto the tip: it goes
            QTRY_VERIFY(!tip->isVisible());
        }
        QTRY_VERIFY(tip.isNull());
    }

    void batteryGaugeFillsToTheCharge()
    {
        BatteryPowerLabel gauge;
        QFont small = gauge.font();
        small.setPixelSize(6); // keeps the percentage clear of the sampled pixels
        gauge.setFont(small);
        gauge.setValue(50);
        gauge.setValue(101);
        gauge.setValue(-1);
        QCOMPARE(gauge.value(), 50);
        // Outline 34 x 18 at (1, 1): the charge starts at x 3 and fills 50% of 28 pixels,
        // x 3 to 16; full, it ends at x 30 inside the wall at x 32.
        const QColor green(0x12, 0xC4, 0x7A);
        const QImage half = render(&gauge);
        QVERIFY(near(half.pixel(4, 4), green, 30));
        QVERIFY(near(half.pixel(15, 4), green, 30));
        QVERIFY(!near(half.pixel(18, 4), green, 60));
        gauge.setValue(100);
        const QImage full = render(&gauge);
        QVERIFY(near(full.pixel(29, 4), green, 30));
        QVERIFY(!near(full.pixel(32, 4), green, 60));
    }

    void voltageLabelKeepsItsFormatting_data()
    {
        QTest::addColumn<int>("hundredths");
        QTest::addColumn<QString>("text");
        // The integer printed is the low word of the voltage as a double.
        QTest::newRow("12 V") << 1200 << QStringLiteral("0V");
        QTest::newRow("25.2 V") << 2520 << QStringLiteral("858993459V");
    }

    void voltageLabelKeepsItsFormatting()
    {
        QFETCH(int, hundredths);
        QFETCH(QString, text);
        BatteryVoltageLabel label;
        label.setBatteryValue(hundredths);
        QCOMPARE(label.text(), text);
    }

    void voltageLabelIconFollowsTheLevel()
    {
        Probe<BatteryVoltageLabel> label;
        QVERIFY(sameImage(label.icon(), levelIcon("icon_battery", 0)));
        label.setBatteryValue(20000);
        QCOMPARE(label.batteryValue(), 10000);
        QVERIFY(sameImage(label.icon(), levelIcon("icon_battery", 100)));
        label.setBatteryValue(5000);
        QVERIFY(sameImage(label.icon(), levelIcon("icon_battery", 60)));
    }

    void linkLabelLevels()
    {
        Probe<CommunicationInfoLabel> label;
        label.setValue(0);
        QCOMPARE(label.text(), QStringLiteral("0%"));
        QVERIFY(sameImage(label.icon(), levelIcon("icon_communication", 20)));
        label.setValue(150);
        QCOMPARE(label.text(), QStringLiteral("100%"));
        QVERIFY(sameImage(label.icon(), levelIcon("icon_communication", 100)));
        label.setValue(25);
        QVERIFY(sameImage(label.icon(), levelIcon("icon_communication", 40)));
        label.setValue(15); // the two offsets agree on level 1 here: the icon stays
        QVERIFY(sameImage(label.icon(), levelIcon("icon_communication", 40)));
        label.setValue(-5);
        QVERIFY(sameImage(label.icon(), levelIcon("icon_communication", 0)));
    }
};

QObject* createLabelsTest()
{
    return new LabelsTest;
}

#include "tst_labels.moc"
