#include "buttontesthelpers.h"

#include "iverticalbarwidget.h"
#include "menuitem.h"
#include "popupmenuwidget.h"
#include "tabmenuitemwidget.h"
#include "tabmenuwidget.h"

#include <QtTest/QtTest>
#include <QtWidgets/QVBoxLayout>

using namespace buttontest;

namespace {

PopupMenuWidget* popupOf(TabMenuItemWidget* entry)
{
    return entry->findChild<PopupMenuWidget*>();
}

MenuItem* subEntry(TabMenuItemWidget* entry, int id)
{
    for (MenuItem* item : popupOf(entry)->findChildren<MenuItem*>())
        if (item->menuId() == id)
            return item;
    return nullptr;
}

struct MenuBar
{
    TabMenuWidget bar;
    TabMenuItemWidget* first = new TabMenuItemWidget(1, QStringLiteral("one"));
    TabMenuItemWidget* second = new TabMenuItemWidget(2, QStringLiteral("two"));

    MenuBar()
    {
        bar.resize(400, 40);
        bar.insertMenuItem(first);
        bar.insertMenuItem(second);
        bar.setMenuItemWidth(100, -1);
        for (TabMenuItemWidget* entry : {first, second}) {
            entry->insertSubMenuItem(10, QStringLiteral("a"));
            entry->insertSubMenuItem(11, QStringLiteral("b"));
        }
        bar.show();
        QCoreApplication::processEvents();
    }
};

} // namespace

class MenusTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void popupHoldsItsEntries()
    {
        PopupMenuWidget popup;
        MenuItem* a = popup.createSubMenuItem(1, QStringLiteral("a"));
        QVERIFY(!popup.createSubMenuItem(1, QStringLiteral("again")));
        MenuItem* b = popup.createSubMenuItem(2, QStringLiteral("b"));
        MenuItem* c = popup.createSubMenuItem(3, QStringLiteral("c"));
        for (MenuItem* item : {a, b, c})
            item->setFixedWidth(90);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCOMPARE(popup.findChildren<MenuItem*>().size(), 3);
        // Rows share one pixel: 0, 29, 58; the window holds exactly them.
        QCOMPARE(b->geometry(), QRect(0, 29, 90, 30));
        QCOMPARE(c->geometry().top(), 58);
        QCOMPARE(popup.size(), QSize(90, 88));
    }

    void barLayout()
    {
        MenuBar menu;
        QCOMPARE(menu.first->geometry(), QRect(0, 0, 100, 40));
        QCOMPARE(menu.second->geometry(), QRect(99, 0, 100, 40));
        menu.bar.setMenuItemWidth(120, -1);
        QCoreApplication::processEvents();
        QCOMPARE(menu.second->geometry(), QRect(119, 0, 120, 40));
        menu.bar.setMenuItemWidth(50, 2);
        QCoreApplication::processEvents();
        QCOMPARE(menu.first->width(), 120);
        QCOMPARE(menu.second->width(), 50);
        // A main entry passes its height on to its drop-down rows.
        QCOMPARE(subEntry(menu.first, 10)->height(), 40);
    }

    void choosingReportsMainAndSubIds()
    {
        MenuBar menu;
        auto* plain = new TabMenuItemWidget(3, QStringLiteral("three"));
        menu.bar.insertMenuItem(plain);
        QSignalSpy spy(&menu.bar, &TabMenuWidget::sigMenuItemClicked);

        sendEnter(menu.first);
        QVERIFY(popupOf(menu.first)->isVisible());
        QCOMPARE(popupOf(menu.first)->pos(), menu.first->mapToGlobal(QPoint(0, 40)));
        QTest::mouseClick(subEntry(menu.first, 11), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.last(), (QList<QVariant>{1, 11}));
        QVERIFY(!popupOf(menu.first)->isVisible());
        QCOMPARE(menu.bar.currentMenuItemText(), QStringLiteral("one"));

        // Choosing in entry 2 clears entry 1 and its sub-entries.
        sendEnter(menu.second);
        QTest::mouseClick(subEntry(menu.second, 10), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(spy.last(), (QList<QVariant>{2, 10}));
        QVERIFY(!menu.first->isChecked());
        QVERIFY(!subEntry(menu.first, 11)->isChecked());
        QVERIFY(menu.second->isChecked());
        QVERIFY(subEntry(menu.second, 10)->isChecked());

        // An entry with sub-entries reports nothing on its own click; one without reports -1.
        QTest::mouseClick(menu.second, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(spy.count(), 2);
        QTest::mouseClick(plain, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(spy.last(), (QList<QVariant>{3, -1}));
        QVERIFY(!menu.second->isChecked());
        QVERIFY(!subEntry(menu.second, 10)->isChecked());

        // Choosing in code marks the main entry only and reports nothing...
        menu.bar.setCurrentMenuItem(2, 11, false);
        QCOMPARE(spy.count(), 3);
        QCOMPARE(menu.bar.currentMenuItem(), menu.second);
        QVERIFY(!subEntry(menu.second, 11)->isChecked());
        // ...unless asked to, even for an id the bar does not have.
        menu.bar.setCurrentMenuItem(4, -1, true);
        QCOMPARE(spy.count(), 4);
        QCOMPARE(menu.bar.currentMenuItem(), nullptr);
    }

    void popupFollowsThePointer()
    {
        MenuBar menu;
        sendEnter(menu.first);
        PopupMenuWidget* popup = popupOf(menu.first);
        QVERIFY(popup->isVisible());
        sendLeave(menu.first);

        const auto moveTo = [&menu](const QPoint& global) {
            QMouseEvent move(QEvent::MouseMove, menu.bar.mapFromGlobal(global), global, Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&menu.bar, &move);
        };
        moveTo(popup->geometry().center());
        QVERIFY(popup->isVisible());
        QVERIFY(menu.first->isChecked());
        moveTo(popup->geometry().bottomRight() + QPoint(50, 50));
        QVERIFY(!popup->isVisible());
        QVERIFY(!menu.first->isChecked());
    }

    void navigationBarGroupsAndPresets()
    {
        IVerticalBarWidget bar;
        auto* middle = bar.findChild<QVBoxLayout*>(QStringLiteral("vmiddleLayout"));
        QVERIFY(middle);
        IconTextButton* a = bar.appendIconButton(IVerticalBarWidget::LayoutMIDDLE, QStringLiteral("a"));
        IconTextButton* b = bar.insertIconButton(IVerticalBarWidget::LayoutMIDDLE, 0, QStringLiteral("b"));
        bar.addStretch(IVerticalBarWidget::LayoutMIDDLE);
        QCOMPARE(middle->count(), 3);
        QCOMPARE(middle->itemAt(0)->widget(), b);
        QCOMPARE(middle->itemAt(1)->widget(), a);
        QCOMPARE(middle->stretch(2), 10);

        // The bar does not group its buttons: both stay pressed.
        QTest::mouseClick(a, Qt::LeftButton, {}, QPoint(2, 2));
        QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(2, 2));
        QVERIFY(a->isChecked() && b->isChecked());

        // append and insert preset differently: a bold 14-pixel font against the bar's own,
        // and other background colours.
        QCOMPARE(a->font().pixelSize(), 14);
        QCOMPARE(a->font().weight(), int(QFont::Bold));
        QCOMPARE(b->font(), bar.font());
        QColor n, h, p, d;
        b->backgroundColor(n, h, p, d);
        QCOMPARE(n, QColor(42, 44, 48));
        QCOMPARE(h, QColor(34, 35, 38));

        // The setters reach the buttons there are; later ones still get the preset.
        bar.setFontPixelSize(16);
        IconTextButton* later = bar.appendIconButton(IVerticalBarWidget::LayoutBOTTOM, QStringLiteral("c"));
        QCOMPARE(a->font().pixelSize(), 16);
        QCOMPARE(a->font().weight(), int(QFont::Normal));
        QCOMPARE(later->font().pixelSize(), 14);
        QCOMPARE(later->font().weight(), int(QFont::Bold));
        // A button outside the three groups is still the bar's.
        IconTextButton* loose = bar.appendIconButton(IVerticalBarWidget::BtnLayoutIndex(3), QStringLiteral("x"));
        for (auto* layout : bar.findChildren<QVBoxLayout*>())
            QCOMPARE(layout->indexOf(loose), -1);
        bar.setButtonBackgroundColor(Qt::red, Qt::red, Qt::red, Qt::red);
        loose->backgroundColor(n, h, p, d);
        QCOMPARE(n, QColor(Qt::red));

        bar.resize(60, 200);
        bar.setBackgroundColor(false, Qt::red);
        QVERIFY(!near(render(&bar).pixelColor(1, 199), Qt::red));
        bar.setBackgroundColor(true, Qt::red);
        QVERIFY(near(render(&bar).pixelColor(1, 199), Qt::red));
    }
};

QObject* createMenusTest()
{
    return new MenusTest;
}

#include "tst_menus.moc"
