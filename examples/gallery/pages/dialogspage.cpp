// "Dialogs": every standard message box, the progress spinner (closed by a timer), both
// dialog shells and a movable widget.
#include "gallerypages.h"

#include "basecustomdialog.h"
#include "basecustomwidget.h"
#include "imovewidget.h"
#include "libvorlindlg.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

// A movable tool window with a little content of its own.
class MovableNote : public IMoveWidget
{
public:
    MovableNote()
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowFlag(Qt::Tool);
        QPalette colours = palette();
        colours.setColor(QPalette::Window, QColor(43, 47, 54));
        colours.setColor(QPalette::WindowText, QColor(230, 232, 235));
        setPalette(colours);
        setAutoFillBackground(true);
        setBorderColor(QColor(79, 163, 255));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(16, 16, 16, 16);
        auto* text = new QLabel(QCoreApplication::translate("DialogsPage",
                                                            "Drag me anywhere, resize me from my edges,\n"
                                                            "drag me to the top of the screen to maximise."));
        layout->addWidget(text);
        auto* close = new QPushButton(QCoreApplication::translate("DialogsPage", "Close"));
        connect(close, &QPushButton::clicked, this, &QWidget::close);
        layout->addWidget(close, 0, Qt::AlignRight);
        resize(360, 160);
    }
};

void fillShell(QWidget* container, const QString& text)
{
    auto* layout = new QVBoxLayout(container);
    layout->setContentsMargins(16, 12, 16, 12);
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setStyleSheet(QStringLiteral("color: #1f2329;"));
    layout->addWidget(label);
}

} // namespace

class DialogsPage : public TranslatedPage
{
    Q_OBJECT
public:
    DialogsPage()
    {
        auto* layout = new QVBoxLayout(this);
        m_boxes = new QGroupBox;
        auto* boxes = new QGridLayout(m_boxes);
        m_frames = new QGroupBox;
        auto* frames = new QGridLayout(m_frames);
        m_result = new QLabel;
        m_result->setWordWrap(true);

        const auto add = [this](QGridLayout* grid, int row, int column, const char* text, auto action) {
            auto* button = new QPushButton;
            button->setMinimumHeight(32);
            m_buttons.append({button, text});
            connect(button, &QPushButton::clicked, this, action);
            grid->addWidget(button, row, column);
        };
        add(boxes, 0, 0, QT_TR_NOOP("Question"), [this] {
            const bool yes = libVorlinDlg::QuestionDlg(window(), tr("Take off"), tr("Start the motors now?"));
            report(tr("Question answered: %1").arg(yes ? tr("confirmed") : tr("cancelled")));
        });
        add(boxes, 0, 1, QT_TR_NOOP("Question with three buttons"), [this] {
            const auto role = libVorlinDlg::Question_3BtnDlg(window(), tr("Mission"), tr("Save the changed mission?"));
            const QString names[] = {tr("no"), tr("yes"), tr("cancel")};
            report(tr("Three-button question answered: %1").arg(names[role]));
        });
        add(boxes, 1, 0, QT_TR_NOOP("Information (closes itself after 4 s)"), [this] {
            QTimer::singleShot(4000, this, [] { libVorlinDlg::CloseInformationDlg(); });
            libVorlinDlg::InformationDlg(window(), tr("Landing"), tr("The aircraft has landed."));
            report(tr("Information closed"));
        });
        add(boxes, 1, 1, QT_TR_NOOP("Warning"), [this] {
            libVorlinDlg::WarningDlg(window(), tr("Battery"), tr("Battery below 20 %: return home."));
            report(tr("Warning acknowledged"));
        });
        add(boxes, 2, 0, QT_TR_NOOP("Progress (3 s)"), [this] {
            QTimer::singleShot(3000, this, [] { libVorlinDlg::CloseProgressDlg(); });
            libVorlinDlg::ProgressDlg(window());
            report(tr("Progress finished"));
        });
        add(frames, 0, 0, QT_TR_NOOP("Custom dialog shell"), [this] {
            BaseCustomDialog dialog(window());
            dialog.setBackgroundColor(QColor(236, 241, 247));
            dialog.setTitleBkColor(QColor(44, 110, 170));
            dialog.SetDialogTitle(tr("Link settings"), QStringLiteral(":/gallery/logo.svg"));
            dialog.slotUpdateBackgroundSkin(QCoreApplication::applicationDirPath() +
                                                QStringLiteral("/Skins/BaseDialogTitleSkin.png"),
                                            QString());
            fillShell(dialog.Container(), tr("A modal shell: drag it from anywhere, close it with the button "
                                             "in its title. Escape and Enter do not close it."));
            dialog.resize(380, 240);
            dialog.exec();
            report(tr("Dialog shell closed"));
        });
        add(frames, 0, 1, QT_TR_NOOP("Custom widget shell"), [this] {
            if (m_shell) {
                m_shell->raise();
                return;
            }
            m_shell = new BaseCustomWidget;
            m_shell->setAttribute(Qt::WA_DeleteOnClose);
            m_shell->SetDialogTitle(tr("Telemetry"), QString());
            m_shell->SetBorder(6); // resizable from a 5-pixel band
            fillShell(m_shell->Container(), tr("A tool-window shell with the application's skins. "
                                               "Its edges resize it."));
            m_shell->resize(400, 260);
            m_shell->show();
        });
        add(frames, 1, 0, QT_TR_NOOP("Movable widget"), [this] {
            if (!m_note)
                m_note = new MovableNote;
            m_note->show();
            m_note->raise();
        });

        layout->addWidget(m_boxes);
        layout->addWidget(m_frames);
        layout->addWidget(m_result);
        layout->addStretch();
        retranslate();
    }

    ~DialogsPage() override
    {
        delete m_shell.data();
        delete m_note.data();
    }


private:
    void retranslate() override
    {
        m_boxes->setTitle(tr("Message boxes"));
        m_frames->setTitle(tr("Frames"));
        for (const auto& entry : m_buttons)
            entry.first->setText(tr(entry.second));
        if (m_result->text().isEmpty())
            m_result->setText(tr("Open a box: its answer shows here."));
    }

    void report(const QString& text) { m_result->setText(text); }

    QGroupBox* m_boxes;
    QGroupBox* m_frames;
    QLabel* m_result;
    QList<QPair<QPushButton*, const char*>> m_buttons;
    QPointer<BaseCustomWidget> m_shell;
    QPointer<MovableNote> m_note;
};

GALLERY_PAGE(DialogsPage, QT_TRANSLATE_NOOP("Gallery", "Dialogs"), 70)

#include "dialogspage.moc"
