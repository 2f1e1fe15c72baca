#pragma once

#include "vorlinglobal.h"

#include "icontextbutton.h"

class PopupComboItemWidget;
class QLabel;

// A drop-down chooser built from the library's own button: the closed box shows the chosen
// text and a small arrow, a click opens a frameless list of entries just below it. A press
// anywhere outside box and list closes the list again.
class VORLIN_EXPORT CustomComboBox : public IconTextButton
{
    Q_OBJECT
public:
    explicit CustomComboBox(QWidget* parent = nullptr);

    // Replaces all entries; nothing is chosen afterwards.
    void addItems(const QStringList& texts);
    IconTextButton* createPopItem(const QString& text);
    IconTextButton* createPopItem(int index, const QString& text);

    int currentIndex() const;
    QString currentText() const;
    // Chooses entry i as a click on it would; indices past the end are ignored.
    void setCurrentIndex(int i);

    // Shown on the box while nothing is chosen.
    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return m_placeholder; }

    void setPopWidgetStyle(const QString& qss);
    void setPopItemBackgroundColor(const QColor& normal, const QColor& hover, const QColor& press,
                                   const QColor& disable);
    void setPopItemTextColor(const QColor& normal, const QColor& hover, const QColor& press, const QColor& disable);
    void setPopItemTextFont(int pixelSize, const QString& family, bool bold);

    PopupComboItemWidget* popupWidget() const { return m_popup; }

public Q_SLOTS:
    void clear();

Q_SIGNALS:
    // On every choice, also of the entry already chosen.
    void activated(const QString& text);
    // Only when the chosen entry changes; empty when nothing is chosen any more.
    void currentTextChanged(const QString& text);

protected Q_SLOTS:
    void slotClicked();
    void slotItemClicked(IconTextButton* item);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void showPlaceholder();

    PopupComboItemWidget* m_popup = nullptr;
    IconTextButton* m_currentItem = nullptr;
    QLabel* m_arrowLabel = nullptr;
    QString m_placeholder;
};
