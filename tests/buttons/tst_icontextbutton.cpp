#include "buttontesthelpers.h"

#include "displaybutton.h"
#include "icontextbutton.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QHelpEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>

using namespace buttontest;

namespace {

const QColor Normal(10, 20, 30);
const QColor Hover(40, 80, 120);
const QColor Press(200, 30, 30);
const QColor Disable(150, 150, 150);

IconTextButton* makeButton(QWidget* parent, IconTextButton::CheckableType type = IconTextButton::CheckableFalse)
{
    auto* button = new IconTextButton(parent);
    button->resize(120, 40);
    button->setBackgroundColor(Normal, Hover, Press, Disable);
    button->setCheckable(type);
    return button;
}

QColor background(IconTextButton* button)
{
    return pixel(button, 3, 3);
}

// Bounding box of the pixels of one colour.
QRect areaOf(const QImage& image, const QColor& color)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (near(image.pixelColor(x, y), color, 2))
                box |= QRect(x, y, 1, 1);
    return box;
}

} // namespace

class IconTextButtonTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void clickModes_data();
    void clickModes();
    void holdIgnoresHoverUntilReleasedInCode();
    void toggleReleasedOutsideFlipsSilently();
    void disabledLookBlocksInput();
    void nonLeftButtonReachesParent();
    void setCheckedOnPlainButtonNeedsHover();
    void iconAndTextLayout_data();
    void iconAndTextLayout();
    void iconOnlyIsCentredForEveryAlignment();
    void leftMarginAndFontGuards();
    void underlineHintDotAndBorder();
    void eventFiltering();
    void repaintsEveryChangeOfLook();
    void displayButtonClicksOnlyInArea();
};

void IconTextButtonTest::clickModes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariantList>("emitted");   // sigClicked argument per click
    QTest::addColumn<QVariantList>("pressed");   // isChecked() after each click
    QTest::newRow("plain") << int(IconTextButton::CheckableFalse) << QVariantList{true, true}
                           << QVariantList{false, false};
    QTest::newRow("hold") << int(IconTextButton::CheckableHold) << QVariantList{true, true}
                          << QVariantList{true, true};
    QTest::newRow("toggle") << int(IconTextButton::CheckableToggle) << QVariantList{true, false}
                            << QVariantList{true, false};
}

void IconTextButtonTest::clickModes()
{
    QFETCH(int, type);
    QFETCH(QVariantList, emitted);
    QFETCH(QVariantList, pressed);
    QWidget parent;
    IconTextButton* button = makeButton(&parent, IconTextButton::CheckableType(type));
    QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
    for (int click = 0; click < emitted.size(); ++click) {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
        QCOMPARE(spy.count(), click + 1);
        QCOMPARE(spy.at(click).at(0), emitted.at(click));
        QCOMPARE(button->isChecked(), pressed.at(click).toBool());
        QVERIFY(near(background(button), pressed.at(click).toBool() ? Press : Hover));
    }
}

void IconTextButtonTest::holdIgnoresHoverUntilReleasedInCode()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent, IconTextButton::CheckableHold);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
    sendLeave(button);
    sendEnter(button);
    QVERIFY(button->isChecked());
    button->setChecked(false);
    QVERIFY(!button->isChecked());
    QVERIFY(near(background(button), Normal));
    sendEnter(button);
    QVERIFY(near(background(button), Hover));
}

void IconTextButtonTest::toggleReleasedOutsideFlipsSilently()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent, IconTextButton::CheckableToggle);
    QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(60, 20));
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(300, 20));
    QCOMPARE(spy.count(), 0);
    QVERIFY(near(background(button), Hover));
    // The flag flipped at the press: the next click flips it back.
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
}

void IconTextButtonTest::disabledLookBlocksInput()
{
    PressRecorder parent;
    IconTextButton* button = makeButton(&parent, IconTextButton::CheckableToggle);
    QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
    QVERIFY(button->isChecked());

    button->setDisable(true);
    QVERIFY(!button->isChecked());
    QVERIFY(near(background(button), Disable));
    sendEnter(button);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(parent.presses, 1);
    QVERIFY(near(background(button), Disable));

    // Enabling returns to the normal look although the flag is still set.
    button->setDisable(false);
    QVERIFY(near(background(button), Normal));
}

void IconTextButtonTest::nonLeftButtonReachesParent()
{
    PressRecorder parent;
    IconTextButton* button = makeButton(&parent);
    QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
    QTest::mouseClick(button, Qt::RightButton, {}, QPoint(60, 20));
    QCOMPARE(parent.presses, 1);
    QCOMPARE(spy.count(), 0);
    QVERIFY(near(background(button), Normal));
}

void IconTextButtonTest::setCheckedOnPlainButtonNeedsHover()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent);
    button->setChecked(true);
    QVERIFY(!button->isChecked());
    sendEnter(button);
    button->setChecked(true);
    QVERIFY(button->isChecked());

    IconTextButton* toggle = makeButton(&parent, IconTextButton::CheckableToggle);
    toggle->setChecked(true);
    QVERIFY(toggle->isChecked());
    toggle->setChecked(false);
    QVERIFY(!toggle->isChecked());
}

void IconTextButtonTest::iconAndTextLayout_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QRect>("iconRect");   // null: no icon painted
    QTest::addColumn<bool>("textPainted");
    const int th = QFontMetrics(QApplication::font()).height();
    QTest::newRow("centre") << int(IconTextButton::AlignTextCenter) << QRect(55, 15, 10, 10) << true;
    QTest::newRow("right") << int(IconTextButton::AlignTextRight) << QRect(4, 15, 10, 10) << true;
    QTest::newRow("bottom") << int(IconTextButton::AlignTextBottom)
                            << QRect(55, (40 - 6 - th - 10) / 2, 10, 10) << true;
    // Icon plus caption aligned left paints neither.
    QTest::newRow("left") << int(IconTextButton::AlignTextLeft) << QRect() << false;
}

void IconTextButtonTest::iconAndTextLayout()
{
    QFETCH(int, alignment);
    QFETCH(QRect, iconRect);
    QFETCH(bool, textPainted);
    QWidget parent;
    IconTextButton* button = makeButton(&parent);
    button->setIcon(solid(10, 10, Qt::green), QPixmap(), QPixmap(), QPixmap());
    button->setTextColor(Qt::yellow, Qt::yellow, Qt::yellow, Qt::yellow);
    button->setText(QStringLiteral("WWWW"));
    button->setTextAlignment(IconTextButton::AlignText(alignment));
    const QImage image = render(button);
    QCOMPARE(areaOf(image, Qt::green), iconRect);
    QCOMPARE(!areaOf(image, Qt::yellow).isNull(), textPainted);
    if (alignment == IconTextButton::AlignTextRight)
        QVERIFY(areaOf(image, Qt::yellow).left() >= iconRect.right() + 5);
    if (alignment == IconTextButton::AlignTextBottom)
        QVERIFY(areaOf(image, Qt::yellow).top() > iconRect.bottom());
}

void IconTextButtonTest::iconOnlyIsCentredForEveryAlignment()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent);
    button->setIcon(solid(10, 10, Qt::green), QPixmap(), QPixmap(), QPixmap());
    for (auto alignment : {IconTextButton::AlignTextLeft, IconTextButton::AlignTextCenter,
                           IconTextButton::AlignTextRight, IconTextButton::AlignTextBottom}) {
        button->setTextAlignment(alignment);
        QCOMPARE(areaOf(render(button), Qt::green), QRect(55, 15, 10, 10));
    }
}

void IconTextButtonTest::leftMarginAndFontGuards()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent);
    button->setIcon(solid(10, 10, Qt::green), QPixmap(), QPixmap(), QPixmap());
    button->setText(QStringLiteral("x"));
    button->setTextAlignment(IconTextButton::AlignTextRight);
    button->setLeftMargin(2);
    button->setLeftMargin(button->width());
    QCOMPARE(areaOf(render(button), Qt::green).left(), 4);
    button->setRadius(3);
    button->setLeftMargin(10);
    QCOMPARE(areaOf(render(button), Qt::green).left(), 13);

    button->setFontPixelSize(20, QStringLiteral("Serif"), true);
    QCOMPARE(button->font().pixelSize(), 20);
    QCOMPARE(button->font().weight(), int(QFont::Bold));
    button->setFontPixelSize(9, QString(), false);
    QCOMPARE(button->font().pixelSize(), 20);
    // The same size rejects the whole call, family and weight included.
    button->setFontPixelSize(20, QStringLiteral("Monospace"), false);
    QCOMPARE(button->font().family(), QStringLiteral("Serif"));
    QCOMPARE(button->font().weight(), int(QFont::Bold));
}

void IconTextButtonTest::underlineHintDotAndBorder()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent);
    button->setUnderline(true);
    button->setUnderlineAttribute(Qt::magenta, 2);
    QVERIFY(near(pixel(button, 60, 39), Qt::magenta));
    QVERIFY(near(pixel(button, 60, 20), Normal));

    button->setUnderline(false);
    button->setBorderColor(Qt::cyan, Qt::cyan, Qt::cyan, Qt::cyan);
    button->setBorderWidget(2);
    QVERIFY(near(pixel(button, 0, 20), Qt::cyan));
    QVERIFY(near(pixel(button, 60, 20), Normal));

    // The hint dot's brush stays set, so the border path is filled with the hint colour.
    button->setHintColor(Qt::darkGreen);
    button->enableHintColor(true);
    QVERIFY(near(pixel(button, 60, 20), Qt::darkGreen));
    QVERIFY(near(pixel(button, 0, 20), Qt::cyan));

    button->setBorderWidget(0);
    const QImage image = render(button);
    // Dot in the top-right corner of the (empty) icon box: 6 x 6 at (54, 26).
    QVERIFY(near(image.pixelColor(57, 29), Qt::darkGreen));
    QVERIFY(near(image.pixelColor(57, 22), Normal));
    QVERIFY(near(image.pixelColor(20, 20), Normal));
}

void IconTextButtonTest::eventFiltering()
{
    QWidget parent;
    IconTextButton* button = makeButton(&parent);
    button->setText(QStringLiteral("tip"));
    QCOMPARE(button->toolTip(), QStringLiteral("tip"));
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(button, &help);
    QVERIFY(!QToolTip::isVisible());
    button->setEnabledToolTip(true);
    QApplication::sendEvent(button, &help);
    QVERIFY(QToolTip::isVisible());
    QToolTip::hideText();

    QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
    button->setEnableFilterMousePressEvent(true);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
    QCOMPARE(spy.count(), 0);
    button->setEnableFilterMousePressEvent(false);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
    QCOMPARE(spy.count(), 1);

    QWheelEvent wheel(QPointF(5, 5), QPointF(button->mapToGlobal(QPoint(5, 5))), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    wheel.ignore();
    QApplication::sendEvent(button, &wheel);
    QVERIFY(wheel.isAccepted());
}

void IconTextButtonTest::displayButtonClicksOnlyInArea()
{
    DisplayButton button;
    button.resize(100, 80);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy spy(&button, &DisplayButton::sigClicked);
    for (const QPoint& at : {QPoint(50, 10), QPoint(50, 60)}) {
        QCursor::setPos(button.mapToGlobal(at));
        QTest::mouseClick(&button, Qt::LeftButton, {}, at);
    }
    QCOMPARE(spy.count(), 1);
    // Press colour shows in the area only while the cursor is there.
    QCursor::setPos(button.mapToGlobal(QPoint(50, 60)));
    QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(50, 60));
    QVERIFY(near(pixel(&button, 10, 50), QColor(201, 107, 0)));
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(50, 60));
}

void IconTextButtonTest::repaintsEveryChangeOfLook()
{
    // A subclass may change the protected members directly.
    struct Rounded : IconTextButton
    {
        void setRadiusDirectly(int r) { m_radius = r; update(); }
    };
    QWidget parent;
    parent.resize(200, 100);
    auto* button = new Rounded;
    button->setParent(&parent);
    button->resize(120, 40);
    button->setBackgroundColor(Normal, Hover, Press, Disable);
    button->setText(QStringLiteral("WWWW"));
    QVERIFY(near(pixel(button, 0, 0), Normal));
    button->setRadiusDirectly(12);
    QVERIFY(!near(pixel(button, 0, 0), Normal));

    // Unset text colours follow the palette.
    QPalette palette = button->palette();
    palette.setColor(QPalette::WindowText, Qt::yellow);
    button->setPalette(palette);
    QVERIFY(!areaOf(render(button), Qt::yellow).isNull());
    palette.setColor(QPalette::WindowText, Qt::green);
    button->setPalette(palette);
    QVERIFY(areaOf(render(button), Qt::yellow).isNull());
    QVERIFY(!areaOf(render(button), Qt::green).isNull());
}

QObject* createIconTextButtonTest()
{
    return new IconTextButtonTest;
}

#include "tst_icontextbutton.moc"
