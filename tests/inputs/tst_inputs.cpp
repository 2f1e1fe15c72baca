#include "basecombobox.h"
#include "customcombobox.h"
#include "basestylesheetcombobox.h"
#include "dotlabel.h"
#include "hoveritemdelegate.h"
#include "inputlineedit.h"
#include "ipaddressedit.h"
#include "ipinputedit.h"
#include "itemdelegate.h"
#include "logedit.h"
#include "pathedit.h"
#include "popupcomboitemwidget.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QToolTip>

namespace {

QList<IpInputEdit*> fields(IPAddressEdit& edit)
{
    QList<IpInputEdit*> list;
    for (int i = 1; i <= 4; ++i)
        list << edit.findChild<IpInputEdit*>(QStringLiteral("input%1Edit").arg(i));
    return list;
}

void showActive(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

// The delegate's editorEvent is public on the abstract base.
bool sendToDelegate(QAbstractItemDelegate* delegate, QEvent::Type type, const QPoint& pos, const QRect& row,
                    const QModelIndex& index)
{
    QMouseEvent event(type, pos, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QStyleOptionViewItem option;
    option.rect = row;
    return delegate->editorEvent(&event, const_cast<QAbstractItemModel*>(index.model()), option, index);
}

} // namespace

class TestInputs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void ipSetTextAcceptsOnlyWholeAddresses();
    void ipTypingMovesTheFocus();
    void ipClearAndAppearance();
    void ipPaintsFrameThroughTransparentFields();

    void inputLineEditHintAndLayout();
    void pathEditDialogResult();
    void logEditEscapesColoursAndKeepsEightyBlocks();

    void itemDelegateHitSquare();
    void itemDelegatePaintsFocusedRow();
    void baseComboBoxDeleteClickInPopup();
    void baseComboBoxPlaceholderAndWheel();
    void styleSheetComboOpensAndCloses();
    void hoverDelegateShowsFullText();

    void customComboLaysOutAndChoosesFromPopup();
    void customComboClosesOnOutsidePress();
    void customComboRestylesEntries();
};

void TestInputs::cleanup()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

void TestInputs::ipSetTextAcceptsOnlyWholeAddresses()
{
    IPAddressEdit edit;
    edit.setText(QStringLiteral("192.168.1.20"));
    const QList<IpInputEdit*> f = fields(edit);
    QCOMPARE((QStringList{f[0]->text(), f[1]->text(), f[2]->text(), f[3]->text()}),
             (QStringList{QStringLiteral("192"), QStringLiteral("168"), QStringLiteral("1"), QStringLiteral("20")}));
    // An octet too big, too few or too many parts, padding: refused, the address in place stays.
    for (const char* refused : {"256.1.1.1", "1.2.3", "1.2.3.4.5", " 1.2.3.4"}) {
        edit.setText(QLatin1String(refused));
        QCOMPARE(edit.text(), QStringLiteral("192.168.1.20"));
        QCOMPARE(f[3]->text(), QStringLiteral("20"));
    }
}

void TestInputs::ipTypingMovesTheFocus()
{
    IPAddressEdit edit;
    edit.resize(240, 32);
    showActive(edit);
    const QList<IpInputEdit*> f = fields(edit);
    edit.setFocus();
    QTRY_VERIFY(f[0]->hasFocus());

    QTest::keyClicks(f[0], QStringLiteral("25"));
    QVERIFY(f[0]->hasFocus());
    QTest::keyClicks(f[0], QStringLiteral("5")); // 255 is a whole octet
    QVERIFY(f[1]->hasFocus());
    QCOMPARE(edit.text(), QStringLiteral("255..."));

    QTest::keyClicks(f[1], QStringLiteral("099")); // "099" is refused after "09"
    QCOMPARE(f[1]->text(), QStringLiteral("09"));
    QVERIFY(f[1]->hasFocus());

    QTest::keyClick(f[1], Qt::Key_Backspace);
    QTest::keyClick(f[1], Qt::Key_Backspace); // "0" is shorter than 2: back to field 1
    QVERIFY(f[0]->hasFocus());
    QCOMPARE(f[1]->text(), QString()); // the key still erased in field 2
    QCOMPARE(f[0]->text(), QStringLiteral("255"));

    f[2]->setFocus();
    QTest::keyClicks(f[2], QStringLiteral("7."));
    QVERIFY(f[3]->hasFocus());
    QCOMPARE(f[2]->text(), QStringLiteral("7")); // the dot itself is refused
    QTest::keyClicks(f[3], QStringLiteral("30"));
    QCOMPARE(edit.text(), QStringLiteral("255..7.30"));
}

void TestInputs::ipClearAndAppearance()
{
    IPAddressEdit edit;
    edit.resize(240, 32);
    showActive(edit);
    edit.setText(QStringLiteral("10.1.2.3"));
    fields(edit)[3]->setFocus();
    edit.clear();
    QCOMPARE(edit.text(), QStringLiteral("..."));
    QTRY_VERIFY(fields(edit)[0]->hasFocus());

    edit.setFontSize(6);
    QCOMPARE(edit.font().pixelSize(), 9);
    QCOMPARE(fields(edit)[2]->font().pixelSize(), 9);

    edit.setBorderRadius(10);
    QCOMPARE(edit.layout()->contentsMargins(), QMargins(6, 6, 6, 6));

    DotLabel dot;
    dot.setDotRadius(1);
    QCOMPARE(dot.minimumSize(), QSize(8, 8));
    dot.setDotRadius(5);
    QCOMPARE(dot.minimumSize(), QSize(12, 12));
}

void TestInputs::ipPaintsFrameThroughTransparentFields()
{
    IPAddressEdit edit;
    edit.setBkgColor(QColor(200, 0, 0));
    edit.setBorderColor(QColor(0, 0, 200));
    edit.resize(240, 40);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QCoreApplication::processEvents(); // the fields turn transparent once the loop runs

    const QImage image = edit.grab().toImage();
    const QList<IpInputEdit*> f = fields(edit);
    QCOMPARE(image.pixelColor(f[1]->geometry().center()), QColor(200, 0, 0));
    QVERIFY(image.pixelColor(edit.width() / 2, 0).blue() > 80); // the border, blended at the edge
    const QWidget* dot = edit.findChild<DotLabel*>();
    QCOMPARE(image.pixelColor(dot->geometry().center()), QColor(Qt::black));
}

void TestInputs::inputLineEditHintAndLayout()
{
    QTemporaryDir dir;
    QImage icon(8, 8, QImage::Format_ARGB32);
    icon.fill(Qt::red);
    const QString iconPath = dir.filePath(QStringLiteral("icon.png"));
    QVERIFY(icon.save(iconPath));

    InputLineEdit edit;
    edit.SetTipText(QStringLiteral("user name"));
    edit.resize(200, 40);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const QList<QLabel*> labels = edit.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(labels.size(), 2);
    QLabel* iconLabel = labels[0];
    QLabel* hint = labels[1];
    QVERIFY(hint->isVisible());
    QTest::keyClick(&edit, Qt::Key_A);
    QVERIFY(!hint->isVisible());
    edit.clear();
    QVERIFY(hint->isVisible());

    QCOMPARE(edit.textMargins().left(), 30); // kept free even without an icon
    QCOMPARE(iconLabel->geometry(), QRect(10, 10, 20, 20));
    QCOMPARE(hint->geometry().left(), 36);

    edit.SetTipIcon(iconPath);
    QVERIFY(iconLabel->pixmap(Qt::ReturnByValue).isNull());
    QCoreApplication::processEvents(); // the icon is laid out on the event loop
    QCOMPARE(iconLabel->pixmap(Qt::ReturnByValue).size(), QSize(20, 20));

    InputLineEdit filled(QStringLiteral("x"));
    QVERIFY(filled.findChildren<QLabel*>().at(1)->isHidden());
}

void TestInputs::pathEditDialogResult()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("plan.txt"));
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.close();

    PathEdit edit(QStringLiteral("old"));
    QVERIFY(edit.isReadOnly());
    edit.SetPrefixDirPath(dir.path(), QStringLiteral("Text (*.txt)"));
    edit.resize(240, 30);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    auto* button = edit.findChild<QToolButton*>();
    QVERIFY(button);
    QCOMPARE(button->geometry(), QRect(209, 3, 30, 24));
    QCOMPARE(edit.textMargins().right(), 30);
    QSignalSpy ready(&edit, &PathEdit::sigSelectPathReady);

    QString seenDirectory;
    auto answer = [&](bool accept) {
        QTimer::singleShot(0, [&, accept] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            seenDirectory = dialog->directory().absolutePath();
            if (accept) {
                dialog->selectFile(file);
                QMetaObject::invokeMethod(dialog, "accept");
            } else {
                dialog->reject();
            }
        });
    };
    answer(true);
    button->click();
    QCOMPARE(seenDirectory, QDir(dir.path()).absolutePath());
    QCOMPARE(edit.text(), file);
    QCOMPARE(ready.takeFirst().at(0).toBool(), true);

    answer(false);
    button->click();
    QCOMPARE(edit.text(), QString());
    QCOMPARE(ready.takeFirst().at(0).toBool(), false);
}

void TestInputs::logEditEscapesColoursAndKeepsEightyBlocks()
{
    LogEdit log;
    QVERIFY(log.isReadOnly());
    QString text = QStringLiteral("a<b");
    log.ChangeTextColor(LogEdit::TextBlue, text);
    QCOMPARE(text, QStringLiteral("<span style=\" color:#0000ff;\">a&lt;b</span>"));
    QCOMPARE(log.toPlainText(), QStringLiteral("a<b"));

    QString all = QStringLiteral("& > < \" ' x\r\n");
    log.ChangeTextColor(LogEdit::TextYellow, all);
    QCOMPARE(all, QStringLiteral("<span style=\" color:#de9c53;\">&amp;&emsp;&gt;&emsp;&lt;&emsp;&quot;&emsp;"
                                 "&#39;&emsp;x<br><br></span>"));

    QString spaced = QStringLiteral("x y");
    log.ChangeTextColor(LogEdit::color_text_e(7), spaced); // unknown values are black
    QCOMPARE(spaced, QStringLiteral("<span style=\" color:#000000;\">x&emsp;y</span>"));
    QVERIFY(log.toPlainText().endsWith(QStringLiteral("x y")));

    const struct { LogEdit::color_text_e color; const char* hex; } colours[] = {
        {LogEdit::TextRed, "ff0000"}, {LogEdit::TextGreen, "00ff00"}, {LogEdit::TextBlack, "000000"}};
    for (const auto& c : colours) {
        QString s = QStringLiteral("m");
        log.ChangeTextColor(c.color, s);
        QVERIFY2(s.contains(QLatin1String(c.hex)), qPrintable(s));
    }

    log.clear();
    for (int i = 0; i < 100; ++i) {
        QString line = QStringLiteral("line %1\n").arg(i);
        log.ChangeTextColor(LogEdit::TextGreen, line);
    }
    QCOMPARE(log.document()->blockCount(), 80);
    const QStringList lines = log.toPlainText().split(QLatin1Char('\n'));
    QCOMPARE(lines.first(), QStringLiteral("line 21")); // 79 lines and the empty one after them
    QCOMPARE(lines.at(78), QStringLiteral("line 99"));
}

void TestInputs::itemDelegateHitSquare()
{
    QComboBox box;
    box.resize(200, 30);
    box.setMaxVisibleItems(10);
    for (int i = 0; i < 10; ++i)
        box.addItem(QStringLiteral("entry %1").arg(i));
    ItemDelegate delegate;
    delegate.setDelegateComboBox(&box);
    QSignalSpy deleted(&delegate, &ItemDelegate::deleteItem);
    const QModelIndex index = box.model()->index(3, 0);
    const QRect row(0, 60, 190, 30); // narrower than the box, as inside its list

    // No scroll bar: the square starts at box width - 20.
    QCOMPARE(delegate.deleteIconRect(row), QRect(180, 69, 12, 12));
    sendToDelegate(&delegate, QEvent::MouseButtonPress, QPoint(181, 70), row, index);
    QCOMPARE(deleted.size(), 1);
    QCOMPARE(deleted.takeFirst().at(0).toModelIndex(), index);
    sendToDelegate(&delegate, QEvent::MouseButtonPress, QPoint(170, 70), row, index);
    QCOMPARE(deleted.size(), 0);

    // One entry more than fits: the square moves left of the scroll bar.
    box.addItem(QStringLiteral("entry 10"));
    QCOMPARE(delegate.deleteIconRect(row).left(), 165);
    sendToDelegate(&delegate, QEvent::MouseButtonPress, QPoint(181, 70), row, index);
    QCOMPARE(deleted.size(), 0);
    sendToDelegate(&delegate, QEvent::MouseButtonPress, QPoint(170, 70), row, index);
    QCOMPARE(deleted.size(), 1);

    // Hover over the square shows a hand.
    sendToDelegate(&delegate, QEvent::MouseMove, QPoint(170, 70), row, index);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::PointingHandCursor);
    sendToDelegate(&delegate, QEvent::MouseMove, QPoint(20, 70), row, index);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);

    // Without a box the square sits at the row's own right end.
    ItemDelegate plain;
    QCOMPARE(plain.deleteIconRect(row), QRect(170, 69, 12, 12));
}

void TestInputs::itemDelegatePaintsFocusedRow()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("a very long entry that cannot fit into the list's width")));
    ItemDelegate delegate;
    delegate.enableRightPixmap(true);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 200, 30);
    option.state = QStyle::State_Enabled;
    option.font = QApplication::font();

    auto render = [&](QStyle::State extra) {
        QImage image(200, 30, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QStyleOptionViewItem o(option);
        o.state |= extra;
        delegate.paint(&painter, o, model.index(0, 0));
        return image;
    };
    const QImage normal = render(QStyle::State_None);
    const QImage focused = render(QStyle::State_HasFocus);
    QCOMPARE(normal.pixelColor(199, 1), QColor(255, 255, 255));
    QCOMPARE(focused.pixelColor(199, 1), QColor(243, 243, 243));
    // The delete cross is drawn only on the focused row, centred in its 12 x 12 square.
    QCOMPARE(normal.pixelColor(186, 15), QColor(255, 255, 255));
    QVERIFY(focused.pixelColor(186, 15).value() < 200);

    QVERIFY(QFontMetrics(QApplication::font()).horizontalAdvance(delegate.displayText(model.index(0, 0).data(), QLocale()))
            <= 130);
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)).height(),
             QStyledItemDelegate().sizeHint(option, model.index(0, 0)).height() + 16);
}

void TestInputs::baseComboBoxDeleteClickInPopup()
{
    BaseComboBox box;
    box.insertItemsAndTips({QStringLiteral("alpha"), QStringLiteral("beta"), QStringLiteral("gamma")});
    QCOMPARE(box.count(), 3);
    QCOMPARE(box.model()->index(1, 0).data(Qt::ToolTipRole).toString(), QStringLiteral("beta"));
    box.resize(200, 30);
    showActive(box);
    QSignalSpy deleted(&box, &BaseComboBox::deleteItem);

    box.showPopup();
    QAbstractItemView* view = box.view();
    QTRY_VERIFY(view->isVisible());
    const QRect row = view->visualRect(box.model()->index(1, 0));
    const QPoint icon(row.left() + box.width() - 20 + 6, row.center().y());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, icon);
    QCOMPARE(deleted.size(), 1);
    QCOMPARE(deleted.at(0).at(0).toModelIndex().row(), 1);
    QCOMPARE(box.count(), 3); // the owner removes rows, not the box
}

void TestInputs::baseComboBoxPlaceholderAndWheel()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* box = new BaseComboBox;
    box->setEditable(true);
    auto* other = new QLineEdit;
    layout->addWidget(box);
    layout->addWidget(other);
    box->insertItemsAndTips({QStringLiteral("alpha"), QStringLiteral("beta")});
    box->setCurrentIndex(-1);
    box->setPlaceholderText(QStringLiteral("history"));
    QCOMPARE(box->currentText(), QStringLiteral("history"));
    showActive(window);

    box->setFocus();
    QTRY_VERIFY(box->hasFocus());
    box->setEditText(QStringLiteral("typed"));
    other->setFocus();
    QTRY_VERIFY(other->hasFocus());
    QCOMPARE(box->lineEdit()->text(), QStringLiteral("history"));

    box->setCurrentIndex(1);
    QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QCOMPARE(box->currentIndex(), 1);
    QVERIFY(wheel.isAccepted());
}

void TestInputs::styleSheetComboOpensAndCloses()
{
    BaseStyleSheetCombobox box;
    box.setPlaceholderText(QStringLiteral("choose"));
    QVERIFY(box.lineEdit());
    QVERIFY(box.lineEdit()->isReadOnly());
    QCOMPARE(box.lineEdit()->placeholderText(), QStringLiteral("choose"));
    box.resize(200, 30);
    showActive(box);
    QSignalSpy shown(&box, &BaseStyleSheetCombobox::sigShowPopUp);

    QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
    QCOMPARE(shown.size(), 1);
    QVERIFY(!box.isPopupShown());
    QVERIFY(!box.view()->isVisible());

    box.addItems({QStringLiteral("one"), QStringLiteral("two")});
    box.setCurrentIndex(-1);
    QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
    QCOMPARE(shown.size(), 2);
    QVERIFY(box.isPopupShown());
    QTRY_VERIFY(box.view()->isVisible());
    QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
    QVERIFY(!box.isPopupShown());
    QTRY_VERIFY(!box.view()->isVisible());
    QCOMPARE(shown.size(), 2);

    box.setCurrentIndex(1);
    QCOMPARE(box.lineEdit()->text(), QStringLiteral("two"));
    box.setEnabled(false);
    QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
    QCOMPARE(shown.size(), 2);
}

void TestInputs::hoverDelegateShowsFullText()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("the whole entry")));
    model.appendRow(new QStandardItem(QString()));
    QListView view;
    view.setModel(&model);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    HoverItemDelegate delegate;
    QStyleOptionViewItem option;
    QHelpEvent tip(QEvent::ToolTip, QPoint(5, 5), view.mapToGlobal(QPoint(5, 5)));
    QVERIFY(delegate.helpEvent(&tip, &view, option, model.index(0, 0)));
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("the whole entry"));
    QToolTip::hideText();
    QVERIFY(!delegate.helpEvent(&tip, &view, option, model.index(1, 0)));
}

void TestInputs::customComboLaysOutAndChoosesFromPopup()
{
    CustomComboBox box;
    box.setPlaceholderText(QStringLiteral("pick one"));
    box.addItems({});
    QCOMPARE(box.popupWidget()->count(), 0);
    QCOMPARE(box.text(), QStringLiteral("pick one"));
    QCOMPARE(box.currentIndex(), -1);

    box.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    box.resize(120, 30);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QCoreApplication::processEvents();
    PopupComboItemWidget* popup = box.popupWidget();
    QCOMPARE(popup->indexOf(0)->geometry(), QRect(1, 16, popup->width() - 2, 30));
    QCOMPARE(popup->indexOf(1)->y(), 46);
    QCOMPARE(popup->indexOf(2)->y(), 76);
    QVERIFY(popup->height() >= 106); // every entry fits
    QVERIFY(!popup->indexOf(3));
    QCOMPARE(box.findChild<QLabel*>()->geometry(), QRect(120 - 6 - 12, 11, 12, 8)); // the arrow
    popup->setItemHeight(40);
    QCoreApplication::processEvents();
    QCOMPARE(popup->indexOf(2)->geometry(), QRect(1, 96, popup->width() - 2, 40));
    QCOMPARE(popup->height(), 137);

    QSignalSpy activated(&box, &CustomComboBox::activated);
    QSignalSpy changed(&box, &CustomComboBox::currentTextChanged);
    QTest::mouseClick(&box, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->pos(), box.mapToGlobal(QPoint(0, 30)));
    QCOMPARE(popup->width(), 120);
    QVERIFY(popup->windowFlags() & Qt::ToolTip);
    QCoreApplication::processEvents();

    QTest::mouseClick(popup->indexOf(1), Qt::LeftButton);
    QVERIFY(!popup->isVisible());
    QCOMPARE(box.text(), QStringLiteral("b"));
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(activated.size(), 1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("b"));

    // The same entry again: activated once more, no change.
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::mouseClick(popup->indexOf(1), Qt::LeftButton);
    QCOMPARE(activated.size(), 2);
    QCOMPARE(changed.size(), 1);

    box.setCurrentIndex(3); // past the end
    QCOMPARE(box.currentIndex(), 1);
    box.setCurrentIndex(2);
    QCOMPARE(box.currentText(), QStringLiteral("c"));
    QVERIFY(popup->indexOf(2)->isChecked());
    QVERIFY(!popup->indexOf(1)->isChecked());
    QCOMPARE(changed.size(), 2);

    // A second click on the box closes the list without a choice.
    QTest::mouseClick(&box, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QTest::mouseClick(&box, Qt::LeftButton);
    QVERIFY(!popup->isVisible());

    box.clear();
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(box.text(), QStringLiteral("pick one"));
    QCOMPARE(popup->count(), 0);
}

void TestInputs::customComboClosesOnOutsidePress()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* box = new CustomComboBox;
    auto* other = new QPushButton(QStringLiteral("elsewhere"));
    layout->addWidget(box);
    layout->addWidget(other);
    box->addItems({QStringLiteral("a"), QStringLiteral("b")});
    window.resize(300, 60);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PopupComboItemWidget* popup = box->popupWidget();
    QSignalSpy otherClicked(other, &QPushButton::clicked);

    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QCoreApplication::processEvents();
    // A press on the list's own background keeps it open.
    QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QVERIFY(popup->isVisible());

    QTest::mouseClick(other, Qt::LeftButton);
    QVERIFY(!popup->isVisible());
    QCOMPARE(otherClicked.size(), 1); // the press was not swallowed
    QCOMPARE(box->currentIndex(), -1);

    // The filter is gone with the list: the next outside press changes nothing.
    QTest::mouseClick(other, Qt::LeftButton);
    QCOMPARE(otherClicked.size(), 2);
    QVERIFY(!popup->isVisible());
}

void TestInputs::customComboRestylesEntries()
{
    CustomComboBox box;
    box.addItems({QStringLiteral("a")});
    box.setPopItemBackgroundColor(Qt::red, Qt::red, Qt::red, Qt::red);
    box.createPopItem(0, QStringLiteral("new"));
    PopupComboItemWidget* popup = box.popupWidget();
    QCOMPARE(popup->indexOf(0)->text(), QStringLiteral("new"));
    popup->resize(100, 100);
    QCoreApplication::processEvents();

    QImage restyled = popup->indexOf(1)->grab().toImage();
    QCOMPARE(restyled.pixelColor(restyled.width() - 3, 3), QColor(Qt::red));
    QImage preset = popup->indexOf(0)->grab().toImage();
    QVERIFY(preset.pixelColor(preset.width() - 3, 3).red() < 60); // entries made later keep the dark preset
}

QTEST_MAIN(TestInputs)
#include "tst_inputs.moc"
