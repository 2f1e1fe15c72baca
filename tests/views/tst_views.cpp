#include "colortotext.h"
#include "msgviewitem.h"
#include "msgviewwidget.h"
#include "separatelinewidget.h"
#include "viewheader.h"
#include "viewitem.h"
#include "viewwidget.h"
#include "warnmsgview.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace {

QList<QLabel*> labelsOf(QWidget* widget)
{
    return widget->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
}

// Separators are the 2-pixel-wide lines; the header's top and bottom lines are 2 high.
QList<SeparateLineWidget*> separatorsOf(QWidget* widget)
{
    QList<SeparateLineWidget*> lines;
    for (SeparateLineWidget* line : widget->findChildren<SeparateLineWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (line->width() == 2)
            lines << line;
    }
    return lines;
}

MsgInfoT message(const QString& text)
{
    return MsgInfoT{1, text, QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7))};
}

// Appends rows of two equal columns, "n<i>" and "<i>".
QList<ViewItem*> appendRows(ViewWidget& view, int count)
{
    QList<ViewItem*> rows;
    for (int i = 0; i < count; ++i) {
        auto* row = new ViewItem;
        row->setItemContents({QStringLiteral("n%1").arg(i), QString::number(i)}, {1, 1});
        view.appendViewItem(row);
        rows << row;
    }
    return rows;
}

QStringList texts(const MsgViewWidget& view)
{
    QStringList list;
    for (MsgViewItem* item : view.items())
        list << item->info().text;
    return list;
}

} // namespace

class TestViews : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void colourText();
    void headerContentsPadAndShrink();
    void columnGeometry_data();
    void columnGeometry();
    void rowCellsAndStyle();
    void viewRowsAlternateAndOverlap();
    void viewRowBookkeeping();
    void viewSettersClamp();
    void viewKeepsFocusWhileRowsArrive();
    void viewMakesRowsAsTheyComeIntoSight();

    void messagesNewestFirstWithinCap();
    void messageRowsLayOut();
    void warningPanel();
};

void TestViews::colourText()
{
    const QColor opaque(1, 171, 255);
    const QColor translucent(1, 171, 255, 16);
    QCOMPARE(colorToText(translucent, QStringLiteral("RGBA")), QStringLiteral("rgba(1,171,255,16)"));
    QCOMPARE(colorToText(translucent, QStringLiteral("RGB")), QStringLiteral("rgb(1,171,255)"));
    QCOMPARE(colorToText(opaque, QStringLiteral("HEX")), QStringLiteral("#01ABFF"));
    QCOMPARE(colorToText(translucent, QStringLiteral("HEX")), QStringLiteral("#1001ABFF"));
    QCOMPARE(colorToText(opaque, QStringLiteral("hex")), QString());
}

void TestViews::headerContentsPadAndShrink()
{
    ViewHeader header;
    header.resize(300, 30);
    header.setHeaderContents({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}, {2});
    QCOMPARE(header.weights(), (QList<int>{2, 10, 10}));
    QCoreApplication::processEvents();
    QCOMPARE(labelsOf(&header).size(), 3);
    QCOMPARE(separatorsOf(&header).size(), 4);
    // New separators take the horizontal line colour until setLineColor is next called.
    header.setLineColor(Qt::red, Qt::green);
    header.setHeaderContents({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")},
                             {});
    QCoreApplication::processEvents();
    QList<SeparateLineWidget*> lines = separatorsOf(&header);
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.last()->color(), QColor(Qt::green));
    QCOMPARE(lines.first()->color(), QColor(Qt::red));

    header.setHeaderContents({QStringLiteral("x")}, {1});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(labelsOf(&header).size(), 1);
    QCOMPARE(separatorsOf(&header).size(), 2);
    QCOMPARE(labelsOf(&header).at(0)->text(), QStringLiteral("x"));
    QCOMPARE(labelsOf(&header).at(0)->geometry(), QRect(8, 3, 300 - 6 - 16, 24));

    ViewHeader empty;
    empty.show();
    QVERIFY(QTest::qWaitForWindowExposed(&empty));
    QCoreApplication::processEvents();
    for (SeparateLineWidget* line : empty.findChildren<SeparateLineWidget*>())
        QVERIFY(!line->isVisible());
}

void TestViews::columnGeometry_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QList<int>>("weights");
    QTest::addColumn<QList<int>>("columnWidths");
    QTest::newRow("weighted, remainder kept right") << 100 << QList<int>{1, 2} << QList<int>{33, 66};
    QTest::newRow("remainder spread") << 100 << QList<int>{3, 3} << QList<int>{50, 50};
}

// Header and row share the column rule and differ in their vertical insets.
void TestViews::columnGeometry()
{
    QFETCH(int, width);
    QFETCH(QList<int>, weights);
    QFETCH(QList<int>, columnWidths);
    QStringList texts;
    for (int i = 0; i < weights.size(); ++i)
        texts << QString::number(i);

    ViewHeader header;
    header.resize(width, 30);
    header.setHeaderContents(texts, weights);
    ViewItem row;
    row.resize(width, 30);
    row.setItemContents(texts, weights);
    const QList<QWidget*> rowLabels = row.getItemWidgets();
    QCoreApplication::processEvents();

    const QList<QLabel*> headerLabels = labelsOf(&header);
    const QList<SeparateLineWidget*> lines = separatorsOf(&row);
    QCOMPARE(lines.size(), texts.size() + 1);
    int x = 0;
    for (int i = 0; i < texts.size(); ++i) {
        const int inset = i == texts.size() - 1 ? 6 : 0;
        QCOMPARE(headerLabels.at(i)->geometry(), QRect(x + 8, 3, columnWidths.at(i) - inset - 16, 24));
        QCOMPARE(rowLabels.at(i)->geometry(), QRect(x + 8, 4, columnWidths.at(i) - inset - 16, 22));
        QCOMPARE(lines.at(i)->geometry(), QRect(x, 0, 2, 30));
        x += columnWidths.at(i);
    }
    QCOMPARE(lines.last()->geometry(), QRect(width - 2, 0, 2, 30));
}

void TestViews::rowCellsAndStyle()
{
    ViewItem row;
    row.setItemContents({QStringLiteral("a")}, {1});
    QVERIFY(labelsOf(&row).isEmpty()); // made when first needed
    const QString expected = QStringLiteral("border-color:rgba(255,255,255,0);background-color:rgba(255,255,255,0);"
                                            "font: 12px \"Microsoft YaHei\";color: rgba(255,255,255,255)");
    QCOMPARE(row.getItemWidgets().size(), 1);
    QCOMPARE(labelsOf(&row).at(0)->styleSheet(), expected + QLatin1Char(';'));
    row.setBackgroundColor(QColor(10, 20, 30));
    const QString refreshed = QString(expected).replace(QStringLiteral("background-color:rgba(255,255,255,0)"),
                                                        QStringLiteral("background-color:rgba(10,20,30,255)"));
    QCOMPARE(labelsOf(&row).at(0)->styleSheet(), refreshed);

    // Labels made late carry the style text they would have had if made at once.
    ViewItem late;
    late.setItemContents({QStringLiteral("a")}, {1});
    late.setBackgroundColor(QColor(10, 20, 30));
    late.setItemContents({QStringLiteral("a"), QStringLiteral("b")}, {1, 1});
    const QList<QWidget*> lateCells = late.getItemWidgets();
    QCOMPARE(lateCells.at(0)->styleSheet(), refreshed);
    QCOMPARE(lateCells.at(1)->styleSheet(), refreshed + QLatin1Char(';'));
    QCOMPARE(qobject_cast<QLabel*>(lateCells.at(1))->text(), QStringLiteral("b"));
    row.setFontStyle(5, Qt::black, QStringLiteral("Sans"));
    QCOMPARE(labelsOf(&row).at(0)->font().pixelSize(), 9);
    QVERIFY(labelsOf(&row).at(0)->styleSheet().contains(QStringLiteral("font: 9px \"Sans\";color: rgba(0,0,0,255)")));

    ViewHeader header;
    header.setHeaderContents({QStringLiteral("h")}, {1});
    QCOMPARE(labelsOf(&header).at(0)->styleSheet(),
             QStringLiteral("border-color:rgba(58,62,67,255);background-color:rgba(255,255,255,0);"
                            "font: 12px \"Microsoft YaHei\";color: rgba(255,255,255,255)"));

    // Caller widgets become the cells; the labels they replace are released.
    QPointer<QLabel> old = labelsOf(&row).at(0);
    auto* edit = new QLineEdit;
    auto* check = new QCheckBox;
    QList<QWidget*> widgets{edit, check};
    row.resize(200, 30);
    row.setItemWidgets(widgets, {1});
    QCOMPARE(edit->parentWidget(), &row);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(old.isNull());
    QCoreApplication::processEvents();
    // Weights {1, 10} over 200: unit 18, remainder 2, one extra pixel per column.
    QCOMPARE(edit->geometry(), QRect(8, 4, 19 - 16, 22));
    QCOMPARE(check->geometry(), QRect(19 + 8, 4, 181 - 6 - 16, 22));
}

void TestViews::viewRowsAlternateAndOverlap()
{
    ViewWidget view;
    view.setHeaderContents({QStringLiteral("name"), QStringLiteral("value")}, {1, 1});
    view.resize(200, 300);
    const QList<ViewItem*> rows = appendRows(view, 4);
    view.setItemBackgroundColor(QColor(200, 0, 0));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();

    auto filled = [&] {
        QList<bool> flags;
        for (ViewItem* row : view.allItems())
            flags << row->isItemBackcolorEnabled();
        return flags;
    };
    QCOMPARE(filled(), (QList<bool>{false, true, false, true}));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(rows.at(i)->geometry(), QRect(0, i * 29, 200, 30)); // one-pixel overlap
    QCOMPARE(view.scrollArea()->widget()->height(), 3 * 29 + 30);
    QCOMPARE(view.header()->geometry(), QRect(0, 0, 200, 30));

    // The fill shows between the separator and the first cell.
    const QImage image = view.grab().toImage();
    QCOMPARE(image.pixelColor(5, 30 + 29 + 15), QColor(200, 0, 0));
    QVERIFY(image.pixelColor(5, 30 + 15) != QColor(200, 0, 0));

    // Inner lines are transparent by default and then not shown at all; coloured, they draw.
    for (SeparateLineWidget* line : rows.at(1)->findChildren<SeparateLineWidget*>())
        QVERIFY(line->isHidden());
    view.setInsideLineColor(QColor(0, 200, 0), QColor(0, 0, 200));
    const QImage lined = view.grab().toImage();
    QCOMPARE(lined.pixelColor(1, 30 + 29 + 15), QColor(0, 200, 0));
    QCOMPARE(lined.pixelColor(50, 30 + 29 + 28), QColor(0, 0, 200));

    view.removeViewItem(rows.at(0));
    QCOMPARE(filled(), (QList<bool>{false, true, false}));
    view.enableSeparateColor(false);
    QCOMPARE(filled(), (QList<bool>{false, false, false}));
    view.enableSeparateColor(true);
    QCOMPARE(filled(), (QList<bool>{false, true, false}));

    // A row added later takes the view's line colours.
    auto* late = new ViewItem;
    late->setItemContents({QStringLiteral("late"), QStringLiteral("4")}, {1, 1});
    view.appendViewItem(late);
    QCoreApplication::processEvents();
    QCOMPARE(view.grab().toImage().pixelColor(1, 30 + 3 * 29 + 15), QColor(0, 200, 0));

    QVERIFY(!view.scrollArea()->verticalScrollBar()->styleSheet().isEmpty());
    QVERIFY(view.scrollArea()->horizontalScrollBar()->styleSheet().isEmpty());
}

void TestViews::viewRowBookkeeping()
{
    ViewWidget view;
    auto* a = new ViewItem;
    auto* b = new ViewItem;
    auto* c = new ViewItem;
    view.appendViewItem(a);
    view.appendViewItem(a);
    view.appendViewItem(nullptr);
    view.appendViewItem(b);
    view.insertViewItem(0, c);
    QCOMPARE(view.allItems(), (QList<ViewItem*>{c, a, b}));
    QCOMPARE(a->parentWidget(), view.scrollArea()->widget());

    ViewItem stranger;
    view.removeViewItem(&stranger);
    QCOMPARE(view.allItems().size(), 3);

    QPointer<ViewItem> watched = a;
    view.removeViewItem(a);
    QCOMPARE(view.allItems(), (QList<ViewItem*>{c, b}));
    QVERIFY(a->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(watched.isNull());

    view.removeAll();
    QVERIFY(view.allItems().isEmpty());
}

void TestViews::viewSettersClamp()
{
    ViewWidget view;
    view.setHeaderHeight(10);
    view.setItemHeight(0);
    auto* row = new ViewItem;
    row->setItemContents({QStringLiteral("a")}, {});
    view.appendViewItem(row);
    view.setItemFont(Qt::yellow, 5, QStringLiteral("Sans"));
    QCOMPARE(row->getItemWidgets().at(0)->font().pixelSize(), 9);
    view.resize(100, 100);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    QCOMPARE(view.header()->height(), 24);
    QCOMPARE(row->height(), 24);
}

// New rows are shown together with the next layout; a cell being edited keeps the focus.
void TestViews::viewKeepsFocusWhileRowsArrive()
{
    ViewWidget view;
    view.resize(300, 200);
    auto* editRow = new ViewItem;
    auto* edit = new QLineEdit;
    QList<QWidget*> cells{edit};
    editRow->setItemWidgets(cells, {1});
    view.appendViewItem(editRow);
    view.show();
    QApplication::setActiveWindow(&view);
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QCoreApplication::processEvents();
    edit->setFocus();
    QTRY_VERIFY(edit->hasFocus());

    const QList<ViewItem*> added = appendRows(view, 5);
    QCoreApplication::processEvents();
    QVERIFY(edit->hasFocus());
    for (ViewItem* row : added)
        QVERIFY(row->isVisible());
    QCOMPARE(added.last()->y(), 5 * 29);
}

// A long table only builds and shows the rows that have been in sight.
void TestViews::viewMakesRowsAsTheyComeIntoSight()
{
    ViewWidget view;
    view.setHeaderContents({QStringLiteral("name"), QStringLiteral("value")}, {1, 1});
    view.resize(200, 30 + 170);
    const QList<ViewItem*> rows = appendRows(view, 100);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();

    // Rows 0 to 5 reach into the 170 pixels in sight (29-pixel pitch).
    QCOMPARE(labelsOf(rows.at(5)).size(), 2);
    QVERIFY(rows.at(5)->isVisible());
    QVERIFY(labelsOf(rows.at(6)).isEmpty());
    QVERIFY(labelsOf(rows.at(60)).isEmpty());
    QCOMPARE(view.scrollArea()->widget()->height(), 99 * 29 + 30);

    view.scrollArea()->verticalScrollBar()->setValue(60 * 29);
    const QList<QLabel*> labels = labelsOf(rows.at(60));
    QCOMPARE(labels.size(), 2);
    QVERIFY(labels.at(0)->isVisible());
    QCOMPARE(labels.at(0)->text(), QStringLiteral("n60"));
    QCOMPARE(labels.at(0)->geometry().topLeft(), QPoint(8, 4));
    QCOMPARE(separatorsOf(rows.at(60)).size(), 3);
    QVERIFY(labelsOf(rows.at(30)).isEmpty()); // scrolled past, never in sight

    // The caller asking for the cells gets them at once.
    QCOMPARE(rows.at(90)->getItemWidgets().size(), 2);
    QCOMPARE(qobject_cast<QLabel*>(rows.at(90)->getItemWidgets().at(1))->text(), QStringLiteral("90"));
}

void TestViews::messagesNewestFirstWithinCap()
{
    MsgViewWidget view;
    QCOMPARE(view.maxCount(), 200);
    for (int i = 0; i <= 200; ++i)
        view.addItem(message(QString::number(i)));
    QCOMPARE(view.items().size(), 200);
    QCOMPARE(texts(view).first(), QStringLiteral("200"));
    QCOMPARE(texts(view).last(), QStringLiteral("1")); // the first one is gone

    view.setMaxCount(0);
    view.setMaxCount(-5);
    QCOMPARE(view.maxCount(), 200);
    // A lower cap drops one row at a time, on the change and on each new message.
    view.setMaxCount(10);
    QCOMPARE(view.items().size(), 199);
    QCOMPARE(texts(view).last(), QStringLiteral("2"));
    view.addItem(message(QStringLiteral("new")));
    QCOMPARE(view.items().size(), 199);
    QCOMPARE(texts(view).first(), QStringLiteral("new"));
    QCOMPARE(texts(view).last(), QStringLiteral("3"));

    view.clearAll();
    QVERIFY(view.items().isEmpty());
}

void TestViews::messageRowsLayOut()
{
    MsgViewWidget view;
    QFont small = view.font();
    small.setPixelSize(9);
    view.resize(400, 60);
    view.addItem(message(QStringLiteral("short")));
    view.addItem(message(QString(QStringLiteral("a long message that wraps ")).repeated(10)));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();

    const QList<MsgViewItem*> rows = view.items();
    QCOMPARE(view.scrollArea()->geometry(), QRect(1, 1, 398, 58));
    QVERIFY(rows.at(1)->autoHeight() > 14); // the default font's line is taller than 12
    rows.at(1)->setFont(small);
    QCOMPARE(rows.at(1)->autoHeight(), 14);
    rows.at(1)->setFont(QFont());
    QVERIFY(rows.at(0)->height() > 14); // wrapped over several lines
    QCOMPARE(rows.at(0)->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(rows.at(1)->y(), rows.at(0)->height());
    QCOMPARE(view.scrollArea()->widget()->height(), rows.at(0)->height() + rows.at(1)->height());

    const QList<QLabel*> labels = labelsOf(rows.at(1));
    QCOMPARE(labels.at(1)->text(), QStringLiteral("03-04 05:06:07"));
    const int h = rows.at(1)->height();
    QCOMPARE(labels.at(0)->geometry(), QRect(0, 0, rows.at(1)->width() - 140, h));
    QCOMPARE(labels.at(1)->geometry(), QRect(rows.at(1)->width() - 110, 0, 110, h));

    QScrollBar* bar = view.scrollArea()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    view.scrollTop();
    QCOMPARE(bar->value(), 0);
}

void TestViews::warningPanel()
{
    WarnMsgView panel;
    MsgViewWidget* view = panel.messageView();
    QCOMPARE(view->items().size(), 100);
    QVERIFY(view->items().first()->info().text.endsWith(QStringLiteral("这是一个demo. 99")));
    QVERIFY(view->items().last()->info().text.endsWith(QStringLiteral("这是一个demo. 0")));

    panel.resize(300, 200);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCoreApplication::processEvents();
    QCOMPARE(view->geometry(), QRect(10, 10, 290, 190));

    const QImage image = panel.grab().toImage();
    QCOMPARE(image.pixelColor(5, 100), QColor(Qt::white));         // inside the bubble, left of the list
    QCOMPARE(image.pixelColor(299 - 30, 4), QColor(Qt::white));    // inside the pointer
    QVERIFY(image.pixelColor(100, 4) != QColor(Qt::white));        // above the bubble
    QVERIFY(image.pixelColor(1, 100).value() < 200);               // the grey outline
}

QTEST_MAIN(TestViews)
#include "tst_views.moc"
