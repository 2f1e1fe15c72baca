#include "windowlookup.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace vorlin {
namespace platform {

namespace {

template <typename T>
using XcbReply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
XcbReply<T> reply(T* raw)
{
    return XcbReply<T>(raw, &std::free);
}

// A connection of our own to $DISPLAY, so that windows of every process are visible
// and the application's own connection is left alone.
class X11Session
{
public:
    X11Session()
    {
        // Under another platform plug-in (offscreen, wayland) a display may still be
        // reachable, but the program's windows are not on it.
        if (qobject_cast<QGuiApplication*>(QCoreApplication::instance())
            && QGuiApplication::platformName() != QLatin1String("xcb"))
            return;
        int screenNumber = 0;
        m_connection = xcb_connect(nullptr, &screenNumber);
        if (xcb_connection_has_error(m_connection))
            return;
        xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
        for (int i = 0; i < screenNumber && screens.rem; ++i)
            xcb_screen_next(&screens);
        if (screens.rem)
            m_root = screens.data->root;
    }
    ~X11Session()
    {
        if (m_connection)
            xcb_disconnect(m_connection);
    }
    X11Session(const X11Session&) = delete;
    X11Session& operator=(const X11Session&) = delete;

    bool isValid() const { return m_root != XCB_WINDOW_NONE; }
    xcb_connection_t* connection() const { return m_connection; }
    xcb_window_t root() const { return m_root; }

    xcb_atom_t atom(const char* name) const
    {
        auto answer = reply(xcb_intern_atom_reply(m_connection, xcb_intern_atom(m_connection, 0, uint16_t(qstrlen(name)), name), nullptr));
        return answer ? answer->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    QByteArray property(xcb_window_t window, xcb_atom_t property, xcb_atom_t type) const
    {
        auto answer = reply(xcb_get_property_reply(m_connection, xcb_get_property(m_connection, 0, window, property, type, 0, 4096), nullptr));
        if (!answer || answer->type == XCB_ATOM_NONE)
            return QByteArray();
        return QByteArray(static_cast<const char*>(xcb_get_property_value(answer.get())), xcb_get_property_value_length(answer.get()));
    }

    QString title(xcb_window_t window) const
    {
        const QByteArray netName = property(window, atom("_NET_WM_NAME"), atom("UTF8_STRING"));
        if (!netName.isEmpty())
            return QString::fromUtf8(netName);
        // WM_NAME is Latin-1 when typed STRING; Qt and most toolkits store UTF-8 there too.
        const QByteArray name = property(window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY);
        const QString utf8 = QString::fromUtf8(name);
        return utf8.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(name) : utf8;
    }

    // Managed clients first (a window manager reparents them into frames), then the
    // root's own children from the top of the stack down.
    QVector<xcb_window_t> topLevelWindows() const
    {
        QVector<xcb_window_t> windows;
        const QByteArray clients = property(m_root, atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW);
        const auto* client = reinterpret_cast<const xcb_window_t*>(clients.constData());
        for (int i = 0; i < clients.size() / int(sizeof(xcb_window_t)); ++i)
            windows.append(client[i]);
        auto tree = reply(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_root), nullptr));
        if (tree) {
            const xcb_window_t* children = xcb_query_tree_children(tree.get());
            for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i)
                windows.append(children[i]);
        }
        return windows;
    }

    xcb_window_t find(const QString& wanted) const
    {
        for (xcb_window_t window : topLevelWindows()) {
            if (title(window) == wanted)
                return window;
        }
        return XCB_WINDOW_NONE;
    }

private:
    xcb_connection_t* m_connection = nullptr;
    xcb_window_t m_root = XCB_WINDOW_NONE;
};

} // namespace

bool isTopLevelWindowVisible(const QString& title)
{
    X11Session x11;
    if (!x11.isValid())
        return false;
    const xcb_window_t window = x11.find(title);
    if (window == XCB_WINDOW_NONE)
        return false;
    auto attributes = reply(xcb_get_window_attributes_reply(x11.connection(), xcb_get_window_attributes(x11.connection(), window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool raiseTopLevelWindow(const QString& title)
{
    X11Session x11;
    if (!x11.isValid())
        return false;
    const xcb_window_t window = x11.find(title);
    if (window == XCB_WINDOW_NONE)
        return false;
    xcb_connection_t* c = x11.connection();
    // Mapping de-iconifies (ICCCM); the window manager, if any, activates on request.
    xcb_map_window(c, window);
    xcb_client_message_event_t activate = {};
    activate.response_type = XCB_CLIENT_MESSAGE;
    activate.format = 32;
    activate.window = window;
    activate.type = x11.atom("_NET_ACTIVE_WINDOW");
    activate.data.data32[0] = 2; // source: a pager-like tool acting for the user
    activate.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(c, 0, x11.root(), XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&activate));
    const uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(c, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    // Round trip so that the requests have reached the server before we disconnect.
    free(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    return true;
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
