// Draws the window-frame artwork: the title-bar system buttons, the link-state and
// check-box icons and the drag cursor of the library, and the gallery's own cursor and
// skins. Built and run by make-frames-art.sh; the output is committed.
#include <QtCore/QDir>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <functional>

namespace {

QString root;

void draw(const QString& path, QSize size, const std::function<void(QPainter&)>& paint, bool opaque = false)
{
    QImage image(size, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(opaque ? Qt::black : Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    const QString file = QDir(root).filePath(path);
    QDir().mkpath(QFileInfo(file).path());
    image.save(file, nullptr, file.endsWith(QLatin1String(".jpg")) ? 92 : -1);
}

QPen glyphPen(const QColor& color, qreal width = 1.6)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// The system-button glyphs, centred in a 30 x 25 icon.
void hoverBackdrop(QPainter& p)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 40));
    p.drawRoundedRect(QRectF(3, 2, 24, 21), 3, 3);
}

void settingGlyph(QPainter& p, const QColor& c)
{
    p.setPen(glyphPen(c));
    p.setBrush(Qt::NoBrush);
    const QPointF centre(15, 12.5);
    for (int i = 0; i < 8; ++i) {
        p.save();
        p.translate(centre);
        p.rotate(45 * i);
        p.drawLine(QPointF(0, -5), QPointF(0, -7));
        p.restore();
    }
    p.drawEllipse(centre, 4.8, 4.8);
    p.drawEllipse(centre, 1.8, 1.8);
}

void menuGlyph(QPainter& p, const QColor& c)
{
    p.setPen(glyphPen(c));
    for (qreal y : {8.0, 12.5, 17.0})
        p.drawLine(QPointF(9, y), QPointF(21, y));
}

void minimizeGlyph(QPainter& p, const QColor& c)
{
    p.setPen(glyphPen(c));
    p.drawLine(QPointF(9.5, 13), QPointF(20.5, 13));
}

void maximizeGlyph(QPainter& p, const QColor& c)
{
    p.setPen(glyphPen(c, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(9.5, 7.5, 11, 10));
}

void restoreGlyph(QPainter& p, const QColor& c)
{
    p.setPen(glyphPen(c, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(9.5, 10.5, 8, 7.5));
    QPainterPath back;
    back.moveTo(12.5, 10.5);
    back.lineTo(12.5, 7.5);
    back.lineTo(20.5, 7.5);
    back.lineTo(20.5, 15);
    back.lineTo(17.5, 15);
    p.drawPath(back);
}

void closeGlyph(QPainter& p, const QColor& c, QPointF centre = QPointF(15, 12.5), qreal half = 5)
{
    p.setPen(glyphPen(c));
    p.drawLine(centre + QPointF(-half, -half), centre + QPointF(half, half));
    p.drawLine(centre + QPointF(-half, half), centre + QPointF(half, -half));
}

void titleButtons()
{
    const QSize size(30, 25);
    const QColor normal(221, 227, 234);
    const QColor hover(255, 255, 255);
    draw(QStringLiteral("resources/title_sysbtn/title_setting_n.png"), size, [&](QPainter& p) { settingGlyph(p, normal); });
    draw(QStringLiteral("resources/title_sysbtn/title_menu_n.png"), size, [&](QPainter& p) { menuGlyph(p, normal); });
    draw(QStringLiteral("resources/title_sysbtn/title_minimize_n.png"), size, [&](QPainter& p) { minimizeGlyph(p, normal); });
    draw(QStringLiteral("resources/title_sysbtn/title_maximized_n.png"), size, [&](QPainter& p) { maximizeGlyph(p, normal); });
    draw(QStringLiteral("resources/title_sysbtn/title_maximized_h.png"), size, [&](QPainter& p) {
        hoverBackdrop(p);
        maximizeGlyph(p, hover);
    });
    draw(QStringLiteral("resources/title_sysbtn/title_maximized2normal_n.png"), size,
         [&](QPainter& p) { restoreGlyph(p, normal); });
    draw(QStringLiteral("resources/title_sysbtn/title_maximized2normal_h.png"), size, [&](QPainter& p) {
        hoverBackdrop(p);
        restoreGlyph(p, hover);
    });
    draw(QStringLiteral("resources/title_sysbtn/title_close_n.png"), size, [&](QPainter& p) { closeGlyph(p, normal); });
}

void stateIcons()
{
    draw(QStringLiteral("resources/state_icon/Confirm.png"), QSize(32, 32), [](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(46, 170, 92));
        p.drawEllipse(QRectF(2, 2, 28, 28));
        QPainterPath tick;
        tick.moveTo(9, 16.5);
        tick.lineTo(14, 21.5);
        tick.lineTo(23.5, 11);
        p.setPen(glyphPen(Qt::white, 3.2));
        p.setBrush(Qt::NoBrush);
        p.drawPath(tick);
    });
    draw(QStringLiteral("resources/state_icon/Cancel.png"), QSize(32, 32), [](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(214, 58, 58));
        p.drawEllipse(QRectF(2, 2, 28, 28));
        closeGlyph(p, Qt::white, QPointF(16, 16), 6);
        p.setPen(glyphPen(Qt::white, 3.2));
        p.drawLine(QPointF(10, 10), QPointF(22, 22));
        p.drawLine(QPointF(10, 22), QPointF(22, 10));
    });
    draw(QStringLiteral("resources/state_icon/checkbox_unchecked.png"), QSize(16, 16), [](QPainter& p) {
        p.setPen(QPen(QColor(122, 133, 148), 1.2));
        p.setBrush(QColor(31, 35, 41));
        p.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 2.5, 2.5);
    });
    draw(QStringLiteral("resources/state_icon/checkbox_checked.png"), QSize(16, 16), [](QPainter& p) {
        p.setPen(QPen(QColor(47, 122, 217), 1.2));
        p.setBrush(QColor(47, 122, 217));
        p.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 2.5, 2.5);
        QPainterPath tick;
        tick.moveTo(4.5, 8.2);
        tick.lineTo(7, 10.8);
        tick.lineTo(11.8, 5.2);
        p.setPen(glyphPen(Qt::white, 1.8));
        p.setBrush(Qt::NoBrush);
        p.drawPath(tick);
    });
}

// A four-way arrow cross, the move cursor; outlined so it shows on light and dark.
void moveCursor(const QString& path, const QColor& fill)
{
    draw(path, QSize(32, 32), [&](QPainter& p) {
        QPainterPath arrow;
        const qreal c = 16;
        for (int i = 0; i < 4; ++i) {
            QTransform turn;
            turn.translate(c, c);
            turn.rotate(90 * i);
            QPainterPath head;
            head.moveTo(0, -14);
            head.lineTo(5, -8.5);
            head.lineTo(1.8, -8.5);
            head.lineTo(1.8, -1.8);
            head.lineTo(-1.8, -1.8);
            head.lineTo(-1.8, -8.5);
            head.lineTo(-5, -8.5);
            head.closeSubpath();
            arrow.addPath(turn.map(head));
        }
        arrow.addRect(QRectF(c - 2.6, c - 2.6, 5.2, 5.2));
        arrow = arrow.simplified();
        p.setPen(QPen(QColor(20, 20, 20), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(fill);
        p.drawPath(arrow);
    });
}

void galleryArt()
{
    moveCursor(QStringLiteral("examples/gallery/resources/dialog_cursor.png"), QColor(255, 214, 92));
    // Four 24-pixel states of the close button: normal, hover, press, and the light one
    // the dialog shells pick at x = 48.
    draw(QStringLiteral("examples/gallery/Skins/sysBtnImges/ClostBtn.png"), QSize(96, 24), [](QPainter& p) {
        const QColor colours[] = {QColor(200, 205, 212), QColor(255, 255, 255), QColor(255, 120, 150), QColor(245, 248, 252)};
        for (int i = 0; i < 4; ++i)
            closeGlyph(p, colours[i], QPointF(24 * i + 12, 12), 5);
    });
    draw(QStringLiteral("examples/gallery/Skins/sysBtnImges/menu.png"), QSize(28, 24), [](QPainter& p) {
        p.setPen(glyphPen(QColor(245, 248, 252)));
        p.setBrush(Qt::NoBrush);
        QPainterPath chevron;
        chevron.moveTo(9, 10);
        chevron.lineTo(14, 15);
        chevron.lineTo(19, 10);
        p.drawPath(chevron);
    });
    draw(QStringLiteral("examples/gallery/Skins/BaseDialogTitleSkin.png"), QSize(480, 56), [](QPainter& p) {
        QLinearGradient g(0, 0, 480, 56);
        g.setColorAt(0, QColor(28, 72, 128));
        g.setColorAt(1, QColor(44, 110, 170));
        QPainterPath body;
        body.addRoundedRect(QRectF(0, 0, 480, 80), 16, 16);
        p.fillPath(body, g);
        p.setPen(QPen(QColor(255, 255, 255, 28), 1));
        for (int x = -56; x < 480; x += 14)
            p.drawLine(QPointF(x, 56), QPointF(x + 56, 0));
    });
    draw(QStringLiteral("examples/gallery/Skins/BaseDialogContextSkin.jpg"), QSize(480, 360), [](QPainter& p) {
        QLinearGradient g(0, 0, 0, 360);
        g.setColorAt(0, QColor(236, 241, 247));
        g.setColorAt(1, QColor(206, 218, 232));
        p.fillRect(QRect(0, 0, 480, 360), g);
        p.setPen(QPen(QColor(255, 255, 255, 90), 1));
        for (int y = 12; y < 360; y += 24)
            p.drawLine(0, y, 480, y);
    }, true);
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    root = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
    titleButtons();
    stateIcons();
    moveCursor(QStringLiteral("resources/state_icon/cursor.png"), Qt::white);
    galleryArt();
    return 0;
}
