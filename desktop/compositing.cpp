#include "desktop/compositing.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string>

namespace corvana {

namespace {

template <class T>
using Presa = std::unique_ptr<T, decltype(&std::free)>;

xcb_atom_t Atomo(xcb_connection_t* server, const std::string& nome) {
    const auto domanda =
        xcb_intern_atom(server, 0, static_cast<std::uint16_t>(nome.size()), nome.c_str());
    const Presa<xcb_intern_atom_reply_t> risposta(xcb_intern_atom_reply(server, domanda, nullptr),
                                                  &std::free);
    return risposta ? risposta->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// By custom whatever composes a screen owns this selection.
bool HaCompositore(xcb_connection_t* server) {
    int schermo = 0, numero = 0;
    char* nome = nullptr;
    if (xcb_parse_display(nullptr, &nome, &numero, &schermo) != 0) std::free(nome);
    const xcb_atom_t selezione = Atomo(server, "_NET_WM_CM_S" + std::to_string(schermo));
    const auto domanda = xcb_get_selection_owner(server, selezione);
    const Presa<xcb_get_selection_owner_reply_t> risposta(
        xcb_get_selection_owner_reply(server, domanda, nullptr), &std::free);
    return risposta && risposta->owner != XCB_WINDOW_NONE;
}

}  // namespace

bool SchermoComposto() {
    // The offscreen platform claims an X server, too, but isn't connected to any.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return !x11 || !x11->connection() || HaCompositore(x11->connection());
}

}  // namespace corvana
