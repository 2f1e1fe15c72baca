// "Application": the running application's own log lines as they reach the log file, the
// current log file, and the language switch.
#include "gallerypages.h"

#include "mainapplication.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace {

MainApplication* application()
{
    return qobject_cast<MainApplication*>(QCoreApplication::instance());
}

} // namespace

class LogPage : public TranslatedPage
{
    Q_OBJECT
public:
    LogPage()
    {
        auto* layout = new QVBoxLayout(this);
        auto* form = new QFormLayout;
        m_languageLabel = new QLabel;
        m_language = new QComboBox;
        m_language->addItem(QStringLiteral("中文"), MainApplication::enLanguageZH);
        m_language->addItem(QStringLiteral("English"), MainApplication::enLanguageEN);
        m_language->addItem(QStringLiteral("Deutsch"), MainApplication::enLanguageDE);
        m_language->setCurrentIndex(1);
        form->addRow(m_languageLabel, m_language);
        m_fileLabel = new QLabel;
        m_file = new QLabel;
        m_file->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(m_fileLabel, m_file);
        m_splitLabel = new QLabel;
        m_split = new QSpinBox;
        m_split->setRange(1, 2047);
        m_split->setValue(50);
        m_split->setSuffix(QStringLiteral(" MB"));
        form->addRow(m_splitLabel, m_split);
        layout->addLayout(form);

        auto* buttons = new QHBoxLayout;
        m_debug = new QPushButton;
        m_warning = new QPushButton;
        m_sound = new QPushButton;
        m_speak = new QPushButton;
        for (QPushButton* button : {m_debug, m_warning, m_sound, m_speak})
            buttons->addWidget(button);
        buttons->addStretch();
        layout->addLayout(buttons);

        m_lines = new QPlainTextEdit;
        m_lines->setReadOnly(true);
        m_lines->setMaximumBlockCount(2000);
        m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
        layout->addWidget(m_lines, 1);

        connect(m_language, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
            const auto language = MainApplication::language_role(m_language->currentData().toInt());
            qInfo() << "LogPage: switching language to" << language;
            application()->ChangeLanguageSource(language);
        });
        connect(m_split, qOverload<int>(&QSpinBox::valueChanged), this,
                [](int size) { application()->ChangeLoggerSplitSize(size); });
        connect(m_debug, &QPushButton::clicked, this, [] { qDebug() << "LogPage: a debug line from the gallery"; });
        connect(m_warning, &QPushButton::clicked, this, [] { qWarning() << "LogPage: a warning from the gallery"; });
        connect(m_sound, &QPushButton::clicked, this, [] { application()->startPlaySound(2); });
        connect(m_speak, &QPushButton::clicked, this, [] { application()->startSpeak(QStringLiteral("飞机已起飞")); });
        connect(&m_poll, &QTimer::timeout, this, &LogPage::readNewLines);
        m_poll.start(200);
        application()->ChangeLanguageSource(MainApplication::enLanguageEN);
        retranslate();
        QTimer::singleShot(0, this, [] { qInfo() << "LogPage: the gallery is running"; });
    }


private:
    void retranslate() override
    {
        m_languageLabel->setText(tr("Language"));
        m_fileLabel->setText(tr("Current log file"));
        m_splitLabel->setText(tr("Split size"));
        m_debug->setText(tr("Log a debug line"));
        m_warning->setText(tr("Log a warning"));
        m_sound->setText(tr("Play the notice twice"));
        m_speak->setText(tr("Speak"));
    }

    // Follows the newest log file in the current log folder.
    void readNewLines()
    {
        const QDir folder(application()->CurrentLoggerPath());
        const QStringList files = folder.entryList({QStringLiteral("gcs_client *.log")}, QDir::Files, QDir::Time);
        if (files.isEmpty())
            return;
        const QString path = folder.filePath(files.first());
        if (path != m_file->text()) {
            m_file->setText(path);
            m_offset = 0;
        }
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || file.size() <= m_offset)
            return;
        file.seek(m_offset);
        const QByteArray chunk = file.readAll();
        const int end = chunk.lastIndexOf('\n') + 1; // only whole lines
        m_offset += end;
        const QString text = QString::fromUtf8(chunk.left(end)).trimmed();
        if (!text.isEmpty())
            m_lines->appendPlainText(text);
    }

    QLabel* m_languageLabel;
    QComboBox* m_language;
    QLabel* m_fileLabel;
    QLabel* m_file;
    QLabel* m_splitLabel;
    QSpinBox* m_split;
    QPushButton* m_debug;
    QPushButton* m_warning;
    QPushButton* m_sound;
    QPushButton* m_speak;
    QPlainTextEdit* m_lines;
    QTimer m_poll;
    qint64 m_offset = 0;
};

GALLERY_PAGE(LogPage, QT_TRANSLATE_NOOP("Gallery", "Application"), 10)

#include "logpage.moc"
