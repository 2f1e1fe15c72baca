// "Inputs": every input widget of the library, with what each one reports written live
// into a coloured log editor on the right.
#include "gallerypages.h"

#include "basecombobox.h"
#include "basestylesheetcombobox.h"
#include "customcombobox.h"
#include "inputlineedit.h"
#include "ipaddressedit.h"
#include "ipinputedit.h"
#include "logedit.h"
#include "pathedit.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

QString readStyle(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class InputsPage : public QWidget
{
    Q_OBJECT
public:
    InputsPage()
    {
        auto* outer = new QHBoxLayout(this);
        auto* formColumn = new QVBoxLayout;
        auto* form = new QFormLayout;
        form->setVerticalSpacing(14);
        form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        formColumn->addLayout(form);
        formColumn->addStretch();
        outer->addLayout(formColumn, 3);

        auto* logColumn = new QVBoxLayout;
        logColumn->addWidget(new QLabel(tr("What the widgets report")));
        m_log = new LogEdit;
        logColumn->addWidget(m_log, 1);
        outer->addLayout(logColumn, 2);

        form->addRow(tr("Ground station address"), createAddressRow());
        form->addRow(tr("Flight mode (CustomComboBox)"), createFlightModeBox());
        form->addRow(tr("Recent links (BaseComboBox)"), createHistoryBox());
        form->addRow(tr("Camera (BaseStyleSheetCombobox)"), createCameraBox());
        form->addRow(tr("Pilot (InputLineEdit)"), createPilotEdit());
        form->addRow(tr("Mission file (PathEdit)"), createPathEdit());

        report(LogEdit::TextGreen, tr("Gallery inputs ready"));
    }

private:
    void report(LogEdit::color_text_e color, const QString& text)
    {
        QString line = text + QLatin1Char('\n');
        m_log->ChangeTextColor(color, line);
        m_log->ensureCursorVisible();
    }

    QWidget* createAddressRow()
    {
        auto* row = new QWidget;
        row->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        auto* layout = new QHBoxLayout(row);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* edit = new IPAddressEdit;
        edit->setFixedSize(200, 32);
        edit->setBorderColor(QColor(95, 143, 208));
        edit->setText(QStringLiteral("192.168.1.20"));
        auto* current = new QLabel;
        current->setMinimumWidth(140);
        auto show = [edit, current] { current->setText(tr("text(): %1").arg(edit->text())); };
        // The editor has no signal of its own; its fields tell when anything changed.
        for (IpInputEdit* field : edit->findChildren<IpInputEdit*>())
            connect(field, &QLineEdit::textChanged, current, show);
        show();
        layout->addWidget(edit);
        layout->addWidget(current);
        layout->addStretch();
        return row;
    }

    QWidget* createFlightModeBox()
    {
        auto* box = new CustomComboBox;
        box->setFixedSize(200, 30);
        box->setRadius(4);
        box->setPlaceholderText(tr("Choose a flight mode"));
        box->setPopWidgetStyle(QStringLiteral("PopupComboItemWidget { background-color: rgba(32,32,32,200); "
                                              "border-radius: 4px; }"));
        box->addItems({tr("Manual"), tr("Stabilize"), tr("Altitude hold"), tr("Loiter"), tr("Return home"), tr("Land")});
        box->setPopItemTextFont(12, QStringLiteral("Microsoft YaHei"), false);
        connect(box, &CustomComboBox::activated, this,
                [this](const QString& text) { report(LogEdit::TextBlue, tr("CustomComboBox::activated(\"%1\")").arg(text)); });
        connect(box, &CustomComboBox::currentTextChanged, this, [this](const QString& text) {
            report(LogEdit::TextBlack, tr("CustomComboBox::currentTextChanged(\"%1\")").arg(text));
        });
        return box;
    }

    QWidget* createHistoryBox()
    {
        auto* box = new BaseComboBox;
        box->setFixedWidth(220);
        box->setEditable(true);
        box->setStyleSheet(readStyle(QStringLiteral(":/Style/BaseComboBox.qss")));
        box->insertItemsAndTips({QStringLiteral("udp://192.168.1.20:14550"), QStringLiteral("udp://10.0.0.7:14550"),
                                 QStringLiteral("tcp://192.168.4.1:5760"), QStringLiteral("serial:///dev/ttyUSB0@57600")});
        box->setCurrentIndex(-1);
        box->setPlaceholderText(tr("Pick a recent link"));
        connect(box, &BaseComboBox::deleteItem, this, [this, box](const QModelIndex& index) {
            report(LogEdit::TextRed, tr("BaseComboBox::deleteItem(row %1): removed \"%2\"")
                                         .arg(index.row())
                                         .arg(index.data().toString()));
            box->model()->removeRow(index.row()); // the owner removes the row
        });
        connect(box, qOverload<int>(&QComboBox::activated), this, [this, box](int index) {
            report(LogEdit::TextBlue, tr("BaseComboBox::activated(%1) \"%2\"").arg(index).arg(box->itemText(index)));
        });
        return box;
    }

    QWidget* createCameraBox()
    {
        auto* box = new BaseStyleSheetCombobox;
        box->setFixedWidth(220);
        box->setStyleSheet(readStyle(QStringLiteral(":/Style/BaseComboBox.qss")));
        box->addItems({tr("Gimbal camera, wide angle 24 mm, 4K at 30 frames per second"),
                       tr("Gimbal camera, zoom lens 10x"), tr("Thermal camera 640 x 512"), tr("Downward obstacle camera")});
        box->setPlaceholderText(tr("Choose a camera"));
        connect(box, &BaseStyleSheetCombobox::sigShowPopUp, this,
                [this] { report(LogEdit::TextYellow, tr("BaseStyleSheetCombobox::sigShowPopUp()")); });
        connect(box, qOverload<int>(&QComboBox::activated), this, [this, box](int index) {
            report(LogEdit::TextBlue, tr("BaseStyleSheetCombobox::activated(%1) \"%2\"").arg(index).arg(box->itemText(index)));
        });
        return box;
    }

    QWidget* createPilotEdit()
    {
        auto* edit = new InputLineEdit;
        edit->setFixedSize(220, 32);
        edit->SetTipText(tr("Pilot name"));
        edit->SetTipIcon(QStringLiteral(":/navi_bar/icon_home.png"));
        connect(edit, &QLineEdit::editingFinished, this,
                [this, edit] { report(LogEdit::TextBlack, tr("InputLineEdit text: \"%1\"").arg(edit->text())); });
        return edit;
    }

    QWidget* createPathEdit()
    {
        auto* edit = new PathEdit;
        edit->setFixedSize(320, 30);
        edit->SetPrefixDirPath(QDir::homePath(), tr("Mission plans (*.plan *.waypoints);;All files (*)"));
        connect(edit, &PathEdit::sigSelectPathReady, this, [this, edit](bool selected) {
            report(selected ? LogEdit::TextGreen : LogEdit::TextRed,
                   tr("PathEdit::sigSelectPathReady(%1) \"%2\"").arg(selected ? QStringLiteral("true") : QStringLiteral("false"), edit->text()));
        });
        return edit;
    }

    LogEdit* m_log = nullptr;
};

GALLERY_PAGE(InputsPage, QT_TRANSLATE_NOOP("Gallery", "Inputs"), 30)

#include "inputspage.moc"
