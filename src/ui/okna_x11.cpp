// ui/okna_x11.cpp - windows of other programs, under X.
#include "ui/okna_x11.h"

#include <QGuiApplication>

#ifdef TESK_XCB

#include <qguiapplication_platform.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace {

struct Uvolni {
    void operator()(void* co) const { std::free(co); }
};
template <class T> using Odpoved = std::unique_ptr<T, Uvolni>;

xcb_atom_t atom(xcb_connection_t* c, const char* jmeno) {
    const Odpoved<xcb_intern_atom_reply_t> o(xcb_intern_atom_reply(
        c, xcb_intern_atom(c, 0, static_cast<std::uint16_t>(std::strlen(jmeno)), jmeno), nullptr));
    return o ? o->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

QByteArray vlastnost(xcb_connection_t* c, xcb_window_t okno, xcb_atom_t ktera) {
    constexpr std::uint32_t kNejvicSlov = 256;
    const Odpoved<xcb_get_property_reply_t> o(xcb_get_property_reply(
        c, xcb_get_property(c, 0, okno, ktera, XCB_GET_PROPERTY_TYPE_ANY, 0, kNejvicSlov), nullptr));
    if (!o)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(o.get())),
            xcb_get_property_value_length(o.get())};
}

// Breadth first: a window manager puts its own frame around each window.
xcb_window_t najdi(xcb_connection_t* c, xcb_window_t koren, const QByteArray& titul) {
    const xcb_atom_t novy = atom(c, "_NET_WM_NAME");
    std::vector<xcb_window_t> fronta{koren};
    for (std::size_t i = 0; i < fronta.size(); ++i) {
        if (fronta[i] != koren && (vlastnost(c, fronta[i], XCB_ATOM_WM_NAME) == titul ||
                                   (novy != XCB_ATOM_NONE && vlastnost(c, fronta[i], novy) == titul)))
            return fronta[i];
        const Odpoved<xcb_query_tree_reply_t> strom(
            xcb_query_tree_reply(c, xcb_query_tree(c, fronta[i]), nullptr));
        if (strom)
            fronta.insert(fronta.end(), xcb_query_tree_children(strom.get()),
                          xcb_query_tree_children(strom.get()) + xcb_query_tree_children_length(strom.get()));
    }
    return XCB_WINDOW_NONE;
}

// The window may have gone in the meantime: such a fault is nobody's.
void proved(xcb_connection_t* c, xcb_void_cookie_t zadost) {
    const Odpoved<xcb_generic_error_t> chyba(xcb_request_check(c, zadost));
}

} // namespace

bool cizi_okno_do_popredi(const QString& titul) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr)
        return false;
    xcb_connection_t* c = x11->connection();
    const xcb_window_t koren = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    const xcb_window_t okno = najdi(c, koren, titul.toUtf8());
    if (okno == XCB_WINDOW_NONE)
        return false;
    if (!vlastnost(c, koren, atom(c, "_NET_SUPPORTING_WM_CHECK")).isEmpty()) {
        xcb_client_message_event_t zprava{};
        zprava.response_type = XCB_CLIENT_MESSAGE;
        zprava.format = 32;
        zprava.window = okno;
        zprava.type = atom(c, "_NET_ACTIVE_WINDOW");
        zprava.data.data32[0] = 2; // asked for by the operator
        proved(c, xcb_send_event_checked(
                      c, 0, koren, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                      reinterpret_cast<const char*>(&zprava)));
        return true;
    }
    const std::uint32_t nahoru = XCB_STACK_MODE_ABOVE;
    proved(c, xcb_map_window_checked(c, okno));
    proved(c, xcb_configure_window_checked(c, okno, XCB_CONFIG_WINDOW_STACK_MODE, &nahoru));
    proved(c, xcb_set_input_focus_checked(c, XCB_INPUT_FOCUS_PARENT, okno, XCB_CURRENT_TIME));
    return true;
}

#else

bool cizi_okno_do_popredi(const QString&) {
    return false;
}

#endif
